#pragma once

#include "ui/dialogs/Dialog.h"

namespace orvinel {

// Lists the player's characters and creates, changes or deletes one.
class frmCharacterList : public Dialog {
    Q_OBJECT
  public:
    frmCharacterList(DialogContext context, QWidget* owner);

  protected:
    void load() override;

  private:
    void addControls();
    void fillCharacters();
    void create();
    void modify();
    void remove();
    void edit(int number);

    ListBox* lstCharacters_;
    QPushButton* cmdCreate_;
    QPushButton* cmdModify_;
    QPushButton* cmdDelete_;
};

} // namespace orvinel
