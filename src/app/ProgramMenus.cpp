#include "app/modOrvinel.h"

#include "ui/dialogs/frmCharacterList.h"
#include "ui/dialogs/frmCredits.h"
#include "ui/dialogs/frmInformation.h"
#include "ui/dialogs/frmManageNote.h"
#include "ui/dialogs/frmMarkEliteAsCaptured.h"
#include "ui/dialogs/frmMarkTreasureAsOpened.h"
#include "ui/platform/DialogPlace.h"

namespace orvinel {

namespace {

// The tab whose layers the row switches; nothing for other rows.
std::optional<Tab> tabOf(MenuAction action) {
    switch (action) {
    case MenuAction::SwitchElites:
        return Tab::Elites;
    case MenuAction::SwitchCollectors:
        return Tab::Collectors;
    case MenuAction::SwitchGreens:
        return Tab::Greens;
    case MenuAction::SwitchNotes:
        return Tab::Notes;
    case MenuAction::SwitchVarious:
        return Tab::Various;
    default:
        return std::nullopt;
    }
}

// The mode of the information windows that the row chooses; nothing for other rows.
std::optional<int> windowModeOf(MenuAction action) {
    switch (action) {
    case MenuAction::WhileRightButton:
        return 0;
    case MenuAction::FollowMouse:
        return 1;
    case MenuAction::RightClickStays:
        return 2;
    default:
        return std::nullopt;
    }
}

} // namespace

void Program::wireMenus() {
    popupMenu_->OnMenuEntryClick = [this](int menu, int entry) { OnMenuEntryClick(menu, entry); };
    connect(popupMenu_, &frmPopupMenu::opened, this, [this](int menu) { panel_->menuBar().markOpen(menu); });
    connect(popupMenu_, &frmPopupMenu::closed, this, [this](int) { panel_->menuBar().markClosed(); });
    connect(popupMenu_, &frmPopupMenu::switchWanted, this, &Program::openMenu);
    connect(legend_, &frmLegenda::closed, this, [this] { panel_->MenuLegendShown = 0; });
}

void Program::openMenu(int menu) {
    const std::vector<MenuEntry>& entries = popupMenu_->menus()[size_t(menu)].Entries;
    for (size_t e = 0; e < entries.size(); ++e)
        popupMenu_->SetValue(menu, static_cast<int>(e), menuValue(entries[e].Action));
    popupMenu_->OpenMenu(menu, *panel_->menuBar().lblMenu[size_t(menu)]);
}

int Program::menuValue(MenuAction action) const {
    if (const auto tab = tabOf(action))
        return panel_->tabs().chkShowObject[indexOf(*tab)]->value();
    if (const auto mode = windowModeOf(action))
        return panel_->MenuRightClickNeeded == *mode;
    if (action == MenuAction::ToggleLegend)
        return panel_->MenuLegendShown;
    return action == MenuAction::ToggleAlwaysOnTop ? panel_->MenuAlwaysOnTop : 0;
}

void Program::openMenuByKey(int menu) {
    panel_->activateWindow();
    openMenu(menu);
    popupMenu_->highlightFirst();
}

void Program::OnMenuEntryClick(int menu, int entry) {
    popupMenu_->hide();
    const MenuAction action = popupMenu_->menus()[size_t(menu)].Entries[size_t(entry)].Action;
    if (const auto tab = tabOf(action)) {
        SmallCheckBox& box = *panel_->tabs().chkShowObject[indexOf(*tab)];
        box.setValue(box.value() == 1 ? 0 : 1);
    } else if (const auto mode = windowModeOf(action)) {
        panel_->MenuRightClickNeeded = *mode;
    } else {
        act(action);
    }
}

void Program::act(MenuAction action) {
    switch (action) {
    case MenuAction::ToggleLegend:
        return ToggleLegend();
    case MenuAction::ToggleAlwaysOnTop:
        return ToggleAlwaysOnTop();
    case MenuAction::MyCharacters:
        return OpenCharacterList();
    case MenuAction::Update:
        return RunUpdater();
    case MenuAction::StartPage:
        return showStartPage();
    case MenuAction::Credits:
        return openCredits();
    case MenuAction::History:
        return ShowHistory();
    case MenuAction::Guide:
        return showGuide();
    case MenuAction::About:
        frmInformation(dialogContext(), panel_.get()).exec();
        return;
    default:
        return;
    }
}

void Program::ToggleLegend() {
    if (panel_->MenuLegendShown != 0) {
        panel_->MenuLegendShown = 0;
        places_->rememberLegend();
        legend_->hide();
        return;
    }
    panel_->MenuLegendShown = 1;
    places_->placeLegend();
    legend_->show();
}

void Program::ToggleAlwaysOnTop() {
    panel_->MenuAlwaysOnTop = panel_->MenuAlwaysOnTop == 1 ? 0 : 1;
    applyAlwaysOnTop();
}

void Program::applyAlwaysOnTop() {
    for (QWidget* window : std::initializer_list<QWidget*>{panel_.get(), map_, legend_})
        desktop_.setAlwaysOnTop(*window, panel_->MenuAlwaysOnTop == 1);
}

void Program::OpenCharacterList() {
    frmCharacterList dialog(dialogContext(), panel_.get());
    dialog.setAsked(placeOnDesktop(panel_->menuBar()));
    dialog.exec();
    panel_->elitePage().optCapture[0]->setChecked(true);
    panel_->FillCharacterList();
    if (capture_)
        capture_->follow();
}

void Program::openCredits() {
    frmCredits dialog(dialogContext(), panel_.get());
    dialog.setAsked(placeOnDesktop(panel_->menuBar()));
    dialog.exec();
}

DialogContext Program::dialogContext() {
    return {state_, files_, desktop_, panel_->MenuAlwaysOnTop};
}

// A marker's surroundings as far as it is in view, else the middle of the map.
QRect Program::onMap(MapPoint place) {
    constexpr int reach = 10; // pixels of the region picture
    const MapViewport& view = map_->picMap();
    const QRect marker =
        view.toWidget(QRect(place.point(), QSize(1, 1)).adjusted(-reach, -reach, reach, reach));
    const QRect seen = view.rect().intersects(marker) ? marker : QRect(view.rect().center(), QSize(1, 1));
    return {view.mapToGlobal(seen.topLeft()), seen.size()};
}

void Program::openCapture(int eliteId, bool fromMap) {
    if (capture_ && capture_->isVisible() && !fromMap) {
        showCapture(*capture_, eliteId, {});
        capture_->raise();
        capture_->activateWindow();
        return;
    }
    delete capture_;
    QWidget* owner = fromMap ? static_cast<QWidget*>(map_) : panel_.get();
    capture_ = new frmMarkEliteAsCaptured(
        dialogContext(), [this] { layers_->elites.FilterEliteSkills(true); }, owner);
    capture_->setAttribute(Qt::WA_DeleteOnClose);
    capture_->setModal(fromMap);
    showCapture(*capture_, eliteId,
                fromMap ? onMap(map_->toMap(map_->lastPress()))
                        : placeOnDesktop(*panel_->elitePage().lstElite));
}

void Program::showCapture(frmMarkEliteAsCaptured& dialog, int eliteId, const QRect& asked) {
    dialog.setCharacter(panel_->elitePage().cmbCharacter->data());
    dialog.SetEliteNumber(eliteId);
    if (dialog.isVisible())
        return;
    dialog.setAsked(asked);
    if (dialog.isModal())
        dialog.exec();
    else
        dialog.show();
}

void Program::openTreasure(int index) {
    frmMarkTreasureAsOpened dialog(
        dialogContext(), [this] { layers_->treasures.FilterTreasures(true); }, map_);
    dialog.SetTreasureNumber(index);
    dialog.setAsked(onMap(map_->toMap(map_->lastPress())));
    dialog.exec();
}

int Program::editNote(const NoteRequest& request) {
    frmManageNote dialog(dialogContext(), map_);
    dialog.SetX(request.at.x);
    dialog.SetY(request.at.y);
    dialog.SetNote(request.note);
    dialog.SetCampaign(request.campaign);
    dialog.SetRegion(request.region);
    dialog.setAsked(onMap(request.at));
    dialog.exec();
    return dialog.savedNote();
}

} // namespace orvinel
