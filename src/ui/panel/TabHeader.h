#pragma once

#include "app/Tab.h"
#include "base/Colour.h"

#include <QAbstractButton>

namespace orvinel {

// lblTab(i): the header of a page of the panel. To a screen reader it is a page tab.
class TabHeader : public QAbstractButton {
    Q_OBJECT
  public:
    TabHeader(Tab tab, const QString& caption, Colour textColour, QWidget* parent);

    // Its page is shown.
    bool active() const { return active_; }
    void setActive(bool active);
    void setColour(Colour colour);

  signals:
    // By an arrow key: 1 the next tab, -1 the one before.
    void stepWanted(int step);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    Colour textColour_;
    bool active_ = false;
};

} // namespace orvinel
