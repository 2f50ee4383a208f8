#include "app/WindowPlaces.h"

#include "ui/platform/Windows.h"

#include <QGuiApplication>

#include <algorithm>
#include <utility>

namespace orvinel {

namespace {

// A window manager has answered by then, and the screen has shown what it made of it.
constexpr int answerMs = 100;
// So often it is seen, one look after the other, that a window manager gives the panel another width, or
// leaves the map apart. The first is the whole answer of one that tiles; the second may be one that is slow.
constexpr int tiledLooks = 2;
constexpr int apartLooks = 20;

} // namespace

WindowPlaces::WindowPlaces(Options& options, Desktop& desktop, Windows windows)
    : options_(options), desktop_(desktop), windows_(windows) {
    settling_.setSingleShot(true);
    settling_.setInterval(answerMs);
    connect(&settling_, &QTimer::timeout, this, &WindowPlaces::settle);
}

void WindowPlaces::RestoreWindowPlacement() {
    const QRect area = desktop_.workArea();
    const auto remembered = rememberedPair(options_, area, desktop_.allScreens(), panelWidth());
    if (!remembered)
        options_.PosX = options_.PosY = options_.DimX = options_.DimY = -1;
    if (!remembered || !(desktop_.reachable(remembered->panel) || desktop_.reachable(remembered->map))) {
        ToggleMapMaximised();
        restored_ = wanted();
        return;
    }
    MapMaximised = false;
    place(*remembered);
    appearing_ = remembered->panel.topLeft();
}

void WindowPlaces::restoreLegend() {
    if (options_.LegendX != -1 && !options_.Legend)
        placeLegend();
    else
        windows_.legend.move(legendCorner());
}

void WindowPlaces::place(const WindowPair& pair) {
    windows_.panel.setGeometry(pair.panel);
    windows_.map.setGeometry(pair.map);
    appearing_.reset();
    settling_.start();
}

void WindowPlaces::ToggleMapMaximised() {
    if (left_)
        return;
    const bool inset = MapMaximised;
    // Off while the windows move, so that the map is not taken along by the panel.
    MapMaximised = true;
    place(maximisedPair(desktop_.workArea(), panelWidth(), inset));
    MapMaximised = !inset;
}

void WindowPlaces::attachMap() {
    if (left_ || MapMaximised)
        return;
    windows_.map.move(windows_.panel.x() + windows_.panel.width(), windows_.panel.y());
    settling_.start();
}

void WindowPlaces::attachShownMap() {
    if (left_)
        return;
    if (!appearing_)
        appearing_ = windows_.panel.pos();
    QTimer::singleShot(answerMs, this, &WindowPlaces::endAppearing);
    settling_.start(2 * answerMs);
}

void WindowPlaces::endAppearing() {
    const auto wanted = std::exchange(appearing_, std::nullopt);
    if (wanted && !MapMaximised && QGuiApplication::mouseButtons() == Qt::NoButton)
        moveShown(windows_.panel, *wanted);
    attachMap();
}

void WindowPlaces::settle() {
    settling_.setInterval(answerMs);
    if (QGuiApplication::mouseButtons() != Qt::NoButton) // the player has not finished
        return settling_.start();
    if (!windows_.panel.isVisible() || !windows_.map.isVisible())
        return;
    const QRect panel = shownPlace(windows_.panel);
    const QRect map = shownPlace(windows_.map);
    if (refused(panel.width())) {
        leavePair();
        return unplaceable();
    }
    const QPoint beside(panel.width(), 0);
    if (map.topLeft() == panel.topLeft() + beside) {
        asked_.reset();
        wereBeside_ = wereBeside_ || (apart_ == 0 && tiled_ == 0);
        return;
    }
    const QPoint to(std::min(panel.left(), map.left() - panel.width()), std::min(panel.top(), map.top()));
    if (asked_ == to)
        return;
    asked_ = to;
    const bool unmoved = restored_ == wanted();
    moveShown(windows_.panel, to);
    moveShown(windows_.map, to + beside);
    if (unmoved)
        restored_ = wanted();
    settling_.start();
}

bool WindowPlaces::refused(int panelShown) {
    const WindowPair now{placeOnServer(windows_.panel), placeOnServer(windows_.map)};
    // Some that tile keep quiet about a move that they refuse; then the window is thought to have moved.
    tiled_ = isTiled(now.panel.width(), panelWidth()) ? tiled_ + 1 : 0;
    if (tiled_ > 0)
        settling_.start();
    if (tiled_ > 0 || wereBeside_)
        return tiled_ == tiledLooks;
    // No window manager refuses what lies wholly within its work area.
    const QRect area = desktop_.workArea();
    WindowPair pair = wanted();
    if (asked_) {
        pair.panel.moveTopLeft(*asked_);
        pair.map.moveTopLeft(*asked_ + QPoint(panelShown, 0));
    }
    const bool granted = area.contains(pair.panel) && area.contains(pair.map);
    apart_ = granted && isLeftApart(before_.value_or(now), now) ? apart_ + 1 : 0;
    before_ = now;
    if (apart_ > 0)
        settling_.start();
    return apart_ == apartLooks;
}

void WindowPlaces::leavePair() {
    settling_.stop();
    left_ = true;
    MapMaximised = false;
}

int WindowPlaces::panelWidth() const {
    return windows_.panel.maximumWidth();
}

WindowPair WindowPlaces::wanted() const {
    return {windows_.panel.geometry(), windows_.map.geometry()};
}

void WindowPlaces::rememberPair() {
    if (left_ || (restored_ && *restored_ == wanted()))
        return;
    const QPoint at = shownPlace(windows_.panel).topLeft();
    options_.PosX = MapMaximised ? -1 : twipsOf(at.x());
    options_.PosY = MapMaximised ? -1 : twipsOf(at.y());
    options_.DimX = MapMaximised ? -1 : twipsOf(windows_.map.width());
    options_.DimY = MapMaximised ? -1 : twipsOf(windows_.map.height());
}

QPoint WindowPlaces::legendCorner() const {
    const QPoint map = windows_.map.isWindow() ? windows_.map.pos() : windows_.map.mapToGlobal(QPoint(0, 0));
    return {map.x(), map.y() + windows_.map.height() - windows_.legend.height()};
}

void WindowPlaces::placeLegend() {
    if (options_.LegendX == -1) {
        options_.LegendX = twipsOf(legendCorner().x());
        options_.LegendY = twipsOf(legendCorner().y());
    }
    const QPoint remembered(pixelsOf(options_.LegendX), pixelsOf(options_.LegendY));
    const bool seen = desktop_.reachable(QRect(remembered, windows_.legend.size()));
    windows_.legend.move(seen ? remembered : legendCorner());
    legendInstead_ = seen ? std::nullopt : std::optional(windows_.legend.pos());
}

void WindowPlaces::rememberLegend() {
    if (!windowsCanBePlaced() || legendInstead_ == windows_.legend.pos())
        return;
    options_.LegendX = twipsOf(windows_.legend.x());
    options_.LegendY = twipsOf(windows_.legend.y());
}

} // namespace orvinel
