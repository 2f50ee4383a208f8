#include "ui/panel/PopupMenus.h"

#include "app/ProgramState.h"

#include <algorithm>
#include <span>

namespace orvinel {

namespace {

struct Row {
    MenuKind kind;
    int text = 0; // language entry
    bool enabled = true;
};

constexpr Row separator{MenuKind::Separator, 0, false};

constexpr Row viewRows[] = {{MenuKind::Check, 32},
                            {MenuKind::Check, 44},
                            {MenuKind::Check, 59},
                            {MenuKind::Check, 65},
                            {MenuKind::Check, 113}};
constexpr Row optionRows[] = {{MenuKind::Check, 62},
                              {MenuKind::Check, 95},
                              separator,
                              {MenuKind::Command, 74, false},
                              {MenuKind::Option, 91},
                              {MenuKind::Option, 75},
                              {MenuKind::Option, 76},
                              separator,
                              {MenuKind::Command, 14}};
constexpr Row helpRows[] = {{MenuKind::Command, 93},
                            {MenuKind::Command, 107},
                            separator,
                            {MenuKind::Command, 81},
                            {MenuKind::Command, 108},
                            {MenuKind::Command, 89},
                            {MenuKind::Command, 109},
                            separator,
                            {MenuKind::Command, 110}};

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
