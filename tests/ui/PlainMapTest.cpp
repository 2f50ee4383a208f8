#include "compare/PlainMap.h"
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
        return bench::plainMap(picture, layers->zones, map->shown(0),
                               bench::allMarkers(state, map->shown(0), boss), map->art());
    }
    void expectPlain(const QString& boss) {
        map->picMap().surface()->setMarkers(bench::allMarkers(state, map->shown(0), boss));
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
    map->picMap().surface()->setMarkers(bench::allMarkers(state, map->shown(0)));
    const QRect upper(0, 0, 800, 64);
    EXPECT_EQ(plain({}).copy(upper), map->picMap().surface()->composed(upper).copy(upper));
    expectPlain({});
}

} // namespace
} // namespace orvinel
