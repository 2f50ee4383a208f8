#pragma once

#include "base/Colour.h"

#include <QLabel>

namespace orvinel {

// A plain text on a transparent ground that is as large as its text, or as wide as told and as high as its
// lines.
class Label : public QLabel {
    Q_OBJECT
  public:
    // `name` is the control's fixed name.
    Label(const QString& name, QWidget* parent);

    // Sets the text, whose lines may end with CR LF, and the label's size. Its top left corner stays.
    void setCaption(const QString& text);
    // Wraps words at this width, pixels, from now on; 0: one line per line of text.
    void setWrapWidth(int pixels);
    void setColour(Colour colour);
    // From now on the widget's accessible name follows the label's text. `widget` lives as long as the label.
    void nameFor(QWidget* widget);

  signals:
    void clicked();
    void pressed();
    void released();

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void fit();
    void tellName();

    int wrapWidth_ = 0;
    QWidget* named_ = nullptr;
    bool pressed_ = false;
};

} // namespace orvinel
