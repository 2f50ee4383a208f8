#pragma once

#include "app/ProgramState.h"
#include "ui/map/CachedHits.h"
#include "ui/map/InformationWindow.h"
#include "ui/map/MapLayer.h"
#include "ui/map/frmMap.h"
#include "ui/panel/frmMenu.h"

#include <QObject>

namespace orvinel {

// A layer that marks the entries of one of the panel's lists: all that collectors, notes, chests and pets
// have in common. Where they differ stands in their Rules.
class ListedLayerView : public QObject, public MapLayer, public ListedLayer {
    Q_OBJECT
  public:
    InformationWindow& window() { return *window_; }

    const MapLocation* selected() const override;
    bool switchedOn() const override { return panel().layerShown(rules_.tab); }
    bool inFront() const override { return panel().tabs().active() == rules_.tab; }
    MarkersFrom markersFrom() const override;

  protected:
    struct Rules {
        Tab tab; // whose check box switches it
        std::vector<Marker> (*markers)(const Content&, ListedItems, const MapShown&);
        std::vector<HitArea> (*hitAreas)(const Content&, ListedItems, const MapShown&);
        const MapLocation& (*location)(const Content&, int id, int part);
        QString window; // the information window's fixed name
        int width;      // its width, pixels
    };

    // All outlive the layer.
    struct Surroundings {
        const ProgramState& state;
        frmMenu& panel;
        frmMap& map;
    };

    ListedLayerView(Surroundings with, ListBox& list, const Rules& rules);

    const ProgramState& state() const { return with_.state; }
    frmMenu& panel() const { return with_.panel; }
    frmMap& map() const { return with_.map; }

    // Of the listed items on the region shown, unless the layer is switched off.
    void drawMarkers(std::vector<Marker>& markers) const;
    // The first listed item there, in the list's order.
    std::optional<HitArea> hitTest(ViewPoint at);
    // Shows the window of an item under the mouse; False when there is none.
    bool showOver(const std::optional<HitArea>& item);
    // Has the map show the item in its middle.
    void jumpTo(int id, int part = 0);
    // Draws the window's frame next to the item's marker and shows the window.
    void frame(const HitArea& item, Colour band, const Label& title);
    // Fills and shows the window; the item exists.
    virtual void showTooltip(const HitArea& item) = 0;

  private:
    const MapLocation& location(int id, int part) const { return rules_.location(with_.state, id, part); }

    Surroundings with_;
    ListBox& list_;
    Rules rules_;
    InformationWindow* window_;
    CachedHits hits_;
};

} // namespace orvinel
