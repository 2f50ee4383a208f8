#include <QGuiApplication>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    // Painting needs fonts, and fonts need an application, but never a screen.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
