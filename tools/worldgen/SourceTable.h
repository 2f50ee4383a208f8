#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace worldgen {

// One line of a hand-written table.
struct SourceRow {
    QString section; // text of the last "[...]" line above it; empty before the first
    QStringList fields;
    QString place; // "file:line" for messages
};

// Reads a UTF-8 table with TAB between the fields. Lines that begin with "#" are remarks, blank lines are
// left out, a field that is just "-" is empty. A file that is missing gives no rows: not every campaign has
// all of them. Rows with fewer than `fewest` fields are left out and told in `problems`.
std::vector<SourceRow> readTable(const QString& path, int fewest, QStringList& problems);

// Lines of the file without their ends; nothing when there is no such file.
QStringList readLines(const QString& path, QStringList& problems);

// Number that the whole field is; tells a problem and gives `lowest` for anything else or out of range.
int numberIn(const SourceRow& row, int field, int lowest, int highest, QStringList& problems);

} // namespace worldgen
