#pragma once

#include "app/ProgramState.h"
#include "base/Desktop.h"
#include "base/PlayerFiles.h"

#include <QDialog>
#include <QRect>

class QLineEdit;
class QPushButton;

namespace orvinel {

class Label;
class ListBox;

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

    // What on the desktop (pixels) asks for the dialog, which opens beside it; to be called before it is
    // shown. Otherwise a dialog of another dialog opens over that.
    void setAsked(const QRect& place) { asked_ = place; }

    // Gives the keyboard back to the owner: the window manager might give it to the task bar's window.
    void done(int result) override;

  protected:
    ProgramState& state() { return context_.state; }
    PlayerFiles& files() { return context_.files; }
    Desktop& desktop() { return context_.desktop; }
    DialogContext context() const { return context_; }

    // Runs once, just before the dialog appears for the first time: its inputs are known by then.
    virtual void load() {}

    // The controls with their fixed names; places are pixels of the client area. Tab goes through them in the
    // order in which they are added.
    Label* addLabel(const QString& name, QPoint at, const QString& caption);
    // `caption` says what the list holds to those who cannot see the label above it.
    ListBox* addList(const QString& name, const QRect& place, const QString& caption);
    QPushButton* addButton(const QString& name, const QRect& place, const QString& caption);
    // A button keeps the letter that Alt presses it with as long as its caption has that letter.
    static void setCaption(QPushButton& button, const QString& caption);

    // Of the program, with an OK button.
    void tellProblem(const QString& text);
    // The same about what is in a field, which is then to be typed anew.
    void tellProblem(const QString& text, QLineEdit& field);

    void showEvent(QShowEvent* event) override;

  private:
    void place();

    DialogContext context_;
    QRect asked_;
    QString letters_; // of the buttons, lower case
    bool loaded_ = false;
};

} // namespace orvinel
