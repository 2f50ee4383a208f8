#pragma once

#include "support/ProgramFixture.h"
#include "ui/map/MapMenus.h"

namespace orvinel {

// The layers of listed markers, their menus and their blinking over the fixture's world, all on Fjord (zones
// 11 and 12) unless said otherwise:
//   collectors 1 "Anna" (armour, level 1) at (100, 100), zone 11, and 2 "Berta" at (105, 100), zone 12
//   chests 1 "Old chest" at (300, 300), zone 11, which Ada opened on 16 October 2011, and 2 "Big chest" at
//   (350, 300), zone 12; characters 1 "Ada" and 2 "Bo"
//   pets 7 "Wolf" at (200, 200), zone 11, and on Glacier at (50, 50), zone 21; 8 "Bear" at (208, 200)
//   note 1 "Alpha" at (500, 100) and 2 "Beta" on Glacier at (60, 60)
struct LayersFixture : ProgramFixture {
    CollectorsView* collectors = nullptr; // of the layers
    NotesView* notes = nullptr;
    TreasuresView* treasures = nullptr;
    PetsView* pets = nullptr;
    std::unique_ptr<MapMenus> menus;
    NoteRequest request; // the last of the note editor
    int storedNote = -1; // what the note editor answers
    int noteFilters = 0; // how often the menus had the notes refilled

    LayersFixture();
    // Everything wired, Fjord chosen and shown.
    void startOnFjord();

    template <typename Control>
    Control& inMap(const char* name) {
        auto* control = on<Control>(*map, name);
        EXPECT_TRUE(control) << name;
        return *control;
    }
    Label& label(const char* name) { return inMap<Label>(name); }
    QString text(const char* name) { return label(name).text(); }
    bool shown(const char* window) { return !inMap<InformationWindow>(window).isHidden(); }
    VariousPage& various() { return panel->variousPage(); }
    ListBox& lstNotes() { return *panel->notesPage().lstNotes; }
};

} // namespace orvinel
