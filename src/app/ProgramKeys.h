#pragma once

#include "app/ProgramMenus.h"
#include "ui/dialogs/frmLegenda.h"
#include "ui/map/Flashing.h"
#include "ui/map/MapMenus.h"
#include "ui/map/frmMap.h"
#include "ui/panel/WindowKeys.h"
#include "ui/panel/frmMenu.h"

#include <QObject>

namespace orvinel {

// What the keys do that mean the same in all main windows, and those of the map.
class ProgramKeys : public QObject {
  public:
    // What the keys work on. All outlive them.
    struct Surroundings {
        frmMenu& panel;
        frmMap& map;
        frmLegenda& legend;
        Flashing& flashing; // knows the place that is selected
        MapMenus& mapMenus;
        ProgramMenus& menus;
    };
    explicit ProgramKeys(Surroundings with);

  private:
    void lookAtSelected();
    void actOnSelected();
    void insertNote();

    Surroundings with_;
    WindowKeys keys_;
};

} // namespace orvinel
