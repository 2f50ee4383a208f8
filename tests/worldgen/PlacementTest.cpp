#include "Placement.h"

#include <gtest/gtest.h>

namespace worldgen {

using namespace Qt::Literals::StringLiterals;

namespace {

bool everywhere(QPoint) {
    return true;
}

int distanceSquared(QPoint a, QPoint b) {
    const QPoint gap = a - b;
    return gap.x() * gap.x() + gap.y() * gap.y();
}

TEST(PlaceFinder, givesFreeLandNearTheWish) {
    const auto eastOf300 = [](QPoint place) { return place.x() > 300; };
    PlaceFinder finder(QSize(800, 600), eastOf300, 1);
    finder.block(QRect(380, 280, 60, 40));
    std::vector<QPoint> places;
    for (int i = 0; i < 60; ++i) {
        const auto place = finder.placeNear(QPoint(400, 300), 120, 16);
        ASSERT_TRUE(place);
        EXPECT_GT(place->x(), 300);
        EXPECT_FALSE(QRect(380, 280, 60, 40).contains(*place));
        EXPECT_LE(distanceSquared(*place, QPoint(400, 300)), 190 * 190);
        for (const QPoint other : places) {
            EXPECT_FALSE(QRect(*place, QSize(16, 16)).intersects(QRect(other, QSize(16, 16)))); // as squares
        }
        places.push_back(*place);
    }
}

TEST(PlaceFinder, goesFarWhenThereIsNoRoomNearAndEndsWhenThereIsNone) {
    const auto corner = [](QPoint place) { return place.x() > 740 && place.y() > 540; };
    PlaceFinder finder(QSize(800, 600), corner, 1);
    const auto place = finder.placeNear(QPoint(60, 60), 50, 16);
    ASSERT_TRUE(place);
    EXPECT_TRUE(corner(*place));
    PlaceFinder sea(
        QSize(800, 600), [](QPoint) { return false; }, 1);
    EXPECT_FALSE(sea.placeNear(QPoint(60, 60), 50, 16));
}

TEST(PlaceFinder, dependsOnItsSeedAlone) {
    // The numbers stand for "on every machine": another generator, or one that rounds, would give others.
    PlaceFinder finder(QSize(800, 600), everywhere, 42);
    PlaceFinder again(QSize(800, 600), everywhere, 42);
    PlaceFinder other(QSize(800, 600), everywhere, 43);
    const auto place = finder.placeNear(QPoint(400, 300), 100, 16);
    EXPECT_EQ(place, again.placeNear(QPoint(400, 300), 100, 16));
    EXPECT_NE(place, other.placeNear(QPoint(400, 300), 100, 16));
    EXPECT_EQ(QPoint(443, 348), place);
}

TEST(ZoneFootprint, coversTheMarkerThatTheProgramDraws) {
    SourceZone zone;
    zone.name = u"Ur"_s;
    const auto covers = [&](ZoneKind kind, int campaign, QSize marker) {
        zone.kind = kind;
        zone.campaign = campaign;
        QRect drawn(QPoint(), marker);
        drawn.moveCenter(QPoint(500, 400));
        return zoneFootprint(zone, QPoint(500, 400)).contains(drawn);
    };
    zone.marker = true;
    EXPECT_TRUE(covers(ZoneKind::Mission, 3, QSize(64, 61)));
    EXPECT_TRUE(covers(ZoneKind::Challenge, 3, QSize(59, 68)));
    EXPECT_TRUE(covers(ZoneKind::Town, 2, QSize(60, 51)));
    EXPECT_FALSE(covers(ZoneKind::Outpost, 1, QSize(64, 61))) << "as large as needed, not more";
    zone.marker = false;
    EXPECT_FALSE(covers(ZoneKind::Area, 3, QSize(64, 61))) << "a name alone";
}

// Two regions with a town each; forty bosses live in the first town.
WorldSource crowdedWorld() {
    WorldSource world;
    world.regions = {{1, 1, u"1"_s, u"West"_s, Theme::Frost, QSize(800, 600), 9},
                     {1, 2, u"2"_s, u"East"_s, Theme::Frost, QSize(800, 600), 9}};
    world.zones = {{1, 1, 1, ZoneKind::Town, true, true, SiteNear::Anything, u"Hythe"_s},
                   {2, 1, 2, ZoneKind::Town, true, true, SiteNear::Anything, u"Heath"_s}};
    for (int i = 0; i < 40; ++i) {
        world.bosses.push_back({1, 0, u"Lump"_s, {}, 0, {}});
    }
    world.bosses.push_back({1, 0, u"Nan"_s, {}, 1, {}});
    world.collectors = {{3, 1, u"Ada"_s, false, 0, {}, {}, 0, {}}, {4, 1, u"Bo"_s, false, 0, {}, {}, -1, {}}};
    return world;
}

TEST(PlaceRegion, keepsMarkersOffZonesAndOffEachOther) {
    const WorldSource world = crowdedWorld();
    WorldPlaces places(world);
    placeRegion(world, world.regions[0], {{QPoint(400, 300)}, everywhere}, places);
    EXPECT_EQ(QPoint(400, 300), places.zones[0]);
    std::vector<QPoint> markers(places.bosses.begin(), places.bosses.end() - 1);
    markers.push_back(places.collectors[0]);
    for (std::size_t i = 0; i < markers.size(); ++i) {
        EXPECT_FALSE(zoneFootprint(world.zones[0], places.zones[0]).contains(markers[i]));
        for (std::size_t j = 0; j < i; ++j) {
            EXPECT_GE(distanceSquared(markers[i], markers[j]), 14 * 14);
        }
    }
    EXPECT_EQ(QPoint(), places.zones[1]) << "another region's zone";
    EXPECT_EQ(QPoint(), places.bosses.back()) << "another region's boss";
    EXPECT_EQ(QPoint(), places.collectors[1]) << "a collector who stands nowhere";
}

TEST(PlaceRegion, crowdsMarkersRatherThanLosingThem) {
    WorldSource world = crowdedWorld();
    const auto islet = [](QPoint place) { return place.x() >= 500 && place.x() < 540 && place.y() < 80; };
    WorldPlaces places(world);
    placeRegion(world, world.regions[0], {{QPoint(400, 300)}, islet}, places);
    for (std::size_t i = 0; i + 1 < places.bosses.size(); ++i) {
        EXPECT_TRUE(islet(places.bosses[i]));
    }
}

} // namespace
} // namespace worldgen
