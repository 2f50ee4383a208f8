#include "ui/panel/MenuCaption.h"

namespace orvinel {

void MenuCaption::setCommand(bool command) {
    setFocusPolicy(command ? Qt::StrongFocus : Qt::NoFocus);
}

} // namespace orvinel
