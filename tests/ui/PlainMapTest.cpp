#include "support/PlainMap.h"
#include "support/LayersFixture.h"
#include "ui/map/RegionPictures.h"
#include "world/modCampaigns.h"

namespace orvinel {
namespace {

using namespace Qt::Literals::StringLiterals;

struct PlainMapTest : LayersFixture {
    PlainMapTest() {
        putFile("EliteList.txt", "1\t1\tFlare\r\n2\t2\tHymn\r\n");
        putFile("EliteLocations.txt", ";[Version]2.0\r\n1\t1\t100\t104\tGrim\tM\t11\r\n"
                                      "1\t1\t600\t80\tHollow\tWM\t12\r\n2\t1\t108\t96\tSilas\t\t12\r\n");
    }

    QImage plain(const QString& boss) {
        const QImage picture = loadPicture(disk, findRegion(state, 3, 1)->RegionPicture);
        return plainMap(picture, layers->zones, map->shown(0), allMarkers(state, map->shown(0), boss),
                        map->art());
    }
    QImage plainGround() {
        return plainMap(loadPicture(disk, findRegion(state, 3, 1)->RegionPicture), layers->zones,
                        map->shown(0), {}, map->art());
    }
    void expectPlain(const QString& boss) {
        map->picMap().surface()->setMarkers(allMarkers(state, map->shown(0), boss));
        EXPECT_EQ(plain(boss), map->picMap().surface()->composed()) << boss.toStdString();
    }
};

// Boxes and zones that are drawn once and copied must look as if each were drawn in its place.
TEST_F(PlainMapTest, theMapEqualsTheOneDrawnTheObviousWayPixelForPixel) {
    start();
    showFjord();
    for (const QString& boss : {u""_s, u"grim"_s, u"o"_s, u"nobody"_s})
        expectPlain(boss);
}

// Zones and markers that lie across the border of what is decoded first come out whole.
TEST_F(PlainMapTest, aPictureDecodedInTwoStepsEndsAsOneDecodedAtOnce) {
    start();
    map->expect(PictureAhead(disk, findRegion(state, 3, 1)->RegionPicture, MapSurface::rowsNeededFor(64)));
    showFjord();
    map->picMap().surface()->setMarkers(allMarkers(state, map->shown(0)));
    const QRect upper(0, 0, 800, 64);
    EXPECT_EQ(plain({}).copy(upper), map->picMap().surface()->composed(upper).copy(upper));
    expectPlain({});
}

// What scrolls into view bit by bit, and what was drawn ahead meanwhile.
TEST_F(PlainMapTest, aGroundDrawnInPartsEqualsOneDrawnAtOnce) {
    start();
    showFjord();
    MapSurface& surface = *map->picMap().surface();
    surface.setMarkers(allMarkers(state, map->shown(0)));
    const QImage expected = plain({});
    for (int i = 0; i < 12; ++i) {
        const QRect part(61 * i, 37 * i, 90, 150 - 7 * i);
        EXPECT_EQ(expected.copy(part), surface.composed(part).copy(part)) << i;
        if (i % 4 == 3)
            surface.drawMoreGround();
    }
    while (surface.drawMoreGround())
        ;
    EXPECT_EQ(expected, surface.composed());
}

// A layer whose markers would be the same keeps them: whatever the player does, none may be out of date.
TEST_F(PlainMapTest, layersThatKeepTheirMarkersShowWhatMakingAllAnewWouldShow) {
    start();
    showFjord();
    MapSurface& surface = *map->picMap().surface();
    int step = 0;
    QImage before;
    const auto expectFresh = [&](bool changed) {
        ++step;
        const QImage shown = surface.composed().copy();
        EXPECT_EQ(changed, shown != before) << step;
        before = shown;
        std::vector<Marker> fresh;
        for (MapLayer* layer : layers->chains().drawing)
            layer->appendMarkers(fresh);
        MapSurface anew(plainGround(), map->art());
        anew.setMarkers(fresh);
        EXPECT_EQ(anew.composed(), shown) << step;
    };
    expectFresh(true);
    panel->elitePage().txtEliteBossName->setText(u"o"_s);
    expectFresh(true);
    panel->elitePage().txtEliteName->setText(u"flare"_s);
    expectFresh(false);
    panel->tabs().chkShowObject[indexOf(Tab::Elites)]->setValue(0);
    expectFresh(true);
    panel->collectorsPage().txtCollSearch->setText(u"nothing has this"_s);
    expectFresh(true);
    panel->collectorsPage().txtCollSearch->clear();
    expectFresh(true);
    panel->selection().cmbZone->select(1);
    expectFresh(true);
    panel->selection().cmbZone->select(0);
    panel->tabs().chkShowObject[indexOf(Tab::Notes)]->setValue(0);
    expectFresh(true);
    panel->tabs().chkShowObject[indexOf(Tab::Notes)]->setValue(1);
    expectFresh(true);
    panel->greensPage().txtGreensName->setText(u"x"_s);
    expectFresh(false);
}

} // namespace
} // namespace orvinel
