#include "ui/panel/OtherPages.h"

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

GreensPage::GreensPage(QWidget* parent) : TabPage(Tab::Greens, parent) {
    lblGreenName = panelLabel(u"lblGreenName"_s, {4, 8}, inner());
    txtGreensName = panelField(u"txtGreensName"_s, {4, 22, 97, 21}, inner());
    lblGreenAdditional = panelLabel(u"lblGreenAdditional"_s, {106, 8}, inner());
    txtGreenAdditional = panelField(u"txtGreenAdditional"_s, {106, 22, 107, 21}, inner());
    lblGreensList = panelLabel(u"lblGreensList"_s, {2, 46}, inner());
    lstGreens = panelList(u"lstGreens"_s, {2, 60, 213, 474}, inner());
    lblGreenName->nameFor(txtGreensName);
    lblGreenAdditional->nameFor(txtGreenAdditional);
    lblGreensList->nameFor(lstGreens);
    leadToList(*txtGreensName, *lstGreens);
    leadToList(*txtGreenAdditional, *lstGreens);
}

void GreensPage::applyCaptions(const ProgramState& state) {
    lblGreenName->setCaption(state.text(Caption::ItemName));
    lblGreenAdditional->setCaption(state.text(Caption::Search));
    lblGreensList->setCaption(state.text(Caption::GreenItems));
}

void GreensPage::arrange() {
    lstGreens->resize(lstGreens->width(), innerHeight() - lstGreens->y() - 5);
}

NotesPage::NotesPage(QWidget* parent) : TabPage(Tab::Notes, parent) {
    lblNoteShortDesc = panelLabel(u"lblNoteShortDesc"_s, {4, 8}, inner());
    txtNoteShortDesc = panelField(u"txtNoteShortDesc"_s, {4, 22, 97, 21}, inner());
    lblNoteBody = panelLabel(u"lblNoteBody"_s, {106, 8}, inner());
    txtNoteBody = panelField(u"txtNoteBody"_s, {106, 22, 107, 21}, inner());
    lblNoteList = panelLabel(u"lblNoteList"_s, {2, 46}, inner());
    lstNotes = panelList(u"lstNotes"_s, {2, 60, 213, 474}, inner());
    lblNoteShortDesc->nameFor(txtNoteShortDesc);
    lblNoteBody->nameFor(txtNoteBody);
    lblNoteList->nameFor(lstNotes);
    leadToList(*txtNoteShortDesc, *lstNotes);
    leadToList(*txtNoteBody, *lstNotes);
}

void NotesPage::applyCaptions(const ProgramState& state) {
    lblNoteShortDesc->setCaption(state.text(Caption::SearchTitle));
    lblNoteBody->setCaption(state.text(Caption::SearchText));
}

void NotesPage::arrange() {
    lstNotes->resize(lstNotes->width(), innerHeight() - lstNotes->y() - 5);
}

VariousPage::VariousPage(QWidget* parent) : TabPage(Tab::Various, parent) {
    lblTreasures = panelLabel(u"lblTreasures"_s, {4, 4}, inner());
    lstKesraTreasures = panelList(u"lstKesraTreasures"_s, {2, 18, 213, 174}, inner());
    lblPets = panelLabel(u"lblPets"_s, {4, 200}, inner());
    lstPets = panelList(u"lstPets"_s, {2, 214, 213, 162}, inner());
    lblPetLocations = panelLabel(u"lblPetLocations"_s, {4, 376}, inner());
    lstPetLocations = panelList(u"lstPetLocations"_s, {2, 390, 213, 146}, inner());
    lblTreasures->nameFor(lstKesraTreasures);
    lblPets->nameFor(lstPets);
    lblPetLocations->nameFor(lstPetLocations);
}

void VariousPage::applyCaptions(const ProgramState& state) {
    lblTreasures->setCaption(state.text(Caption::Treasures) + u": 0"_s);
    lblPets->setCaption(state.text(Caption::Pets));
    lblPetLocations->setCaption(state.text(Caption::PetLocations));
}

void VariousPage::arrange() {
    lstPetLocations->move(lstPetLocations->x(), innerHeight() - lstPetLocations->height() - 5);
    lblPetLocations->move(lblPetLocations->x(), lstPetLocations->y() - lblPetLocations->height() - 1);
    lstPets->resize(lstPets->width(), lblPetLocations->y() - lstPets->y() - 2);
}

} // namespace orvinel
