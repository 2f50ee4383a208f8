#include "layers/GreenItem.h"

#include "base/TextRules.h"

namespace orvinel {

void GreenItem::setTexts(const QString& name, const QString& boss, std::vector<QString> stats) {
    Name = name;
    Boss = boss;
    Stats = name.isEmpty() ? std::vector<QString>() : std::move(stats);
    FoldedName = folded(Name);
    FoldedStats.clear();
    for (const QString& line : Stats)
        if (!line.trimmed().isEmpty())
            FoldedStats += folded(line) + '\n';
}

} // namespace orvinel
