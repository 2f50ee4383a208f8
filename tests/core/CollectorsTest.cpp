#include "app/ProgramState.h"
#include "layers/modCollectors.h"
#include "support/MemoryDisk.h"
#include "world/modCampaigns.h"
#include "world/modProfessions.h"
#include "world/modZones.h"

#include <gtest/gtest.h>

namespace orvinel {
namespace {

using namespace Qt::Literals::StringLiterals;

struct CollectorLists : testing::Test {
    MemoryDisk disk;
    ProgramState state;

    CollectorLists() {
        state.AppPath = u"/o/"_s;
        state.LanguageTable.grow(9) = u"All"_s;
        disk.put(u"/o/Campaign.01.A/Regions.txt"_s, "1\tNorth\r\n2\tSouth\r\n");
        disk.put(u"/o/Campaign.01.A/Zones.txt"_s,
                 "70\t1\t1\t1\t9\t9\tMoor\r\n80\t1\t1\t1\t9\t9\tFen\r\n0\t1\t1\t1\t9\t9\tHeath\r\n");
        disk.put(
            u"/o/Campaign.01.A/Collectors.txt"_s,
            "; a comment\r\n"
            "3\tmaud\t1\t1\r\nBy the well\r\n5 Apples\r\n"
            "Iron Helm\t8\tArmour 20\t \tFire Magic +1\r\nCap\t4\r\n\r\n"
            "1\tZed\t0\t0\r\nAt the gate\r\n3 APPLES\r\n   \r\nAxe\t1\tSharp\r\n;Bow\t2\tLong Range\r\n\r\n"
            "2\tAdam\t01\t1\tx\r\nNowhere\r\nFeathers\r\nPike\t3\tLong\r\n\r\n");
        disk.put(u"/o/Campaign.01.A/CollectorsLocations.txt"_s,
                 "3\t1\t120.5\t121.5\t70\r\n1\t1\t50\t50\t80\r\n2\t2\t9\t9\t70\r\n2\t1\t40\t40\t70\r\n");
        load();
    }
    void load() {
        LoadCampaigns(state, disk);
        LoadZones(state, disk);
        LoadCollectors(state, disk);
        LoadCollectorLocations(state, disk);
    }
    std::vector<int> listed(const CollectorChoice& choice) const {
        std::vector<int> ids;
        for (const ListEntry& entry : collectorEntries(state, choice))
            ids.push_back(entry.data);
        return ids;
    }
};
using Ids = std::vector<int>;

TEST_F(CollectorLists, readBlocksUpToAnEmptyLine) {
    ASSERT_EQ(3, state.Collectors.highest());
    const Collector& zed = state.Collectors[1];
    EXPECT_EQ(u"At the gate"_s, zed.LocationText);
    ASSERT_EQ(2u, zed.Objects.size());
    EXPECT_EQ(u";Bow"_s, zed.Objects[1].Name);
    EXPECT_TRUE(state.Collectors[3].IsArmour);
    EXPECT_FALSE(state.Collectors[2].IsArmour);
    EXPECT_EQ(0, state.Collectors[2].Level) << "five fields";
    EXPECT_EQ(QRect(QPoint(114, 116), QPoint(126, 128)),
              QRect(QPoint(state.Collectors[3].Location.Left, state.Collectors[3].Location.Top),
                    QPoint(state.Collectors[3].Location.Right, state.Collectors[3].Location.Bottom)));
}

TEST_F(CollectorLists, standWhereTheirLastLocationPutsThem) {
    EXPECT_EQ(1, state.Collectors[2].Location.Region);
    EXPECT_EQ(40, state.Collectors[2].Location.X);
}

TEST_F(CollectorLists, passOverBlocksAndLinesThatCannotBeUsed) {
    disk.put(u"/o/Campaign.01.A/Collectors.txt"_s,
             "70000\tFar\t1\r\nx\r\ny\r\n5\t7\t1\r\n\r\n\r\n"
             "4\tshort\r\nx\r\ny\r\nSword\t1\tz\r\n\r\n3\t\t1\r\nno\r\nname\r\nGem\t1\r\n\r\n"
             "2\tEve\t1\r\nthere\r\nOre\r\nno mask\r\nRing\t99999\r\nGem\t1\r\n"
             "\r\n6\tCut\t1\r\nwhere the file ends");
    disk.put(u"/o/Campaign.01.A/CollectorsLocations.txt"_s,
             "1\t1\t5\t5\t70\r\n2\t1\t5\t5\tx\r\n2\t1\t5\t5\r\n2\t1\t7\t7\t70\r\n"
             "3\t1\t5\t5\t70\r\n9\t1\t5\t5\t70\r\n");
    load();
    ASSERT_EQ(3, state.Collectors.highest());
    EXPECT_FALSE(state.Collectors[1].Location.placed()) << "no header defined number 1";
    EXPECT_EQ(1u, state.Collectors[2].Objects.size());
    EXPECT_EQ(7, state.Collectors[2].Location.X);
    EXPECT_EQ((Ids{2}), listed({}));
}

TEST_F(CollectorLists, requestTypesIgnoreCaseAndTheNumberInFront) {
    using Types = std::vector<ListEntry>;
    EXPECT_EQ((Types{{u"<<< All >>>"_s, 0}, {u"Apples"_s, 1}, {u"Feathers"_s, 2}}),
              requestTypeEntries(state, CollectorChoice::anyLevel));
    EXPECT_EQ((Types{{u"<<< All >>>"_s, 0}, {u"Apples"_s, 1}}), requestTypeEntries(state, 1));
    EXPECT_EQ((Types{{u"<<< All >>>"_s, 0}, {u"Feathers"_s, 2}}), requestTypeEntries(state, 0));
}

TEST_F(CollectorLists, areRestrictedByThePanel) {
    using Choice = CollectorChoice;
    const std::vector<std::pair<Choice, Ids>> cases = {
        {{}, {2, 3, 1}},
        {{.place = {2, 0, 0}}, {}},
        {{.place = {1, 2, 0}}, {}},
        {{.place = {1, 1, 0}}, {2, 3, 1}},
        {{.place = {1, 1, 2}}, {1}},
        {{.place = {1, 1, 3}}, {}},
        {{.level = 1}, {3}},
        {{.kind = Choice::Kind::Objects}, {2, 1}},
        {{.kind = Choice::Kind::Armour}, {3}},
        {{.request = u"apPles"_s}, {3, 1}},
        {{.request = u"Pears"_s}, {}},
        {{.handMask = 2}, {2, 1}},
        {{.searchText = u"LONG"_s}, {2, 1}},
        {{.searchText = u"helm"_s}, {3}},
        {{.searchText = u" helm"_s}, {3}},
        {{.searchText = u"helm "_s}, {}},
        {{.searchText = u"maud"_s}, {}},
        {{.attributeWords = {"fire", "sharp"}}, {3, 1}},
        {{.attributeWords = {"helm", "pike"}}, {}},
        {{.attributeWords = {""}}, {2, 3, 1}},
    };
    for (size_t i = 0; i < cases.size(); ++i)
        EXPECT_EQ(cases[i].second, listed(cases[i].first)) << "case " << i;
}

TEST_F(CollectorLists, oneObjectMustMeetEverythingAsked) {
    CollectorChoice choice;
    choice.searchText = u"axe"_s;
    choice.handMask = 2;
    EXPECT_EQ(Ids{}, listed(choice)) << "the axe has mask 1, another object mask 2";
    choice.handMask = 1;
    EXPECT_EQ(Ids{1}, listed(choice));
    choice.attributeWords = {"range"};
    EXPECT_EQ(Ids{}, listed(choice));
    choice.attributeWords = {};
    choice.searchText = u"sharp\n;bow"_s;
    EXPECT_EQ(Ids{}, listed(choice)) << "no text goes on in the next";
}

TEST_F(CollectorLists, anObjectOfNoHandIsNeverFound) {
    disk.put(u"/o/Campaign.01.A/Collectors.txt"_s, "3\tmaud\t1\t1\r\nx\r\ny\r\nRing\t0\r\n\r\n");
    load();
    EXPECT_EQ(Ids{}, listed({}));
}

TEST_F(CollectorLists, drawAndFindWhatTheRegionShows) {
    const Ids all = {2, 3, 1, 99};
    using Markers = std::vector<Marker>;
    EXPECT_EQ(
        (Markers{Marker::picture(Sprite::CollArmi, 34, 34), Marker::picture(Sprite::CollArmature, 114, 116)}),
        collectorMarkers(state, all, {1, 1, 70}));
    EXPECT_EQ(Markers{}, collectorMarkers(state, all, {1, 2, 0}));
    const auto areas = collectorHitAreas(state, all, {1, 1, 70});
    ASSERT_EQ(3u, areas.size()) << "the zone chosen does not matter to the mouse";
    EXPECT_EQ((HitArea{34, 34, 46, 46, 2, 0}), areas[0]);
}

TEST_F(CollectorLists, tooltipsHighlightWhatIsLookedFor) {
    CollectorChoice choice;
    choice.searchText = u"FIRE"_s;
    choice.place = {4, 4, 4};
    const CollectorTooltip tooltip = collectorTooltip(state, 3, choice);
    EXPECT_EQ((QStringList{u"maud"_s, u"5 Apples"_s, u"By the well"_s}),
              (QStringList{tooltip.name, tooltip.request, tooltip.location}));
    EXPECT_EQ((std::vector<CollectorTooltip::Object>{
                  {u"Iron Helm"_s, u"- Armour 20\r\n- Fire Magic +1"_s, true}, {u"Cap"_s, u""_s, false}}),
              tooltip.objects);
}

} // namespace
} // namespace orvinel
