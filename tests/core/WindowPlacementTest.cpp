#include "app/WindowPlacement.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

namespace orvinel {
namespace {

constexpr int panelWidth = 217;

TEST(WindowPlacement, aPanelOfAnotherWidthIsTiled) {
    for (const int width : {1600, 638, 100})
        EXPECT_TRUE(isTiled(width, panelWidth)) << width;
    for (const int width : {216, 217, 218, 240}) // as rounding at scales makes it
        EXPECT_FALSE(isTiled(width, panelWidth)) << width;
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
