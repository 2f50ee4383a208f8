#pragma once

#include "ui/platform/Label.h"

namespace orvinel {

// A word of the menu bar, or the text of a row of a drop-down menu. One that takes the focus is a menu item
// to a screen reader; that of a check box or option button only stands beside it.
class MenuCaption : public Label {
    Q_OBJECT
  public:
    using Label::Label;

    void setCommand(bool command);
    bool isCommand() const { return focusPolicy() != Qt::NoFocus; }
};

} // namespace orvinel
