#pragma once

#include "app/Tab.h"
#include "ui/map/frmMap.h"
#include "ui/platform/ListedLayer.h"

#include <QTimer>

#include <optional>
#include <vector>

namespace orvinel {

// What blinks with one timer: the entry that is selected on one page of the panel.
struct FlashingKind {
    Tab tab;
    QString timer; // the timer's fixed name
    Sprite sprite;
    std::vector<const ListedLayer*>
        layers; // of that page; the first with a selection counts. They outlive Flashing
};

// Makes the marker of the entry that is selected in the active page's list blink. Nothing is ever drawn into
// the composition: the viewport shows the selection's picture over it, or does not.
class Flashing : public QObject {
    Q_OBJECT
  public:
    static constexpr int periodMs = 250;

    // `kinds` in the order of their timers; `map` outlives the object.
    Flashing(std::vector<FlashingKind> kinds, frmMap& map);

    // After each composition.
    void StartFlashing();
    // The tab's check box was switched.
    void switchFlashing(Tab tab, bool on);

    // Of the entry selected on the active page, if it lies on the map shown.
    std::optional<MapPoint> selectedPlace() const;

  private:
    struct Blinking {
        FlashingKind kind;
        QTimer* timer; // a child of this
        bool phase = false;
    };
    static bool switchedOn(const FlashingKind& kind) { return kind.layers.front()->switchedOn(); }
    static bool inFront(const FlashingKind& kind) { return kind.layers.front()->inFront(); }
    // A running timer keeps its beat.
    static void run(QTimer& timer, bool on);
    void tick(size_t index);
    // Nothing when the kind has no selection on the map shown.
    const MapLocation* selected(const FlashingKind& kind) const;
    // Where the selection's picture belongs; nothing when the kind has no selection on the map shown.
    std::optional<MapViewport::Selection> selection(const FlashingKind& kind) const;
    void show(size_t index, const std::optional<MapViewport::Selection>& selection);

    frmMap& map_;
    std::vector<Blinking> blinking_;
};

} // namespace orvinel
