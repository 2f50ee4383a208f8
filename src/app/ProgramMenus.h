#pragma once

#include "app/WindowPlaces.h"
#include "ui/dialogs/frmLegenda.h"
#include "ui/map/frmMap.h"
#include "ui/panel/frmMenu.h"
#include "ui/panel/frmPopupMenu.h"

#include <QObject>

#include <functional>
#include <map>

namespace orvinel {

// The panel's menus: opened from the words of its menu bar and by key, their rows marked as what they switch
// stands, and done. Rows that switch tabs, the information windows' mode, the legend or "always on top" it
// does itself.
class ProgramMenus : public QObject {
  public:
    // What the menus work on. All outlive them.
    struct Surroundings {
        frmMenu& panel;
        frmMap& map;
        frmLegenda& legend;
        frmPopupMenu& popup;
        WindowPlaces& places;
    };
    // What the other rows do; a row without any does nothing.
    using Actions = std::map<MenuAction, std::function<void()>>;

    ProgramMenus(Surroundings with, Actions actions);

    // `menu`: index of a word of the menu bar. By key its first row gets the keyboard.
    void open(int menu);
    void openByKey(int menu);
    // Has panel, map and legend kept above all other windows, or not, as the menu says.
    void applyAlwaysOnTop();

  private:
    void OnMenuEntryClick(int menu, int entry);
    // What the row shows in its box: 1 when it is on.
    int value(MenuAction action) const;
    void act(MenuAction action);
    void ToggleLegend();
    void ToggleAlwaysOnTop();

    Surroundings with_;
    Actions actions_;
};

} // namespace orvinel
