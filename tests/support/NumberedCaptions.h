#pragma once

#include "base/Caption.h"
#include "world/World.h"

#include <QByteArray>

namespace orvinel {

// Every fixed caption n is "`before`n": what a window shows says which one it is.
inline void numberCaptions(World& world, const QString& before) {
    for (int n = 1; n <= lastFixedCaption; ++n)
        world.LanguageTable.grow(n) = before + QString::number(n);
}

// The language file that says so.
inline QByteArray numberedCaptions(const QByteArray& before) {
    QByteArray file;
    for (int n = 1; n <= lastFixedCaption; ++n)
        file += QByteArray::number(n) + '\t' + before + QByteArray::number(n) + "\r\n";
    return file;
}

} // namespace orvinel
