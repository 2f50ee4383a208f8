#pragma once

#include "ui/map/InformationWindow.h"
#include "ui/map/frmMap.h"

#include <functional>

namespace orvinel {

// A click on the control has all information windows hidden.
template <typename Control>
void hideAllOnClick(frmMap& map, Control& control) {
    QObject::connect(&control, &Control::clicked, &map, &frmMap::HideInformationWindows);
}

// The mouse is over item `id` of the window's layer: unless the window shows it already, it takes the place
// of whatever is shown. `fill` fills and frames the window.
inline void showItem(frmMap& map, InformationWindow& window, int id, const std::function<void()>& fill) {
    const QString tag = QString::number(id);
    if (window.tag() == tag)
        return;
    map.HideInformationWindows();
    window.setTag(tag);
    fill();
}

} // namespace orvinel
