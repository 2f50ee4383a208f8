#include "support/ProgramFixture.h"

#include "ui/platform/Fonts.h"

#include <QAccessible>

namespace orvinel {
namespace {

using namespace Qt::Literals::StringLiterals;

constexpr QRgb red = 0xFFFF0000;
constexpr QRgb grey = 0xFFAAAAAA;
constexpr QRgb green = 0xFF00FF00;
constexpr QPoint bront(97, 100); // the Chorister's marker begins at 100
constexpr QPoint second(300, 300);
constexpr QPoint chorister(111, 100);
constexpr QPoint nobody(200, 200);
constexpr QPoint nothing(500, 400);

struct EliteViewTest : ProgramFixture {
    EliteViewTest() {
        putFile("EliteList.txt", "1\t1\tFlare\tFire\tSpell\t0\t0\t5\t1/4\t120\tBurns.\r\n"
                                 "2\t2\tHymn\tSong\tShout\t-1\t7\t0\t2\t0\tSings.\r\n");
        putFile("EliteLocations.txt", ";[Version]=2.0\r\n"
                                      "1\t1\t100\t100\tBront\t?\t11\tby the pier\\nat night\r\n"
                                      "1\t1\t300\t300\tBront the Second\t\t12\r\n"
                                      "1\t2\t150\t100\tGrim\t\t21\r\n"
                                      "2\t1\t106\t100\tChorister\t\t12\r\n"
                                      "0\t1\t200\t200\tNobody\t1\t0\r\n");
        putFile("Greens.txt", "Blade\tBront\tDamage +1\tFire Magic\r\nShield\tbront \tArmour 5\r\n"
                              "Totem\tNobody\tLuck\r\n");
    }
    void startOnFjord() {
        start();
        showFjord();
    }
    ElitePage& page() { return panel->elitePage(); }
    InformationWindow& window() { return elites->window(); }
    Label& label(const char* name) { return *on<Label>(window(), name); }
    QString shownText(const char* name) {
        const auto* found = on<Label>(window(), name);
        return found && !found->isHidden() ? found->text() : u"(hidden)"_s;
    }
    void clickRow(ListBox& list, int row) {
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, {40, row * ListBox::rowHeight + 6});
    }
};

TEST_F(EliteViewTest, listsTheSkillsAndDrawsTheirBossesAndTheGreyOnes) {
    startOnFjord();
    EXPECT_EQ((QStringList{u"Flare [M]"_s, u"Hymn [B]"_s}), texts(*page().lstElite));
    EXPECT_EQ(u"Text 32: 2"_s, page().lblTot->text());
    EXPECT_EQ(red, mapPixel(95, 105));
    EXPECT_EQ(grey, mapPixel(195, 205));
    page().txtEliteBossName->setText(u"SECOND"_s);
    EXPECT_EQ((QStringList{u"Flare [M]"_s}), texts(*page().lstElite));
    EXPECT_NE(red, mapPixel(95, 105));
    EXPECT_EQ(red, mapPixel(301, 301));
    EXPECT_EQ(grey, mapPixel(195, 205));
    panel->tabs().chkShowObject[0]->setValue(0);
    EXPECT_NE(red, mapPixel(301, 301));
    EXPECT_NE(grey, mapPixel(195, 205));
}

TEST_F(EliteViewTest, aClickOnASkillListsItsPlacesAndJumpsToTheFirst) {
    start();
    clickRow(*page().lstElite, 0);
    EXPECT_EQ(
        (QStringList{u"Harbour - Fjord - Frost"_s, u"Cliffs - Fjord - Frost"_s, u"Rift - Glacier - Frost"_s}),
        texts(*page().lstLocations));
    EXPECT_EQ(1, map->MapRegion());
    const int widest = QFontMetrics(arial(points8_25)).horizontalAdvance(u"Harbour - Fjord - Frost"_s);
    EXPECT_EQ(widest + 4, page().lstLocations->sizeHintForColumn(0));
    clickRow(*page().lstLocations, 1);
    EXPECT_EQ(QPoint(0, 491 / 2 - 300),
              (QPoint(map->picMap().view().scrollX(), map->picMap().view().scrollY())));
    clickRow(*page().lstLocations, 2);
    EXPECT_EQ(2, map->MapRegion());
    EXPECT_TRUE(page().lstLocations->isEnabled());
    page().txtEliteName->setText(u"hy"_s);
    EXPECT_EQ(0, page().lstLocations->count());
    EXPECT_FALSE(page().lstLocations->isEnabled());
}

TEST_F(EliteViewTest, aZoneChosenShowsItsFirstSkillThereAndHidesTheOtherMarkersOnlyFromTheEye) {
    startOnFjord();
    chooseZone(u"Cliffs"_s);
    EXPECT_EQ(0, page().lstElite->selectedIndex());
    EXPECT_EQ((QStringList{u"Cliffs - Fjord - Frost"_s}), texts(*page().lstLocations));
    EXPECT_NE(red, mapPixel(95, 105));
    hover(bront);
    EXPECT_EQ(u"Bront"_s, shownText("lblExtBoss"));
}

TEST_F(EliteViewTest, marksAreAskedForFromTheListAndFromTheMap) {
    startOnFjord();
    doubleClick(second);
    doubleClick(nobody);
    doubleClick(nothing);
    EXPECT_EQ((QStringList{u"1 map"_s}), captures);
    clickRow(*page().lstElite, 1);
    QTest::keyClick(page().lstElite, Qt::Key_Return);
    QTest::mouseDClick(page().lstElite->viewport(), Qt::LeftButton, {}, {40, ListBox::rowHeight + 6});
    EXPECT_EQ((QStringList{u"1 map"_s, u"2 panel"_s, u"2 panel"_s}), captures);
}

TEST_F(EliteViewTest, theWindowTellsAllAboutTheSkillTheBossAndItsItems) {
    startOnFjord();
    hover(bront);
    ASSERT_TRUE(window().isVisible());
    const std::vector<std::pair<const char*, QString>> expected = {
        {"lblExtEliteName", u"Flare"_s},
        {"lblExtType", u"Spell"_s},
        {"lblExtAttribute", u"Fire"_s},
        {"lblExtCampaign", u"Frost"_s},
        {"lblExtCaptionType", u"Text 10"_s},
        {"lblExtDescription", u"Burns."_s},
        {"lblExtUpKeep", u"(hidden)"_s},
        {"lblExtAdrenaline", u"(hidden)"_s},
        {"lblExtEnergy", u"5"_s},
        {"lblExtRechargeTime", u"120"_s},
        {"lblExtCastTime", u"1/4"_s},
        {"lblExtBoss", u"Bront"_s},
        {"lblExtZone", u"Harbour"_s},
        {"lblExtNote", u"by the pier\nat night"_s},
        {"lblGreen(0)", u"Blade"_s},
        {"lblGreenStats(0)", u"- Damage +1\n- Fire Magic"_s},
        {"lblGreen(1)", u"Shield"_s},
    };
    for (const auto& [name, text] : expected)
        EXPECT_EQ(text, shownText(name)) << name;
    EXPECT_TRUE(label("imgExtUpKeep").isHidden());
    EXPECT_FALSE(label("imgExtEnergy").isHidden());
    const QString spoken = QAccessible::queryAccessibleInterface(&window())->text(QAccessible::Name);
    EXPECT_TRUE(spoken.contains(u"Energy\n5\n"_s) && !spoken.contains(u"Upkeep"_s)) << spoken.toStdString();
    hover(chorister);
    EXPECT_EQ(u"-1"_s, shownText("lblExtUpKeep"));
    EXPECT_EQ(u"(hidden)"_s, shownText("lblExtEnergy"));
    EXPECT_EQ(u"(hidden)"_s, shownText("lblExtNote"));
    EXPECT_EQ(u"(hidden)"_s, shownText("lblGreen(0)"));
    EXPECT_EQ(nullptr, on<Label>(window(), "lblGreen(1)"));
}

TEST_F(EliteViewTest, withoutTheSkillsLayerTheWindowBeginsWithTheBoss) {
    startOnFjord();
    panel->tabs().chkShowObject[0]->setValue(0);
    hover(bront);
    EXPECT_EQ(u"(hidden)"_s, shownText("lblExtEliteName"));
    EXPECT_EQ(u"(hidden)"_s, shownText("lblExtEnergy"));
    EXPECT_EQ(u"Bront"_s, shownText("lblExtBoss"));
    EXPECT_LT(label("lblExtBoss").y(), label("lblExtBoss").height()) << "room for a skill that is not shown";
}

TEST_F(EliteViewTest, theFrameLetsTheMapShineThroughItsBand) {
    startOnFjord();
    hover(second);
    const QImage drawn = window().surface();
    const QPoint at(9, 9);
    const QRgb below = mapPixel(window().x() + at.x(), window().y() + at.y());
    const QRgb seen = drawn.pixel(at);
    EXPECT_NEAR(255 * 175 / 255. + qRed(below) * 80 / 255., qRed(seen), 1);
    EXPECT_NEAR(qBlue(below) * 80 / 255., qBlue(seen), 1);
    EXPECT_EQ(0xFFB4B4B4, drawn.pixel(0, 0));
    EXPECT_EQ(0xFF646464, drawn.pixel(6, 6));
    const int separator = label("lblExtDescription").y() + label("lblExtDescription").height() + 5;
    EXPECT_EQ(0xFF646464, drawn.pixel(18, separator));
    EXPECT_NE(0xFF646464, drawn.pixel(17, separator));
}

TEST_F(EliteViewTest, theSameSkillKeepsItsWindowAndEmptyMapHidesIt) {
    startOnFjord();
    hover(bront);
    EXPECT_EQ(u"1"_s, window().tag());
    hover(second);
    EXPECT_EQ(u"Bront"_s, shownText("lblExtBoss"));
    hover({103, 100});
    EXPECT_EQ(u"1"_s, window().tag());
    hover(nothing);
    EXPECT_FALSE(window().isVisible());
    EXPECT_EQ(QString(), window().tag());
    hover(second);
    EXPECT_EQ(u"Bront the Second"_s, shownText("lblExtBoss"));
}

TEST_F(EliteViewTest, aBossIsFoundThroughItsGreenItemsToo) {
    startOnFjord();
    page().txtEliteName->setText(u"hymn"_s);
    hover(bront);
    EXPECT_EQ(u"Bront"_s, shownText("lblExtBoss"));
    EXPECT_EQ(u"(hidden)"_s, shownText("lblExtEliteName"));
    EXPECT_EQ(u"Blade"_s, shownText("lblGreen(0)"));
    hover(nobody);
    EXPECT_EQ(u"0"_s, window().tag());
    EXPECT_EQ(u"Totem"_s, shownText("lblGreen(0)"));
    panel->greensPage().txtGreensName->setText(u"blade"_s);
    hover(nobody);
    EXPECT_FALSE(window().isVisible());
}

TEST_F(EliteViewTest, aClickHidesTheWindowEverywhereButOnTheName) {
    startOnFjord();
    for (const char* name : {"lblExtBoss", "lblExtCaptionZone", "imgExtEnergy", "lblGreenStats(1)"}) {
        hover(bront);
        QTest::mouseClick(&label(name), Qt::LeftButton);
        EXPECT_FALSE(window().isVisible()) << name;
    }
    hover(bront);
    Label& name = label("lblExtEliteName");
    QTest::mousePress(&name, Qt::LeftButton);
    QMouseEvent tremor(QEvent::MouseMove, {2, 2}, name.mapTo(map.get(), QPointF(2, 2)),
                       name.mapToGlobal(QPointF(2, 2)), Qt::NoButton, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&name, &tremor);
    QTest::mouseRelease(&name, Qt::LeftButton);
    EXPECT_TRUE(window().isVisible());
    QTest::mouseClick(&window(), Qt::LeftButton, {}, {3, 3});
    EXPECT_FALSE(window().isVisible());
}

TEST_F(EliteViewTest, greenItemsAreBarsUnderBossesThatAreDrawnAndMarkersElsewhere) {
    startOnFjord();
    EXPECT_EQ((QStringList{u"Blade"_s, u"Shield"_s, u"Totem"_s}), texts(*panel->greensPage().lstGreens));
    EXPECT_EQ(u"Text 59: 3"_s, panel->greensPage().lblGreensList->text());
    EXPECT_EQ(green, mapPixel(100, 108));
    EXPECT_EQ(green, mapPixel(200, 208));
    panel->tabs().chkShowObject[0]->setValue(0);
    EXPECT_NE(green, mapPixel(100, 108));
    const QImage& picture = map->art().picture(Sprite::GreenMarker);
    EXPECT_EQ(picture.pixel(7, 7), mapPixel(94 + 7, 94 + 7));
    panel->tabs().chkShowObject[2]->setValue(0);
    EXPECT_NE(picture.pixel(7, 7), mapPixel(94 + 7, 94 + 7));
}

TEST_F(EliteViewTest, aGreenItemChosenMovesTheMapToItsBoss) {
    start();
    panel->tabs().activate(Tab::Greens);
    clickRow(*panel->greensPage().lstGreens, 2);
    EXPECT_EQ(1, map->MapRegion());
    EXPECT_EQ(green, mapPixel(200, 208));
    EXPECT_EQ(0, page().lstLocations->count());
}

} // namespace
} // namespace orvinel
