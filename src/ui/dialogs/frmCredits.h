#pragma once

#include "ui/dialogs/Dialog.h"

namespace orvinel {

// Who has helped with the program.
class frmCredits : public Dialog {
    Q_OBJECT
  public:
    frmCredits(DialogContext context, QWidget* owner);
};

} // namespace orvinel
