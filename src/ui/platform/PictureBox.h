#pragma once

#include "ui/platform/Drawing.h"

#include <QImage>
#include <QWidget>

namespace orvinel {

// A widget that keeps what is drawn on it. All places are pixels from its top left corner.
class PictureBox : public QWidget {
    Q_OBJECT
  public:
    explicit PictureBox(QWidget* parent = nullptr);

    void setBackground(Colour colour);
    Colour background() const { return background_; }

    // Forgets what was drawn: background only, at the box's present size.
    void clear();
    // To be drawn on between clear() and update(). Owned by the box; its device pixel ratio is the screen's.
    QImage& surface();

  signals:
    void clicked();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

  private:
    QImage surface_;
    Colour background_ = 0;
};

} // namespace orvinel
