#include "base/About.h"
#include "ui/DialogFixture.h"
#include "ui/dialogs/frmCredits.h"
#include "ui/dialogs/frmFAKE.h"
#include "ui/dialogs/frmInformation.h"
#include "ui/platform/Fonts.h"
#include "ui/platform/Windows.h"

#include <QAccessible>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace orvinel {
namespace {

using namespace Qt::Literals::StringLiterals;

struct InformationTest : DialogFixture {
    frmInformation window{context(), nullptr, {u"https://home.test/"_s, u"tarn@home.test"_s}};
    QWidget* container = window.findChild<QWidget*>(u"picOntainer"_s);

    InformationTest() { window.show(); }
    // The control that is under the mouse at a place of the container.
    QWidget* under(QPoint place) {
        QWidget* child = container->childAt(place);
        return child ? child : container;
    }
    void moveTo(QPoint place) {
        QWidget* target = under(place);
        QTest::mouseMove(target, target->mapFrom(container, place));
    }
    void clickAt(QPoint place) {
        QWidget* target = under(place);
        QTest::mouseClick(target, Qt::LeftButton, {}, target->mapFrom(container, place));
    }
    QStringList opened() const { return desktop.log.filter(u"open "_s); }
};

TEST_F(InformationTest, paintsItsHeadingAndLinesAndKeepsTheFiguresInTheScene) {
    const QWidget* scene = window.findChild<QWidget*>(u"imgScene"_s);
    const QWidget* logo = window.findChild<QWidget*>(u"imgLogo"_s);
    EXPECT_TRUE(window.rect().contains(container->geometry()));
    EXPECT_FALSE(logo->geometry().intersects(scene->geometry().adjusted(80, 0, 0, 0)));
    for (const char* figure : {"lblCharPos(0)", "lblCharPos(1)", "lblCharPos(2)", "lblCharPos(3)"})
        EXPECT_TRUE(scene->geometry().contains(window.findChild<QWidget*>(QLatin1String(figure))->geometry() &
                                               container->rect()))
            << figure;
    const QImage seen = container->grab().toImage();
    EXPECT_EQ(qRgb(0x50, 0x25, 0x12), seen.pixel(15, 60)) << "the heading's ground";
    EXPECT_EQ(qRgb(0xC0, 0xC0, 0xC0), seen.pixel(10, 54));
    EXPECT_EQ(qRgb(0xC0, 0xC0, 0xC0), seen.pixel(143, 441));
    EXPECT_EQ(qRgb(0x40, 0x40, 0x40), seen.pixel(36, 344));
}

TEST_F(InformationTest, theMouseFindsTheLinksUpToTheirCorners) {
    const std::pair<QPoint, frmInformation::Link> spots[] = {
        {{22, 360}, frmInformation::WebPage}, {{131, 374}, frmInformation::WebPage},
        {{80, 380}, frmInformation::NoLink},  {{22, 409}, frmInformation::Mail},
        {{131, 423}, frmInformation::Mail},   {{132, 423}, frmInformation::NoLink},
        {{80, 365}, frmInformation::WebPage}, {{40, 20}, frmInformation::NoLink},
        {{80, 415}, frmInformation::Mail},    {{300, 400}, frmInformation::NoLink}};
    for (const auto& [place, link] : spots) {
        moveTo(place);
        EXPECT_EQ(link, window.linkHot()) << place.x() << ", " << place.y();
    }
}

TEST_F(InformationTest, aClickOpensALinkOrClosesTheWindow) {
    clickAt({60, 365});
    clickAt({60, 415});
    EXPECT_EQ((QStringList{u"open https://home.test/"_s, u"open mailto:tarn@home.test"_s}), opened());
    EXPECT_TRUE(window.isVisible());
    for (const QPoint place : {QPoint(60, 200), QPoint(300, 60), QPoint(30, 20), QPoint(270, 200)}) {
        window.show();
        clickAt(place);
        EXPECT_FALSE(window.isVisible()) << place.x() << ", " << place.y();
    }
}

TEST_F(InformationTest, aLinkThatCannotBeOpenedIsTold) {
    desktop.shellWorks = false;
    clickAt({60, 365});
    EXPECT_EQ(u"message Critical Orvinel|https://home.test/ could not be opened."_s, desktop.log.last());
}

TEST_F(DialogFixture, withoutAddressesTheInformationWindowOpensTheStartPageAndNoMail) {
    state.AppPath = u"/o/"_s;
    disk.put(u"/o/Data/Guide/start.html"_s, "<html>");
    frmInformation window(context(), nullptr, {});
    window.show();
    EXPECT_EQ(nullptr, window.findChild<QPushButton*>(u"lnkMail"_s));
    window.findChild<QPushButton*>(u"lnkWebPage"_s)->click();
    EXPECT_EQ(u"open /o/Data/Guide/start.html"_s, desktop.log.last());
    auto* container = window.findChild<QWidget*>(u"picOntainer"_s);
    QTest::mouseMove(container, {60, 415});
    EXPECT_EQ(frmInformation::Mail, window.linkHot());
    EXPECT_EQ(programCursor(Pointer::Usual).pixmap().toImage(), container->cursor().pixmap().toImage());
    const QImage seen = container->grab({22, 409, 109, 14}).toImage();
    for (int y = 0; y < seen.height(); ++y)
        for (int x = 0; x < seen.width(); ++x)
            ASSERT_EQ(qBlue(seen.pixel(x, y)), qRed(seen.pixel(x, y)))
                << "looks like a link at " << x << ", " << y;
    const auto before = desktop.log;
    QTest::mouseClick(container, Qt::LeftButton, {}, {60, 415});
    EXPECT_EQ(before, desktop.log) << "there is nobody to write to";
    EXPECT_TRUE(window.isVisible());
}

TEST_F(InformationTest, showsTheCaptionOfTheFigureUnderTheMouseOnly) {
    auto* first = window.findChild<QWidget*>(u"lblCharName(0)"_s);
    auto* last = window.findChild<QWidget*>(u"imgChar(3)"_s);
    moveTo({300, 60});
    EXPECT_EQ(-1, window.shownCaption());
    moveTo({270, 200});
    EXPECT_EQ(0, window.shownCaption());
    EXPECT_TRUE(first->isVisible());
    moveTo({510, 250});
    EXPECT_FALSE(first->isVisible());
    EXPECT_TRUE(last->isVisible());
    EXPECT_TRUE(container->rect().contains(last->geometry()));
    moveTo({360, 60});
    EXPECT_EQ(-1, window.shownCaption());
    EXPECT_FALSE(last->isVisible());
}

TEST_F(InformationTest, isUsableByKeysAlone) {
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    auto* mail = window.findChild<QPushButton*>(u"lnkMail"_s);
    mail->setFocus();
    QTest::keyClick(mail, Qt::Key_Return);
    EXPECT_EQ(QStringList(u"open mailto:tarn@home.test"_s), opened());
    window.findChild<QWidget*>(u"lblCharPos(2)"_s)->setFocus();
    EXPECT_EQ(2, window.shownCaption());
    QTest::keyClick(&window, Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
}

TEST_F(InformationTest, everyTextFitsItsPlaceAndIsReadOut) {
    const QFontMetrics bold(arial(points8_25, true));
    for (const QString& name : {u"lnkWebPage"_s, u"lnkMail"_s}) {
        auto* link = window.findChild<QPushButton*>(name);
        EXPECT_LE(bold.horizontalAdvance(link->text()), 109);
        EXPECT_EQ(link->text(), QAccessible::queryAccessibleInterface(link)->text(QAccessible::Name));
    }
    for (int i = 0; i < frmInformation::figures; ++i) {
        const QRect strip = window.findChild<QWidget*>(u"imgChar(%1)"_s.arg(i))->geometry();
        for (const QString& name : {u"lblCharName(%1)"_s, u"lblCharWords(%1)"_s, u"lblZbq(%1)"_s})
            EXPECT_TRUE(strip.contains(window.findChild<QWidget*>(name.arg(i))->geometry()));
    }
    const QFontMetrics plain(arial(points8_25));
    const QString text = container->accessibleDescription();
    EXPECT_LE(plain.boundingRect(0, 0, 109, 1000, Qt::AlignHCenter | Qt::TextWordWrap, text).height(), 217);
}

TEST_F(DialogFixture, theCreditsWindowShowsItsListAndCloses) {
    alwaysOnTop = 1;
    state.LanguageTable[103] = u"Shut & go"_s;
    frmCredits window(context(), nullptr);
    window.open();
    EXPECT_EQ(u"text 102"_s, window.windowTitle());
    EXPECT_EQ(QSize(514, 253), window.size());
    EXPECT_TRUE(window.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    auto* picture = window.findChild<QWidget*>(u"picCredits"_s);
    EXPECT_EQ(QRect(4, 6, 507, 205), picture->geometry());
    EXPECT_TRUE(picture->accessibleDescription().contains(authorName()));
    const auto read = [](QObject* object) { return QAccessible::queryAccessibleInterface(object); };
    EXPECT_EQ(9 + 2, read(picture)->childCount());
    EXPECT_TRUE(read(picture)->child(0)->text(QAccessible::Name).startsWith(authorName()));
    EXPECT_TRUE(read(&window)->state().modal);
    auto* cmdCancel = window.findChild<QPushButton*>(u"cmdCancel"_s);
    EXPECT_EQ(QRect(430, 216, 79, 31), cmdCancel->geometry());
    EXPECT_EQ(u"Shut & go"_s, read(cmdCancel)->text(QAccessible::Name));
    cmdCancel->click();
    EXPECT_FALSE(window.isVisible());
}

TEST(TaskBar, hidesAndShowsAllWindowsTogether) {
    const WindowsShown all{true, true, true};
    const WindowsShown pair{true, true, false};
    const WindowsShown none{false, false, false};
    EXPECT_EQ(all, afterTaskBarUse(pair, true, true)) << "at first the windows only come to the front";
    EXPECT_EQ(pair, afterTaskBarUse(pair, true, false));
    EXPECT_EQ(none, afterTaskBarUse(all, false, true));
    EXPECT_EQ(none, afterTaskBarUse(pair, false, false));
    EXPECT_EQ(all, afterTaskBarUse(none, false, true));
    EXPECT_EQ(pair, afterTaskBarUse(none, false, false));
    EXPECT_EQ(pair, afterTaskBarUse({false, true, false}, false, false)) << "the map follows the panel";
}

TEST(TaskBar, minimisingAndRestoringTheButtonsWindowDoesIt) {
    QWidget panel;
    QWidget map;
    QWidget legend;
    int legendShown = 1;
    panel.show();
    map.show();
    frmFAKE fake({panel, map, legend, legendShown});
    fake.showOutside({1280, 1024});
    EXPECT_EQ(QPoint(2560, 2048), fake.pos());
    EXPECT_TRUE(panel.isVisible() && map.isVisible() && legend.isVisible());
    fake.showMinimized();
    EXPECT_FALSE(panel.isVisible() || map.isVisible() || legend.isVisible());
    legendShown = 0;
    fake.showNormal();
    EXPECT_TRUE(panel.isVisible() && map.isVisible());
    EXPECT_FALSE(legend.isVisible());
    QSignalSpy quit(&fake, &frmFAKE::quitWanted);
    fake.close();
    EXPECT_EQ(1, quit.count());
    EXPECT_TRUE(fake.isVisible());
}

} // namespace
} // namespace orvinel
