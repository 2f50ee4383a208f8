#pragma once

#include "app/ProgramState.h"
#include "layers/modCollectors.h"
#include "ui/panel/Controls.h"
#include "ui/panel/TabPage.h"

#include <array>

namespace orvinel {

// The second page: collectors.
class CollectorsPage : public TabPage {
  public:
    explicit CollectorsPage(QWidget* parent);

    Label* lblCollStuffType;
    std::array<QRadioButton*, 3> optCollType{};
    Label* lblCollectorLevel;
    QWidget* picCollLevels;
    std::array<QRadioButton*, 3> optCollLevel{};
    Label* lblCollRequest;
    ItemCombo* cmbCollReq;
    Label* lblCollhand;
    ItemCombo* cmbCollHand;
    Label* lblCollSearch;
    QLineEdit* txtCollSearch;
    Label* lblCollectors;
    ListBox* lstCollectors;

    void applyCaptions(const ProgramState& state);
    void applyColour(Colour colour);
    // 2 all, 1 or 0.
    int level() const;
    void setLevel(int level);
    // Reads the page's own part of the choice.
    void read(CollectorChoice& choice) const;
    void arrange() override;
};

} // namespace orvinel
