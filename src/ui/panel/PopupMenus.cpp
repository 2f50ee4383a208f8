#include "ui/panel/PopupMenus.h"

#include "app/ProgramState.h"

#include <algorithm>
#include <span>

namespace orvinel {

namespace {

struct Row {
    MenuKind kind;
    Caption text = Caption::None; // not of separators
    bool enabled = true;
};

constexpr Row separator{MenuKind::Separator, Caption::None, false};

constexpr Row viewRows[] = {{MenuKind::Check, Caption::EliteSkills},
                            {MenuKind::Check, Caption::Collectors},
                            {MenuKind::Check, Caption::GreenItems},
                            {MenuKind::Check, Caption::Notes},
                            {MenuKind::Check, Caption::TreasuresAndPets}};
constexpr Row optionRows[] = {{MenuKind::Check, Caption::ShowLegend},
                              {MenuKind::Check, Caption::AlwaysOnTop},
                              separator,
                              {MenuKind::Command, Caption::InformationWindows, false},
                              {MenuKind::Option, Caption::RightClickStays},
                              {MenuKind::Option, Caption::WhileRightButton},
                              {MenuKind::Option, Caption::FollowMouse},
                              separator,
                              {MenuKind::Command, Caption::MyCharacters}};
constexpr Row helpRows[] = {{MenuKind::Command, Caption::UpdateAndQuit},
                            {MenuKind::Command, Caption::HomePage},
                            separator,
                            {MenuKind::Command, Caption::ShowCredits},
                            {MenuKind::Command, Caption::CreditsHeading},
                            {MenuKind::Command, Caption::WhatIsNew},
                            {MenuKind::Command, Caption::Help},
                            separator,
                            {MenuKind::Command, Caption::About}};

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
