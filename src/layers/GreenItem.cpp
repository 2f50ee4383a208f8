#include "layers/GreenItem.h"

#include "base/TextRules.h"

namespace orvinel {

void GreenItem::setTexts(const QString& name, const QString& boss, const std::vector<QString>& stats) {
    Name = name;
    Boss = boss;
    Stats = {};
    FoldedName = folded(Name);
    FoldedStats.clear();
    if (name.isEmpty())
        return;
    Stats = stats;
    for (const QString& line : stats) {
        if (QStringView(line).trimmed().isEmpty())
            continue;
        appendFolded(FoldedStats, line);
        FoldedStats += '\n';
    }
}

} // namespace orvinel
