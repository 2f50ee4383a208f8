#pragma once

#include "app/ProgramState.h"
#include "layers/modElite.h"
#include "ui/map/InformationWindow.h"

#include <array>
#include <vector>

namespace orvinel {

class frmMap;

// picExtToolTip: a skill, the boss that carries it and the boss's green items.
class EliteWindow : public InformationWindow {
    Q_OBJECT
  public:
    // The captions come from the language table, which is loaded by now. Owned by the map's viewport.
    EliteWindow(const ProgramState& state, frmMap& map);

    // Sets the texts, the places and the height. A null picture: nothing is seen in its place.
    void fill(const EliteTooltip& tip, const QImage& picture);
    // Frames and shows what fill() was given last; `marker`: the boss's, in the viewport's own pixels.
    void present(const EliteTooltip& tip, const QRect& marker);

  private:
    struct Row {
        Label* caption;
        Label* value;
    };
    struct Cost {
        Label* icon;
        Label* value;
    };
    struct Green {
        Label* name;
        Label* stats;
    };
    Row makeRow(const char* name, const QString& caption, int top);
    Cost makeCost(const char* icon, const char* value, const QString& spoken);
    void hideOnClicks(frmMap& map);
    void fillSkill(const EliteTooltip& tip, const QImage& picture);
    void fillCost(const Cost& cost, const std::optional<QString>& text, bool seen, int x);
    // Both return the height at which the next part begins.
    int placeBoss(const EliteTooltip& tip);
    int placeGreens(const EliteTooltip& tip, int y);
    Green& green(size_t index);
    void alignValues();

    frmMap& frame_;
    Label* lblExtEliteName_;
    Label* imgExtElite_;
    Row type_;
    Row attribute_;
    Row campaign_;
    Cost upkeep_;
    Cost adrenaline_;
    Cost energy_;
    Cost recharge_;
    Cost cast_;
    Label* lblExtDescription_;
    Row boss_;
    Row zone_;
    Label* lblExtCaptionNote_;
    Label* lblExtNote_;
    std::vector<Green> greens_; // the first pair is always there
};

} // namespace orvinel
