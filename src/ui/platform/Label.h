#pragma once

#include "base/Colour.h"

#include <QLabel>

namespace orvinel {

// A plain text on a transparent ground that is as large as its text, or as wide as told and as high as its
// lines. What is too wide is broken or left out in what is seen only: text() and what is read aloud stay.
class Label : public QLabel {
    Q_OBJECT
  public:
    // `name` is the control's fixed name.
    Label(const QString& name, QWidget* parent);

    // Sets the text, whose lines may end with CR LF, and the label's size. Its top left corner stays.
    void setCaption(const QString& text);
    // Wraps words at this width, pixels, from now on, and breaks those that are wider; 0: one line per line
    // of text.
    void setWrapWidth(int pixels);
    // The end of a line that is wider, pixels, gives way to an ellipsis from now on; for labels that do not
    // wrap. 0: none does.
    void setLongest(int pixels);
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
    void paintEvent(QPaintEvent* event) override;

  private:
    void fit();
    void fitWrapped();
    void tellName();

    int wrapWidth_ = 0;
    int longest_ = 0;
    QString seen_; // what is painted in place of the text; empty: the text
    QWidget* named_ = nullptr;
    bool pressed_ = false;
};

} // namespace orvinel
