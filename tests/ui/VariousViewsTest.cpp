#include "support/LayersFixture.h"

#include <QRegularExpression>

namespace orvinel {
namespace {

using namespace Qt::Literals::StringLiterals;

struct TreasuresViewTest : LayersFixture {};
struct PetsViewTest : LayersFixture {};

const QPoint oldChest(300, 300);
const QPoint wolfAlone(195, 200);
const QPoint wolfAndBear(205, 200);
const QPoint bearAlone(213, 200);

TEST_F(TreasuresViewTest, theWindowTellsWhoOpenedTheChestAndWhen) {
    startOnFjord();
    EXPECT_EQ(u"Text 83: 2"_s, various().lblTreasures->text());
    hover(oldChest);
    EXPECT_EQ(u"Old chest"_s, text("lblTreasureName"));
    const QStringList lines = text("lblTreasureCharList").split(QRegularExpression(u"\r?\n"_s));
    ASSERT_EQ(2, lines.size());
    EXPECT_TRUE(QRegularExpression(u"^Ada {5,}16-10-2011$"_s).match(lines[0]).hasMatch());
    EXPECT_EQ(u"Bo"_s, lines[1]);
    const Label& list = label("lblTreasureCharList");
    const int width = list.fontMetrics().horizontalAdvance(lines[0]);
    EXPECT_GE(width, list.width() - 10);
    EXPECT_LT(width, list.width());
    EXPECT_TRUE(text("lblTreasureOpenedBy").startsWith(u"Text 85  "_s));
    EXPECT_EQ(list.y() + list.height() + 10, treasures->window().height());
    QTest::mouseClick(&label("lblTreasureCharList"), Qt::LeftButton);
    EXPECT_FALSE(shown("picTreasureTooltip"));
}

TEST_F(TreasuresViewTest, withoutCharactersTheWindowSaysSo) {
    disk.put(u"/o/Personal/Characters.txt"_s, "");
    startOnFjord();
    hover(oldChest);
    EXPECT_EQ(u"Text 87"_s, text("lblTreasureCharList"));
}

TEST_F(TreasuresViewTest, aDoubleClickOnTheMarkerOrTheEntryAsksWhoOpenedIt) {
    startOnFjord();
    doubleClick(oldChest);
    EXPECT_EQ(1, openedChest);
    EXPECT_FALSE(inMap<QMenu>("MenuPopUp").isVisible());
    various().lstKesraTreasures->select(1);
    QTest::keyClick(various().lstKesraTreasures, Qt::Key_Return);
    EXPECT_EQ(2, openedChest);
}

TEST_F(TreasuresViewTest, oneSwitchHidesChestsAndPets) {
    startOnFjord();
    const QRgb ground = mapPixel(400, 400);
    EXPECT_NE(ground, mapPixel(300, 300));
    EXPECT_NE(ground, mapPixel(200, 200));
    panel->tabs().chkShowObject[4]->setValue(0);
    EXPECT_EQ(ground, mapPixel(300, 300));
    EXPECT_EQ(ground, mapPixel(200, 200));
}

TEST_F(PetsViewTest, pickingAPetPicksItsFirstPlaceAndTakesTheSelectionFromTheChests) {
    startOnFjord();
    various().lstKesraTreasures->select(0);
    various().lstPets->select(0);
    EXPECT_EQ(QStringList{u"Harbour - Fjord - Frost"_s}, texts(*various().lstPetLocations));
    EXPECT_EQ(0, various().lstPetLocations->selectedIndex());
    EXPECT_FALSE(various().lstKesraTreasures->hasSelection());
    various().lstKesraTreasures->select(1);
    EXPECT_FALSE(various().lstPets->hasSelection());
    EXPECT_FALSE(various().lstPetLocations->hasSelection());
    EXPECT_EQ(1, various().lstPetLocations->count());
}

TEST_F(PetsViewTest, placesInOtherRegionsLoadTheirRegion) {
    startOnFjord();
    chooseRegion(panel->selection().cmbRegion->itemText(0));
    EXPECT_FALSE(map->mapLoaded());
    various().lstPets->select(0);
    EXPECT_EQ(1, map->MapRegion());
    ASSERT_EQ(2, various().lstPetLocations->count());
    various().lstPetLocations->select(1);
    EXPECT_EQ(2, map->MapRegion());
    hover({50, 50});
    EXPECT_EQ(u"Wolf"_s, text("lblPetName"));
}

TEST_F(PetsViewTest, filteringAnewForgetsThePlaces) {
    startOnFjord();
    various().lstPets->select(0);
    chooseZone(u"Cliffs"_s);
    EXPECT_EQ(QStringList{u"Bear"_s}, texts(*various().lstPets));
    EXPECT_EQ(0, various().lstPetLocations->count());
    EXPECT_EQ(u"Text 114: 1"_s, various().lblPets->text());
}

TEST_F(PetsViewTest, theWindowFitsThePictureAndItsContentsDoNotHideIt) {
    startOnFjord();
    hover(wolfAlone);
    const Label& picture = label("imgPetImage");
    EXPECT_EQ(QSize(160, 120), picture.size());
    EXPECT_EQ(2 * picture.x() + 160, pets->window().width());
    EXPECT_EQ(picture.y() + 120 + 10, pets->window().height());
    QTest::mouseClick(&label("imgPetImage"), Qt::LeftButton);
    QTest::mouseClick(&label("lblPetName"), Qt::LeftButton);
    EXPECT_TRUE(shown("picPetTooltip"));
    QTest::mouseClick(&pets->window(), Qt::LeftButton, {}, {3, 3});
    EXPECT_FALSE(shown("picPetTooltip"));
    EXPECT_EQ(QString(), pets->window().tag());
    hover(wolfAndBear);
    EXPECT_EQ(u"Wolf"_s, text("lblPetName"));
    hover(bearAlone); // has no picture
    EXPECT_EQ(u"Bear"_s, text("lblPetName"));
    EXPECT_TRUE(label("imgPetImage").pixmap().isNull());
    EXPECT_LT(pets->window().height(), 60);
}

TEST_F(PetsViewTest, oneWindowIsShownAtATime) {
    startOnFjord();
    hover(wolfAlone);
    hover(oldChest);
    EXPECT_TRUE(shown("picTreasureTooltip"));
    EXPECT_FALSE(shown("picPetTooltip"));
    EXPECT_EQ(QString(), pets->window().tag());
}

} // namespace
} // namespace orvinel
