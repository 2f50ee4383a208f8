#pragma once

#include "app/ProgramState.h"
#include "ui/map/MapLayer.h"
#include "ui/map/frmMap.h"
#include "ui/panel/frmMenu.h"

#include <QObject>

namespace orvinel {

// The green items in the panel and their marks on the map. The window of their boss tells about them.
class GreensView : public QObject, public MapLayer, public ListedLayer {
  public:
    // All arguments outlive the view.
    GreensView(const ProgramState& state, frmMenu& panel, frmMap& map);

    void FilterGreens(bool updateMap);
    void refilter(bool updateMap) override { FilterGreens(updateMap); }
    const MapLocation* selected() const override;
    bool switchedOn() const override { return panel_.layerShown(Tab::Greens); }
    bool inFront() const override { return panel_.tabs().active() == Tab::Greens; }
    MarkersFrom markersFrom() const override;
    void appendMarkers(std::vector<Marker>& markers) override { DrawGreens(markers); }

  private:
    void DrawGreens(std::vector<Marker>& markers) const;
    void ShowSelectedGreen();

    const ProgramState& state_;
    frmMenu& panel_;
    frmMap& map_;
};

} // namespace orvinel
