#include "app/WindowPlacement.h"

#include <gtest/gtest.h>

namespace orvinel {
namespace {

constexpr int panelWidth = 217;

TEST(WindowPlacement, aPanelOfAnotherWidthIsTiled) {
    for (const int width : {1600, 638, 100})
        EXPECT_TRUE(isTiled(width, panelWidth)) << width;
    for (const int width : {216, 217, 218, 240}) // as rounding at scales makes it
        EXPECT_FALSE(isTiled(width, panelWidth)) << width;
}

TEST(WindowPlacement, onlyAPanelThatNobodyTakesFromBelowTheMapIsLeftCovered) {
    const WindowPair covered{{696, 64, panelWidth, 800}, {42, 64, 1063, 800}};
    EXPECT_TRUE(isLeftCovered(covered, covered));
    WindowPair moved = covered;
    moved.map.translate(1, 0);
    EXPECT_FALSE(isLeftCovered(covered, moved));
    // Held back at the screen's edge, or side by side with an edge that rounding put elsewhere.
    for (const int left : {380 - 10, 380 + 120, 380 + panelWidth - 1, 380 + panelWidth, 900}) {
        const WindowPair pair{{380, 0, panelWidth, 800}, {left, 0, 1000, 800}};
        EXPECT_EQ(left < 380 + panelWidth / 2, isLeftCovered(pair, pair)) << left;
    }
}

} // namespace
} // namespace orvinel
