#include "SourceTable.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace worldgen {

using namespace Qt::Literals::StringLiterals;

namespace {

QStringList splitFields(const QString& line) {
    QStringList fields = line.split(u'\t');
    for (QString& field : fields) {
        if (field == u'-')
            field.clear();
    }
    return fields;
}

} // namespace

QStringList readLines(const QString& path, QStringList& problems) {
    QFile file(path);
    if (!file.exists()) {
        return {};
    }
    if (!file.open(QIODevice::ReadOnly)) {
        problems.append(path + u": "_s + file.errorString());
        return {};
    }
    QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n');
    for (QString& line : lines) {
        if (line.endsWith(u'\r'))
            line.chop(1);
    }
    return lines;
}

std::vector<SourceRow> readTable(const QString& path, int fewest, QStringList& problems) {
    std::vector<SourceRow> rows;
    QString section;
    const QString name = QFileInfo(path).dir().dirName() + u'/' + QFileInfo(path).fileName();
    const QStringList lines = readLines(path, problems);
    for (int i = 0; i < lines.size(); ++i) {
        const QString& line = lines[i];
        if (line.trimmed().isEmpty() || line.startsWith(u'#'))
            continue;
        if (line.startsWith(u'[') && line.endsWith(u']')) {
            section = line.mid(1, line.size() - 2);
            continue;
        }
        SourceRow row{section, splitFields(line), name + u':' + QString::number(i + 1)};
        if (row.fields.size() < fewest) {
            problems.append(row.place + u": needs "_s + QString::number(fewest) + u" fields"_s);
            continue;
        }
        rows.push_back(row);
    }
    return rows;
}

int numberIn(const SourceRow& row, int field, int lowest, int highest, QStringList& problems) {
    bool isNumber = false;
    const int number = row.fields[field].toInt(&isNumber);
    if (!isNumber || number < lowest || number > highest) {
        problems.append(u"%1: \"%2\" is no number from %3 to %4"_s.arg(row.place, row.fields[field])
                            .arg(lowest)
                            .arg(highest));
        return lowest;
    }
    return number;
}

} // namespace worldgen
