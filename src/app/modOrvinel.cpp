#include "app/modOrvinel.h"

#include "app/Opening.h"
#include "app/Saving.h"
#include "app/modData.h"
#include "app/modLanguage.h"
#include "ui/panel/PanelAccessibility.h"
#include "world/modCampaigns.h"

#include <QScopeGuard>
#include <QTimer>

#include <algorithm>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

// What can wait begins so long after the first paint: the screen needs the processor to show it.
constexpr int screenFirstMs = 100;

// The picture of the region that the panel is going to choose from the options; empty: none. Looked up before
// the tables are loaded, since decoding it takes about as long as everything else that a start does.
QString rememberedPicture(const QString& appPath, Disk& disk) {
    ProgramState state;
    state.AppPath = appPath;
    PlayerFiles files(disk);
    LoadCampaigns(state, disk);
    LoadOptions(state, files);
    const auto data = [](const std::vector<ListEntry>& entries, int index) {
        return index >= 0 && index < std::ssize(entries) ? entries[static_cast<size_t>(index)].data : -1;
    };
    const int campaign = data(campaignEntries(state), state.AppOptions.Campaign);
    const int region = data(regionEntries(state, campaign), state.AppOptions.Region);
    const Region* found = region > 0 ? findRegion(state, campaign, region) : nullptr;
    return found ? found->RegionPicture : QString();
}

} // namespace

Program::Program(QString appPath, Disk& disk, Desktop& desktop, std::function<void(int)> endProcess)
    : files_(disk), desktop_(desktop), endProcess_(std::move(endProcess)) {
    state_.AppPath = std::move(appPath);
}

Program::~Program() = default;

bool Program::Main() {
    desktop_.setHourglass(true);
    const auto pointer = qScopeGuard([this] { desktop_.setHourglass(false); });
    return start();
}

bool Program::start() {
    if (!LoadLanguage(state_, files_.disk())) {
        desktop_.message(MessageIcon::Critical, programName(), missingLanguageMessage());
        ended_ = true;
        return false;
    }
    desktop_.setLanguage(state_.text(Caption::LanguageCode));
    PictureAhead remembered(files_.disk(), rememberedPicture(state_.AppPath, files_.disk()),
                            MapSurface::rowsNeededFor(desktop_.workArea().height()));
    LoadAll(state_, files_, desktop_);
    if (refuseUnknownCampaign())
        return false;
    makeWindows();
    map_->expect(std::move(remembered));
    map_->InizializzaVariabili({}, -1, -1);
    panel_->Form_Load();
    showWindows();
    QTimer::singleShot(screenFirstMs, map_, &frmMap::beginRest);
    places_->attachShownMap();
    return true;
}

bool Program::refuseUnknownCampaign() {
    if (state_.Campaigns.highest() < firstUnknownCampaign)
        return false;
    desktop_.warnWithCancel(programName(), u"I haven't released chapert 5 yet... how can you have it?"_s);
    ended_ = true;
    return true;
}

void Program::makeWindows() {
    installPanelAccessibility();
    panel_ = std::make_unique<frmMenu>(state_, desktop_);
    map_ = new frmMap({state_, files_.disk(), desktop_, panel_->MenuRightClickNeeded}, panel_.get());
    dialogs_ = std::make_unique<ProgramDialogs>(
        ProgramDialogs::Surroundings{state_, files_, desktop_, *panel_, *map_},
        ProgramDialogs::Refilter{[this] { layers_->elites.FilterEliteSkills(true); },
                                 [this] { layers_->treasures.FilterTreasures(true); }});
    makeLayers();
    legend_ = new frmLegenda(state_, map_);
    popupMenu_ = new frmPopupMenu(state_, panel_.get());
    places_ = std::make_unique<WindowPlaces>(state_.AppOptions, desktop_,
                                             WindowPlaces::Windows{*panel_, *map_, *legend_});
    wirePanel();
    wireMap();
    menus_ = std::make_unique<ProgramMenus>(
        ProgramMenus::Surroundings{*panel_, *map_, *legend_, *popupMenu_, *places_}, menuActions());
    keys_ = std::make_unique<ProgramKeys>(
        ProgramKeys::Surroundings{*panel_, *map_, *legend_, *flashing_, *mapMenus_, *menus_});
}

void Program::makeLayers() {
    layers_ = std::make_unique<ProgramLayers>(
        state_, files_.disk(), desktop_, *panel_, *map_,
        ProgramLayers::Actions{[this](int id, bool fromMap) { dialogs_->openCapture(id, fromMap); },
                               [this](int index) { dialogs_->openTreasure(index); }});
    flashing_ = std::make_unique<Flashing>(layers_->flashing(), *map_);
    connectMap(*map_, *layers_, *flashing_);
    mapMenus_ = std::make_unique<MapMenus>(
        MapMenus::Surroundings{state_, files_, desktop_, *map_},
        MapMenus::Actions{[this](int campaign, int region) { panel_->chooseRegion(campaign, region); },
                          [this](const NoteRequest& request) { return dialogs_->editNote(request); },
                          [this] { layers_->notes.FilterNotes(true); }});
}

void Program::wirePanel() {
    PanelHooks hooks = panelHooks(*layers_, *map_, *flashing_);
    hooks.openMenu = [this](int menu) { menus_->open(menu); };
    hooks.quit = [this] { QuitProgram(); };
    hooks.maximised = [this] { return places_->MapMaximised; };
    panel_->setHooks(std::move(hooks));
    connect(panel_.get(), &frmMenu::attachMap, places_.get(), &WindowPlaces::attachMap);
}

