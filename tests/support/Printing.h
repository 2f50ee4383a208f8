#pragma once

#include "base/Listing.h"

#include <QByteArray>
#include <QString>

#include <ostream>

// How failing expectations show Qt's texts.
QT_BEGIN_NAMESPACE
inline void PrintTo(const QString& text, std::ostream* out) {
    *out << '"' << text.toStdString() << '"';
}
inline void PrintTo(const QByteArray& data, std::ostream* out) {
    *out << '"' << data.toStdString() << '"';
}
QT_END_NAMESPACE

namespace orvinel {
inline void PrintTo(const ListEntry& entry, std::ostream* out) {
    *out << '"' << entry.text.toStdString() << "\" = " << entry.data;
}
} // namespace orvinel
