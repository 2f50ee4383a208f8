#include "ui/platform/Windows.h"

#include <QApplication>

#include <gtest/gtest.h>

// The tests' windows live on the offscreen platform: no display, no focus and no window manager are needed.
int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    orvinel::applyAppearance(application);
    return RUN_ALL_TESTS();
}
