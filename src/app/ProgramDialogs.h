#pragma once

#include "ui/dialogs/Dialog.h"
#include "ui/map/MapMenus.h"
#include "ui/map/frmMap.h"
#include "ui/panel/frmMenu.h"

#include <QPointer>
#include <QRect>

#include <functional>

namespace orvinel {

class frmMarkEliteAsCaptured;

// The dialogs that menus, lists and the map open, each beside what it was asked for from. All but the capture
// dialog opened from the list are modal: the call returns when they are closed.
class ProgramDialogs {
  public:
    // What they work on. All outlive them.
    struct Surroundings {
        ProgramState& state;
        PlayerFiles& files;
        Desktop& desktop;
        frmMenu& panel; // owns what is opened from it
        frmMap& map;    // likewise
    };
    // Called when something was marked.
    struct Refilter {
        std::function<void()> elites;
        std::function<void()> treasures;
    };
    ProgramDialogs(Surroundings with, Refilter refilter);

    void OpenCharacterList();
    void openCredits();
    void openInformation();
    // One window: what is asked for next takes its place. `eliteId`: number of a skill.
    void openCapture(int eliteId, bool fromMap);
    // `index` into the treasures.
    void openTreasure(int index);
    // The index of the note stored; -1: cancelled.
    int editNote(const NoteRequest& request);

  private:
    DialogContext context() const;
    void showCapture(frmMarkEliteAsCaptured& dialog, int eliteId, const QRect& asked);
    // Where a marker there is seen, on the desktop.
    QRect onMap(MapPoint place) const;

    Surroundings with_;
    Refilter refilter_;
    QPointer<frmMarkEliteAsCaptured> capture_; // while it is open
};

} // namespace orvinel
