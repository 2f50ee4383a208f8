#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <vector>

namespace orvinel {

// One record of a comma-separated text and the line on which it begins (from 1).
struct CsvRecord {
    int line = 0;
    QStringList fields;
};

// Comma-separated text as spreadsheets write it: fields may be quoted, a quote in them is doubled, and a
// quoted field may hold commas and line ends. When the text has a ';' but no ',' in its first line, ';' parts
// the fields. Empty lines are left out. A quote that is never closed reaches to the end.
std::vector<CsvRecord> readCsv(const QString& text);

// The text of such a file: UTF-8 where it can be that, else Windows-1252.
QString tableText(const QByteArray& bytes);

// Every field quoted, CR LF at the end.
QString csvLine(const QStringList& fields);

} // namespace orvinel
