#include "ui/platform/WindowManager.h"

#include <gtest/gtest.h>

namespace orvinel {
namespace {

TEST(WindowManager, onlyGnomesXwaylandIsAskedToDrag) {
    for (const char* name : {"GNOME Shell", "Mutter"}) {
        EXPECT_TRUE(tremblesWhenDragged({QString::fromLatin1(name), true})) << name;
        EXPECT_FALSE(tremblesWhenDragged({QString::fromLatin1(name), false})) << name;
    }
    for (const char* name : {"KWin", "Metacity (Marco)", "Weston WM", "wlroots wm", ""})
        EXPECT_FALSE(tremblesWhenDragged({QString::fromLatin1(name), true})) << name;
}

} // namespace
} // namespace orvinel