void Program::wireMap() {
    connect(map_, &frmMap::quitWanted, this, &Program::QuitProgram);
    connect(map_, &frmMap::maximiseWanted, places_.get(), &WindowPlaces::ToggleMapMaximised);
    connect(map_, &frmMap::minimiseWanted, this, [this] {
        popupMenu_->hide();
        if (joined_)
            joined_->minimise();
        else
            taskBar_->minimise();
    });
    connect(map_, &frmMap::regionMenuWanted, this, [this](QPoint at) { mapMenus_->openRegionMenu(at); });
    connect(&layers_->notes, &NotesView::menuWanted, this,
            [this](int note, MapPoint at, QPoint global) { mapMenus_->openNoteMenu(note, at, global); });
    taskBar_ = std::make_unique<frmFAKE>(TaskBarGroup{*panel_, *map_, *legend_, panel_->MenuLegendShown});
    connect(taskBar_.get(), &frmFAKE::quitWanted, this, &Program::QuitProgram);
    connect(taskBar_.get(), &frmFAKE::shownAgain, places_.get(), &WindowPlaces::attachShownMap);
}

ProgramMenus::Actions Program::menuActions() {
    return {{MenuAction::MyCharacters, [this] { dialogs_->OpenCharacterList(); }},
            {MenuAction::Credits, [this] { dialogs_->openCredits(); }},
            {MenuAction::About, [this] { dialogs_->openInformation(); }},
            {MenuAction::Update, [this] { RunUpdater(); }},
            {MenuAction::StartPage, [this] { showStartPage(); }},
            {MenuAction::History, [this] { ShowHistory(); }},
            {MenuAction::Guide, [this] { showGuide(); }}};
}

void Program::showWindows() {
    // The keyboard is the panel's, in whatever order the window manager gets to see the windows.
    for (QWidget* window : std::initializer_list<QWidget*>{map_, legend_, taskBar_.get()})
        window->setAttribute(Qt::WA_ShowWithoutActivating);
    if (!windowsCanBePlaced()) {
        joinWindows();
        return menus_->applyAlwaysOnTop();
    }
    places_->unplaceable = [this] { QTimer::singleShot(0, this, &Program::joinWindows); };
    places_->RestoreWindowPlacement();
    places_->restoreLegend();
    panel_->show();
    panel_->activateWindow(); // before the first paint, which shows where the keyboard is
    map_->show();
    legend_->setVisible(state_.AppOptions.Legend);
    menus_->applyAlwaysOnTop();
    desktop_.processPendingEvents();
    taskBar_->showOutside(desktop_.allScreens());
}

void Program::joinWindows() {
    places_->leavePair();
    taskBar_.reset();
    legend_->hide();
    joined_ = std::make_unique<OneWindow>(*panel_, *map_);
    connect(joined_.get(), &OneWindow::quitWanted, this, &Program::QuitProgram);
    connect(map_, &frmMap::maximiseWanted, joined_.get(), &OneWindow::toggleMaximised);
    const Options& options = state_.AppOptions;
    const QSize map(pixelsOf(options.DimX), pixelsOf(options.DimY));
    const bool remembered = options.PosX != -1 && map.isValid();
    const QSize pair(panel_->maximumWidth() + map.width(), std::max(map.height(), panel_->height()));
    joined_->appear(remembered ? pair : QSize());
    // The legend stands in the map's corner, which is known when the system has answered.
    QTimer::singleShot(screenFirstMs, legend_, [this] {
        places_->restoreLegend();
        legend_->setVisible(panel_->MenuLegendShown == 1);
    });
}

void Program::OpenWithShell(const QString& target) {
    openAndTell(state_, desktop_, target);
}

void Program::ShowHistory() {
    OpenWithShell(files_.disk().resolve(state_.AppPath + u"Data/History.txt"_s));
}

void Program::showGuide() {
    OpenWithShell(addressOf(Page::Guide, state_, files_.disk()));
}

void Program::showStartPage() {
    OpenWithShell(addressOf(Page::Start, state_, files_.disk()));
}

void Program::RunUpdater() {
    OpenWithShell(files_.disk().resolve(state_.AppPath + u"Update.exe"_s));
    QuitProgram();
}

void Program::gatherOptions() {
    places_->rememberPair();
    state_.AppOptions.Legend = panel_->MenuLegendShown == 1;
    places_->rememberLegend();
    panel_->readOptions(state_.AppOptions);
}

bool Program::saveOptions() {
    gatherOptions();
    const SaveResult result = saveAsking(state_, desktop_, [this](bool evenIfChanged) {
        return files_.save(optionsPath(state_), optionsFile(state_.AppOptions), evenIfChanged);
    });
    return result.saved() || result.outcome == SaveResult::Outcome::ChangedOutside ||
           desktop_.ask(MessageIcon::Critical, programName(),
                        saveFailure(state_, result) + u"\n\n"_s + state_.text(Caption::QuitWithoutSaving));
}

void Program::QuitProgram() {
    if (ended_ || !saveOptions())
        return;
    ended_ = true;
    endProcess_(0);
}

void Program::saveUnasked() {
    if (ended_ || !(taskBar_ || joined_)) // before the windows stand there is nothing new to remember
        return;
    gatherOptions();
    files_.save(optionsPath(state_), optionsFile(state_.AppOptions));
}

void Program::endUnasked() {
    if (ended_)
        return;
    saveUnasked();
    ended_ = true;
    endProcess_(0);
}

} // namespace orvinel
