#pragma once

#include "app/ProgramState.h"
#include "ui/map/frmMap.h"
#include "ui/panel/frmMenu.h"

#include <QTimer>

#include <array>

namespace orvinel {

// Makes the marker of the entry that is selected in the active page's list blink. Nothing is ever drawn into
// the composition: the viewport shows the selection's picture over it, or does not.
class Flashing : public QObject {
    Q_OBJECT
  public:
    static constexpr int kinds = 5;
    static constexpr int periodMs = 250;

    // All outlive the object.
    Flashing(const ProgramState& state, frmMenu& panel, frmMap& map);

    // After each composition.
    void StartFlashing();
    // The layer (0..4) was switched on or off in the panel.
    void switchFlashing(int layer, bool on);

    // Of the entry selected on the active page, if it lies on the map shown.
    std::optional<MapPoint> selectedPlace() const;

  private:
    struct Blinking {
        QTimer timer;
        bool phase = false;
    };
    void tick(int kind);
    // Nothing when the kind has no selection on the map shown.
    const MapLocation* selected(int kind) const;
    // Where the selection's picture belongs; nothing when the kind has no selection on the map shown.
    std::optional<MapViewport::Selection> selection(int kind) const;
    void show(int kind, const std::optional<MapViewport::Selection>& selection);

    const ProgramState& state_;
    frmMenu& panel_;
    frmMap& map_;
    std::array<Blinking, kinds> blinking_;
};

} // namespace orvinel
