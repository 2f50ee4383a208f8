#pragma once

#include "layers/modCollectors.h"
#include "ui/layers/ListedLayerView.h"

#include <memory>

namespace orvinel {

// The collectors on the panel and on the map.
class CollectorsView : public ListedLayerView {
    Q_OBJECT
  public:
    CollectorsView(const ProgramState& state, frmMenu& panel, frmMap& map);

    void FilterCollectors(bool updateMap);
    void refilter(bool updateMap) override { FilterCollectors(updateMap); }
    void ShowSelectedCollector();
    void DrawCollectors(std::vector<Marker>& markers) const { drawMarkers(markers); }
    std::optional<HitArea> HitTestCollector(ViewPoint at) { return hitTest(at); }
    bool CollectorMouseOver(ViewPoint at) { return showOver(HitTestCollector(at)); }

    void appendMarkers(std::vector<Marker>& markers) override { DrawCollectors(markers); }
    bool mouseOver(ViewPoint at) override { return CollectorMouseOver(at); }
    bool doubleClick(ViewPoint at) override { return HitTestCollector(at).has_value(); }

  private:
    // The labels of one reward.
    struct Reward {
        std::unique_ptr<Label> name;
        std::unique_ptr<Label> stats;
    };

    void showTooltip(const HitArea& item) override { ShowCollectorTooltip(item); }
    void ShowCollectorTooltip(const HitArea& item);
    void FillCollectorTooltip(int id);
    // Both return where the next line may begin, pixels.
    int placeTexts(const CollectorTooltip& tooltip);
    int placeReward(const CollectorTooltip::Object& object, size_t index, int y);
    void addReward();

    Label* lblCollName_;
    Label* lblCollRequestCaption_;
    Label* lblCollRequest_;
    Label* lblCollLocationCaption_;
    Label* lblCollLocation_;
    std::vector<Reward> rewards_; // never empty
};

} // namespace orvinel
