#include "app/WindowPlacement.h"

#include "base/Desktop.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace orvinel {

namespace {

// QRect::right() is the last column; the rules speak of the edge behind it.
int rightEdge(const QRect& area) {
    return area.left() + area.width();
}

QRect shrunk(const QRect& area) {
    const int m = rightEdge(area) / 20;
    return area.adjusted(m, m, -m, -m);
}

} // namespace

WindowPair maximisedPair(const QRect& workArea, int panelWidth, bool inset) {
    const QRect area = inset ? shrunk(workArea) : workArea;
    const int mapLeft = area.left() + panelWidth;
    return {QRect(area.left(), area.top(), panelWidth, area.height()),
            QRect(mapLeft, area.top(), rightEdge(area) - mapLeft, area.height())};
}

std::optional<WindowPair> rememberedPair(const Options& options, const QRect& workArea, QSize screens,
                                         int panelWidth) {
    const qint64 needed = qint64(options.PosX) + options.DimX + twipsOf(panelWidth);
    if (options.PosX == -1 || needed > twipsOf(screens.width()))
        return std::nullopt;
    const QRect panel(pixelsOf(options.PosX), pixelsOf(options.PosY), panelWidth, shrunk(workArea).height());
    const QSize map = QSize(pixelsOf(options.DimX), pixelsOf(options.DimY)).boundedTo(screens);
    return WindowPair{panel, QRect(QPoint(panel.left() + panelWidth, panel.top()), map)};
}

bool isTiled(int shownWidth, int panelWidth) {
    return std::abs(shownWidth - panelWidth) > panelWidth / 4;
}

bool isLeftApart(const WindowPair& before, const WindowPair& after) {
    const QPoint off = after.map.topLeft() - after.panel.topLeft() - QPoint(after.panel.width(), 0);
    return before.panel.topLeft() == after.panel.topLeft() && before.map.topLeft() == after.map.topLeft() &&
           2 * std::max(std::abs(off.x()), std::abs(off.y())) > after.panel.width();
}

int pixelsOf(int twips) {
    return static_cast<int>(std::lrint(double(twips) / twipsPerPixel));
}

int twipsOf(int pixels) {
    return pixels * twipsPerPixel;
}

} // namespace orvinel
