#include "ui/dialogs/Dialog.h"

#include "ui/platform/Windows.h"

namespace orvinel {

Dialog::Dialog(const QString& name, QSize client, DialogContext context, QWidget* owner)
    : QDialog(owner, Qt::Dialog | Qt::WindowTitleHint | Qt::WindowCloseButtonHint), context_(context) {
    setObjectName(name);
    setFixedSize(client);
    setCursor(programCursor(101));
}

void Dialog::showEvent(QShowEvent* event) {
    desktop().setAlwaysOnTop(*this, context_.alwaysOnTop == 1);
    keepOffTaskBar(*this);
    QDialog::showEvent(event);
}

} // namespace orvinel
