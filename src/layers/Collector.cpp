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

void Collector::addObject(const QString& name, int handMask, const TextLines& stats) {
    const auto end = [this] { return static_cast<int>(FoldedObjects.size()); };
    const auto fold = [this](QStringView text) {
        appendFolded(FoldedObjects, text);
        FoldedObjects += textEnd;
    };
    Objects.push_back({name, handMask, stats, end(), 0, 0});
    CollectorObject& object = Objects.back();
    fold(name);
    object.FoldedStats = end();
    stats.forEach([&](QStringView line) {
        if (!isBlank(line))
            fold(line);
    });
    object.FoldedEnd = end();
}

} // namespace orvinel
