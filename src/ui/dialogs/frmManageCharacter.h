#pragma once

#include "progress/CharacterEditing.h"
#include "ui/dialogs/Dialog.h"

namespace orvinel {

class TextField;

// Edits one character: its name and the skills that it has captured.
class frmManageCharacter : public Dialog {
    Q_OBJECT
  public:
    frmManageCharacter(DialogContext context, QWidget* owner);

    // The character to edit, -1 for a new one; to be set before the dialog is shown. After a save: the
    // character's number.
    void SetCurrentCharacter(int number) { character_ = number; }
    int currentCharacter() const { return character_; }

  protected:
    void load() override;

  private:
    void addFilters();
    void addSkills();
    void addEnd();
    void fillSkills();
    void showChecks();
    void toggle(int index, bool on);
    void selectAll(bool selected);
    void invert();
    void save();
    bool checkEntries();

    TextField* txtName_;
    ListBox* lstCampaign_;
    ListBox* lstProfession_;
    ListBox* lstElite_;
    int character_ = -1;
    SkillSelection selection_;
};

} // namespace orvinel
