#pragma once

#include "app/Tab.h"

#include <QObject>

#include <vector>

class QKeyEvent;
class QWidget;

namespace orvinel {

// The keys that mean the same in all main windows, whichever of their controls has the focus: F10 or Alt
// alone for the menu bar, Ctrl+Tab, Ctrl+Page Up/Down and Alt+1 to 5 for the pages, F6 for the next window.
class WindowKeys : public QObject {
    Q_OBJECT
  public:
    // F6 goes round the windows in this order and passes over hidden ones; they may be parts of one window.
    // They outlive this.
    explicit WindowKeys(std::vector<QWidget*> windows);

  signals:
    void menuBarWanted();
    void pageWanted(orvinel::Tab tab);
    // 1: the next page, -1: the one before.
    void pageStepWanted(int step);
    // The control that has the focus gets the key too.
    void escapePressed();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    // The one that the control is or lies in; nullptr: none of them.
    QWidget* windowOf(const QWidget& control) const;
    bool press(const QKeyEvent& key, QWidget* window);
    bool pressWithControl(int key);
    void goOn(QWidget* from, int step);

    std::vector<QWidget*> windows_;
    bool altAlone_ = false; // Alt is down, and nothing has happened since
};

} // namespace orvinel
