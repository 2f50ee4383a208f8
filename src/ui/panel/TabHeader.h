#pragma once

#include "base/Colour.h"

#include <QAbstractButton>

namespace orvinel {

// lblTab(i): the header of a page of the panel. To a screen reader it is a page tab.
class TabHeader : public QAbstractButton {
    Q_OBJECT
  public:
    TabHeader(int index, const QString& caption, Colour textColour, QWidget* parent);

    // "1": its page is shown; empty: it is not.
    const QString& tag() const { return tag_; }
    void setTag(const QString& tag);
    void setColour(Colour colour);

  signals:
    // By an arrow key: 1 the next tab, -1 the one before.
    void stepWanted(int step);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    Colour textColour_;
    QString tag_;
};

// Makes the headers known to screen readers; to be called once before the first is made.
void installTabAccessibility();

} // namespace orvinel
