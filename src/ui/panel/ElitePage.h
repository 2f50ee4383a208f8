#pragma once

#include "app/ProgramState.h"
#include "layers/modElite.h"
#include "ui/panel/Controls.h"
#include "ui/panel/TabPage.h"

#include <array>

namespace orvinel {

// The first page: elite skills, their search and their places. The controls are public under their fixed
// names.
class ElitePage : public TabPage {
  public:
    explicit ElitePage(QWidget* parent);

    std::array<QRadioButton*, 2> optCapture{};
    ItemCombo* cmbCharacter;
    Label* lblSecondaryProfession;
    ItemCombo* cmbSecondaryProfession;
    Label* lblEliteName;
    QLineEdit* txtEliteName;
    Label* lblBossName;
    QLineEdit* txtEliteBossName;
    Label* lblTot;
    ListBox* lstElite;
    Label* lblLocations;
    ListBox* lstLocations;

    void applyCaptions(const ProgramState& state);
    // Reads the page's own part of the choice.
    void read(EliteChoice& choice) const;
    void clearLocations();
    void arrange() override;
};

} // namespace orvinel
