#include "support/ProgramFixture.h"

#include <QAccessible>
#include <QClipboard>

namespace orvinel {
namespace {

using namespace Qt::Literals::StringLiterals;

// A layer that writes down that it was refilled. It does nothing while the panel is not ready, as in the
// program.
struct LoggedLayer : ListedLayer {
    QStringList& log;
    const std::unique_ptr<frmMenu>& panel;
    QChar letter;

    LoggedLayer(QStringList& calls, const std::unique_ptr<frmMenu>& of, QChar name)
        : log(calls), panel(of), letter(name) {}
    void refilter(bool updateMap) override {
        if (panel->MenuReady)
            log << QString(letter) + (updateMap ? u'1' : u'0');
    }
    const MapLocation* selected() const override { return nullptr; }
    bool switchedOn() const override { return true; }
    bool inFront() const override { return true; }
};

// The panel alone: every hook writes down that it was called.
struct PanelTest : ProgramFixture {
    QStringList log;
    std::vector<std::unique_ptr<LoggedLayer>> layers;

    void startPanel(const Options& remembered = {}) {
        load();
        state.AppOptions = remembered;
        panel = std::make_unique<frmMenu>(state, desktop);
        PanelHooks hooks;
        for (const QChar letter : u"ECGNTP"_s) {
            layers.push_back(std::make_unique<LoggedLayer>(log, panel, letter));
            hooks.layers.push_back(layers.back().get());
        }
        hooks.showRegion = [this](const QString& picture, int campaign, int region) {
            log << u"show %1 %2 %3"_s.arg(picture.section(u'/', -1)).arg(campaign).arg(region);
        };
        hooks.updateMap = [this] { log << u"update"_s; };
        hooks.drawMap = [this] { log << u"draw"_s; };
        hooks.switchFlashing = [this](Tab tab, bool on) {
            log << u"flash %1 %2"_s.arg(static_cast<int>(tab)).arg(on);
        };
        hooks.openMenu = [](int) {};
        hooks.quit = [] {};
        hooks.maximised = [] { return false; };
        panel->setHooks(std::move(hooks));
        panel->Form_Load();
    }
    // What was called since the last look.
    QString calls() { return std::exchange(log, {}).join(u' '); }
    template <typename Change>
    QString callsOf(Change change) {
        calls();
        change();
        return calls();
    }
};

const QString allSix = u"E0 C0 G0 N0 T0 P1"_s;
const QString firstFour = u"E0 C0 G0 N1"_s;

TEST_F(PanelTest, theLoadSequenceFiltersOnceAtItsEnd) {
    Options remembered;
    remembered.Campaign = 2;
    remembered.Region = 1;
    remembered.ShowNotes = 0;
    startPanel(remembered);
    EXPECT_EQ(u"show  -1 -1 show 1.jpg 3 1 "_s + allSix, calls());
    EXPECT_FALSE(panel->layerShown(Tab::Notes));
    EXPECT_TRUE(panel->MenuReady);
    EXPECT_EQ(u"<<< Text 4 >>>"_s, panel->elitePage().cmbCharacter->currentText());
    EXPECT_EQ(Tab::Elites, panel->tabs().active());
}

TEST_F(PanelTest, campaignRegionAndZoneRunAllFiltersWithOneRedraw) {
    startPanel();
    EXPECT_EQ(u"show  -1 -1 "_s + allSix, callsOf([&] { chooseCampaign(u"Frost"_s); }));
    EXPECT_EQ(u"show 1.jpg 3 1 "_s + allSix, callsOf([&] { chooseRegion(u"Fjord"_s); }));
    EXPECT_TRUE(panel->selection().cmbZone->isEnabled());
    int clicks = 0;
    ListBox* skills = panel->elitePage().lstElite;
    QObject::connect(skills, &ListBox::picked, skills, [&] { ++clicks; });
    EXPECT_EQ(allSix, callsOf([&] { chooseZone(u"Harbour"_s); }));
    EXPECT_EQ(0, clicks);
    skills->setEntries({{u"x"_s, 1}, {u"y"_s, 2}});
    chooseZone(u"Cliffs"_s);
    EXPECT_EQ(1, clicks);
    EXPECT_EQ(0, skills->selectedIndex());
    panel->selection().cmbZone->select(0);
    EXPECT_EQ(1, clicks);
    EXPECT_EQ(u"show  -1 -1 "_s + allSix, callsOf([&] { panel->selection().cmbRegion->select(0); }));
    EXPECT_FALSE(panel->selection().cmbZone->isEnabled());
}

TEST_F(PanelTest, professionAndAttributeRunTheFirstFour) {
    startPanel();
    SelectionArea& top = panel->selection();
    EXPECT_EQ(firstFour, callsOf([&] { top.cmbProfession->select(top.cmbProfession->findText(u"Mage"_s)); }));
    EXPECT_TRUE(panel->elitePage().cmbSecondaryProfession->isEnabled());
    EXPECT_EQ(4, top.cmbAttribute->count());
    EXPECT_EQ(firstFour, callsOf([&] { top.cmbAttribute->select(1); }));
    EXPECT_EQ(u"Fire"_s, panel->eliteChoice().attribute);
    EXPECT_EQ(u"E1"_s, callsOf([&] { panel->elitePage().cmbSecondaryProfession->select(1); }));
    EXPECT_EQ(firstFour, callsOf([&] { top.cmbProfession->select(0); }));
    EXPECT_FALSE(panel->elitePage().cmbSecondaryProfession->isEnabled());
    EXPECT_FALSE(panel->elitePage().lblSecondaryProfession->isEnabled());
}

TEST_F(PanelTest, everySearchFieldFiltersItsOwnListAtEachKey) {
    startPanel();
    const std::vector<std::pair<const char*, QString>> fields = {
        {"txtEliteName", u"E1 E1"_s},  {"txtEliteBossName", u"E1 E1"_s},   {"txtCollSearch", u"C1 C1"_s},
        {"txtGreensName", u"G1 G1"_s}, {"txtGreenAdditional", u"G1 G1"_s}, {"txtNoteShortDesc", u"N1 N1"_s},
        {"txtNoteBody", u"N1 N1"_s}};
    for (const auto& [name, expected] : fields)
        EXPECT_EQ(expected, callsOf([&] { QTest::keyClicks(on<QLineEdit>(*panel, name), u"ab"_s); })) << name;
}

TEST_F(PanelTest, pastedLineBreaksDoNotStayInASearchField) {
    start();
    for (QLineEdit* field : panel->findChildren<QLineEdit*>()) {
        QGuiApplication::clipboard()->setText(u"\r\nSkill\t007\nof two\u2028"_s);
        field->clear();
        field->paste();
        EXPECT_EQ(u"Skill 007 of two"_s, field->text()) << field->objectName().toStdString();
        QTest::keyClicks(field, u" x"_s);
        EXPECT_EQ(u"Skill 007 of two x"_s, field->text());
    }
}

TEST_F(PanelTest, theCaptureOptionSwitchesTheCharacterList) {
    startPanel();
    ElitePage& page = panel->elitePage();
    EXPECT_EQ(u"E1"_s, callsOf([&] { page.optCapture[1]->click(); }));
    EXPECT_TRUE(page.cmbCharacter->isEnabled());
    EXPECT_EQ(u"E1"_s, callsOf([&] { page.cmbCharacter->select(0); }));
    EXPECT_EQ(u"E1"_s, callsOf([&] { page.optCapture[0]->click(); }));
    EXPECT_FALSE(page.cmbCharacter->isEnabled());
}

TEST_F(PanelTest, optionsAndBoxesAreClickedAndReadOutAllOverTheirPlace) {
    startPanel();
    panel->show();
    QRadioButton* missing = panel->elitePage().optCapture[1];
    QTest::mouseClick(missing, Qt::LeftButton, {}, missing->rect().bottomRight());
    EXPECT_TRUE(missing->isChecked());
    for (QWidget* control : std::initializer_list<QWidget*>{missing, panel->tabs().chkShowObject[0]})
        EXPECT_EQ(control->size(), QAccessible::queryAccessibleInterface(control)->rect().size());
}

TEST_F(PanelTest, armourHasNoHandAndIsFilteredOnce) {
    startPanel();
    CollectorsPage& page = panel->collectorsPage();
    EXPECT_EQ(u"C1"_s, callsOf([&] { page.cmbCollHand->select(2); }));
    EXPECT_EQ(u"C1"_s, callsOf([&] { page.optCollType[2]->click(); }));
    EXPECT_EQ(0, page.cmbCollHand->currentIndex());
    EXPECT_FALSE(page.cmbCollHand->isEnabled());
    EXPECT_FALSE(page.lblCollhand->isEnabled());
    EXPECT_EQ(u"C1"_s, callsOf([&] { page.optCollType[1]->click(); }));
    EXPECT_TRUE(page.cmbCollHand->isEnabled());
    EXPECT_EQ(u"C1"_s, callsOf([&] { page.optCollLevel[1]->click(); }));
    EXPECT_EQ(u"C1"_s, callsOf([&] { page.cmbCollReq->select(0); }));
}

TEST_F(PanelTest, aClickOnTheOptionChosenChangesNothing) {
    startPanel();
    CollectorsPage& page = panel->collectorsPage();
    for (QRadioButton* chosen :
         {page.optCollType[0], page.optCollLevel[0], panel->elitePage().optCapture[0]}) {
        EXPECT_EQ(QString(), callsOf([&] { chosen->click(); }));
        EXPECT_TRUE(chosen->isChecked()) << qPrintable(chosen->objectName());
    }
}

TEST_F(PanelTest, aLayersBoxSwitchesItsBlinkingAndRedraws) {
    startPanel();
    SmallCheckBox* notes = panel->tabs().chkShowObject[3];
    EXPECT_EQ(u"flash 3 0 draw"_s, callsOf([&] { notes->setValue(0); }));
    EXPECT_EQ(u"flash 3 1 draw"_s, callsOf([&] { notes->setValue(1); }));
    panel->MenuReady = false;
    EXPECT_EQ(QString(), callsOf([&] { notes->setValue(0); }));
}

TEST_F(PanelTest, aFilterRefillsItsListAndEmptiesThePlacesUnlessThePanelIsNotReady) {
    startPanel();
    ElitePage& page = panel->elitePage();
    const frmMenu::Refill refill{*page.lstElite, *page.lblTot, Caption::EliteSkills, [] {
                                     return std::vector<ListEntry>{{u"x"_s, 5}};
                                 }};
    page.lstLocations->setEntries({{u"somewhere"_s, 1}});
    page.lstLocations->setEnabled(true);
    panel->MenuReady = false;
    panel->runFilter(refill, true);
    EXPECT_EQ(0, page.lstElite->count());
    EXPECT_EQ(1, page.lstLocations->count());
    panel->MenuReady = true;
    EXPECT_EQ(QString(), callsOf([&] { panel->runFilter(refill, false); }));
    EXPECT_EQ(u"update"_s, callsOf([&] { panel->runFilter(refill, true); }));
    EXPECT_EQ(u"Text 32: 1"_s, page.lblTot->text());
    EXPECT_EQ(0, page.lstLocations->count());
    EXPECT_FALSE(page.lstLocations->isEnabled());
}

TEST_F(PanelTest, theRowOfTheActiveTabLiesNextToThePages) {
    startPanel();
    TabStrip& tabs = panel->tabs();
    const int upper = tabs.lblTab[3]->y();
    const int lower = tabs.lblTab[0]->y();
    ASSERT_LT(upper, lower);
    tabs.activate(Tab::Notes);
    for (const size_t i : {3, 4})
        EXPECT_EQ(lower, tabs.lblTab[i]->y());
    for (const size_t i : {0, 1, 2}) {
        EXPECT_EQ(upper, tabs.lblTab[i]->y());
        EXPECT_EQ(upper + 2, tabs.chkShowObject[i]->y());
    }
    EXPECT_TRUE(panel->elitePage().isHidden());
    EXPECT_FALSE(panel->notesPage().isHidden());
    tabs.activate(Tab::Various);
    EXPECT_EQ(lower, tabs.lblTab[4]->y());
    tabs.activate(Tab::Collectors);
    EXPECT_EQ(lower, tabs.lblTab[1]->y());
    EXPECT_EQ(Tab::Collectors, tabs.active());
}

TEST_F(PanelTest, aClickedTabHasTheFocus) {
    startPanel();
    panel->tabs().activate(Tab::Elites);
    panel->elitePage().txtEliteName->setFocus();
    TabHeader* header = panel->tabs().lblTab[1];
    QTest::mouseClick(header, Qt::LeftButton);
    EXPECT_EQ(Tab::Collectors, panel->tabs().active());
    EXPECT_EQ(header, panel->focusWidget());
}

TEST_F(PanelTest, onlyItsOwnBackgroundDragsThePanel) {
    startPanel();
    const auto dragged = [&](QWidget& by) {
        const QPoint before = panel->pos();
        QTest::mousePress(&by, Qt::LeftButton, {}, {2, 1});
        QTest::mouseMove(&by, {12, 6});
        QTest::mouseRelease(&by, Qt::LeftButton, {}, {2, 1});
        return panel->pos() != before;
    };
    EXPECT_TRUE(dragged(*panel));
    for (const char* other : {"picTab(0)", "picFalseBorder", "lblTot"})
        EXPECT_FALSE(dragged(*on<QWidget>(*panel, other))) << other;
}

TEST_F(PanelTest, aRememberedLevelWithoutOptionChoosesNone) {
    Options remembered;
    remembered.CollectorLevel = 7;
    startPanel(remembered);
    panel->readOptions(remembered);
    EXPECT_EQ(0, remembered.CollectorLevel);
    auto& options = panel->collectorsPage().optCollLevel;
    EXPECT_FALSE(options[0]->isChecked() || options[1]->isChecked() || options[2]->isChecked());
    options[1]->click();
    options[2]->click();
    EXPECT_FALSE(options[1]->isChecked());
}

TEST_F(PanelTest, theListsTakeTheRoomThatThePanelGains) {
    startPanel();
    panel->show();
    const auto listed = [this](int height, Tab tab) {
        panel->resize(panel->width(), height);
        panel->tabs().activate(tab);
        int sum = 0;
        for (const ListBox* list : panel->findChildren<ListBox*>())
            sum += list->isVisible() ? list->height() : 0;
        return sum;
    };
    for (const Tab tab : allTabs)
        EXPECT_NEAR(200, listed(900, tab) - listed(700, tab), ListBox::rowHeight) << int(tab);
    EXPECT_EQ(0, (panel->elitePage().lstLocations->height() - 2 * ListBox::frame) % ListBox::rowHeight);
}

} // namespace
} // namespace orvinel
