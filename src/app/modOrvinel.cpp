#include "app/modOrvinel.h"

#include "app/Opening.h"
#include "app/Saving.h"
#include "app/modData.h"
#include "app/modLanguage.h"
#include "world/modCampaigns.h"

#include <QScopeGuard>
#include <QTimer>

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
    attachShownMap();
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
    installTabAccessibility();
    panel_ = std::make_unique<frmMenu>(state_, desktop_);
    map_ = new frmMap({state_, files_.disk(), desktop_, panel_->MenuRightClickNeeded}, panel_.get());
    makeLayers();
    legend_ = new frmLegenda(state_, map_);
    popupMenu_ = new frmPopupMenu(state_, panel_.get());
    wirePanel();
    wireMap();
    wireMenus();
    wireKeys();
}

void Program::makeLayers() {
    layers_ = std::make_unique<ProgramLayers>(
        state_, files_.disk(), desktop_, *panel_, *map_,
        ProgramLayers::Actions{[this](int id, bool fromMap) { openCapture(id, fromMap); },
                               [this](int index) { openTreasure(index); }});
    flashing_ = std::make_unique<Flashing>(layers_->flashing(), *map_);
    connectMap(*map_, *layers_, *flashing_);
    mapMenus_ = std::make_unique<MapMenus>(
        MapMenus::Surroundings{state_, files_, desktop_, *map_},
        MapMenus::Actions{[this](int campaign, int region) { panel_->chooseRegion(campaign, region); },
                          [this](const NoteRequest& request) { return editNote(request); },
                          [this] { layers_->notes.FilterNotes(true); }});
}

void Program::wirePanel() {
    PanelHooks hooks = panelHooks(*layers_, *map_, *flashing_);
    hooks.openMenu = [this](int menu) { openMenu(menu); };
    hooks.quit = [this] { QuitProgram(); };
    hooks.maximised = [this] { return MapMaximised_; };
    panel_->setHooks(std::move(hooks));
    connect(panel_.get(), &frmMenu::attachMap, this, &Program::attachMap);
}

void Program::wireMap() {
    connect(map_, &frmMap::quitWanted, this, &Program::QuitProgram);
    connect(map_, &frmMap::maximiseWanted, this, &Program::ToggleMapMaximised);
    connect(map_, &frmMap::minimiseWanted, this, [this] {
        popupMenu_->hide();
        taskBar_->minimise();
    });
    connect(map_, &frmMap::regionMenuWanted, this, [this](QPoint at) { mapMenus_->openRegionMenu(at); });
    connect(&layers_->notes, &NotesView::menuWanted, this,
            [this](int note, MapPoint at, QPoint global) { mapMenus_->openNoteMenu(note, at, global); });
    taskBar_ = std::make_unique<frmFAKE>(TaskBarGroup{*panel_, *map_, *legend_, panel_->MenuLegendShown});
    connect(taskBar_.get(), &frmFAKE::quitWanted, this, &Program::QuitProgram);
    connect(taskBar_.get(), &frmFAKE::shownAgain, this, &Program::attachShownMap);
}

void Program::showWindows() {
    const Options& options = state_.AppOptions;
    // The keyboard is the panel's, in whatever order the window manager gets to see the windows.
    for (QWidget* window : std::initializer_list<QWidget*>{map_, legend_, taskBar_.get()})
        window->setAttribute(Qt::WA_ShowWithoutActivating);
    RestoreWindowPlacement();
    if (options.LegendX != -1 && !options.Legend)
        placeLegend();
    else
        legend_->move(legendCorner());
    panel_->show();
    panel_->activateWindow(); // before the first paint, which shows where the keyboard is
    map_->show();
    legend_->setVisible(options.Legend);
    applyAlwaysOnTop();
    desktop_.processPendingEvents();
    taskBar_->showOutside(desktop_.allScreens());
    panel_->activateWindow();
}

void Program::place(const WindowPair& pair) {
    panel_->setGeometry(pair.panel);
    map_->setGeometry(pair.map);
}

void Program::attachMap() {
    if (map_ && !MapMaximised_)
        map_->move(panel_->x() + panel_->width(), panel_->y());
}

void Program::attachShownMap() {
    // Some window managers pull a window that appears wholly onto the screen, but leave it where it is moved
    // to afterwards.
    QTimer::singleShot(screenFirstMs, this, &Program::attachMap);
}

