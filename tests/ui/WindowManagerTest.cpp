#include "ui/platform/WindowManager.h"

#include <gtest/gtest.h>

namespace orvinel {
namespace {

using namespace Qt::Literals::StringLiterals;

TEST(WindowManager, onlyGnomesXwaylandIsAskedToDrag) {
    for (const char* name : {"GNOME Shell", "Mutter"}) {
        EXPECT_TRUE(tremblesWhenDragged({QString::fromLatin1(name), true})) << name;
        EXPECT_FALSE(tremblesWhenDragged({QString::fromLatin1(name), false})) << name;
    }
    for (const char* name : {"KWin", "Metacity (Marco)", "Weston WM", "wlroots wm", ""})
        EXPECT_FALSE(tremblesWhenDragged({QString::fromLatin1(name), true})) << name;
}

TEST(WindowManager, onlyWestonPlacesWindowsItself) {
    EXPECT_TRUE(placesWindowsItself({u"Weston WM"_s, true}));
    for (const QString& name : {u"KWin"_s, u"GNOME Shell"_s, u"Openbox"_s, QString()})
        EXPECT_FALSE(placesWindowsItself({name, true})) << name.toStdString();
}

} // namespace
} // namespace orvinel
