#include "support/LayersFixture.h"

namespace orvinel {
namespace {

using namespace Qt::Literals::StringLiterals;

struct CollectorsViewTest : LayersFixture {
    CollectorsPage& page() { return panel->collectorsPage(); }
    QColor colourOf(const char* name) { return label(name).palette().color(QPalette::WindowText); }
};

const QPoint annaAlone(97, 100); // Berta's marker begins at 99
const QPoint both(103, 100);
const QPoint bertaAlone(108, 100);
const QPoint nobody(400, 400);

TEST_F(CollectorsViewTest, theListCountsInItsLabelAndFollowsTheSearch) {
    startOnFjord();
    EXPECT_EQ((QStringList{u"Anna"_s, u"Berta"_s}), texts(*page().lstCollectors));
    EXPECT_EQ(u"Text 44: 2"_s, page().lblCollectors->text());
    page().txtCollSearch->setText(u"SHIELD"_s);
    EXPECT_EQ(QStringList{u"Anna"_s}, texts(*page().lstCollectors));
    EXPECT_EQ(u"Text 44: 1"_s, page().lblCollectors->text());
}

TEST_F(CollectorsViewTest, onlyListedCollectorsOfALayerSwitchedOnAreDrawn) {
    startOnFjord();
    const QRgb ground = mapPixel(400, 400);
    EXPECT_NE(ground, mapPixel(108, 100));
    page().txtCollSearch->setText(u"shield"_s);
    EXPECT_EQ(ground, mapPixel(110, 100));
    EXPECT_NE(ground, mapPixel(100, 100));
    panel->tabs().chkShowObject[1]->setValue(0);
    EXPECT_EQ(ground, mapPixel(100, 100));
}

TEST_F(CollectorsViewTest, theFirstListedOfTwoOverlappingIsExplained) {
    startOnFjord();
    hover(both);
    EXPECT_TRUE(shown("picCollectorToolTip"));
    EXPECT_EQ(u"Anna"_s, text("lblCollName"));
    hover(bertaAlone);
    EXPECT_EQ(u"Berta"_s, text("lblCollName"));
    EXPECT_EQ(u"3 Pears"_s, text("lblCollRequest"));
    EXPECT_EQ(u"On the cliffs"_s, text("lblCollLocation"));
    EXPECT_EQ(u"Text 50"_s, text("lblCollRequestCaption"));
    EXPECT_EQ(u"Text 49"_s, text("lblCollLocationCaption"));
    hover(nobody);
    EXPECT_FALSE(shown("picCollectorToolTip"));
    EXPECT_EQ(QString(), collectors->window().tag());
}

TEST_F(CollectorsViewTest, rewardsGetLabelsAsNeededOneBelowTheOther) {
    startOnFjord();
    hover(annaAlone);
    EXPECT_EQ(u"Ring"_s, text("lblCollObjectName(2)"));
    const Label& last = label("lblCollObjectStats(2)");
    EXPECT_EQ(last.y() + last.height() + 10, collectors->window().height());
    const Label& name = label("lblCollObjectName(1)");
    EXPECT_EQ(name.y() + name.height(), label("lblCollObjectStats(1)").y());
    hover(bertaAlone);
    EXPECT_EQ(u"Bow"_s, text("lblCollObjectName(0)"));
    EXPECT_EQ(u"- Fire +3"_s, text("lblCollObjectStats(0)"));
    EXPECT_FALSE(on<Label>(*map, "lblCollObjectName(1)"));
    EXPECT_FALSE(on<Label>(*map, "lblCollObjectStats(1)"));
}

TEST_F(CollectorsViewTest, rewardsThatTheSearchMeansStandOut) {
    startOnFjord();
    page().txtCollSearch->setText(u"ice"_s);
    hover(annaAlone);
    EXPECT_EQ(QColor(0x96, 0x96, 0x96), colourOf("lblCollObjectName(0)"));
    EXPECT_EQ(QColor(0xEE, 0xDD, 0xAA), colourOf("lblCollObjectName(1)"));
    EXPECT_EQ(QColor(Qt::white), colourOf("lblCollObjectStats(1)"));
}

TEST_F(CollectorsViewTest, movingWithinAMarkerLeavesTheWindowAlone) {
    startOnFjord();
    hover(annaAlone);
    label("lblCollName").setCaption(u"untouched"_s);
    hover(annaAlone + QPoint(0, 3));
    EXPECT_EQ(u"untouched"_s, text("lblCollName"));
}

TEST_F(CollectorsViewTest, aClickOnAnyPartOfTheWindowHidesIt) {
    startOnFjord();
    for (const char* part : {"lblCollName", "lblCollRequest", "lblCollLocationCaption",
                             "lblCollObjectName(1)", "lblCollObjectStats(2)"}) {
        hover(annaAlone);
        ASSERT_TRUE(shown("picCollectorToolTip"));
        QTest::mouseClick(&label(part), Qt::LeftButton);
        EXPECT_FALSE(shown("picCollectorToolTip")) << part;
    }
    hover(annaAlone);
    QTest::mouseClick(&collectors->window(), Qt::LeftButton, {}, {3, 3});
    EXPECT_FALSE(shown("picCollectorToolTip"));
}

TEST_F(CollectorsViewTest, theWindowEndsAtItsMarkerAndHasABandAndALineBelowTheLocation) {
    startOnFjord();
    hover(bertaAlone);
    InformationWindow& box = collectors->window();
    EXPECT_EQ(99, box.x()); // no room to the left of the marker: it begins with it
    EXPECT_EQ(107, box.y());
    const int line = label("lblCollLocation").y() + label("lblCollLocation").height() + 5;
    EXPECT_EQ(0xFF646464u, box.surface().pixel(100, line));
    EXPECT_EQ(0xFFB4B4B4u, box.surface().pixel(0, 0));
    const QColor band = QColor::fromRgb(box.surface().pixel(100, label("lblCollName").height() + 4));
    const QColor below = QColor::fromRgb(box.surface().pixel(100, label("lblCollName").height() + 5));
    EXPECT_GT(band.blue(), below.blue() + 60); // TabColors 1, darkened by the map that shines through
}

TEST_F(CollectorsViewTest, pickingAnEntryCentresItAndADoubleClickDoesNothing) {
    startOnFjord();
    map->CenterMapOn(700, 500);
    page().lstCollectors->select(1);
    EXPECT_EQ(0, map->picMap().view().scrollX());
    doubleClick(bertaAlone);
    EXPECT_FALSE(inMap<QMenu>("MenuPopUp").isVisible());
}

} // namespace
} // namespace orvinel
