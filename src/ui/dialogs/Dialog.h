#pragma once

#include "app/Desktop.h"
#include "app/PlayerFiles.h"
#include "app/ProgramState.h"

#include <QDialog>

namespace orvinel {

// What every dialog works on. All outlive the dialogs.
struct DialogContext {
    ProgramState& state;
    PlayerFiles& files;
    Desktop& desktop;
    // The panel's MenuAlwaysOnTop.
    const int& alwaysOnTop;
};

// What all dialogs have in common: a title bar, a fixed client area, the program's pointer, the topmost band
// when the program's windows are kept above all others, and Escape closes.
class Dialog : public QDialog {
    Q_OBJECT
  public:
    // `name` is the window's fixed name; `client` pixels.
    Dialog(const QString& name, QSize client, DialogContext context, QWidget* owner);

  protected:
    ProgramState& state() { return context_.state; }
    PlayerFiles& files() { return context_.files; }
    Desktop& desktop() { return context_.desktop; }
    DialogContext context() const { return context_; }
    void showEvent(QShowEvent* event) override;

  private:
    DialogContext context_;
};

} // namespace orvinel
