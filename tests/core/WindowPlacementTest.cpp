#include "app/WindowPlacement.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

namespace orvinel {
namespace {

constexpr int panelWidth = 217;

TEST(WindowPlacement, aPanelOfAnotherWidthIsTiled) {
    for (const int width : {1600, 638, 272, 162, 100})
        EXPECT_TRUE(isTiled(width, panelWidth)) << width;
    for (const int width : {163, 216, 217, 218, 240, 271}) // as rounding at scales makes it
        EXPECT_FALSE(isTiled(width, panelWidth)) << width;
}

TEST(WindowPlacement, aPairFillsTheWorkAreaOrAllButATwentiethAround) {
    const QRect area(10, 20, 1000, 800);
    EXPECT_EQ((WindowPair{{10, 20, panelWidth, 800}, {227, 20, 783, 800}}),
              maximisedPair(area, panelWidth, false));
    EXPECT_EQ((WindowPair{{60, 70, panelWidth, 700}, {277, 70, 683, 700}}),
              maximisedPair(area, panelWidth, true));
}

TEST(WindowPlacement, aPairIsRememberedAsFarAsTheScreensReach) {
    const QRect area(0, 0, 1280, 1000);
    const QSize screens(1280, 1024);
    // Panel at 10, map up to the last column.
    Options options{.PosX = 150, .PosY = 300, .DimX = (1280 - 10 - panelWidth) * 15, .DimY = 15 * 2000};
    const auto pair = rememberedPair(options, area, screens, panelWidth);
    ASSERT_TRUE(pair);
    EXPECT_EQ(QRect(10, 20, panelWidth, 872), pair->panel);
    EXPECT_EQ(QRect(10 + panelWidth, 20, 1053, 1024), pair->map);
    ++options.DimX;
    EXPECT_FALSE(rememberedPair(options, area, screens, panelWidth));
    options.DimX = 15;
    for (const int left : {-2, 0, 1, 2})
        EXPECT_TRUE(rememberedPair(Options{.PosX = left, .DimX = 15, .DimY = 15}, area, screens, panelWidth))
            << left;
    EXPECT_FALSE(rememberedPair(Options{.PosX = -1, .DimX = 15, .DimY = 15}, area, screens, panelWidth));
}

TEST(WindowPlacement, onlyWindowsThatNobodyMovesAreLeftApart) {
    const WindowPair apart{{696, 64, panelWidth, 800}, {42, 64, 1063, 800}};
    EXPECT_TRUE(isLeftApart(apart, apart));
    WindowPair moved = apart;
    moved.map.translate(1, 0);
    EXPECT_FALSE(isLeftApart(apart, moved));
    // Held back a little at the screen's edge, or side by side but for rounding.
    for (const QPoint by : {QPoint(0, 0), QPoint(1, 0), QPoint(-100, 0), QPoint(0, 30), QPoint(-110, 0),
                            QPoint(110, 0), QPoint(0, -110)}) {
        const WindowPair pair{{380, 100, panelWidth, 800},
                              {QPoint(380 + panelWidth, 100) + by, QSize(1000, 800)}};
        EXPECT_EQ(std::max(std::abs(by.x()), std::abs(by.y())) == 110, isLeftApart(pair, pair)) << by.x();
    }
}

} // namespace
} // namespace orvinel
