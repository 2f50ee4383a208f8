#include "layers/Collector.h"

namespace orvinel {

namespace {

// Ends each text in FoldedObjects: no search can reach over it, since UTF-8 never holds this byte.
constexpr char textEnd = '\xFF';

} // namespace

void Collector::setRequest(const QString& text) {
    Request = text;
    FoldedRequest = folded(text);
}

void Collector::addObject(const QString& name, int handMask, const std::vector<QString>& stats) {
    CollectorObject object{name, handMask, stats, 0, 0, 0};
    object.FoldedName = static_cast<int>(FoldedObjects.size());
    FoldedObjects += folded(name) + textEnd;
    object.FoldedStats = static_cast<int>(FoldedObjects.size());
    for (const QString& line : stats)
        if (!line.trimmed().isEmpty())
            FoldedObjects += folded(line) + textEnd;
    object.FoldedEnd = static_cast<int>(FoldedObjects.size());
    Objects.push_back(std::move(object));
}

} // namespace orvinel
