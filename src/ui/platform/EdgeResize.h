#pragma once

#include <QCursor>
#include <QObject>
#include <QPoint>
#include <QRect>

class QWidget;

namespace orvinel {

// Lets a window without a title bar be resized by its edges: by the window manager where there is one, else
// by following the mouse. Child of the window. Does nothing while that is a part of another window.
class EdgeResize : public QObject {
    Q_OBJECT
  public:
    // `smallest` pixels, both ways. `children`: widgets that cover the window's edges.
    EdgeResize(QWidget& window, int smallest, std::initializer_list<QWidget*> children);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    Qt::Edges edgesAt(QPoint inWindow) const;
    void showCursor(QWidget& over, Qt::Edges edges);
    void follow(QPoint global);

    QWidget& window_;
    int smallest_;
    Qt::Edges following_;
    QRect start_;
    QPoint grip_;
    QWidget* cursorOver_ = nullptr;
    QCursor usual_;
};

} // namespace orvinel
