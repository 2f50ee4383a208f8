#include "support/LayersFixture.h"

namespace orvinel {
namespace {

using namespace Qt::Literals::StringLiterals;

struct FlashingTest : LayersFixture {
    void tick(const char* timer) {
        QTimerEvent event(clock(timer).timerId());
        QCoreApplication::sendEvent(&clock(timer), &event);
    }
    QTimer& clock(const char* name) {
        auto* found = flashing->findChild<QTimer*>(QString::fromLatin1(name));
        EXPECT_TRUE(found) << name;
        return *found;
    }
    // True when the viewport shows something over the composition around a point of the map.
    bool marked(QPoint at) {
        MapViewport& viewport = map->picMap();
        const QRect area(at - QPoint(11, 10), QSize(22, 21));
        const QImage seen = viewport.grab(viewport.toWidget(area)).toImage();
        const QImage below = viewport.surface()->composed().copy(area);
        return seen.convertToFormat(QImage::Format_RGB32) != below.convertToFormat(QImage::Format_RGB32);
    }
};

const QPoint anna(100, 100);

TEST_F(FlashingTest, theSelectedEntryOfTheActivePageBlinks) {
    startOnFjord();
    panel->tabs().activate(Tab::Collectors);
    panel->collectorsPage().lstCollectors->select(0);
    EXPECT_TRUE(marked(anna));
    EXPECT_TRUE(clock("tmrFlashCollector").isActive());
    EXPECT_EQ(250, clock("tmrFlashCollector").interval());
    tick("tmrFlashCollector");
    EXPECT_FALSE(marked(anna));
    tick("tmrFlashCollector");
    EXPECT_TRUE(marked(anna));
    EXPECT_FALSE(clock("tmrFlashTreasures").isActive());
}

TEST_F(FlashingTest, anotherPageEndsTheBlinkingWithTheNextComposition) {
    startOnFjord();
    panel->tabs().activate(Tab::Collectors);
    panel->collectorsPage().lstCollectors->select(0);
    panel->tabs().activate(Tab::Notes);
    EXPECT_TRUE(clock("tmrFlashCollector").isActive());
    lstNotes().select(0);
    EXPECT_FALSE(clock("tmrFlashCollector").isActive());
    EXPECT_TRUE(marked({500, 100}));
    map->CenterMapOn(anna.x(), anna.y());
    EXPECT_FALSE(marked(anna));
}

TEST_F(FlashingTest, nothingBlinksWhileThePictureIsDragged) {
    startOnFjord();
    panel->tabs().activate(Tab::Collectors);
    panel->collectorsPage().lstCollectors->select(0);
    press({400, 400});
    tick("tmrFlashCollector");
    EXPECT_TRUE(marked(anna));
    release({400, 400});
    tick("tmrFlashCollector");
    EXPECT_FALSE(marked(anna));
}

TEST_F(FlashingTest, aLayerSwitchedOffShowsNoSelectionAndItsTicksDoNothing) {
    startOnFjord();
    panel->tabs().activate(Tab::Collectors);
    panel->collectorsPage().lstCollectors->select(0);
    panel->tabs().chkShowObject[1]->setValue(0);
    EXPECT_FALSE(clock("tmrFlashCollector").isActive());
    tick("tmrFlashCollector");
    tick("tmrFlashCollector");
    EXPECT_FALSE(marked(anna));
    panel->tabs().chkShowObject[1]->setValue(1);
    EXPECT_TRUE(clock("tmrFlashCollector").isActive());
    EXPECT_TRUE(marked(anna));
}

TEST_F(FlashingTest, chestsAndPetsShareOneMarker) {
    startOnFjord();
    panel->tabs().activate(Tab::Various);
    various().lstPets->select(0);
    EXPECT_TRUE(marked({200, 200}));
    various().lstKesraTreasures->select(0);
    EXPECT_TRUE(marked({300, 300}));
    EXPECT_FALSE(marked({200, 200}));
    chooseZone(u"Cliffs"_s); // the lists lose their selection
    EXPECT_FALSE(marked({300, 300}));
}

TEST_F(FlashingTest, aPlaceOfThePetBeforeAChestSelectsThatPetAgain) {
    startOnFjord();
    panel->tabs().activate(Tab::Various);
    panel->selection().cmbRegion->select(0); // all
    various().lstPets->select(0);
    ASSERT_EQ(2, various().lstPetLocations->count());
    various().lstKesraTreasures->select(0);
    various().lstPetLocations->select(1);
    EXPECT_EQ(7, various().lstPets->selectedEntry().data);
    EXPECT_EQ(2, various().lstPetLocations->selectedEntry().data);
    EXPECT_EQ(2, map->MapRegion());
    EXPECT_FALSE(various().lstKesraTreasures->hasSelection());
}

TEST_F(FlashingTest, aMarkerAtTheEdgeEndsWithThePicture) {
    disk.put(u"/o/Personal/Notes.txt"_s, "Edge\tx\t299\t100\t3\t2\r\n");
    startOnFjord();
    chooseRegion(u"Glacier"_s);
    panel->tabs().activate(Tab::Notes);
    lstNotes().select(0);
    EXPECT_TRUE(marked({289, 100}));
    const QImage beyond = map->picMap().grab(QRect(300, 80, 20, 40)).toImage();
    EXPECT_TRUE(beyond.allGray()) << "more than the black beside the picture";
}

TEST_F(FlashingTest, noMarkerIsShownOnARegionOfWhichTheEntryIsNot) {
    startOnFjord();
    panel->tabs().activate(Tab::Collectors);
    panel->collectorsPage().lstCollectors->select(0);
    map->InizializzaVariabili(u"/o/Campaign.03.Frost/2.jpg"_s, 3, 2);
    map->UpdateMapWithNewEliteSkills();
    tick("tmrFlashCollector");
    tick("tmrFlashCollector");
    EXPECT_FALSE(marked(anna));
}

} // namespace
} // namespace orvinel
