#pragma once

#include <QWidget>

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
// restoring it hides and shows panel, map and legend together.
class frmFAKE : public QWidget {
    Q_OBJECT
  public:
    explicit frmFAKE(TaskBarGroup group);

    // `screens`: the size of all screens together, pixels.
    void showOutside(QSize screens);

  signals:
    // The task bar's "close" was chosen.
    void quitWanted();
    // Panel and map have come back to the screen.
    void shownAgain();

  protected:
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void Form_Resize();
    void bringToFront();

    TaskBarGroup group_;
    QPoint outside_;
    bool FirstResizeDone = false;
    bool minimised_ = false;
};

} // namespace orvinel
