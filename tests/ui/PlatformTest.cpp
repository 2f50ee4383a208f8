#include "support/Printing.h"
#include "ui/platform/DialogPlace.h"
#include "ui/platform/Drawing.h"
#include "ui/platform/EndSignals.h"
#include "ui/platform/Fonts.h"
#include "ui/platform/Label.h"
#include "ui/platform/QtDesktop.h"
#include "ui/platform/SmallCheckBox.h"
#include "ui/platform/TextRun.h"
#include "ui/platform/Windows.h"
#include "ui/platform/WorkArea.h"

#include <QAccessible>
#include <QApplication>
#include <QLineEdit>
#include <QLocale>
#include <QMenu>
#include <QMessageBox>
#include <QProxyStyle>
#include <QPushButton>
#include <QScopeGuard>
#include <QScreen>
#include <QScrollBar>
#include <QSignalSpy>
#include <QStyleOptionSlider>
#include <QTest>
#include <QTimer>
#include <QToolTip>

#include <array>
#include <csignal>

#include <gmock/gmock.h>

namespace orvinel {
namespace {

using namespace Qt::Literals::StringLiterals;

TEST(Label, showsEveryLetterOfItsCaptionWhateverItNames) {
    QWidget named;
    Label plain(u"lbl"_s, nullptr);
    plain.setCaption(u"Type & hand"_s);
    Label naming(u"lbl"_s, nullptr);
    naming.nameFor(&named);
    naming.setCaption(u"Type"_s);
    EXPECT_EQ(&named, naming.buddy());
    naming.setCaption(u"Type & hand"_s);
    EXPECT_EQ(plain.grab().toImage(), naming.grab().toImage());
    EXPECT_EQ(u"Type & hand"_s, named.accessibleName());
    EXPECT_EQ(u"Type & hand"_s, named.accessibleDescription()) << "in place of the label";
}

TEST(Label, keepsWhatIsTooWideInsideItsPlaceButNotFromThoseWhoListen) {
    const QString word(60, u'W');
    Label wrapped(u"lbl"_s, nullptr);
    wrapped.setWrapWidth(100);
    wrapped.setCaption(u"a "_s + word + u" b"_s);
    const int letters = wrapped.fontMetrics().horizontalAdvance(word);
    EXPECT_GE(wrapped.height(), (letters / 100 + 2) * wrapped.fontMetrics().height());
    EXPECT_EQ(100, wrapped.width());
    EXPECT_EQ(u"a "_s + word + u" b"_s, wrapped.text());
    const int broken = wrapped.height();
    wrapped.setCaption(u"short"_s);
    EXPECT_LT(wrapped.height(), broken);

    Label line(u"lbl"_s, nullptr);
    line.setLongest(100);
    line.setCaption(word);
    EXPECT_LE(line.width(), 100);
    EXPECT_GT(line.width(), 80);
    EXPECT_EQ(word, QAccessible::queryAccessibleInterface(&line)->text(QAccessible::Name));
    line.setCaption(u"short"_s);
    EXPECT_LT(line.width(), 60);
}

TEST(DialogPlace, isBesideThePanelNearTheRowAndNeverOutsideTheScreen) {
    const QRect screen(0, 0, 1280, 1024);
    const QRect panel(0, 0, 217, 1000);
    const QSize dialog(330, 285);
    const auto at = [&](const QRect& asked) { return placeBeside(dialog, asked, panel, screen); };
    EXPECT_EQ(QPoint(225, 364), at({10, 500, 190, 14}));
    EXPECT_EQ(QPoint(225, 0), at({10, 20, 40, 14}));
    EXPECT_EQ(1024 - 285, at({10, 980, 190, 14}).y());
    EXPECT_EQ(QPoint(528, 364), at({500, 500, 20, 14})); // a marker on the map
    EXPECT_EQ(1200 - 8 - 330, at({1200, 500, 20, 14}).x());
    // A panel at the right edge has its dialogs on the left; between panel and edge a map's dialog stays.
    EXPECT_EQ(1000 - 8 - 330,
              placeBeside(dialog, {1010, 500, 190, 14}, panel.translated(1000, 0), screen).x());
    EXPECT_EQ(1280 - 330, placeBeside(dialog, {1250, 500, 20, 14}, panel.translated(960, 0), screen).x());
}

TEST(DialogPlace, overAnotherWindowKeepsOffThePanelToo) {
    const QRect screen(1280, 0, 1280, 1024);
    const QRect panel(1280, 0, 217, 1000);
    const auto at = [&](const QRect& owner) { return placeOver({450, 150}, owner, panel, screen); };
    EXPECT_EQ(QPoint(1280 + 225, 224), at({1505, 200, 330, 200}));
    EXPECT_EQ(QPoint(1280 + 574, 424), at({1497 + 83, 0, 1000, 1000}));
    EXPECT_EQ(2560 - 450, at({2500, 0, 400, 1000}).x());
}

TEST(WorkArea, isWhatTheBarsOfItsMonitorLeave) {
    const QRect left(0, 0, 1280, 900);
    const QRect right(1280, 0, 1280, 900);
    const QRect below(0, 32, 1280, 868);
    const ToldAreas each{{below, right}, QRect(0, 32, 2560, 868)};
    EXPECT_EQ(below, workAreaIn(left, each));
    EXPECT_EQ(right, workAreaIn(right, each));

    const ToldAreas oneForAll{{}, QRect(0, 0, 2560, 860)};
    EXPECT_EQ(QRect(1280, 0, 1280, 860), workAreaIn(right, oneForAll));

    const QRect tall(2560, 0, 1280, 1800);
    EXPECT_EQ(std::nullopt, workAreaIn(tall, oneForAll)) << "as high as the lowest monitor";
    EXPECT_EQ(std::nullopt, workAreaIn(tall, each));
    EXPECT_EQ(std::nullopt, workAreaIn(left, {}));
}

TEST(SmallCheckBox, aScreenReaderSwitchesItsValue) {
    SmallCheckBox box(u"chk"_s, nullptr);
    std::vector<int> values;
    QObject::connect(&box, &SmallCheckBox::changed, [&] { values.push_back(box.value()); });
    QAccessibleActionInterface* actions = QAccessible::queryAccessibleInterface(&box)->actionInterface();
    actions->doAction(QAccessibleActionInterface::toggleAction());
    actions->doAction(QAccessibleActionInterface::toggleAction());
    box.setValue(2);
    actions->doAction(QAccessibleActionInterface::toggleAction());
    EXPECT_THAT(values, testing::ElementsAre(0, 1, 2, 0));
}

TEST(Fonts, haveTheHeightsThatTheLayoutsWereMadeFor) {
    EXPECT_EQ(12, QFontMetrics(arial(points8_25)).height());
    EXPECT_EQ(15, QFontMetrics(arial(points10)).height());
}

TEST(Appearance, isLightOnADarkDesktop) {
    const QPalette dark(QColor(0x20, 0x20, 0x20), QColor(0x20, 0x20, 0x20));
    QApplication::setPalette(dark);
    QApplication::setPalette(dark, "QMenu");
    QToolTip::setPalette(dark);
    applyAppearance(*qApp);
    const QMenu menu;
    const QLineEdit field;
    const std::array<std::pair<QPalette, QPalette::ColorRole>, 4> grounds = {
        {{QApplication::palette(), QPalette::Window},
         {menu.palette(), QPalette::Window},
         {field.palette(), QPalette::Base},
         {QToolTip::palette(), QPalette::ToolTipBase}}};
    const auto textOn = [](QPalette::ColorRole ground) {
        return ground == QPalette::Window ? QPalette::WindowText
               : ground == QPalette::Base ? QPalette::Text
                                          : QPalette::ToolTipText;
    };
    for (const auto& [colours, ground] : grounds) {
        EXPECT_GT(colours.color(ground).lightness(), 200) << ground;
        EXPECT_LT(colours.color(textOn(ground)).lightness(), 50) << ground;
    }
    EXPECT_LT(field.palette().color(QPalette::PlaceholderText).lightness(), 150);
}

TEST(Appearance, aScrollBarsHandleStandsOutFromItsGroove) {
    QScrollBar bar(Qt::Vertical);
    bar.resize(16, 300);
    bar.setRange(0, 100);
    bar.setPageStep(20);
    QStyleOptionSlider parts;
    parts.initFrom(&bar);
    parts.orientation = Qt::Vertical;
    parts.maximum = 100;
    parts.pageStep = 20;
    const QStyle& style = *QApplication::style();
    const QRect handle = style.subControlRect(QStyle::CC_ScrollBar, &parts, QStyle::SC_ScrollBarSlider, &bar);
    const QRect below = style.subControlRect(QStyle::CC_ScrollBar, &parts, QStyle::SC_ScrollBarAddPage, &bar);
    const QImage seen = bar.grab().toImage();
    EXPECT_GE(qGray(seen.pixel(handle.center())), qGray(seen.pixel(below.center())) + 20);
}

TEST(Drawing, boxesCoverTheirCornersInclusive) {
    QImage image(20, 20, QImage::Format_RGB32);
    image.fill(Qt::white);
    {
        Drawing drawing(&image);
        drawing.setFill(0x0000FF);
        drawing.box(2, 3, 14, 15);
    }
    EXPECT_EQ(0xFF000000u, image.pixel(2, 3));
    EXPECT_EQ(0xFF000000u, image.pixel(14, 15));
    EXPECT_EQ(0xFFFF0000u, image.pixel(3, 4));
    EXPECT_EQ(0xFFFF0000u, image.pixel(13, 14));
    EXPECT_EQ(0xFFFFFFFFu, image.pixel(15, 15));
}

// As on desktops whose theme has pictures for buttons.
struct PicturesOnButtons : QProxyStyle {
    PicturesOnButtons() : QProxyStyle(u"fusion"_s) {}
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override {
        return hint == SH_DialogButtonBox_ButtonsHaveIcons
                   ? 1
                   : QProxyStyle::styleHint(hint, option, widget, data);
    }
};

TEST(QtDesktop, aBoxHasTheArrowInFrontOfAnHourglassAndNoPicturesOnItsButtons) {
    QApplication::setStyle(new PicturesOnButtons);
    const auto restored = qScopeGuard([] { applyAppearance(*qApp); });
    QtDesktop desktop{QString()};
    desktop.setHourglass(true);
    const auto pointer = [] { return QApplication::overrideCursor()->shape(); };
    Qt::CursorShape seen = Qt::WaitCursor;
    int pictures = -1;
    QTimer::singleShot(0, [&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_TRUE(box);
        const auto buttons = box->buttons();
        pictures =
            int(std::count_if(buttons.begin(), buttons.end(), [](auto* b) { return !b->icon().isNull(); }));
        seen = pointer();
        box->reject();
    });
    EXPECT_FALSE(desktop.ask(MessageIcon::Question, u"Orvinel"_s, u"<b>Sure?</b>"_s));
    EXPECT_EQ(Qt::ArrowCursor, seen);
    EXPECT_EQ(0, pictures);
    EXPECT_EQ(Qt::WaitCursor, pointer()) << "the start goes on";
    desktop.setHourglass(false);
    EXPECT_EQ(nullptr, QApplication::overrideCursor());
}

TEST(QtDesktop, buttonsOfBoxesSpeakTheLanguageOfTheTexts) {
    const auto restored = qScopeGuard([] { translateControls(QLocale()); });
    QtDesktop desktop{QString()};
    const std::pair<const char*, QString> words[] = {
        {"de", u"&Ja"_s}, {"it", u"&Sì"_s}, {"", u"&Sì"_s}, {"en", u"&Yes"_s}};
    for (const auto& [code, word] : words) {
        desktop.setLanguage(QLatin1String(code));
        const QMessageBox box(QMessageBox::NoIcon, {}, {}, QMessageBox::Yes | QMessageBox::No);
        EXPECT_EQ(word, box.button(QMessageBox::Yes)->text()) << code;
    }
}

TEST(EndSignals, areToldFromTheEventLoop) {
    EndSignals ending;
    QSignalSpy told(&ending, &EndSignals::endWanted);
    std::raise(SIGTERM);
    EXPECT_EQ(0, told.count());
    EXPECT_TRUE(QTest::qWaitFor([&] { return told.count() == 1; }));
}

// Text that is shaped once and drawn often looks as if it had been drawn the usual way.
TEST(TextRunTest, looksAndMeasuresAsTheUsualDrawingDoes) {
    const QFont font = arial(points10, true);
    const std::array texts = {u"Harbour AV To."_s,   u"Fürth Œuvre ž"_s,
                              u" blanks  within "_s, u""_s,
                              u"soft\u00ADhyphen"_s, u"\u05E9\u05DC right to left"_s,
                              u"\u4E2D\u6587"_s};
    for (const QString& text : texts) {
        QImage usual(220, 40, QImage::Format_RGB32);
        usual.fill(QColor(40, 90, 20));
        QImage run = usual.copy();
        const auto draw = [&](QImage& onto, auto print) {
            Drawing drawing(&onto);
            drawing.setFont(font);
            drawing.setForeground(0xCBEAFF);
            print(drawing);
        };
        const TextRun shaped(text, font);
        draw(usual, [&](Drawing& drawing) { drawing.print(7, 9, text); });
        draw(run, [&](Drawing& drawing) { drawing.print(7, 9, shaped); });
        EXPECT_EQ(usual, run) << qPrintable(text);
        EXPECT_EQ(QFontMetrics(font).horizontalAdvance(text), shaped.width()) << qPrintable(text);
    }
}

} // namespace
} // namespace orvinel
