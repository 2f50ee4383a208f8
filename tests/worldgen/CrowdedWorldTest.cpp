#include "CrowdedWorld.h"
#include "WorldFiles.h"

#include "app/ProgramState.h"
#include "app/modData.h"
#include "support/MemoryDisk.h"
#include "world/modCampaigns.h"

#include <gtest/gtest.h>

namespace worldgen {

namespace {

using namespace Qt::Literals::StringLiterals;

struct Told : orvinel::Complaints {
    void add(const orvinel::Complaint& complaint) override { ADD_FAILURE() << qPrintable(complaint.reason); }
};

void load(orvinel::ProgramState& state, int scale) {
    const CrowdedWorld world(scale);
    orvinel::MemoryDisk disk;
    QStringList problems;
    for (const SourceCampaign& campaign : world.source().campaigns)
        for (const auto& [name, bytes] : campaignFiles(world.source(), world.places(), campaign, problems))
            disk.put(u"/o/"_s + campaignFolder(campaign) + u'/' + name, bytes);
    disk.put(u"/o/Personal/Notes.txt"_s, world.notes());
    orvinel::PlayerFiles files(disk);
    Told complaints;
    state.AppPath = u"/o/"_s;
    orvinel::loadTables(state, files, &complaints);
    EXPECT_TRUE(problems.isEmpty());
}

TEST(CrowdedWorld, PutsItsShapeTimesTheScaleIntoOneRegion) {
    for (const int scale : {1, 3}) {
        orvinel::ProgramState state;
        load(state, scale);
        EXPECT_EQ(orvinel::findRegion(state, 3, 1)->RegionZones.count(), 400 * scale);
        EXPECT_EQ(state.EliteSkills.highest(), 400 * scale);
        EXPECT_EQ(state.Collectors.highest(), 600 * scale);
        EXPECT_EQ(state.Notes.count(), 500 * scale);
        EXPECT_EQ(state.Treasures.count(), 300 * scale);
        EXPECT_EQ(state.Pets.highest(), 30 * scale);
        EXPECT_EQ(state.GreenItems.count(), 200 * scale);
        int bosses = 0;
        for (const orvinel::EliteSkill& skill : state.EliteSkills)
            for (const orvinel::MapLocation& at : skill.Locations) {
                EXPECT_EQ(at.Region, 1);
                ++bosses;
            }
        EXPECT_EQ(bosses, 1500 * scale);
    }
}

// The program leaves out, with a complaint, what is beyond its bounds: a measurement would count the saying.
TEST(CrowdedWorld, StaysWithinTheProgramsBoundsAtItsLargest) {
    orvinel::ProgramState state;
    load(state, 100);
    EXPECT_EQ(state.EliteSkills.highest(), 40000);
}

} // namespace

} // namespace worldgen
