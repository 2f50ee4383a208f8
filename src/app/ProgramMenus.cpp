#include "app/ProgramMenus.h"

#include "ui/platform/Windows.h"

#include <optional>
#include <utility>
#include <vector>

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

ProgramMenus::ProgramMenus(Surroundings with, Actions actions) : with_(with), actions_(std::move(actions)) {
    MenuBar& bar = with_.panel.menuBar();
    with_.popup.OnMenuEntryClick = [this](int menu, int entry) { OnMenuEntryClick(menu, entry); };
    connect(&with_.popup, &frmPopupMenu::opened, this, [&bar](int menu) { bar.markOpen(menu); });
    connect(&with_.popup, &frmPopupMenu::closed, this, [&bar](int) { bar.markClosed(); });
    connect(&with_.popup, &frmPopupMenu::switchWanted, this, &ProgramMenus::open);
    connect(&with_.legend, &frmLegenda::closed, this, [this] { with_.panel.MenuLegendShown = 0; });
    connect(&bar, &MenuBar::menuWantedByKey, this, &ProgramMenus::openByKey);
}

void ProgramMenus::open(int menu) {
    const std::vector<MenuEntry>& entries = with_.popup.menus()[size_t(menu)].Entries;
    for (size_t e = 0; e < entries.size(); ++e)
        with_.popup.SetValue(menu, static_cast<int>(e), value(entries[e].Action));
    with_.popup.OpenMenu(menu, *with_.panel.menuBar().lblMenu[size_t(menu)]);
}

int ProgramMenus::value(MenuAction action) const {
    if (const auto tab = tabOf(action))
        return with_.panel.tabs().chkShowObject[indexOf(*tab)]->value();
    if (const auto mode = windowModeOf(action))
        return with_.panel.MenuRightClickNeeded == *mode;
    if (action == MenuAction::ToggleLegend)
        return with_.panel.MenuLegendShown;
    return action == MenuAction::ToggleAlwaysOnTop ? with_.panel.MenuAlwaysOnTop : 0;
}

void ProgramMenus::openByKey(int menu) {
    with_.panel.activateWindow();
    open(menu);
    with_.popup.highlightFirst();
}

void ProgramMenus::OnMenuEntryClick(int menu, int entry) {
    with_.popup.hide();
    act(with_.popup.menus()[size_t(menu)].Entries[size_t(entry)].Action);
}

void ProgramMenus::act(MenuAction action) {
    if (const auto tab = tabOf(action)) {
        SmallCheckBox& box = *with_.panel.tabs().chkShowObject[indexOf(*tab)];
        box.setValue(box.value() == 1 ? 0 : 1);
    } else if (const auto mode = windowModeOf(action)) {
        with_.panel.MenuRightClickNeeded = *mode;
    } else if (action == MenuAction::ToggleLegend) {
        ToggleLegend();
    } else if (action == MenuAction::ToggleAlwaysOnTop) {
        ToggleAlwaysOnTop();
    } else if (const auto found = actions_.find(action); found != actions_.end()) {
        found->second();
    }
}

void ProgramMenus::ToggleLegend() {
    if (with_.panel.MenuLegendShown != 0) {
        with_.panel.MenuLegendShown = 0;
        with_.places.rememberLegend();
        with_.legend.hide();
        return;
    }
    with_.panel.MenuLegendShown = 1;
    with_.places.placeLegend();
    with_.legend.show();
}

void ProgramMenus::ToggleAlwaysOnTop() {
    with_.panel.MenuAlwaysOnTop = with_.panel.MenuAlwaysOnTop == 1 ? 0 : 1;
    applyAlwaysOnTop();
}

void ProgramMenus::applyAlwaysOnTop() {
    for (QWidget* window : std::initializer_list<QWidget*>{&with_.panel, &with_.map, &with_.legend})
        setAlwaysOnTop(*window, with_.panel.MenuAlwaysOnTop == 1);
}

} // namespace orvinel
