#pragma once

#include "ui/dialogs/Dialog.h"

#include <functional>

namespace orvinel {

// Marks one skill as captured by one character. It may stand open beside the panel, which gives it another
// skill then.
class frmMarkEliteAsCaptured : public Dialog {
    Q_OBJECT
  public:
    // `refilter` runs after a save, before the dialog closes.
    frmMarkEliteAsCaptured(DialogContext context, std::function<void()> refilter, QWidget* owner);

    // The ID of a skill that exists. An open dialog shows it at once.
    void SetEliteNumber(int id);
    // The number of the character chosen in the panel, which is selected if it is in the list; 0: all. To be
    // called before SetEliteNumber.
    void setCharacter(int number) { chosen_ = number; }
    // To be called when characters or their captures have changed elsewhere: an open dialog follows.
    void follow();

  protected:
    void load() override;

  private:
    // Selects `wanted` if it is among them.
    void fillCharacters(int wanted);
    void save();

    std::function<void()> refilter_;
    int skill_ = 0;
    int chosen_ = 0;
    ListBox* lstCharacters_;
    Label* lblExplanation_;
    QPushButton* cmdSave_;
};

} // namespace orvinel
