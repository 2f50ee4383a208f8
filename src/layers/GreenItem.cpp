#include "layers/GreenItem.h"

#include "base/TextRules.h"

namespace orvinel {

void GreenItem::setTexts(const QString& name, const QString& boss, const TextLines& stats) {
    Name = name;
    Boss = boss;
    Stats = {};
    FoldedName = folded(Name);
    FoldedStats.clear();
    if (name.isEmpty())
        return;
    Stats = stats;
    stats.forEach([this](QStringView line) {
        if (isBlank(line))
            return;
        appendFolded(FoldedStats, line);
        FoldedStats += '\n';
    });
}

} // namespace orvinel
