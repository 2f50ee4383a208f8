#include "world/MapView.h"

#include <algorithm>
#include <cmath>

namespace orvinel {

namespace {

int clamp(int proposed, int viewport, int picture) {
    return std::min(std::max(viewport - picture, proposed), 0);
}

} // namespace

void MapView::setPicture(QSize size) {
    picture_ = size;
    scrollX_ = scrollY_ = 0;
}

void MapView::setViewport(QSize size) {
    viewport_ = size;
    scrollTo(scrollX_, scrollY_);
}

int MapView::clampX(int proposed) const {
    return clamp(proposed, viewport_.width(), picture_.width());
}
int MapView::clampY(int proposed) const {
    return clamp(proposed, viewport_.height(), picture_.height());
}

void MapView::scrollTo(int x, int y) {
    scrollX_ = clampX(x);
    scrollY_ = clampY(y);
}

void MapView::dragTo(int x, int y) {
    if (viewport_.width() < picture_.width())
        scrollX_ = clampX(x);
    if (viewport_.height() < picture_.height())
        scrollY_ = clampY(y);
}

void MapView::centreOn(MapPoint point) {
    scrollTo(viewport_.width() / 2 - point.x, viewport_.height() / 2 - point.y);
}

MapPoint MapView::toMap(ViewPoint point) const {
    return {static_cast<int>(std::lrint(point.x - scrollX_)),
            static_cast<int>(std::lrint(point.y - scrollY_))};
}

ViewPoint MapView::toView(MapPoint point) const {
    return {static_cast<double>(point.x + scrollX_), static_cast<double>(point.y + scrollY_)};
}

QRect MapView::visible() const {
    return {-scrollX_, -scrollY_, std::min(viewport_.width(), picture_.width()),
            std::min(viewport_.height(), picture_.height())};
}

} // namespace orvinel
