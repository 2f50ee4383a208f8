#include "ui/panel/PopupMenus.h"

#include "app/ProgramState.h"

#include <algorithm>
#include <span>

namespace orvinel {

namespace {

struct Row {
    MenuKind kind;
    Caption text = Caption::None; // not of separators
    MenuAction action = MenuAction::None;
    bool enabled = true;
};

constexpr Row separator{MenuKind::Separator, Caption::None, MenuAction::None, false};

constexpr Row viewRows[] = {{MenuKind::Check, Caption::EliteSkills, MenuAction::SwitchElites},
                            {MenuKind::Check, Caption::Collectors, MenuAction::SwitchCollectors},
                            {MenuKind::Check, Caption::GreenItems, MenuAction::SwitchGreens},
                            {MenuKind::Check, Caption::Notes, MenuAction::SwitchNotes},
                            {MenuKind::Check, Caption::TreasuresAndPets, MenuAction::SwitchVarious}};
constexpr Row optionRows[] = {{MenuKind::Check, Caption::ShowLegend, MenuAction::ToggleLegend},
                              {MenuKind::Check, Caption::AlwaysOnTop, MenuAction::ToggleAlwaysOnTop},
                              separator,
                              {MenuKind::Command, Caption::InformationWindows, MenuAction::None, false},
                              {MenuKind::Option, Caption::RightClickStays, MenuAction::RightClickStays},
                              {MenuKind::Option, Caption::WhileRightButton, MenuAction::WhileRightButton},
                              {MenuKind::Option, Caption::FollowMouse, MenuAction::FollowMouse},
                              separator,
                              {MenuKind::Command, Caption::MyCharacters, MenuAction::MyCharacters}};
constexpr Row helpRows[] = {{MenuKind::Command, Caption::UpdateAndQuit, MenuAction::Update},
                            {MenuKind::Command, Caption::StartPage, MenuAction::StartPage},
                            separator,
                            {MenuKind::Command, Caption::ShowCredits, MenuAction::Credits},
                            {MenuKind::Command, Caption::ProgramVersion},
                            {MenuKind::Command, Caption::WhatIsNew, MenuAction::History},
                            {MenuKind::Command, Caption::Help, MenuAction::Guide},
                            separator,
                            {MenuKind::Command, Caption::About, MenuAction::About}};

int countOf(const MenuDefinition& menu, MenuKind kind) {
    return static_cast<int>(std::count_if(menu.Entries.begin(), menu.Entries.end(),
                                          [kind](const MenuEntry& entry) { return entry.Kind == kind; }));
}

MenuDefinition build(const ProgramState& state, std::span<const Row> rows) {
    MenuDefinition menu;
    for (const Row& row : rows) {
        MenuEntry entry;
        if (row.kind != MenuKind::Separator)
            entry.Caption = state.text(row.text);
        entry.Kind = row.kind;
        entry.Action = row.action;
        entry.KindIndex = countOf(menu, row.kind);
        entry.Enabled = row.enabled;
        menu.Entries.push_back(entry);
    }
    menu.EntryCount = static_cast<int>(menu.Entries.size());
    menu.OptionCount = countOf(menu, MenuKind::Option);
    menu.CheckCount = countOf(menu, MenuKind::Check);
    menu.LineCount = countOf(menu, MenuKind::Separator);
    return menu;
}

} // namespace

MenuTable popupMenus(const ProgramState& state) {
    return {build(state, viewRows), build(state, optionRows), build(state, helpRows)};
}

} // namespace orvinel
