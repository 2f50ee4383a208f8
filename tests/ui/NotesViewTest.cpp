#include "support/LayersFixture.h"

#include <QSignalSpy>

namespace orvinel {
namespace {

using namespace Qt::Literals::StringLiterals;

// Notes and the two menus of the map.
const QPoint alpha(500, 100);

struct NotesViewTest : LayersFixture {
    const QString file = u"/o/Personal/Notes.txt"_s;

    // In a window that is higher than the map.
    void showALongNote() {
        startOnFjord();
        state.Notes[1].setTexts(u"Alpha"_s, QString(u"line\r\n"_s).repeated(100));
        hover(alpha);
        ASSERT_GT(notes->window().height(), map->picMap().height());
    }
    QAction& entry(const char* name) { return inMap<QAction>(name); }
    void choose(const char* name) {
        entry(name).trigger();
        QCoreApplication::processEvents();
    }
    QString enabledEntries() {
        QString enabled;
        for (const char* name : {"mnuNoteInsert", "mnuNoteEdit", "mnuNoteDelete"})
            enabled += entry(name).isEnabled() ? u'1' : u'0';
        return enabled;
    }
    bool menuOpen() { return inMap<QMenu>("MenuPopUp").isVisible(); }
};

const QPoint nothing(450, 330);

TEST_F(NotesViewTest, theWindowShowsAllLinesOfTheNote) {
    startOnFjord();
    hover(alpha + QPoint(-7, 0));
    EXPECT_EQ(u"Alpha"_s, text("lblShortDescription"));
    const Label& body = label("lblDescription");
    EXPECT_GE(body.height(), 2 * body.fontMetrics().height());
    EXPECT_EQ(body.y() + body.height() + 10, notes->window().height());
    hover(alpha + QPoint(-8, 0));
    EXPECT_FALSE(shown("picNoteTooltip"));
}

TEST_F(NotesViewTest, theMapShinesThroughTheWindowOnceAlsoBesideASmallRegion) {
    startOnFjord();
    chooseRegion(u"Glacier"_s); // grey 90, 300 pixels wide; black beside it
    hover({60, 60});
    ASSERT_EQ(53, notes->window().x());
    const QImage window = notes->window().grab().toImage();
    const auto blended = [](int band, int ground) { return qRound((band * 175 + ground * 80) / 255.); };
    EXPECT_EQ(blended(0xDD, 90), window.pixelColor(150, 8).red());
    EXPECT_EQ(blended(0xDD, 0), window.pixelColor(250, 8).red());
}

TEST_F(NotesViewTest, theWheelScrollsAWindowThatIsHigherThanTheMap) {
    showALongNote();
    InformationWindow& window = notes->window();
    MapViewport& view = map->picMap();
    const auto wheel = [&](QWidget& over, QPoint at, int notches) {
        QWheelEvent event(at, over.mapToGlobal(at), {}, {0, notches * 120}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(&over, &event);
    };
    EXPECT_EQ(0, window.y());
    wheel(window, {20, 20}, -1);
    EXPECT_EQ(-64, window.y());
    wheel(window, {20, 200}, -1000);
    EXPECT_EQ(view.height(), window.y() + window.height());
    wheel(view, view.toWidget(QRect(alpha, QSize(1, 1))).topLeft(), 1000);
    EXPECT_EQ(0, window.y());
    EXPECT_TRUE(window.isVisible());
    wheel(view, {view.width() - 1, view.height() - 1}, -1);
    EXPECT_FALSE(window.isVisible()) << "scrolls the map";
}

TEST_F(NotesViewTest, theKeysScrollAWindowThatIsHigherThanTheMapAndElseTheMap) {
    showALongNote();
    InformationWindow& window = notes->window();
    MapViewport& view = map->picMap();
    const int lowest = view.height() - window.height();
    const QPoint shownFirst = view.toWidget(QRect(0, 0, 1, 1)).topLeft();
    const auto yAfter = [&](Qt::Key key) {
        QTest::keyClick(&view, key);
        return window.y();
    };
    EXPECT_EQ(-48, yAfter(Qt::Key_Down));
    EXPECT_EQ(0, yAfter(Qt::Key_Up));
    EXPECT_EQ(std::max(lowest, 48 - view.height()), yAfter(Qt::Key_PageDown));
    EXPECT_EQ(lowest, yAfter(Qt::Key_End));
    EXPECT_EQ(lowest, yAfter(Qt::Key_Down));
    EXPECT_EQ(0, yAfter(Qt::Key_Home));
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(shownFirst, view.toWidget(QRect(0, 0, 1, 1)).topLeft()) << "the map stays";
    QTest::keyClick(&view, Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
    QTest::keyClick(&view, Qt::Key_Down);
    EXPECT_NE(shownFirst, view.toWidget(QRect(0, 0, 1, 1)).topLeft());
}

TEST_F(NotesViewTest, aNoteBesideASmallPictureIsPinnedAtItsEdge) {
    startOnFjord();
    chooseRegion(u"Glacier"_s); // 300 x 200
    doubleClick({350, 150});
    choose("mnuNoteInsert");
    EXPECT_EQ((MapPoint{299, 150}), request.at);
}

TEST_F(NotesViewTest, aNewNoteIsPinnedWhereTheMapWasDoubleClicked) {
    startOnFjord();
    map->CenterMapOn(500, 400);
    doubleClick(nothing);
    EXPECT_TRUE(menuOpen());
    EXPECT_EQ(u"100"_s, enabledEntries());
    storedNote = 3;
    choose("mnuNoteInsert");
    EXPECT_FALSE(menuOpen());
    EXPECT_EQ(-1, request.note);
    EXPECT_EQ((MapPoint{450, 330}), request.at);
    EXPECT_EQ(3, request.campaign);
    EXPECT_EQ(1, request.region);
    EXPECT_EQ(1, noteFilters);
}

TEST_F(NotesViewTest, cancellingTheEditorRefillsNothing) {
    startOnFjord();
    doubleClick(alpha);
    EXPECT_EQ(u"011"_s, enabledEntries());
    choose("mnuNoteEdit");
    EXPECT_EQ(1, request.note);
    EXPECT_EQ(0, noteFilters);
}

TEST_F(NotesViewTest, aNoteIsDeletedOnlyAfterYes) {
    startOnFjord();
    desktop.answer = false;
    doubleClick(alpha);
    choose("mnuNoteDelete");
    EXPECT_EQ(QStringList{u"ask Question Orvinel|Text 72"_s}, desktop.log);
    EXPECT_EQ(QStringList{u"Alpha"_s}, texts(lstNotes()));
    desktop.answer = true;
    choose("mnuNoteDelete");
    EXPECT_EQ("Beta\tother\t60\t60\t3\t2\r\n", disk.content(file));
    EXPECT_EQ(0, lstNotes().count());
    EXPECT_EQ(u"Text 65: 0"_s, panel->notesPage().lblNoteList->text());
    doubleClick(alpha);
    EXPECT_EQ(u"100"_s, enabledEntries());
}

TEST_F(NotesViewTest, aNoteWhoseFileCannotBeWrittenStays) {
    startOnFjord();
    doubleClick(alpha);
    disk.failAt = 1;
    choose("mnuNoteDelete");
    EXPECT_EQ(2, desktop.log.size()); // the question, then what went wrong
    EXPECT_EQ(QStringList{u"Alpha"_s}, texts(lstNotes()));
}

TEST_F(NotesViewTest, keysOpenTheMenuForTheSelectedNoteElseForTheMiddleOfTheMap) {
    startOnFjord();
    QSignalSpy wanted(notes, &NotesView::menuWanted);
    QTest::keyClick(&map->picMap(), Qt::Key_Menu);
    EXPECT_EQ(u"100"_s, enabledEntries());
    lstNotes().select(0);
    QTest::keyClick(&map->picMap(), Qt::Key_Menu);
    EXPECT_EQ(u"011"_s, enabledEntries());
    QTest::keyClick(&lstNotes(), Qt::Key_Menu);
    QTest::keyClick(&lstNotes(), Qt::Key_Return);
    ASSERT_EQ(4, wanted.count());
    EXPECT_EQ(-1, wanted[0][0].toInt());
    for (int i = 1; i < 4; ++i)
        EXPECT_EQ(1, wanted[i][0].toInt());
}

TEST_F(NotesViewTest, aNoteOfAnotherRegionKeepsItsRegionWhenEdited) {
    startOnFjord();
    chooseCampaign(u"Frost"_s);
    EXPECT_EQ((QStringList{u"Alpha"_s, u"Beta"_s}), texts(lstNotes()));
    lstNotes().select(1);
    EXPECT_EQ(2, map->MapRegion());
    map->InizializzaVariabili(u"/o/Campaign.03.Frost/1.jpg"_s, 3, 1);
    QTest::keyClick(&lstNotes(), Qt::Key_Menu);
    choose("mnuNoteEdit");
    EXPECT_EQ(2, request.note);
    EXPECT_EQ(2, request.region);
}

struct RegionMenuTest : LayersFixture {};

TEST_F(RegionMenuTest, listsTheRegionsOfCampaignsOneToFourInTheOrderOfTheCombo) {
    disk.put(u"/o/Campaign.02.East & West/Regions.txt"_s, "1\tOne\r\n2\tTwo\r\n3\tThree\r\n4\tFour\r\n");
    startOnFjord();
    const auto model = orvinel::regionMenus(state);
    ASSERT_EQ(2u, model.size());
    EXPECT_EQ(
        (CampaignMenu{2, u"East & West"_s, {{u"Four"_s, 4}, {u"One"_s, 1}, {u"Two"_s, 2}, {u"Three"_s, 3}}}),
        model[0]);
    EXPECT_EQ(u"East && West"_s, inMap<QMenu>("mnuCampaign(2)").title());
    EXPECT_EQ(u"One"_s, inMap<QAction>("mnuC1Region(2)").text());
    EXPECT_EQ(u"Glacier"_s, inMap<QAction>("mnuC2Region(2)").text());
}

TEST_F(RegionMenuTest, anEntryChoosesItsRegionInThePanelAndOnTheMap) {
    startOnFjord();
    chooseCampaign(u"Core"_s);
    EXPECT_FALSE(map->mapLoaded());
    inMap<QMenu>("MenuPopupRegion").popup({});
    inMap<QMenu>("MenuPopupRegion").setActiveAction(inMap<QMenu>("mnuCampaign(3)").menuAction());
    ASSERT_TRUE(inMap<QMenu>("mnuCampaign(3)").isVisible());
    inMap<QAction>("mnuC2Region(2)").trigger();
    EXPECT_FALSE(inMap<QMenu>("MenuPopupRegion").isVisible() || inMap<QMenu>("mnuCampaign(3)").isVisible());
    EXPECT_EQ(u"Frost"_s, panel->selection().cmbCampaign->currentText());
    EXPECT_EQ(u"Glacier"_s, panel->selection().cmbRegion->currentText());
    EXPECT_EQ(2, map->MapRegion());
    EXPECT_TRUE(panel->MenuReady);
    EXPECT_EQ(QStringList{u"Beta"_s}, texts(lstNotes()));
}

// Counts how often the viewport is painted, and how often without a region.
struct PaintCount : QObject {
    MapViewport& view;
    int all = 0;
    int empty = 0;

    explicit PaintCount(MapViewport& watched) : view(watched) { view.installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* event) override {
        all += event->type() == QEvent::Paint;
        empty += event->type() == QEvent::Paint && !view.surface();
        return false;
    }
};

TEST_F(RegionMenuTest, anEntryOfAnotherCampaignShowsNothingInBetween) {
    disk.put(u"/o/Campaign.01.Ash/Regions.txt"_s, "8\tCoast\r\n");
    disk.put(u"/o/Campaign.01.Ash/8.jpg"_s, jpeg({300, 200}, QColor(1, 2, 3)));
    startOnFjord();
    desktop.pending = [] { QCoreApplication::processEvents(); };
    PaintCount paints(map->picMap());
    inMap<QAction>("mnuC0Region(1)").trigger();
    QCoreApplication::processEvents();
    EXPECT_EQ(1, map->MapCampaign());
    EXPECT_TRUE(map->mapLoaded());
    EXPECT_GT(paints.all, 0);
    EXPECT_EQ(0, paints.empty);
}

TEST_F(RegionMenuTest, opensWithTheRightButtonOnEmptyMapOnly) {
    startOnFjord();
    press(alpha, Qt::RightButton);
    EXPECT_FALSE(inMap<QMenu>("MenuPopupRegion").isVisible());
    EXPECT_TRUE(shown("picNoteTooltip"));
    press(nothing, Qt::RightButton);
    EXPECT_TRUE(inMap<QMenu>("MenuPopupRegion").isVisible());
}

} // namespace
} // namespace orvinel
