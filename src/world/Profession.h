#pragma once

#include "base/Colour.h"

#include <QString>

#include <vector>

namespace orvinel {

struct Profession {
    QString Name;
    QString Abbreviation;
    Colour Color = 0;
    std::vector<QString> Attributes; // in file order

    bool operator==(const Profession&) const = default;
};

} // namespace orvinel
