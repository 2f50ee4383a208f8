#pragma once

#include "ui/dialogs/Dialog.h"
#include "ui/platform/Label.h"
#include "ui/platform/PictureBox.h"

#include <array>

namespace orvinel {

// The picture window about the program: a text column with two links beside a scene of four figures, whose
// captions show while the mouse is over them or the focus is on them. A click anywhere else closes it.
// Without a home page the first link opens the page that came with the program; without a mail address
// the author's name stands in place of the second.
class frmInformation : public Dialog {
    Q_OBJECT
  public:
    static constexpr int figures = 4;
    enum Link { NoLink = 0, WebPage = 1, Mail = 2 };

    // The project's addresses; empty ones are none.
    struct Addresses {
        QString homePage;
        QString mail;
    };

    frmInformation(DialogContext context, QWidget* owner);
    frmInformation(DialogContext context, QWidget* owner, Addresses addresses);

    // The link under the mouse.
    Link linkHot() const { return LinkHot; }
    // The figure whose caption is shown; -1: none.
    int shownCaption() const { return ShownCaption; }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    struct Caption {
        QWidget* imgChar;
        Label* lblCharName;
        Label* lblCharWords;
        Label* lblZbq;
    };
    void ArrangeInformation(QWidget* client);
    void addFigure(int index);
    void addCaption(int index);
    void addLink(const QString& name, Link link, const QString& text);
    void DrawInformationText();
    void ShowCharacterCaption(int index, bool visible);
    void HideCharacterCaption();
    void showOnly(int index);
    void hover(QPoint inContainer);
    void click(QPoint inContainer);
    Link linkAt(QPoint inContainer) const;
    void openLink(Link link);
    bool figureEvent(int figure, QEvent* event);

    Addresses addresses_;
    Link LinkHot = NoLink;
    int ShownCaption = -1;
    PictureBox* picOntainer = nullptr;
    std::array<QWidget*, figures> lblCharPos{};
    std::array<Caption, figures> captions_{};
};

} // namespace orvinel
