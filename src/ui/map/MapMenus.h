#pragma once

#include "app/ProgramState.h"
#include "base/Desktop.h"
#include "base/Listing.h"
#include "base/PlayerFiles.h"
#include "ui/map/frmMap.h"

#include <QMenu>

#include <functional>
#include <vector>

namespace orvinel {

// What the note editor is opened for.
struct NoteRequest {
    int note = -1; // index of the note to change; -1: a new one
    MapPoint at;   // where a new note is pinned
    int campaign = 0;
    int region = 0;
};

// One entry of the region menu with its submenu.
struct CampaignMenu {
    int campaign = 0;
    QString caption;
    std::vector<ListEntry> regions; // the item data is the region's number

    bool operator==(const CampaignMenu&) const = default;
};
// Of the campaigns that exist and have regions; other numbers than 1 to 4 have no menu.
std::vector<CampaignMenu> regionMenus(const ProgramState& state);

// The map's two popup menus: the regions, and what can be done with a note.
class MapMenus : public QObject {
    Q_OBJECT
  public:
    // What the menus work on. All outlive them.
    struct Surroundings {
        ProgramState& state;
        PlayerFiles& files;
        Desktop& desktop;
        frmMap& map;
    };
    struct Actions {
        // Has the panel choose a region.
        std::function<void(int campaign, int region)> chooseRegion;
        std::function<int(const NoteRequest&)> editNote; // the index of the note stored; -1: cancelled
        std::function<void()> refilterNotes;             // FilterNotes with True
    };

    MapMenus(Surroundings with, Actions actions);

    // `global`: screen position of the menu's corner.
    void openRegionMenu(QPoint global);
    // `note`: the note that the menu is about; -1: none there, a new one may be pinned at `at`.
    void openNoteMenu(int note, MapPoint at, QPoint global);

  private:
    void buildNoteMenu();
    void buildRegionMenu();
    void chooseRegion(int campaign, int region);
    void editNote();
    void askToDelete();

    Surroundings with_;
    Actions actions_;
    QMenu* MenuPopUp_; // both are owned by the map window
    QMenu* MenuPopupRegion_;
    QAction* mnuNoteInsert_ = nullptr;
    QAction* mnuNoteEdit_ = nullptr;
    QAction* mnuNoteDelete_ = nullptr;
    int note_ = -1;
    MapPoint at_;
};

} // namespace orvinel
