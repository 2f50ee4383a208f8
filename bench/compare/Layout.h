#pragma once

#include <QWidget>

namespace orvinel::bench {

// Both rivals stand where the program's windows do and are laid out alike, or their starts could not be
// compared.
inline void showLaidOut(QWidget& panel, QWidget& map, QWidget& field, QWidget& list, const QRect& panelPlace,
                        const QRect& mapPlace) {
    panel.setGeometry(panelPlace);
    map.setGeometry(mapPlace);
    field.setGeometry(4, 4, panelPlace.width() - 8, 21);
    list.setGeometry(4, 30, panelPlace.width() - 8, panelPlace.height() - 34);
    panel.show();
    map.show();
}

} // namespace orvinel::bench
