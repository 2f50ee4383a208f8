#pragma once

#include "app/Tab.h"

#include <QString>

#include <array>
#include <vector>

namespace orvinel {

struct ProgramState;

enum class MenuKind { Command = 0, Check = 1, Option = 2, Separator = 3 };

// What choosing a row does.
enum class MenuAction {
    None, // separators and headings
    SwitchElites,
    SwitchCollectors,
    SwitchGreens,
    SwitchNotes,
    SwitchVarious,
    ToggleLegend,
    ToggleAlwaysOnTop,
    RightClickStays,
    WhileRightButton,
    FollowMouse,
    MyCharacters,
    Update,
    StartPage,
    Credits,
    History,
    Guide,
    About
};

// One row of a drop-down menu.
struct MenuEntry {
    QString Caption; // empty for separators
    MenuKind Kind = MenuKind::Command;
    MenuAction Action = MenuAction::None;
    int Indent = 0;      // steps of 20 pixels
    int KindIndex = 0;   // among the menu's entries of its kind
    int Value = 0;       // 1: checked or selected
    bool Enabled = true; // False for separators and headings: no highlight, no click

    bool operator==(const MenuEntry&) const = default;
};

struct MenuDefinition {
    std::vector<MenuEntry> Entries; // top to bottom
    int EntryCount = 0;
    int OptionCount = 0;
    int CheckCount = 0;
    int LineCount = 0;
};

// The panel's menus by the number of their label.
enum class Menu { View, Options, Help };
using MenuTable = std::array<MenuDefinition, 3>;
MenuTable popupMenus(const ProgramState& state);

} // namespace orvinel
