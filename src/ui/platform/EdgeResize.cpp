#include "ui/platform/EdgeResize.h"

#include "ui/platform/Windows.h"

#include <QCursor>
#include <QMouseEvent>
#include <QWidget>
#include <QWindow>

#include <algorithm>

namespace orvinel {

namespace {

constexpr int margin = 3; // pixels from the edge that take hold of it: the frame, and one of what lies inside

Qt::CursorShape shapeFor(Qt::Edges edges) {
    if (edges == (Qt::LeftEdge | Qt::TopEdge) || edges == (Qt::RightEdge | Qt::BottomEdge))
        return Qt::SizeFDiagCursor;
    if (edges == (Qt::RightEdge | Qt::TopEdge) || edges == (Qt::LeftEdge | Qt::BottomEdge))
        return Qt::SizeBDiagCursor;
    return edges & (Qt::LeftEdge | Qt::RightEdge) ? Qt::SizeHorCursor : Qt::SizeVerCursor;
}

} // namespace

EdgeResize::EdgeResize(QWidget& window, int smallest, std::initializer_list<QWidget*> children)
    : QObject(&window), window_(window), smallest_(smallest) {
    window.setMouseTracking(true);
    window.installEventFilter(this);
    for (QWidget* child : children)
        child->installEventFilter(this);
}

Qt::Edges EdgeResize::edgesAt(QPoint p) const {
    Qt::Edges edges;
    edges.setFlag(Qt::LeftEdge, p.x() < margin);
    edges.setFlag(Qt::RightEdge, p.x() >= window_.width() - margin);
    edges.setFlag(Qt::TopEdge, p.y() < margin);
    edges.setFlag(Qt::BottomEdge, p.y() >= window_.height() - margin);
    return edges;
}

bool EdgeResize::eventFilter(QObject* watched, QEvent* event) {
    auto* widget = qobject_cast<QWidget*>(watched);
    const bool mouse = event->type() == QEvent::MouseMove || event->type() == QEvent::MouseButtonPress ||
                       event->type() == QEvent::MouseButtonRelease;
    if (!widget || !mouse || !window_.isWindow())
        return false;
    const auto* at = static_cast<QMouseEvent*>(event);
    const QPoint global = at->globalPosition().toPoint();
    const Qt::Edges edges = edgesAt(window_.mapFromGlobal(global));
    if (event->type() == QEvent::MouseMove && following_) {
        follow(global);
        return true;
    }
    if (event->type() == QEvent::MouseMove && at->buttons() == Qt::NoButton)
        showCursor(*widget, edges);
    if (event->type() == QEvent::MouseButtonPress && at->button() == Qt::LeftButton && edges) {
        QWindow* handle = window_.windowHandle();
        if (!systemDrags() || !handle || !handle->startSystemResize(edges)) {
            following_ = edges;
            start_ = window_.geometry();
            grip_ = global;
        }
        return true;
    }
    if (event->type() == QEvent::MouseButtonRelease && following_) {
        following_ = {};
        return true;
    }
    return false;
}

void EdgeResize::showCursor(QWidget& over, Qt::Edges edges) {
    if (edges) {
        if (cursorOver_ != &over) {
            usual_ = over.cursor();
            cursorOver_ = &over;
        }
        over.setCursor(shapeFor(edges));
    } else if (cursorOver_ == &over) {
        over.setCursor(usual_);
        cursorOver_ = nullptr;
    }
}

void EdgeResize::follow(QPoint global) {
    const QPoint by = global - grip_;
    QRect wanted = start_;
    if (following_ & Qt::LeftEdge)
        wanted.setLeft(std::min(start_.left() + by.x(), start_.right() + 1 - smallest_));
    if (following_ & Qt::RightEdge)
        wanted.setRight(std::max(start_.right() + by.x(), start_.left() - 1 + smallest_));
    if (following_ & Qt::TopEdge)
        wanted.setTop(std::min(start_.top() + by.y(), start_.bottom() + 1 - smallest_));
    if (following_ & Qt::BottomEdge)
        wanted.setBottom(std::max(start_.bottom() + by.y(), start_.top() - 1 + smallest_));
    window_.setGeometry(wanted);
}

} // namespace orvinel
