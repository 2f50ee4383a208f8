#pragma once

#include <QLineEdit>
#include <QPoint>

namespace orvinel {

// A one-line field. When it gets the focus, its whole text is selected, so that typing replaces it; a first
// click selects it too, dragging the mouse selects a part.
class TextField : public QLineEdit {
    Q_OBJECT
  public:
    // `name` is the control's fixed name, `caption` what screen readers call it.
    TextField(const QString& name, const QString& caption, QWidget* parent);

    // Without the TABs and line breaks that a pasted text may hold.
    QString line() const;

  protected:
    void focusInEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

    // From now on each click selects the whole text, not just the first.
    void selectOnEachClick() { eachClick_ = true; }

  private:
    bool eachClick_ = false;
    bool selectOnClick_ = false;
    QPoint pressed_;
};

} // namespace orvinel
