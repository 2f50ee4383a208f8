#include "ui/panel/ElitePage.h"

#include "layers/modElite.h"

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int margin = 2; // the selection area's, which the lists follow

} // namespace

ElitePage::ElitePage(QWidget* parent) : TabPage(Tab::Elites, parent) {
    optCapture[0] = panelOption(u"optCapture(0)"_s, {0, 6, 171, 19}, inner());
    optCapture[1] = panelOption(u"optCapture(1)"_s, {0, 22, 133, 19}, inner());
    cmbCharacter = panelCombo(u"cmbCharacter"_s, {102, 20, 113, 22}, inner());
    lblSecondaryProfession = panelLabel(u"lblSecondaryProfession"_s, {4, 54}, inner());
    cmbSecondaryProfession = panelCombo(u"cmbSecondaryProfession"_s, {120, 50, 95, 22}, inner());
    lblEliteName = panelLabel(u"lblEliteName"_s, {4, 84}, inner());
    txtEliteName = panelField(u"txtEliteName"_s, {68, 80, 147, 21}, inner());
    lblBossName = panelLabel(u"lblBossName"_s, {4, 112}, inner());
    txtEliteBossName = panelField(u"txtEliteBossName"_s, {68, 108, 147, 21}, inner());
    lblTot = panelLabel(u"lblTot"_s, {4, 140}, inner());
    lstElite = panelList(u"lstElite"_s, {2, 154, 213, 222}, inner());
    lblLocations = panelLabel(u"lblLocations"_s, {4, 390}, inner());
    lstLocations = panelList(u"lstLocations"_s, {2, 404, 213, 130}, inner());
    optCapture[0]->setChecked(true);
    cmbCharacter->setEnabled(false);
    lblSecondaryProfession->nameFor(cmbSecondaryProfession);
    lblEliteName->nameFor(txtEliteName);
    lblBossName->nameFor(txtEliteBossName);
    lblTot->nameFor(lstElite);
    lblLocations->nameFor(lstLocations);
    leadToList(*txtEliteName, *lstElite);
    leadToList(*txtEliteBossName, *lstElite);
}

void ElitePage::applyCaptions(const ProgramState& state) {
    setOptionCaption(*optCapture[0], state.text(Caption::AllEliteSkills), state.text(Caption::EliteSkills));
    setOptionCaption(*optCapture[1], state.text(Caption::MissingFor), state.text(Caption::EliteSkills));
    cmbCharacter->setAccessibleName(state.text(Caption::Character));
    cmbCharacter->setAccessibleDescription(state.text(Caption::MissingFor));
    lblSecondaryProfession->setCaption(u"Secondary prof."_s);
    lblEliteName->setCaption(state.text(Caption::SkillName));
    lblBossName->setCaption(state.text(Caption::BossName));
    lblLocations->setCaption(state.text(Caption::Locations));
}

void ElitePage::read(EliteChoice& choice) const {
    choice.secondary = cmbSecondaryProfession->data();
    choice.character = cmbCharacter->data();
    choice.uncapturedOnly = optCapture[1]->isChecked();
    choice.bossText = txtEliteBossName->text();
    choice.nameText = txtEliteName->text();
}

void ElitePage::clearLocations() {
    lstLocations->clear();
    lstLocations->setEnabled(false);
    lblLocations->setEnabled(false);
}

void ElitePage::arrange() {
    const int half = (height() - lstElite->y() - lblLocations->height() - 5 - margin) / 2;
    lstLocations->resize(lstLocations->width(), ListBox::wholeLines(half));
    lstLocations->move(lstLocations->x(), innerHeight() - lstLocations->height() - 5);
    lblLocations->move(lblLocations->x(), lstLocations->y() - lblLocations->height() - margin);
    lstElite->resize(lstElite->width(), half);
}

} // namespace orvinel
