#include "support/Printing.h"
#include "ui/map/CreditsList.h"
#include "ui/platform/Fonts.h"

#include <QFontMetrics>
#include <QTest>

#include <gtest/gtest.h>

namespace orvinel {
namespace {

using namespace Qt::Literals::StringLiterals;

// The smallest rectangle that holds everything drawn on black.
QRect drawnArea(const QImage& image) {
    QRect area;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixel(x, y) != 0xFF000000u)
                area |= QRect(x, y, 1, 1);
    return area;
}

QImage creditsOn(QSize size, int placement) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::black);
    DrawCreditsList(image, placement);
    return image;
}

TEST(CreditsList, fillsTheBottomRightCornerOfTheEmptyMap) {
    const int th = QFontMetrics(arial(points9)).height();
    const QRect area = drawnArea(creditsOn({900, 700}, 1));
    EXPECT_GE(area.top(), 700 - 11 * th - 5);
    EXPECT_LE(area.top(), 700 - 11 * th - 5 + 4);
    EXPECT_LT(area.bottom(), 700);
    EXPECT_GE(area.bottom(), 700 - 5);
}

TEST(CreditsList, keepsItsTwoColumnsApartWhereTheWindowPutsThem) {
    const int th = QFontMetrics(arial(points9)).height();
    const QImage image = creditsOn({507, 205}, 0);
    int widest = 0;
    for (const QString& line : creditsText().split(u'\n').first(9))
        widest = std::max(widest, QFontMetrics(arial(points9)).horizontalAdvance(line.section(u": "_s, 1)));
    const int middle = 507 - widest - 50;
    const QRect between(middle - 7, 15, 15, 9 * th);
    EXPECT_TRUE(drawnArea(image.copy(between)).isNull());
    EXPECT_FALSE(drawnArea(image.copy(middle + 8, 15, 3, 9 * th)).isNull());
    EXPECT_FALSE(drawnArea(image.copy(middle - 11, 15, 3, 9 * th)).isNull());
    EXPECT_GE(drawnArea(image).left(), 2);
    EXPECT_GE(drawnArea(image).top(), 15);
    EXPECT_LT(drawnArea(image).right(), 507 - 1);
    EXPECT_LE(drawnArea(image).bottom(), 15 + 11 * th + 5);
}

// A screen reader's frame stands around the line that it reads, the thanks below the gap included.
TEST(CreditsList, eachLineIsPaintedWhereItIsSpokenOf) {
    const QImage image = creditsOn({507, 205}, 0);
    const std::vector<QRect> places = creditsPlaces(507);
    ASSERT_EQ(creditsText().count(u'\n') + 1, qsizetype(places.size()));
    QRect all;
    for (const QRect& place : places) {
        EXPECT_FALSE(drawnArea(image.copy(place)).isNull()) << place.y();
        EXPECT_FALSE(all.intersects(place)) << place.y();
        all |= place;
    }
    EXPECT_TRUE(all.contains(drawnArea(image)));
}

} // namespace
} // namespace orvinel