void Program::RestoreWindowPlacement() {
    Options& options = state_.AppOptions;
    const QRect area = desktop_.workArea();
    const auto remembered = rememberedPair(options, area, desktop_.allScreens(), panel_->width());
    if (!remembered)
        options.PosX = options.PosY = options.DimX = options.DimY = -1;
    if (!remembered || !(desktop_.reachable(remembered->panel) || desktop_.reachable(remembered->map))) {
        ToggleMapMaximised();
        restored_ = WindowPair{panel_->geometry(), map_->geometry()};
        return;
    }
    MapMaximised_ = false;
    place(*remembered);
}

void Program::ToggleMapMaximised() {
    const bool inset = MapMaximised_;
    // Off while the windows move, so that the map is not taken along by the panel.
    MapMaximised_ = true;
    place(maximisedPair(desktop_.workArea(), panel_->width(), inset));
    MapMaximised_ = !inset;
}

void Program::OpenWithShell(const QString& target) {
    openAndTell(state_, desktop_, target);
}

void Program::ShowHistory() {
    OpenWithShell(files_.disk().resolve(state_.AppPath + u"Data/History.txt"_s));
}

void Program::ShowGuide() {
    OpenWithShell(addressOf(Page::Guide, state_, files_.disk()));
}

void Program::ShowStartPage() {
    OpenWithShell(addressOf(Page::Start, state_, files_.disk()));
}

void Program::RunUpdater() {
    OpenWithShell(files_.disk().resolve(state_.AppPath + u"Update.exe"_s));
    QuitProgram();
}

void Program::copyPlaces() {
    Options& options = state_.AppOptions;
    if (restored_ && *restored_ == WindowPair{panel_->geometry(), map_->geometry()})
        return;
    options.PosX = MapMaximised_ ? -1 : twipsOf(panel_->x());
    options.PosY = MapMaximised_ ? -1 : twipsOf(panel_->y());
    options.DimX = MapMaximised_ ? -1 : twipsOf(map_->width());
    options.DimY = MapMaximised_ ? -1 : twipsOf(map_->height());
}

QPoint Program::legendCorner() const {
    return {map_->x(), map_->y() + map_->height() - legend_->height()};
}

void Program::placeLegend() {
    const Options& options = state_.AppOptions;
    const QPoint remembered(pixelsOf(options.LegendX), pixelsOf(options.LegendY));
    const bool seen = desktop_.reachable(QRect(remembered, legend_->size()));
    legend_->move(seen ? remembered : legendCorner());
    legendInstead_ = seen ? std::nullopt : std::optional(legend_->pos());
}

void Program::rememberLegendPlace() {
    if (legendInstead_ == legend_->pos())
        return;
    state_.AppOptions.LegendX = twipsOf(legend_->x());
    state_.AppOptions.LegendY = twipsOf(legend_->y());
}

void Program::gatherOptions() {
    copyPlaces();
    state_.AppOptions.Legend = panel_->MenuLegendShown == 1;
    rememberLegendPlace();
    panel_->readOptions(state_.AppOptions);
}

bool Program::saveOptions() {
    gatherOptions();
    const QString text = optionsFile(state_.AppOptions);
    SaveResult result = files_.save(optionsPath(state_), text);
    if (result.outcome == SaveResult::Outcome::ChangedOutside) {
        const QString question = state_.text(Caption::ChangedOutside).arg(result.file);
        if (!desktop_.ask(MessageIcon::Question, programName(), question))
            return true;
        result = files_.save(optionsPath(state_), text, true);
    }
    return result.saved() || desktop_.ask(MessageIcon::Critical, programName(),
                                          state_.text(Caption::SaveFailed).arg(result.file, result.reason) +
                                              u"\n\n"_s + state_.text(Caption::QuitWithoutSaving));
}

void Program::QuitProgram() {
    if (ended_ || !saveOptions())
        return;
    ended_ = true;
    endProcess_(0);
}

void Program::SaveUnasked() {
    if (ended_ || !taskBar_) // before the windows stand there is nothing new to remember
        return;
    gatherOptions();
    files_.save(optionsPath(state_), optionsFile(state_.AppOptions));
}

void Program::EndUnasked() {
    if (ended_)
        return;
    SaveUnasked();
    ended_ = true;
    endProcess_(0);
}

} // namespace orvinel
