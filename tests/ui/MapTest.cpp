#include "support/ProgramFixture.h"
#include "ui/map/ShowOnMap.h"
#include "world/modCampaigns.h"

namespace orvinel {
namespace {

using namespace Qt::Literals::StringLiterals;

// Writes down what it is asked and answers as told.
struct Probe : MapLayer {
    Probe(QStringList& to, QString who, bool found) : log(to), name(std::move(who)), hit(found) {}
    QStringList& log;
    QString name;
    bool hit;

    void appendMarkers(std::vector<Marker>&) override { log << name + u" drawn"_s; }
    bool mouseOver(ViewPoint) override {
        log << name + u" over"_s;
        return hit;
    }
    bool doubleClick(ViewPoint) override {
        log << name + u" twice"_s;
        return hit;
    }
};

struct MapTest : ProgramFixture {
    MapTest() {
        putFile("EliteList.txt", "1\t1\tFlare\tFire\tSpell\t0\t0\t5\t1\t1\tBurns.\r\n");
        putFile("EliteLocations.txt", ";[Version]=2.0\r\n1\t1\t100\t100\tBront\t\t11\r\n");
    }
    void startOnFjord() {
        start();
        showFjord();
    }
    QPoint scroll() const { return {map->picMap().view().scrollX(), map->picMap().view().scrollY()}; }
    bool told() { return elites->window().isVisible(); }
    void showPicture(const QByteArray& content) {
        disk.put(u"/o/other.jpg"_s, content);
        map->InizializzaVariabili(u"/o/other.jpg"_s, 3, 9);
    }
};

constexpr QPoint boss(100, 100);
constexpr QPoint nothing(300, 300);

TEST_F(MapTest, theLeftButtonDragsThePictureAsFarAsItGoes) {
    startOnFjord();
    press(boss);
    EXPECT_TRUE(map->dragging());
    hover({60, 80});
    EXPECT_EQ(QPoint(-40, -20), scroll());
    EXPECT_FALSE(told());
    hover({-5000, 5000});
    EXPECT_EQ(QPoint(624 - 800, 0), scroll());
    release(boss);
    EXPECT_FALSE(map->dragging());
    const QPoint before = scroll();
    press({500, 300}, Qt::LeftButton, Qt::ShiftModifier);
    hover({450, 280});
    EXPECT_EQ(before, scroll());
}

// Its release may have gone to a menu that the right button opened.
TEST_F(MapTest, aMoveWithoutTheLeftButtonEndsADrag) {
    startOnFjord();
    press(boss);
    hover({60, 80});
    const QPoint before = scroll();
    pressedButtons = Qt::NoButton;
    hover({20, 20});
    EXPECT_FALSE(map->dragging());
    EXPECT_EQ(before, scroll());
}

TEST_F(MapTest, onlyTheOutermostPixelOfThePictureBelongsToTheWindowsEdge) {
    startOnFjord();
    const QSize size = map->size();
    press({1, 200});
    EXPECT_TRUE(map->dragging());
    release({1, 200});
    press({0, 200});
    EXPECT_FALSE(map->dragging());
    hover({-30, 200});
    release({-30, 200});
    EXPECT_EQ(QSize(size.width() + 30, size.height()), map->size());
}

TEST_F(MapTest, aPictureSmallerThanTheViewIsNotDragged) {
    start();
    showOnMap(*map, state, {3, 2, 10, 10});
    press({50, 50});
    hover({10, 10});
    EXPECT_EQ(QPoint(0, 0), scroll());
}

TEST_F(MapTest, modeOneFollowsTheMouse) {
    startOnFjord();
    hover(boss);
    EXPECT_TRUE(told());
    press(nothing);
    EXPECT_FALSE(told());
    release(nothing);
    hover(boss);
    hover(nothing);
    EXPECT_FALSE(told());
    EXPECT_EQ(0, regionMenus);
}

TEST_F(MapTest, modeZeroTellsWhileTheRightButtonIsHeldAndModeTwoUntilTheNextPress) {
    startOnFjord();
    for (const int mode : {0, 2}) {
        panel->MenuRightClickNeeded = mode;
        hover(boss);
        EXPECT_FALSE(told());
        press(boss, Qt::RightButton);
        EXPECT_TRUE(told());
        release(boss, Qt::RightButton);
        EXPECT_EQ(mode == 2, told());
        EXPECT_EQ(0, regionMenus);
        press(nothing);
        EXPECT_FALSE(told());
        release(nothing);
    }
    press(nothing, Qt::RightButton);
    EXPECT_EQ(1, regionMenus);
}

TEST_F(MapTest, aRedrawHidesTheInformationWindows) {
    startOnFjord();
    hover(boss);
    map->UpdateMapWithNewEliteSkills();
    EXPECT_FALSE(told());
    EXPECT_EQ(QString(), elites->window().tag());
    hover(boss);
    QTest::keyClick(&map->picMap(), Qt::Key_Escape);
    EXPECT_FALSE(told());
}

TEST_F(MapTest, eachChainAsksInItsOrderUntilALayerHasSomething) {
    startOnFjord();
    QStringList log;
    Probe a(log, u"a"_s, false);
    Probe b(log, u"b"_s, true);
    Probe c(log, u"c"_s, true);
    map->setChains({{&c, &a, &b}, {&a, &b, &c}, {&a, &c, &b}});
    map->DrawEverythingOnMap();
    hover(nothing);
    doubleClick(nothing);
    EXPECT_EQ((QStringList{u"c drawn"_s, u"a drawn"_s, u"b drawn"_s, u"a over"_s, u"b over"_s, u"a twice"_s,
                           u"c twice"_s}),
              log);
    map->setChains({});
}

// The first press was on something that lay over the map and went away with it.
TEST_F(MapTest, aDoubleClickWhoseFirstPressWasElsewhereIsAPress) {
    startOnFjord();
    press(boss);
    release(boss);
    const QPointF place(nothing);
    QMouseEvent second(QEvent::MouseButtonDblClick, place, map->picMap().mapTo(map.get(), place),
                       map->picMap().mapToGlobal(place), Qt::LeftButton, Qt::LeftButton, {});
    second.setTimestamp(60'000);
    QCoreApplication::sendEvent(&map->picMap(), &second);
    EXPECT_EQ(QStringList(), captures);
    EXPECT_TRUE(map->dragging());
    EXPECT_EQ((ViewPoint{place.x(), place.y()}), map->lastPress());
}

TEST_F(MapTest, anEmptyMapAsksNoLayer) {
    start();
    QStringList log;
    Probe a(log, u"a"_s, true);
    map->setChains({{&a}, {&a}, {&a}});
    map->UpdateMapWithNewEliteSkills();
    hover(nothing);
    press(nothing, Qt::RightButton);
    release(nothing, Qt::RightButton);
    doubleClick(nothing);
    EXPECT_EQ(QStringList(), log);
    EXPECT_EQ(1, regionMenus);
    map->setChains({});
}

TEST_F(MapTest, theRegionShownAlreadyKeepsItsPlaceAndMarkers) {
    startOnFjord();
    map->CenterMapOn(790, 590);
    const QPoint before = scroll();
    EXPECT_EQ(QPoint(624 - 800, 491 - 600), before);
    const MapSurface* surface = map->picMap().surface();
    map->InizializzaVariabili(state.Campaigns[3].Regions[1].RegionPicture, 3, 1);
    EXPECT_EQ(before, scroll());
    EXPECT_EQ(surface, map->picMap().surface());
    showOnMap(*map, state, {3, 2, 0, 0});
    showOnMap(*map, state, {3, 1, 0, 0});
    EXPECT_EQ(QPoint(0, 0), scroll());
    EXPECT_EQ(0xFFFF0000, mapPixel(100, 100));
}

TEST_F(MapTest, whatIsNoPictureGivesTheEmptyMap) {
    startOnFjord();
    QByteArray enormous = jpeg({80, 80}, Qt::red);
    const qsizetype header = enormous.indexOf("\xFF\xC0");
    ASSERT_GT(header, 0);
    enormous.replace(header + 5, 4, "\xEA\x60\xEA\x60"); // 60000 x 60000
    for (const QByteArray& content : {QByteArray(), QByteArray("no picture"), enormous,
                                      QByteArray("<svg xmlns='http://www.w3.org/2000/svg'/>")}) {
        map->InizializzaVariabili(state.Campaigns[3].Regions[1].RegionPicture, 3, 1);
        ASSERT_TRUE(map->mapLoaded());
        showPicture(content);
        EXPECT_FALSE(map->mapLoaded());
        EXPECT_EQ(nullptr, map->picMap().surface());
        EXPECT_EQ(9, map->MapRegion());
        map->InizializzaVariabili(u"/o/other.jpg"_s, 3, 9);
        EXPECT_FALSE(map->mapLoaded());
    }
    QByteArray cut = jpeg({80, 80}, Qt::red);
    cut.truncate(cut.size() - 4);
    map->InizializzaVariabili({}, -1, -1);
    showPicture(cut);
    EXPECT_TRUE(map->mapLoaded());
}

TEST_F(MapTest, theEmptyMapIsPaintedAtEverySize) {
    startOnFjord();
    map->InizializzaVariabili({}, -1, -1);
    map->resize(500, 400);
    const QImage small = map->picMap().grab().toImage();
    EXPECT_EQ(QSize(496, 396), small.size());
    bool written = false;
    for (int y = 18; y < 55 && !written; ++y)
        for (int x = 0; x < small.width() && !written; ++x)
            written = small.pixelColor(x, y) == QColor(0xF5, 0xEC, 0xCB);
    EXPECT_TRUE(written) << "no cream title";
}

TEST_F(MapTest, theViewFillsTheWindowAndTheButtonsKeepToItsCorner) {
    startOnFjord();
    map->resize(10, 10);
    EXPECT_EQ(QSize(80, 80), map->size());
    map->resize(400, 300);
    EXPECT_EQ(QRect(2, 2, 396, 296), map->picMap().geometry());
    int right = 396;
    for (const char* name : {"cmdClose", "cmdMaximize", "cmdMinimize"}) {
        right -= 15;
        EXPECT_EQ(QRect(right, 0, 15, 15), on<QWidget>(*map, name)->geometry()) << name;
    }
    map->CenterMapOn(790, 590);
    map->resize(2000, 1500);
    EXPECT_EQ(QPoint(0, 0), scroll());
}

TEST_F(MapTest, aJumpShowsThePointInTheMiddleWhateverThePanelChose) {
    startOnFjord();
    showOnMap(*map, state, {3, 2, 10, 10});
    EXPECT_EQ(2, map->MapRegion());
    EXPECT_EQ(QSize(300, 200), map->picMap().surface()->size());
    EXPECT_EQ(u"Fjord"_s, panel->selection().cmbRegion->currentText());
    showOnMap(*map, state, {3, 1, 400, 300});
    EXPECT_EQ(QPoint(624 / 2 - 400, 491 / 2 - 300), scroll());
    showOnMap(*map, state, {3, 3, 5, 5});
    EXPECT_FALSE(map->mapLoaded());
}

TEST_F(MapTest, aPictureDecodedAheadIsShownOnceAndOnlyForItsOwnRegion) {
    startOnFjord();
    const QString glacier = findRegion(state, 3, 2)->RegionPicture;
    MemoryDisk other;
    other.put(glacier, jpeg({120, 90}, QColor(10, 20, 30)));
    map->expect(PictureAhead(other, glacier, 60));
    showOnMap(*map, state, {3, 3, 5, 5});
    EXPECT_FALSE(map->mapLoaded());
    showOnMap(*map, state, {3, 2, 10, 10});
    ASSERT_TRUE(map->mapLoaded());
    EXPECT_EQ(QSize(120, 90), map->picMap().surface()->size());
    PictureAhead missing(other, u"/o/none.jpg"_s, 60);
    EXPECT_TRUE(missing.take(u"/o/none.jpg"_s).value().image.isNull());
    EXPECT_FALSE(missing.take(u"/o/none.jpg"_s));
    EXPECT_FALSE(PictureAhead(other, {}, 60).take({}));
}

} // namespace
} // namespace orvinel
