#include "ui/panel/SelectionArea.h"

#include "world/modCampaigns.h"
#include "world/modProfessions.h"
#include "world/modZones.h"

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int top = 36; // of the area on the panel; the places below count from there
constexpr QRect areaPlace(0, top, 217, 120);

void fill(ItemCombo& combo, Label& label, const std::vector<ListEntry>& entries) {
    combo.setEntries(entries);
    combo.setEnabled(true);
    label.setEnabled(true);
    combo.select(0);
}

void empty(ItemCombo& combo, Label& label) {
    combo.setEntries({});
    combo.setEnabled(false);
    label.setEnabled(false);
}

} // namespace

SelectionArea::SelectionArea(QWidget* panel) : QWidget(panel) {
    setGeometry(areaPlace);
    lblCampaign = panelLabel(u"lblCampaign"_s, {2, 38 - top}, this);
    cmbCampaign = panelCombo(u"cmbCampaign"_s, {2, 52 - top, 81, 22}, this);
    lblRegion = panelLabel(u"lblRegion"_s, {86, 38 - top}, this);
    cmbRegion = panelCombo(u"cmbRegion"_s, {86, 52 - top, 129, 22}, this);
    lblZone = panelLabel(u"lblZone"_s, {2, 76 - top}, this);
    cmbZone = panelCombo(u"cmbZone"_s, {2, 90 - top, 213, 22}, this);
    lblClass = panelLabel(u"lblClass"_s, {2, 114 - top}, this);
    cmbProfession = panelCombo(u"cmbProfession"_s, {2, 128 - top, 95, 22}, this);
    lblAttribute = panelLabel(u"lblAttribute"_s, {100, 114 - top}, this);
    cmbAttribute = panelCombo(u"cmbAttribute"_s, {100, 128 - top, 115, 22}, this);
    lblCampaign->nameFor(cmbCampaign);
    lblRegion->nameFor(cmbRegion);
    lblZone->nameFor(cmbZone);
    lblClass->nameFor(cmbProfession);
    lblAttribute->nameFor(cmbAttribute);
}

void SelectionArea::applyCaptions(const ProgramState& state) {
    lblCampaign->setCaption(state.text(Caption::Campaign));
    lblRegion->setCaption(state.text(Caption::Region));
    lblZone->setCaption(state.text(Caption::Zone));
    lblClass->setCaption(state.text(Caption::Profession));
    lblAttribute->setCaption(state.text(Caption::Attribute));
}

void SelectionArea::FillCampaignCombo(const ProgramState& state) {
    fill(*cmbCampaign, *lblCampaign, campaignEntries(state));
}

void SelectionArea::FillRegionCombo(const ProgramState& state) {
    if (cmbCampaign->currentIndex() < 1)
        return empty(*cmbRegion, *lblRegion);
    fill(*cmbRegion, *lblRegion, regionEntries(state, cmbCampaign->data(-1)));
}

void SelectionArea::FillZoneCombo(const ProgramState& state) {
    if (cmbRegion->currentIndex() < 1)
        return empty(*cmbZone, *lblZone);
    const std::vector<ListEntry> entries = zoneEntries(state, cmbCampaign->data(-1), cmbRegion->data());
    cmbZone->setDropRows(static_cast<int>(entries.size()));
    fill(*cmbZone, *lblZone, entries);
}

void SelectionArea::fillProfessionList(const ProgramState& state) {
    fill(*cmbProfession, *lblClass, professionEntries(state, Caption::All));
}

void SelectionArea::FillAttributeList(const ProgramState& state) {
    const std::vector<ListEntry> entries = attributeEntries(state, profession());
    if (profession() >= 1)
        return fill(*cmbAttribute, *lblAttribute, entries);
    empty(*cmbAttribute, *lblAttribute);
    cmbAttribute->setEntries(entries);
}

Place SelectionArea::place() const {
    Place place;
    place.campaign = cmbCampaign->data(-1);
    place.region = place.campaign >= 1 ? cmbRegion->data() : 0;
    place.zoneIndex = place.region > 0 ? cmbZone->data() : 0;
    return place;
}

std::optional<QString> SelectionArea::attribute() const {
    return cmbAttribute->currentIndex() >= 1 ? std::optional(cmbAttribute->currentText()) : std::nullopt;
}

} // namespace orvinel
