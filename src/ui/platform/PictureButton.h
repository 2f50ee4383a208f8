#pragma once

#include <QAbstractButton>
#include <QImage>

namespace orvinel {

// A small button that is a picture.
class PictureButton : public QAbstractButton {
    Q_OBJECT
  public:
    // `picture`: a resource; `spoken`: what a screen reader calls the button.
    PictureButton(const QString& name, const QString& picture, const QString& spoken, QWidget* parent);

    QSize sizeHint() const override { return {15, 15}; }

  protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    QImage picture_;
};

} // namespace orvinel
