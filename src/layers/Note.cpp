#include "layers/Note.h"

#include "base/TextRules.h"

namespace orvinel {

void Note::setTexts(const QString& title, const QString& body) {
    ShortDesc = title;
    Body = body;
    FoldedShortDesc = folded(title);
    FoldedBody = folded(body);
}

} // namespace orvinel
