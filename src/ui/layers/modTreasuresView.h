#pragma once

#include "base/Desktop.h"
#include "layers/modTreasures.h"
#include "ui/layers/ListedLayerView.h"

#include <functional>

namespace orvinel {

// The treasure chests on the panel and on the map.
class TreasuresView : public ListedLayerView {
    Q_OBJECT
  public:
    // `openTreasure` asks the player who has opened the chest of that index, and when. `desktop` outlives the
    // view.
    TreasuresView(const ProgramState& state, const Desktop& desktop, frmMenu& panel, frmMap& map,
                  std::function<void(int index)> openTreasure);

    void FilterTreasures(bool updateMap);
    void refilter(bool updateMap) override { FilterTreasures(updateMap); }
    void ShowSelectedTreasure();
    void DrawTreasures(std::vector<Marker>& markers) const { drawMarkers(markers); }
    std::optional<HitArea> HitTestTreasure(ViewPoint at) { return hitTest(at); }
    bool TreasureMouseOver(ViewPoint at) { return showOver(HitTestTreasure(at)); }

    void appendMarkers(std::vector<Marker>& markers) override { DrawTreasures(markers); }
    bool mouseOver(ViewPoint at) override { return TreasureMouseOver(at); }
    bool doubleClick(ViewPoint at) override;

  private:
    void listPicked();
    void showTooltip(const HitArea& item) override { ShowTreasureTooltip(item); }
    void ShowTreasureTooltip(const HitArea& item);
    // The character list's text.
    QString characterLines(const TreasureTooltip& tooltip) const;
    QString PadBetween(const QString& leftText, const QString& rightText, bool bold) const;

    const Desktop& desktop_;
    std::function<void(int)> openTreasure_;
    Label* lblTreasureName_;
    Label* lblTreasureOpenedBy_;
    Label* lblTreasureCharList_;
};

} // namespace orvinel
