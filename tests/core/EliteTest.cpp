#include "app/ProgramState.h"
#include "layers/modElite.h"
#include "support/EliteWorld.h"
#include "world/modProfessions.h"

#include <gtest/gtest.h>

namespace orvinel {
namespace {

using namespace Qt::Literals::StringLiterals;

struct Elite : testing::Test, EliteWorld {
    std::vector<int> listed(const EliteChoice& choice) const { return dataOf(eliteEntries(state, choice)); }
};

TEST_F(Elite, onlyALineOfElevenFieldsGivesMoreThanTheName) {
    file(0, "EliteList.txt",
         "7\t1\t Ember Oath \tFire\tSpell\t-1\t5.5\t10\t1/4\t30\tBurns.\r\n"
         "12345\t1\tFar\tFire\tSpell\t0\t0\t0\t2\t0\tFar.\r\n8\t2\tShort\r\n"
         "9\t2\tLong\ta\tb\t1\t1\t1\t1\t1\tx\ty\r\n;10\t2\tComment\r\n");
    load();
    const EliteSkill& ember = state.EliteSkills[7];
    EXPECT_EQ(u"Ember Oath"_s, ember.Name);
    EXPECT_EQ((std::vector<int>{-1, 6, 10, 30}),
              (std::vector<int>{ember.Upkeep, ember.Adrenaline, ember.Energy, ember.Recharge}));
    EXPECT_EQ(u"/o/Campaign.00.Core/imgElite/0007.jpg"_s, ember.Picture);
    EXPECT_EQ(u"/o/Campaign.00.Core/imgElite/2345.jpg"_s, state.EliteSkills[12345].Picture);
    EXPECT_TRUE(state.EliteSkills[8].Exists);
    EXPECT_EQ(u"Long"_s, state.EliteSkills[9].Name);
    EXPECT_EQ(QString(), state.EliteSkills[9].Attribute + state.EliteSkills[9].Picture);
    EXPECT_FALSE(state.EliteSkills[10].Exists);
}

TEST_F(Elite, aLaterLineReplacesOnlyTheFieldsThatItHas) {
    file(0, "EliteList.txt", "7\t1\tOld\tFire\tSpell\t0\t0\t10\t1\t30\tBurns.\r\n");
    file(2, "EliteList.txt", "7\t2\tNew\r\n");
    load();
    const EliteSkill& skill = state.EliteSkills[7];
    EXPECT_EQ(u"New Fire Burns."_s, skill.Name + u' ' + skill.Attribute + u' ' + skill.Description);
    EXPECT_EQ(QString(), skill.Picture);
    EXPECT_EQ(2, skill.Campaign);
    EXPECT_EQ(2, skill.Profession);
}

TEST_F(Elite, listLinesThatCannotBeStoredChangeNothing) {
    file(0, "EliteList.txt",
         "1\t1\tGood\tFire\tSpell\t0\t0\t10\t1\t30\tBurns.\r\n1\tx\tbad\r\n1\t1\r\n-1\t1\tbad\r\n"
         "70000\t1\tbad\r\n1\t256\tbad\r\n1\t1\tbad\ta\tb\t40000\t0\t0\t1\t0\tc\r\n"
         "1\t1\tbad\ta\tb\t0\t-1\t0\t1\t0\tc\r\n1\t1\tbad\ta\tb\t0\t0\t256\t1\t0\tc\r\n\r\n");
    load();
    EXPECT_EQ(1, state.EliteSkills.highest());
    EXPECT_EQ(u"Good"_s, state.EliteSkills[1].Name);
}

TEST_F(Elite, coordinatesAreTwipsUntilAVersionSaysOtherwise) {
    file(0, "EliteList.txt", "1\t1\tA\r\n");
    file(1, "EliteLocations.txt",
         "1\t1\t1510\t-20\tBoss\ta\t3\r\n;[Version] 2.0\r\n1\t1\t2.5\t3.5\tBoss\ta\t3\r\n"
         ";[Version] 1.0\r\n1\t1\t30\t30\tBoss\ta\t3\r\n;[Version]12.0\r\n1\t1\t30\t30\tBoss\ta\t3\r\n");
    file(2, "EliteLocations.txt", "1\t1\t30\t30\tBoss\ta\t3\r\n");
    load();
    std::vector<std::pair<int, int>> places;
    for (const MapLocation& at : state.EliteSkills[1].Locations)
        places.emplace_back(at.X, at.Y);
    EXPECT_EQ((std::vector<std::pair<int, int>>{{100, -1}, {2, 4}, {2, 2}, {30, 30}, {2, 2}}), places);
    const MapLocation& first = state.EliteSkills[1].Locations[1];
    EXPECT_EQ((std::vector<int>{94, -7, 106, 5}),
              (std::vector<int>{first.Left, first.Top, first.Right, first.Bottom}));
}

TEST_F(Elite, locationsKeepTheirTextsAndBadLinesAreSkipped) {
    file(0, "EliteList.txt", "1\t1\tA\r\n");
    file(1, "EliteLocations.txt",
         ";[Version] 2.0\r\n1\t4\t10\t20\tOld Tusk\tPC\t-3\tfirst\\nsecond\r\n"
         "1\t1\t10\t20\tBoss\ta\t3\tnote\textra\r\n1\t1\t10\t20\tBoss\ta\r\n1\tx\t10\t20\tBoss\ta\t3\r\n"
         "2\t1\t10\t20\tBoss\ta\t3\r\n1\t1\t1000001\t20\tBoss\ta\t3\r\n1\t300\t10\t20\tBoss\ta\t3\r\n");
    load();
    const auto& locations = state.EliteSkills[1].Locations;
    ASSERT_EQ(2, locations.count());
    EXPECT_EQ(u"Old Tusk|PC|first\r\nsecond"_s,
              locations[1].Boss + u'|' + locations[1].MarkerCode + u'|' + locations[1].Note);
    EXPECT_EQ((std::vector<int>{1, 4, -3}),
              (std::vector<int>{locations[1].Campaign, locations[1].Region, locations[1].Zone}));
    EXPECT_EQ(QString(), locations[2].Note);
}

TEST_F(Elite, aNumberThatNoLineNamedMayHaveBossesAndThenHasNoName) {
    file(0, "EliteList.txt", "3\t1\tA\r\n");
    file(1, "EliteLocations.txt", "2\t1\t10\t20\tBoss\ta\t3\r\n0\t1\t10\t20\tNobody\ta\t3\r\n");
    load();
    EXPECT_EQ((std::vector<ListEntry>{{u" [#]"_s, 2}}), eliteEntries(state, {}));
}

// Skills: 1 of campaign 0 with a boss in 2; 2 in region 1 of campaign 1 (zones 5 and 6); 3 in region 2 of
// campaign 1 and region 1 of campaign 2; 4 without a place.
struct EliteSearch : Elite {
    EliteSearch() {
        file(0, "EliteList.txt", "1\t1\tcinder\tFire\tSpell\t0\t0\t0\t1\t0\tx\r\n4\t1\tLost\r\n");
        file(1, "EliteList.txt",
             "2\t2\tAmber Veil\tIce\tSpell\t0\t0\t0\t1\t0\tx\r\n3\t3\tBrook\tNo "
             "attribute\ta\t0\t0\t0\t1\t0\tx\r\n");
        file(1, "EliteLocations.txt",
             ";[Version] 2.0\r\n2\t1\t10\t10\tGrim Ulv\tP\t5\r\n2\t1\t15\t10\tMoth\t\t6\r\n"
             "3\t2\t10\t10\tMoth\t\t7\r\n0\t1\t40\t40\tGrey Boss\t?\t5\r\n0\t1\t50\t40\tOther\t?\t6\r\n");
        file(2, "EliteLocations.txt",
             ";[Version] 2.0\r\n3\t1\t9\t9\tUlvar\t\t0\r\n1\t1\t9\t9\tUrsa\t\t0\r\n");
        load();
    }
};

TEST_F(EliteSearch, listsInAlphabeticalOrder) {
    EXPECT_EQ((std::vector<ListEntry>{{u"Amber Veil [M]"_s, 2}, {u"Brook [B]"_s, 3}, {u"cinder [W]"_s, 1}}),
              eliteEntries(state, {}));
}

TEST_F(EliteSearch, everyChoiceNarrowsTheList) {
    const std::pair<EliteChoice, std::vector<int>> cases[] = {
        {{.place = {0, 0, 0}}, {1}},
        {{.place = {1, 0, 0}}, {2, 3}},
        {{.place = {1, 1, 0}}, {2}},
        {{.place = {1, 1, 1}}, {2}},
        {{.place = {1, 1, 2}}, {}},
        {{.place = {1, 1, 3}}, {2}},
        {{.place = {2, 0, 0}}, {3, 1}},
        {{.profession = 2}, {2}},
        {{.profession = 2, .secondary = 3}, {2, 3}},
        {{.secondary = 3}, {2, 3, 1}},
        {{.attribute = u"FIRE"_s}, {1}},
        {{.attribute = u"no attribute"_s}, {3}},
        {{.attribute = u""_s}, {}},
        {{.bossText = u"ULV"_s}, {2, 3}},
        {{.place = {1, 0, 0}, .bossText = u"ulv"_s}, {2}},
        {{.place = {1, 1, 1}, .bossText = u"moth"_s}, {}},
        {{.place = {0, 0, 0}, .bossText = u"ursa"_s}, {1}},
        {{.place = {0, 0, 0}, .bossText = u"ulv"_s}, {}},
        {{.nameText = u"R V"_s}, {2}},
        {{.nameText = u" "_s}, {2}},
    };
    for (size_t i = 0; i < std::size(cases); ++i)
        EXPECT_EQ(cases[i].second, listed(cases[i].first)) << "case " << i;
}

TEST_F(EliteSearch, uncapturedMeansByThatCharacterOrByAnybody) {
    state.EliteSkills[1].Captured = {false, true, false};
    state.EliteSkills[2].Captured = {false, false, true};
    state.EliteSkills[3].Captured = {};
    EXPECT_EQ((std::vector<int>{2, 3, 1}), listed({.character = 1}));
    EXPECT_EQ((std::vector<int>{3}), listed({.uncapturedOnly = true}));
    EXPECT_EQ((std::vector<int>{2, 3}), listed({.character = 1, .uncapturedOnly = true}));
}

TEST_F(EliteSearch, aSkillsLocationsAreListedInFileOrder) {
    EXPECT_EQ((std::vector<ListEntry>{{u"Mirefen - Coast - Ash"_s, 1}, {u" - Coast - Ash"_s, 2}}),
              eliteLocationEntries(state, 2, {}));
    EXPECT_EQ((std::vector<int>{2}), dataOf(eliteLocationEntries(state, 2, {.bossText = u"MO"_s})));
    EXPECT_EQ((std::vector<int>{1}), dataOf(eliteLocationEntries(state, 2, {.place = {1, 1, 1}})));
    EXPECT_EQ((std::vector<int>{}), dataOf(eliteLocationEntries(state, 2, {.place = {0, 0, 0}})));
    EXPECT_EQ((std::vector<int>{1}), dataOf(eliteLocationEntries(state, 1, {.place = {0, 0, 0}})));
}

TEST_F(EliteSearch, theMapShowsTheListedBossesAndThenTheGreyOnes) {
    const std::vector<int> list = {3, 2, 99};
    const std::vector<Marker> expected = {
        Marker::box(4, 4, 16, 16, 0x2222, u"P"_s), Marker::box(9, 4, 21, 16, 0x2222),
        Marker::box(34, 34, 46, 46, noBossGrey, u"?"_s), Marker::box(44, 34, 56, 46, noBossGrey, u"?"_s)};
    EXPECT_EQ(expected, eliteMarkers(state, list, {1, 1, 0}, {}));
    EXPECT_EQ((std::vector<Marker>{expected[1], expected[2], expected[3]}),
              eliteMarkers(state, list, {1, 1, 0}, u"OTH"_s));
    EXPECT_EQ((std::vector<Marker>{expected[0], expected[2]}), eliteMarkers(state, list, {1, 1, 5}, {}));
    EXPECT_EQ(0u, eliteMarkers(state, list, {}, {}).size());
}

TEST_F(EliteSearch, theMouseFindsListedSkillsBeforeThoseOfGreens) {
    GreenItem ofBossWithout, ofSkill;
    ofBossWithout.EliteID = 0;
    ofSkill.EliteID = 2;
    for (const GreenItem& item : {ofBossWithout, ofSkill, ofSkill, GreenItem()})
        state.GreenItems.append(item);
    const std::vector<int> skills = {3, 2}, greens = {1, 2, 3, 4, 77};
    const MapShown shown{1, 1, 6};
    const HitArea ulv{4, 4, 16, 16, 2, 1}, moth{9, 4, 21, 16, 2, 2};
    const HitArea grey{34, 34, 46, 46, 0, 1}, other{44, 34, 56, 46, 0, 2};
    EXPECT_EQ((std::vector<HitArea>{ulv, moth}), eliteHitAreas(state, skills, {}, shown));
    EXPECT_EQ((std::vector<HitArea>{ulv, moth, grey, other}), eliteHitAreas(state, skills, greens, shown));
    EXPECT_EQ((std::vector<HitArea>{grey, other, ulv, moth}), eliteHitAreas(state, {}, greens, shown));
}

TEST_F(Elite, theTooltipShowsOnlyCostsThatThereAre) {
    file(0, "EliteList.txt",
         "1\t1\tA\tFire\tSpell\t-1\t0\t0\t1/4\t0\tx\r\n2\t2\tB\tIce\tSong\t0\t5\t10\tnone/\t-2\tx\r\n"
         "3\t1\t \tFire\tSpell\t0\t0\t0\t2\t7\tx\r\n");
    file(1, "EliteLocations.txt",
         "1\t1\t9\t9\tMoth\t\t5\r\n2\t1\t9\t9\tMoth\t\t5\r\n3\t1\t9\t9\tMoth\t\t4\tn\r\n");
    load();
    const EliteTooltip a = eliteTooltip(state, {1, 1}, {1, 1, 0}, true, true);
    EXPECT_EQ(u"A Core Mirefen"_s, a.name + u' ' + a.campaign + u' ' + a.zone);
    EXPECT_EQ(u"-1"_s, a.upkeep);
    EXPECT_EQ(u"1/4"_s, a.castTime);
    EXPECT_FALSE(a.adrenaline || a.energy || a.recharge);
    EXPECT_TRUE(a.castTimeHasSlash && a.skillShown);
    const EliteTooltip b = eliteTooltip(state, {2, 1}, {1, 1, 0}, false, true);
    EXPECT_EQ(u"5 10"_s, *b.adrenaline + u' ' + *b.energy);
    EXPECT_FALSE(b.upkeep || b.recharge || b.castTime || b.skillShown);
    EXPECT_EQ(0x2222u, b.band);
    const EliteTooltip c = eliteTooltip(state, {3, 1}, {1, 1, 0}, true, true);
    EXPECT_FALSE(c.skillShown);
    EXPECT_EQ(u"n"_s, c.note + c.zone);
}

TEST_F(EliteSearch, attributeWordsAreFoldedAndIncludeTheTextForNone) {
    EXPECT_EQ((std::vector<std::string>{}), attributeWords(state, 0, u"Fire"_s));
    EXPECT_EQ((std::vector<std::string>{"no attribute", "ice", "wind"}), attributeWords(state, 2, {}));
    EXPECT_EQ((std::vector<std::string>{"wind"}), attributeWords(state, 2, u"Wind"_s));
    EXPECT_EQ((std::vector<std::string>{"no attribute"}), attributeWords(state, 200, {}));
}

} // namespace
} // namespace orvinel
