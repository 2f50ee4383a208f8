#pragma once

#include "ui/dialogs/Dialog.h"

class QPlainTextEdit;

namespace orvinel {

class TextField;

// Creates or edits a note. The inputs are set before it is shown.
class frmManageNote : public Dialog {
    Q_OBJECT
  public:
    frmManageNote(DialogContext context, QWidget* owner);

    // Map pixels of the place clicked; only a new note takes them.
    void SetX(int x) { x_ = x; }
    void SetY(int y) { y_ = y; }
    // -1: a new note.
    void SetNote(int index) { note_ = index; }
    void SetCampaign(int campaign) { campaign_ = campaign; }
    void SetRegion(int region) { region_ = region; }

    // The index of the note that was stored; -1 when the player cancelled.
    int savedNote() const { return saved_; }

  protected:
    void load() override;

  private:
    void save();
    bool checkTitle();
    QString bodyText() const;

    TextField* txtShortDesc_;
    QPlainTextEdit* txtBody_;
    int x_ = 0;
    int y_ = 0;
    int note_ = -1;
    int campaign_ = 0;
    int region_ = 0;
    int saved_ = -1;
};

} // namespace orvinel
