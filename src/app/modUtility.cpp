#include "app/modUtility.h"

#include "base/TextSearch.h"

#include <algorithm>

namespace orvinel {

namespace {

// One axis: beside the marker at `preferred`, else from `otherSide`, else pulled back by half, else at the
// edge.
int placeAlong(int preferred, int otherSide, int extent, int room) {
    int at = preferred;
    if (at < 0) {
        at = otherSide;
        if (at + extent > room)
            at -= extent / 2;
        if (at < 0 || at + extent > room)
            at = 0;
    }
    return at;
}

} // namespace

bool ContainsAnyWord(std::string_view text, std::span<const std::string> words) {
    return std::any_of(words.begin(), words.end(),
                       [&](const std::string& word) { return occursIn(text, word); });
}

QPoint PlaceTooltip(QSize tooltip, const QRect& marker, QSize view) {
    return {placeAlong(marker.right() - tooltip.width(), marker.left(), tooltip.width(), view.width()),
            placeAlong(marker.top() - tooltip.height() + 1, marker.bottom() + 1, tooltip.height(),
                       view.height())};
}

} // namespace orvinel
