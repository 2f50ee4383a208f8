#pragma once

#include "progress/OpenedTreasures.h"
#include "ui/platform/TextField.h"

namespace orvinel {

// A field for the day, month or year of a date. It takes digits and "." only, and the arrow keys count.
class DateBox : public TextField {
    Q_OBJECT
  public:
    DateBox(const QString& name, QWidget* parent);

    // What the box is for, and what screen readers call it.
    void setPart(DatePart part, const QString& caption);
    DatePart part() const { return part_; }

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    DatePart part_ = DatePart::Day;
};

} // namespace orvinel
