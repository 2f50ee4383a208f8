#pragma once

#include <QElapsedTimer>
#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <vector>

namespace orvinel {

// Which of the program's windows are visible.
struct WindowsShown {
    bool panel = false;
    bool map = false;
    bool legend = false;

    bool operator==(const WindowsShown&) const = default;
};

// What the use of the task bar's button makes of it. `first`: the button has only just appeared.
WindowsShown afterTaskBarUse(WindowsShown now, bool first, bool legendWanted);

// The windows that the task bar's button stands for; they outlive frmFAKE.
struct TaskBarGroup {
    QWidget& panel;
    QWidget& map;
    QWidget& legend;
    const int& MenuLegendShown;
};

// The window that gives the program its one task bar button. It lies outside all screens; minimising and
// restoring it hides and shows panel, map and legend together, and the dialogs with them. Whoever minimises
// one of those windows minimises the program: they have no button of their own that could bring them back.
class frmFAKE : public QWidget {
    Q_OBJECT
  public:
    explicit frmFAKE(TaskBarGroup group);

    // The last of the windows to appear; the keyboard is in the panel then, as some window managers do not
    // leave it. `screens`: the size of all screens together, pixels.
    void showOutside(QSize screens);
    // Minimises the program. Where the window manager knows no such thing its windows stay.
    void minimise();

  signals:
    // The task bar's "close" was chosen.
    void quitWanted();
    // Panel and map have come back to the screen.
    void shownAgain();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    struct PutAway {
        QPointer<QWidget> dialog;
        QPoint place; // of its frame
    };
    // What is minimised is known for certain only when the window manager has done it.
    void awaitIcon();
    void lookForIcon();
    void endLooking();
    void putAway();
    void stay();
    void bringBack();
    void Form_Resize();
    // The task bar's button was used while the program is on the screen.
    void becomeActive();
    void bringToFront();
    void raiseDialogs();
    void putDialogsAway();
    void bringDialogsBack();
    // To the window that had it, or to the modal dialog that keeps all others from getting it.
    void giveKeyboardBack();
    // Now and again until the windows that came back have had their turn.
    void settleKeyboard();
    void settle();
    QWidget* keyboardWindow() const;
    bool isMainWindow(const QWidget* window) const;

    TaskBarGroup group_;
    QPoint outside_;
    bool FirstResizeDone = false;
    bool minimised_ = false;
    bool following_ = false; // another window was minimised, and this one is about to be
    QTimer icon_;            // runs while the window manager is asked to minimise
    int looks_ = 0;
    QTimer settling_; // runs while the windows that came back may still get the keyboard
    int settles_ = 0;
    QPointer<QWidget> first_;      // of the windows that the window manager minimised
    QPointer<QWidget> keyboard_;   // the program's window that was active last
    QPointer<QWidget> before_;     // the one that was active before it
    QElapsedTimer passedOn_;       // since the keyboard went from that one to this
    std::vector<PutAway> dialogs_; // while minimised, the lowest first
};

} // namespace orvinel
