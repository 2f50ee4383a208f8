#include "layers/modElite.h"
#include "layers/modGreenies.h"
#include "support/EliteWorld.h"
#include "world/modProfessions.h"

#include <gtest/gtest.h>

namespace orvinel {
namespace {

using namespace Qt::Literals::StringLiterals;

struct Greens : testing::Test, EliteWorld {
    Greens() {
        file(0, "EliteList.txt", "1\t1\tCinder\r\n");
        file(1, "Greens.txt",
             "  ;comment\tx\r\n\r\nonly a name\r\n"
             " Tusk Bow \t Old TUSK \t Damage 10 \t\tWind +1\r\n"
             "Aglet\tUlv\tBow grip\r\nzither\tNobody\tHum\r\nStray\tMissing\tx\r\n\tUlv\tnameless\r\n");
        file(1, "EliteLocations.txt",
             ";[Version] 2.0\r\n1\t1\t10\t10\told tusk \t\t5\r\n1\t1\t50\t50\tULV\tD\t5\r\n"
             "1\t2\t70\t70\tOld Tusk\tP\t7\r\n1\t1\t90\t90\tUlv\t\t5\r\n0\t1\t30\t30\tNobody\t\t6\r\n");
        load();
    }
    std::vector<int> listed(const GreenChoice& choice) const { return dataOf(greenEntries(state, choice)); }
};

TEST_F(Greens, areReadTrimmedAndLinkedToTheLastBossOfTheirName) {
    ASSERT_EQ(5, state.GreenItems.count());
    const GreenItem& bow = state.GreenItems[1];
    EXPECT_EQ(u"Tusk Bow|Old TUSK"_s, bow.Name + u'|' + bow.Boss);
    EXPECT_EQ((std::vector<QString>{u"Damage 10"_s, u""_s, u"Wind +1"_s}), std::vector<QString>(bow.Stats));
    EXPECT_EQ(&state.EliteSkills[1].Locations[3], greenLocation(state, 1));
    EXPECT_EQ((std::vector<int>{1}), state.EliteSkills[1].Locations[1].Greens);
    EXPECT_EQ((std::vector<int>{1}), state.EliteSkills[1].Locations[3].Greens);
    EXPECT_EQ(&state.EliteSkills[0].Locations[1], greenLocation(state, 3));
    EXPECT_EQ(nullptr, greenLocation(state, 4));
    EXPECT_EQ(0u, state.GreenItems[5].Stats.size());
}

TEST_F(Greens, bossesOfAnEventOrWithCodeDCarryNone) {
    EXPECT_EQ((std::vector<int>{}), state.EliteSkills[1].Locations[2].Greens);
    file(2, "Greens.txt", "Fin\tQuillon Brackfin\r\nPelt\tBear\r\n");
    file(2, "EliteLocations.txt",
         "1\t1\t9\t9\tQuillon Brackfin\tD\t0\tOnly during frost\r\n1\t1\t9\t9\tBear\t\t0\tONLY DURING "
         "frost\r\n"
         "1\t1\t9\t9\tquillon brackfin\tD\t0\r\n1\t1\t9\t9\tBear\t\t0\tNot only during frost\r\n");
    load();
    std::vector<size_t> carried;
    for (int j = 5; j <= 8; ++j)
        carried.push_back(state.EliteSkills[1].Locations[j].Greens.size());
    EXPECT_EQ((std::vector<size_t>{1, 0, 0, 1}), carried);
}

TEST_F(Greens, everyChoiceNarrowsTheList) {
    EXPECT_EQ((std::vector<ListEntry>{{u""_s, 5}, {u"Aglet"_s, 2}, {u"Tusk Bow"_s, 1}, {u"zither"_s, 3}}),
              greenEntries(state, {}));
    const std::pair<GreenChoice, std::vector<int>> cases[] = {
        {{.place = {1, 2, 0}}, {1}},
        {{.place = {1, 1, 1}}, {5, 2}},
        {{.place = {2, 0, 0}}, {}},
        {{.nameText = u" BOW "_s}, {1}},
        {{.additionalText = u"bow"_s}, {2}},
        {{.additionalText = u"bow "_s}, {2}},
        {{.additionalText = u" bow"_s}, {}},
        {{.attributeWords = {"wind", "ice"}}, {1}},
        {{.attributeWords = {""}}, {2, 1, 3}},
    };
    for (size_t i = 0; i < std::size(cases); ++i)
        EXPECT_EQ(cases[i].second, listed(cases[i].first)) << "case " << i;
}

TEST_F(Greens, lieAsABarUnderTheBoxOfTheirBossOrStandAlone) {
    const std::vector<int> greens = {2, 1, 3, 4, 88}, skills = {1}, none;
    const Marker aglet = Marker::picture(Sprite::GreenMarker, 84, 84);
    const Marker zither = Marker::picture(Sprite::GreenMarker, 24, 24);
    const Marker agletBar = Marker::box(84, 96, 96, 99, greenItemGreen);
    const Marker zitherBar = Marker::box(24, 36, 36, 39, greenItemGreen);
    EXPECT_EQ((std::vector<Marker>{agletBar, zitherBar}),
              greenMarkers(state, greens, skills, {1, 1, 0}, true));
    EXPECT_EQ((std::vector<Marker>{aglet, zitherBar}), greenMarkers(state, greens, none, {1, 1, 0}, true));
    EXPECT_EQ((std::vector<Marker>{aglet, zither}), greenMarkers(state, greens, skills, {1, 1, 0}, false));
    EXPECT_EQ((std::vector<Marker>{zither}), greenMarkers(state, greens, skills, {1, 1, 6}, false));
}

TEST_F(Greens, appearInTheirBosssTooltipWhileTheirLayerIsOn) {
    using Green = EliteTooltip::Green;
    EXPECT_EQ((std::vector<Green>{{u"Tusk Bow"_s, u"- Damage 10\r\n- \r\n- Wind +1"_s}}),
              eliteTooltip(state, {1, 1}, {1, 1, 0}, true, true).greens);
    EXPECT_EQ(0u, eliteTooltip(state, {1, 1}, {1, 1, 0}, true, false).greens.size());
}

} // namespace
} // namespace orvinel
