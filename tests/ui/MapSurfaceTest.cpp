#include "ui/map/MapSurface.h"

#include <gtest/gtest.h>

#include <random>

namespace orvinel {
namespace {

using namespace Qt::Literals::StringLiterals;

struct MapSurfaceTest : testing::Test {
    static constexpr QSize size{203, 150}; // the last tiles are cut off both ways
    MarkerArt art;
    std::mt19937 random{7};
    QImage ground = noise();

    int upTo(int most) { return std::uniform_int_distribution<int>(0, most)(random); }
    QImage noise() {
        QImage image(size, QImage::Format_RGB32);
        for (int y = 0; y < size.height(); ++y)
            for (int x = 0; x < size.width(); ++x)
                image.setPixel(x, y, 0xFF000000 | QRgb(upTo(0xFFFFFF)));
        return image;
    }
    // Some hang over the edges, some lie outside.
    Marker marker() {
        const int x = upTo(size.width() + 60) - 30;
        const int y = upTo(size.height() + 60) - 30;
        if (upTo(1) == 0)
            return Marker::picture(static_cast<Sprite>(upTo(static_cast<int>(Sprite::Count) - 1)), x, y);
        const std::array codes = {QString(), u"?"_s, u"WM"_s};
        return Marker::box(x, y, x + 12, y + 12, Colour(upTo(0xFFFFFF)), codes[size_t(upTo(2))]);
    }
    std::vector<Marker> markers(int count) {
        std::vector<Marker> all;
        for (int i = 0; i < count; ++i)
            all.push_back(marker());
        return all;
    }
    // All of it, drawn the obvious way.
    QImage plain(const std::vector<Marker>& all) const {
        QImage image = ground.copy();
        QPainter painter(&image);
        for (const Marker& each : all)
            art.draw(painter, each);
        return image;
    }
};

TEST_F(MapSurfaceTest, equalsThePlainPicturePixelForPixelThroughAllChanges) {
    MapSurface surface(ground.copy(), art);
    std::vector<Marker> all;
    for (int round = 0; round < 60; ++round) {
        switch (upTo(4)) {
        case 0:
            all = markers(upTo(40));
            break;
        case 1:
            all.clear();
            break;
        case 2:
            std::shuffle(all.begin(), all.end(), random);
            break;
        default:
            if (!all.empty())
                all[size_t(upTo(int(all.size()) - 1))] = marker();
            all.push_back(marker());
        }
        surface.setMarkers(all);
        const QRect part(upTo(200), upTo(140), 1 + upTo(100), 1 + upTo(100));
        const QImage expected = plain(all);
        ASSERT_EQ(expected.copy(part), surface.composed(part).copy(part)) << "part, round " << round;
        if (round % 2 == 0) {
            surface.composeAround(part);
            const QRect nearby = part.adjusted(-upTo(80), -upTo(80), upTo(80), upTo(80));
            ASSERT_EQ(expected.copy(nearby), surface.composed(nearby).copy(nearby)) << "round " << round;
        }
        if (round % 3 == 0) {
            ASSERT_EQ(expected, surface.composed()) << "round " << round;
        }
    }
    surface.setMarkers({});
    EXPECT_EQ(ground, surface.composed());
}

TEST_F(MapSurfaceTest, layersLieOverOneAnotherInTheOrderOfTheirNumbersWhicheverChangedLast) {
    MapSurface surface(ground.copy(), art);
    std::array<std::vector<Marker>, 3> layers;
    for (int round = 0; round < 30; ++round) {
        const auto changed = size_t(upTo(2));
        layers[changed] = markers(upTo(30));
        surface.setMarkers(changed, layers[changed]);
        std::vector<Marker> all;
        for (const auto& layer : layers)
            all.insert(all.end(), layer.begin(), layer.end());
        ASSERT_EQ(plain(all), surface.composed()) << round;
    }
}

TEST_F(MapSurfaceTest, knowsWhatALayerWasMadeFromUntilItIsMadeAnew) {
    MapSurface surface(ground.copy(), art);
    const MarkersFrom from{{1, 2}, u"a"_s};
    EXPECT_FALSE(surface.madeFrom(1, from));
    surface.setMarkers(1, markers(3), from);
    EXPECT_TRUE(surface.madeFrom(1, from));
    EXPECT_FALSE(surface.madeFrom(0, from));
    EXPECT_FALSE(surface.madeFrom(1, {{1, 2}, u"b"_s}));
    surface.setMarkers(1, markers(3));
    EXPECT_FALSE(surface.madeFrom(1, from));
    EXPECT_FALSE(surface.madeFrom(1, {})) << "nothing said is nothing known";
    surface.setMarkers(1, markers(3), from);
    surface.setMarkers(markers(2));
    EXPECT_FALSE(surface.madeFrom(1, from));
}

TEST_F(MapSurfaceTest, aPartOutsideThePictureIsNoHarm) {
    MapSurface surface(ground.copy(), art);
    surface.setMarkers(markers(5));
    EXPECT_EQ(size, surface.composed(QRect(5000, -300, 20, 20)).size());
}

} // namespace
} // namespace orvinel
