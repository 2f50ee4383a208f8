#pragma once

#include "app/Tab.h"
#include "base/Colour.h"

#include <QWidget>

namespace orvinel {

// picTab(i): a page of the panel, with a border of one pixel. Its controls are children of inner(), whose
// coordinates start inside the border.
class TabPage : public QWidget {
    Q_OBJECT
  public:
    TabPage(Tab tab, QWidget* parent);

    QWidget* inner() const { return inner_; }
    // Stretches the page's lists; called when the page's height has changed.
    virtual void arrange() {}
    void setColour(Colour colour);

  protected:
    int innerHeight() const { return inner_->height(); }
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    QWidget* inner_;
};

} // namespace orvinel
