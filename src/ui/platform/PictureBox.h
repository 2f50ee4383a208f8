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
    // Tells screen readers what is written at `place`, as a label of its own with `symbol` as its
    // description. For what is drawn once and stays.
    void tell(const QRect& place, const QString& text, const QString& symbol = {});

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
