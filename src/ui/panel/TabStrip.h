#pragma once

#include "app/ProgramState.h"
#include "app/Tab.h"
#include "ui/panel/TabHeader.h"
#include "ui/panel/TabPage.h"
#include "ui/platform/SmallCheckBox.h"

#include <QObject>

#include <array>
#include <optional>

namespace orvinel {

// The five tabs in two rows, their layer check boxes, and which page is shown. The row of the active tab
// always lies next to the pages. The widgets are children of the panel.
class TabStrip : public QObject {
    Q_OBJECT
  public:
    TabStrip(std::array<TabPage*, tabCount> pages, QWidget* panel);

    std::array<TabHeader*, tabCount> lblTab{};
    std::array<SmallCheckBox*, tabCount> chkShowObject{};

    // ApplyTabColours, as far as the strip and the pages go.
    void applyColours(const ProgramState& state);
    // What screen readers call the check boxes.
    void applyCaptions(const ProgramState& state);
    // The layers that are remembered as shown, and back.
    void applyOptions(const Options& options);
    void readOptions(Options& options) const;
    // lblTab_Click.
    void activate(Tab tab);
    // The same by the player: the header has the focus afterwards, so that Tab leads into the page.
    void activateWithFocus(Tab tab);
    // To the tab so many further on, round the ends.
    void step(int by);
    // Nothing before the first.
    std::optional<Tab> active() const;

  private:
    void swapRows(Tab left, Tab right);

    std::array<TabPage*, tabCount> pages_;
    QWidget* picFalseBorder_;
    std::array<Colour, tabCount> colours_{};
};

} // namespace orvinel
