#include "world/World.h"

namespace orvinel {

QString World::text(Caption caption) const {
    const int number = static_cast<int>(caption);
    const QString text = LanguageTable.has(number) ? LanguageTable[number] : QString();
    return text.isEmpty() ? builtInText(caption) : text;
}

} // namespace orvinel
