#pragma once

#include "app/ProgramState.h"
#include "base/Disk.h"
#include "ui/layers/EliteWindow.h"
#include "ui/map/CachedHits.h"
#include "ui/map/MapLayer.h"
#include "ui/panel/frmMenu.h"

#include <QObject>

#include <functional>
#include <optional>

namespace orvinel {

// The elite skills in the panel and their bosses on the map.
class EliteView : public QObject, public MapLayer, public ListedLayer {
  public:
    // Opens the dialog that marks the skill as captured: over the map and modal when asked for on the map,
    // else beside the panel.
    using OpenCapture = std::function<void(int eliteId, bool fromMap)>;

    // All arguments outlive the view.
    EliteView(const ProgramState& state, const Disk& disk, frmMenu& panel, frmMap& map,
              OpenCapture openCapture);

    InformationWindow& window() { return *window_; }

    void FilterEliteSkills(bool updateMap);
    void refilter(bool updateMap) override { FilterEliteSkills(updateMap); }
    const MapLocation* selected() const override;
    bool switchedOn() const override { return panel_.layerShown(Tab::Elites); }
    bool inFront() const override { return panel_.tabs().active() == Tab::Elites; }
    std::optional<EliteHit> HitTestElite(ViewPoint at);
    MarkersFrom markersFrom() const override;
    void appendMarkers(std::vector<Marker>& markers) override { DrawEliteSkills(markers); }
    bool mouseOver(ViewPoint at) override { return EliteMouseOver(at); }
    bool doubleClick(ViewPoint at) override;

  private:
    void DrawEliteSkills(std::vector<Marker>& markers) const;
    bool EliteMouseOver(ViewPoint at);
    void ShowEliteTooltip(EliteHit hit);
    EliteTooltip FillEliteTooltip(EliteHit hit);
    void listLocations();
    void ShowSelectedEliteLocation();
    const MapLocation& location(EliteHit hit) const {
        return state_.EliteSkills[hit.id].Locations[hit.location];
    }

    const ProgramState& state_;
    const Disk& disk_;
    frmMenu& panel_;
    frmMap& map_;
    OpenCapture openCapture_;
    EliteWindow* window_;
    CachedHits hits_;
};

} // namespace orvinel
