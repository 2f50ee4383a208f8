#include "support/NumberedCaptions.h"
#include "support/Printing.h"
#include "ui/dialogs/frmLegenda.h"
#include "ui/platform/Fonts.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace orvinel {
namespace {

using namespace Qt::Literals::StringLiterals;

constexpr QRgb black = 0xFF000000;
constexpr QRgb ground = 0xFFF0F0F0;

ProgramState stateWith(int professions) {
    ProgramState state;
    for (int i = 1; i <= professions; ++i)
        state.Professions.append({u"Tidecaller"_s, u"M"_s, 0x100000u + static_cast<Colour>(i), {}});
    numberCaptions(state, u"Text "_s);
    return state;
}

struct Legend {
    ProgramState state;
    frmLegenda window;
    QImage picture;

    explicit Legend(int professions) : state(stateWith(professions)), window(state, nullptr) {
        window.show();
        picture = window.findChild<QWidget*>(u"picLegenda"_s)
                      ->grab()
                      .toImage()
                      .convertToFormat(QImage::Format_RGB32);
    }
    // Where the first pixel that is not ground lies, from `left` on in the lines of a text at y.
    int textStart(int left, int y) const {
        for (int x = left; x < picture.width(); ++x)
            for (int line = y; line < y + 11; ++line)
                if (picture.pixel(x, line) != ground)
                    return x;
        return -1;
    }
    // Outlined in black from (l, t) to (r, b), inclusive, filled with `fill`.
    void expectBox(const QRect& box, Colour fill) const {
        EXPECT_EQ(black, picture.pixel(box.topLeft()));
        EXPECT_EQ(black, picture.pixel(box.bottomRight()));
        EXPECT_EQ(ground, picture.pixel(box.left() - 1, box.top()));
        EXPECT_EQ(ground, picture.pixel(box.right() + 1, box.bottom()));
        EXPECT_EQ(opaqueRgb(fill), picture.pixel(box.left() + 1, box.top() + 1));
        EXPECT_EQ(opaqueRgb(fill), picture.pixel(box.right() - 1, box.bottom() - 1));
    }
};

TEST(Legend, splitsTheProfessionsIntoTwoColumns) {
    for (const int professions : {9, 10}) {
        const Legend legend(professions);
        EXPECT_EQ(QSize(217, 260), legend.picture.size());
        EXPECT_EQ(QSize(221, 283), legend.window.size());
        const int half = professions / 2;
        legend.expectBox({QPoint(3, 2), QPoint(13, 12)}, 0x100001);
        legend.expectBox({QPoint(3, (half - 1) * 14 + 2), QPoint(13, (half - 1) * 14 + 12)},
                         0x100000u + static_cast<Colour>(half));
        legend.expectBox({QPoint(110, 2), QPoint(120, 12)}, 0x100001u + static_cast<Colour>(half));
        legend.expectBox({QPoint(110, 58), QPoint(120, 68)}, 0x100000u + static_cast<Colour>(professions));
        EXPECT_EQ(124, legend.textStart(121, 2) / 2 * 2);
    }
}

TEST(Legend, putsTheRowsBelowTheLongerColumn) {
    const Legend legend(10);
    for (int row = 0; row < 6; ++row) {
        const int y = 76 + row * 14;
        EXPECT_EQ(black, legend.picture.pixel(3, y));
        EXPECT_EQ(black, legend.picture.pixel(13, y + 10));
        EXPECT_NEAR(17, legend.textStart(14, y), 1);
    }
    legend.expectBox({QPoint(3, 160), QPoint(13, 170)}, noBossGrey);
    EXPECT_EQ(black, legend.picture.pixel(3, 184));
    EXPECT_EQ(opaqueRgb(greenItemGreen), legend.picture.pixel(4, 185));
    EXPECT_EQ(black, legend.picture.pixel(3, 187));
    EXPECT_NEAR(31, legend.textStart(28, 177), 1);
    const int pictures[] = {194, 208, 225, 242};
    for (const int y : pictures)
        EXPECT_NE(-1, legend.textStart(1, y)) << y;
    EXPECT_NEAR(17, legend.textStart(17, 242), 1);
    EXPECT_EQ(ground, legend.picture.pixel(8, 190)) << "the space that an offset leaves";
}

TEST(Legend, holdsOnlyItsRowsWithoutProfessions) {
    const Legend legend(0);
    EXPECT_EQ(12 * 14 + 22, legend.picture.height());
    EXPECT_EQ(black, legend.picture.pixel(3, 6));
}

TEST(Legend, closesByItsButtonAndByEscape) {
    Legend legend(2);
    QSignalSpy closed(&legend.window, &frmLegenda::closed);
    auto* cmdClose = legend.window.findChild<QAbstractButton*>(u"cmdClose"_s);
    EXPECT_EQ(QRect(206, 1, 15, 15), cmdClose->geometry());
    legend.window.show();
    legend.window.move(33, 44);
    cmdClose->click();
    EXPECT_FALSE(legend.window.isVisible());
    EXPECT_EQ(QPoint(33, 44), legend.window.pos());
    legend.window.show();
    QTest::keyClick(&legend.window, Qt::Key_Escape);
    EXPECT_FALSE(legend.window.isVisible());
    EXPECT_EQ(2, closed.count());
}

TEST(Legend, isDraggedByTheLeftButtonOnItsBandOnly) {
    Legend legend(2);
    legend.window.show();
    const QPoint start = legend.window.pos();
    QTest::mousePress(&legend.window, Qt::RightButton, {}, {20, 8});
    QTest::mouseMove(&legend.window, {50, 28});
    EXPECT_EQ(start, legend.window.pos());
    QTest::mouseRelease(&legend.window, Qt::RightButton, {}, {50, 28});
    QTest::mousePress(&legend.window, Qt::LeftButton, {}, {20, 8});
    QTest::mouseMove(&legend.window, {50, 28});
    EXPECT_EQ(start + QPoint(30, 20), legend.window.pos());
}

TEST(Legend, saysItsTextsToAScreenReader) {
    const Legend legend(1);
    const QAccessibleInterface* rows =
        QAccessible::queryAccessibleInterface(legend.window.findChild<QWidget*>(u"picLegenda"_s));
    ASSERT_EQ(1 + 12, rows->childCount());
    EXPECT_EQ(u"Tidecaller"_s, rows->child(0)->text(QAccessible::Name));
    EXPECT_EQ(u"Text 34"_s, rows->child(1)->text(QAccessible::Name));
    EXPECT_EQ(u"?"_s, rows->child(1)->text(QAccessible::Description));
    EXPECT_FALSE(rows->child(12)->state().invisible);
    const QString spoken = legend.window.findChild<QWidget*>(u"picLegenda"_s)->accessibleDescription();
    EXPECT_TRUE(spoken.startsWith(u"Tidecaller\n?: Text 34\n"_s)) << spoken.toStdString();
    EXPECT_TRUE(spoken.endsWith(u"Text 83"_s));
}

} // namespace
} // namespace orvinel
