#include "app/ProgramState.h"
#include "layers/modPets.h"
#include "support/MemoryDisk.h"
#include "world/modCampaigns.h"

#include <gtest/gtest.h>

namespace orvinel {
namespace {

using namespace Qt::Literals::StringLiterals;

struct PetLists : testing::Test {
    MemoryDisk disk;
    ProgramState state;

    PetLists() {
        state.AppPath = u"/o/"_s;
        disk.put(u"/o/Campaign.00.Base/PetsList.txt"_s,
                 ";c\r\n0007\tWolf\tx\r\n3\tBear\tx\r\n5\ttoo short\r\n8/../9\tLynx\tx\r\n4\tYak\tx\r\n");
        disk.put(u"/o/Campaign.01.A/Regions.txt"_s, "1\tNorth\r\n2\tSouth\r\n");
        disk.put(u"/o/Campaign.01.A/Zones.txt"_s, "70\t1\t1\t1\t9\t9\tMoor\r\n80\t1\t1\t1\t9\t9\tFen\r\n");
        disk.put(u"/o/Campaign.02.B/PetsLocations.txt"_s, "3\t1\t1\t60\t60\r\n");
        disk.put(u"/o/Campaign.01.A/PetsLocations.txt"_s,
                 ";c\r\n7\t1\t80\t20\t20\tremark\r\n007\t1\t70\t24.5\t24\r\n9\t1\t1\t5\t5\r\n7\t1\t70\t5\r\n"
                 "2\t2\t1\t40\t40\r\n");
        LoadCampaigns(state, disk);
        LoadZones(state, disk);
        LoadPets(state, disk);
        LoadPetLocations(state, disk);
    }
};
using Entries = std::vector<ListEntry>;

TEST_F(PetLists, pictureNamesAreTheNumberAsWritten) {
    ASSERT_EQ(8, state.Pets.highest());
    EXPECT_EQ(u"/o/Campaign.00.Base/imgPets/0007.jpg"_s, state.Pets[7].Picture);
    EXPECT_EQ(u"Lynx"_s, state.Pets[8].Name);
    EXPECT_EQ(QString(), state.Pets[8].Picture) << "would lead out of the folder";
    EXPECT_EQ(Pet{}, state.Pets[5]);
}

TEST_F(PetLists, holdPetsWithAPlaceInTheSelection) {
    EXPECT_EQ((Entries{{u""_s, 2}, {u"Bear"_s, 3}, {u"Wolf"_s, 7}}), petEntries(state, {}));
    EXPECT_EQ((Entries{{u"Bear"_s, 3}}), petEntries(state, {{2, 0, 0}}));
    EXPECT_EQ((Entries{{u"Wolf"_s, 7}}), petEntries(state, {{1, 1, 1}}));
    EXPECT_EQ((Entries{{u""_s, 2}}), petEntries(state, {{1, 2, 0}}));
}

TEST_F(PetLists, placesAreNamedByZoneRegionAndCampaign) {
    EXPECT_EQ((Entries{{u"Fen - North - A"_s, 1}, {u"Moor - North - A"_s, 2}}),
              petLocationEntries(state, 7, {}));
    EXPECT_EQ((Entries{{u"Moor - North - A"_s, 2}}), petLocationEntries(state, 7, {{1, 1, 1}}));
    EXPECT_EQ((Entries{{u" -  - B"_s, 1}}), petLocationEntries(state, 3, {}));
}

TEST_F(PetLists, everyPlaceInTheRegionIsDrawnAndTheFirstIsFound) {
    const std::vector<int> listed = {2, 3, 7, 500};
    EXPECT_EQ(
        (std::vector<Marker>{Marker::picture(Sprite::Pet, 13, 13), Marker::picture(Sprite::Pet, 17, 17)}),
        petMarkers(state, listed, {1, 1, 0}));
    EXPECT_EQ(1u, petMarkers(state, listed, {1, 1, 70}).size());
    const HitIndex index(petHitAreas(state, listed, {1, 1, 70}));
    ASSERT_TRUE(index.first({22, 22}));
    EXPECT_EQ(7, index.first({22, 22})->id);
    EXPECT_EQ(1, index.first({22, 22})->part);
    EXPECT_EQ(2, index.first({31, 31})->part);
    EXPECT_FALSE(index.first({32, 31}));
}

} // namespace
} // namespace orvinel
