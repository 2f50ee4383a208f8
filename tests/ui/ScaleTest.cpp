#include "support/ProgramFixture.h"

#include <QBuffer>

namespace orvinel {
namespace {

using namespace Qt::Literals::StringLiterals;

// Holds at every scale factor: run again with QT_SCALE_FACTOR set. All places are pixels of the picture,
// which are those of the screen.
struct ScaleTest : ProgramFixture {
    ScaleTest() {
        putFile("EliteList.txt", "1\t1\tFlare\tFire\tSpell\t0\t0\t5\t1\t1\tBurns.\r\n");
        putFile("EliteLocations.txt", ";[Version]=2.0\r\n1\t1\t100\t100\tBront\t\t11\r\n");
    }
    // No two neighbouring pixels are alike.
    static QByteArray chequered() {
        QImage image(2000, 1600, QImage::Format_RGB32);
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                image.setPixel(x, y, qRgb(x & 255, y & 255, ((x + y) & 1) * 255));
        QByteArray bytes;
        QBuffer to(&bytes);
        image.save(&to, "JPG", 95);
        return bytes;
    }
    void SetUp() override {
        start();
        disk.put(state.Campaigns[3].Regions[1].RegionPicture, chequered());
        showFjord();
        map->move(301, 53); // where half a pixel is left over
    }
    MapViewport& viewport() { return map->picMap(); }
    QPoint scroll() { return {viewport().view().scrollX(), viewport().view().scrollY()}; }
    QImage screen() {
        QImage image(viewport().screenPixels(), QImage::Format_RGB32);
        image.setDevicePixelRatio(viewport().devicePixelRatioF());
        return image;
    }
    void paint(QImage& on, const QRect& part) { viewport().render(&on, part.topLeft(), QRegion(part), {}); }
    bool toldAt(QPoint at) {
        hover({500, 400});
        hover(at);
        return elites->window().isVisible();
    }
};

TEST_F(ScaleTest, onePixelOfThePictureIsOneOfTheScreen) {
    map->CenterMapOn(700, 600);
    QImage seen = screen();
    paint(seen, viewport().rect());
    const QRect inside = seen.rect().adjusted(0, 0, -1, -1); // half of the last pixel is the window's edge
    seen.setDevicePixelRatio(1);
    EXPECT_EQ(viewport().surface()->composed().copy(inside.translated(-scroll())), seen.copy(inside));
}

TEST_F(ScaleTest, aPartPaintedAnewFitsIntoTheRest) {
    QImage whole = screen();
    paint(whole, viewport().rect());
    for (const QRect& part :
         {QRect(0, 0, 33, 21), QRect(1, 1, 50, 50), QRect(11, 8, 33, 21), QRect(12, 7, 1, 1)}) {
        QImage again = whole;
        paint(again, part);
        EXPECT_EQ(whole, again) << part.left() << ' ' << part.top();
    }
}

TEST_F(ScaleTest, thePictureFollowsTheMousePixelByPixel) {
    press({301, 251});
    hover({300, 251});
    EXPECT_EQ(QPoint(-1, 0), scroll());
    hover({202, 160}); // of the picture as it stands now
    EXPECT_EQ(QPoint(-100, -91), scroll());
    release({202, 160});
}

TEST_F(ScaleTest, aMarkerIsHitWhereItIsDrawn) {
    const MapLocation& boss = state.EliteSkills[1].Locations[1];
    const QRect marker(QPoint(boss.Left, boss.Top), QPoint(boss.Right, boss.Bottom));
    EXPECT_TRUE(toldAt(marker.topLeft()));
    EXPECT_TRUE(toldAt(marker.bottomRight()));
    EXPECT_FALSE(toldAt(marker.topLeft() - QPoint(1, 0)));
    EXPECT_FALSE(toldAt(marker.bottomRight() + QPoint(0, 1)));
}

} // namespace
} // namespace orvinel
