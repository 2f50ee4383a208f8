#pragma once

#include "ui/layers/modZonesView.h"
#include "ui/map/MarkerArt.h"
#include "world/Marker.h"

#include <QImage>

#include <vector>

namespace orvinel {

// What the layers draw on a region when everything is listed; `boss` restricts the skills' boxes.
std::vector<Marker> allMarkers(const ProgramState& tables, const MapShown& shown, const QString& boss = {});

// The composition made the obvious way: the whole picture copied, zones and markers drawn on it one by one.
// What the program shows must equal it pixel for pixel.
QImage plainMap(const QImage& picture, ZonesView& zones, const MapShown& shown,
                const std::vector<Marker>& markers, const MarkerArt& art);

} // namespace orvinel
