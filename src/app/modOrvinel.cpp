#include "app/modOrvinel.h"

#include "app/About.h"
#include "app/Saving.h"
#include "app/modData.h"
#include "app/modLanguage.h"
#include "layers/modEliteView.h"
#include "layers/modGreeniesView.h"
#include "ui/dialogs/frmMarkEliteAsCaptured.h"

#include <QScopeGuard>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

// The views of the content, and the orders in which the chains ask them.
struct Program::Layers {
    explicit Layers(Program& program)
        : zones(program.state_, program.map_->art()), greens(program.state_, *program.panel_, *program.map_),
          elites(program.state_, program.files_.disk(), *program.panel_, *program.map_,
                 [&program](int skill, bool fromMap) { program.openCapture(skill, fromMap); }) {}

    ZonesView zones;
    GreensView greens;
    EliteView elites;

    frmMap::Chains chains() {
        return {.drawing = {&zones, &greens, &elites}, .mouseOver = {&elites}, .doubleClick = {&elites}};
    }
    // In the order in which they are hidden.
    std::vector<InformationWindow*> windows() { return {&elites.window()}; }
};

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
    LoadAll(state_, files_, desktop_);
    if (refuseUnknownCampaign())
        return false;
    makeWindows();
    map_->InizializzaVariabili({}, -1, -1);
    panel_->Form_Load();
    showWindows();
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
    wirePanel();
    wireMap();
}

void Program::makeLayers() {
    layers_ = std::make_unique<Layers>(*this);
    map_->setChains(layers_->chains());
    map_->setInformationWindows(layers_->windows());
}

void Program::wirePanel() {
    PanelHooks hooks;
    hooks.filters.fill([](bool) {});
    hooks.filters[size_t(Filter::Elites)] = [this](bool update) {
        layers_->elites.FilterEliteSkills(update);
    };
    hooks.filters[size_t(Filter::Greens)] = [this](bool update) { layers_->greens.FilterGreens(update); };
    hooks.filters.back() = [this](bool updateMap) {
        if (updateMap)
            map_->UpdateMapWithNewEliteSkills();
    };
    hooks.showRegion = [this](const QString& picture, int campaign, int region) {
        map_->InizializzaVariabili(picture, campaign, region);
    };
    hooks.updateMap = [this] { map_->UpdateMapWithNewEliteSkills(); };
    hooks.drawMap = [this] { map_->DrawEverythingOnMap(); };
    hooks.switchFlashing = [](int, bool) {};
    hooks.openMenu = [](int) {};
    hooks.quit = [this] { QuitProgram(); };
    hooks.maximised = [this] { return MapMaximised_; };
    panel_->setHooks(std::move(hooks));
    connect(panel_.get(), &frmMenu::attachMap, this, &Program::attachMap);
}

void Program::openCapture(int skill, bool fromMap) {
    QWidget* owner = fromMap ? static_cast<QWidget*>(map_) : panel_.get();
    auto* dialog = new frmMarkEliteAsCaptured(
        dialogContext(), [this] { layers_->elites.FilterEliteSkills(true); }, owner);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->SetEliteNumber(skill);
    dialog->SetCharacter(panel_->elitePage().cmbCharacter->data());
    if (fromMap)
        dialog->exec();
    else
        dialog->show();
}

void Program::wireMap() {
    connect(map_, &frmMap::quitWanted, this, &Program::QuitProgram);
    connect(map_, &frmMap::maximiseWanted, this, &Program::ToggleMapMaximised);
}

void Program::showWindows() {
    RestoreWindowPlacement();
    panel_->show();
    map_->show();
    for (QWidget* window : std::initializer_list<QWidget*>{panel_.get(), map_})
        desktop_.setAlwaysOnTop(*window, panel_->MenuAlwaysOnTop == 1);
    desktop_.processPendingEvents();
}

void Program::place(const WindowPair& pair) {
    panel_->setGeometry(pair.panel);
    map_->setGeometry(pair.map);
}

void Program::attachMap() {
    if (map_ && !MapMaximised_)
        map_->move(panel_->x() + panel_->width(), panel_->y());
}

void Program::RestoreWindowPlacement() {
    Options& options = state_.AppOptions;
    const QRect area = desktop_.workArea();
    const auto remembered = rememberedPair(options, area, desktop_.allScreens().width(), panel_->width());
    if (!remembered)
        options.PosX = options.PosY = options.DimX = options.DimY = -1;
    if (!remembered || !(desktop_.reachable(remembered->panel) || desktop_.reachable(remembered->map))) {
        ToggleMapMaximised();
        restored_ = WindowPair{panel_->geometry(), map_->geometry()};
        return;
    }
    MapMaximised_ = false;
    place(*remembered);
    restored_ = WindowPair{panel_->geometry(), map_->geometry()};
}

void Program::ToggleMapMaximised() {
    const bool inset = MapMaximised_;
    // Off while the windows move, so that the map is not taken along by the panel.
    MapMaximised_ = true;
    place(maximisedPair(desktop_.workArea(), panel_->width(), inset));
    MapMaximised_ = !inset;
}

void Program::OpenWithShell(const QString& target) {
    if (!desktop_.openWithShell(target))
        desktop_.message(MessageIcon::Critical, programName(),
                         ownText(state_, OwnText::NotOpened).arg(target));
}

void Program::ShowHistory() {
    OpenWithShell(state_.AppPath + u"Data/History.txt"_s);
}

void Program::RunUpdater() {
    OpenWithShell(state_.AppPath + u"Update.exe"_s);
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

bool Program::saveOptions() {
    copyPlaces();
    state_.AppOptions.Legend = panel_->MenuLegendShown == 1;
    panel_->readOptions(state_.AppOptions);
    const QString text = optionsFile(state_.AppOptions);
    SaveResult result = files_.save(optionsPath(state_), text);
    if (result.outcome == SaveResult::Outcome::ChangedOutside) {
        const QString question = ownText(state_, OwnText::ChangedOutside).arg(result.file);
        if (!desktop_.ask(MessageIcon::Question, programName(), question))
            return true;
        result = files_.save(optionsPath(state_), text, true);
    }
    return result.saved() ||
           desktop_.ask(MessageIcon::Critical, programName(),
                        ownText(state_, OwnText::SaveFailed).arg(result.file, result.reason) + u"\n\n"_s +
                            ownText(state_, OwnText::QuitWithoutSaving));
}

void Program::QuitProgram() {
    if (ended_ || !saveOptions())
        return;
    ended_ = true;
    endProcess_(0);
}

} // namespace orvinel
