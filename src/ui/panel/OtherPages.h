#pragma once

#include "app/ProgramState.h"
#include "ui/panel/Controls.h"
#include "ui/panel/TabPage.h"

namespace orvinel {

// The third page: green items.
class GreensPage : public TabPage {
  public:
    explicit GreensPage(QWidget* parent);

    Label* lblGreenName;
    QLineEdit* txtGreensName;
    Label* lblGreenAdditional;
    QLineEdit* txtGreenAdditional;
    Label* lblGreensList;
    ListBox* lstGreens;

    void applyCaptions(const ProgramState& state);
    void arrange() override;
};

// The fourth page: the player's notes.
class NotesPage : public TabPage {
  public:
    explicit NotesPage(QWidget* parent);

    Label* lblNoteShortDesc;
    QLineEdit* txtNoteShortDesc;
    Label* lblNoteBody;
    QLineEdit* txtNoteBody;
    Label* lblNoteList;
    ListBox* lstNotes;

    void applyCaptions(const ProgramState& state);
    void arrange() override;
};

// The fifth page: treasure chests and pets.
class VariousPage : public TabPage {
  public:
    explicit VariousPage(QWidget* parent);

    Label* lblTreasures;
    ListBox* lstKesraTreasures;
    Label* lblPets;
    ListBox* lstPets;
    Label* lblPetLocations;
    ListBox* lstPetLocations;

    void applyCaptions(const ProgramState& state);
    void arrange() override;
};

} // namespace orvinel
