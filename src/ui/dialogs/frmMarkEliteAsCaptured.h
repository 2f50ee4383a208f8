#pragma once

#include "ui/dialogs/Dialog.h"

#include <functional>

namespace orvinel {

// Marks one skill as captured by one character. The inputs are set before it is shown.
class frmMarkEliteAsCaptured : public Dialog {
    Q_OBJECT
  public:
    // `refilter` runs after a save, before the dialog closes.
    frmMarkEliteAsCaptured(DialogContext context, std::function<void()> refilter, QWidget* owner);

    // The ID of a skill that exists.
    void SetEliteNumber(int id) { skill_ = id; }
    // The number of the character chosen in the panel, which is selected if it is in the list; 0: all.
    void SetCharacter(int number) { chosen_ = number; }

  protected:
    void load() override;

  private:
    void fillCharacters();
    void save();

    std::function<void()> refilter_;
    int skill_ = 0;
    int chosen_ = 0;
    ListBox* lstCharacters_;
    QPushButton* cmdSave_;
};

} // namespace orvinel
