#pragma once

#include "app/ProgramState.h"
#include "ui/panel/Controls.h"
#include "world/modZones.h"

#include <QWidget>

namespace orvinel {

// The lists at the top of the panel: campaign, region, zone, profession, attribute.
class SelectionArea : public QWidget {
    Q_OBJECT
  public:
    explicit SelectionArea(QWidget* panel);

    Label* lblCampaign;
    ItemCombo* cmbCampaign;
    Label* lblRegion;
    ItemCombo* cmbRegion;
    Label* lblZone;
    ItemCombo* cmbZone;
    Label* lblClass;
    ItemCombo* cmbProfession;
    Label* lblAttribute;
    ItemCombo* cmbAttribute;

    void applyCaptions(const ProgramState& state);

    // Each ends by selecting the first entry, which runs that list's handler; a list without a choice is
    // emptied and disabled instead.
    void FillCampaignCombo(const ProgramState& state);
    void FillRegionCombo(const ProgramState& state);
    void FillZoneCombo(const ProgramState& state);
    void fillProfessionList(const ProgramState& state);
    void FillAttributeList(const ProgramState& state);

    Place place() const;
    // 0: none.
    int profession() const { return cmbProfession->data(); }
    // The attribute chosen; nothing on the list's first entry.
    std::optional<QString> attribute() const;
    // The zone chosen, as an index; 0: none.
    int zoneIndex() const { return cmbZone->currentIndex() >= 1 ? cmbZone->data() : 0; }
};

} // namespace orvinel
