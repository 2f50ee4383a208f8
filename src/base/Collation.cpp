#include "base/Collation.h"

#include <array>
#include <string_view>

namespace orvinel {

namespace {

constexpr std::u16string_view characters =
    u"\t\n\v\f\r _-–—,;:!¡?¿.·'‘’‚‹›\"“”„«»()[]{}§¶@*/\\&#%‰†‡•`´˜^¯¨¸ˆ°©®+±÷×<=>¬|¦~⁄¤¢$£¥€"
    u"0123456789abcdefƒghijklmnopqrstuvwxyzþμ";
constexpr std::u16string_view accents =
    u"\u0301\u0300\u0306\u0302\u030C\u030A\u0308\u030B\u0303\u0307\u0338\u0335\u0327\u0328\u0304\u0361";

constexpr char firstRank = 1;
constexpr char noAccent = 1;
constexpr char firstAccent = 2;
constexpr char unlistedAccent = '\x7F';
constexpr char unlistedCharacter = '\xFE';

constexpr std::array<char, 128> asciiRanks() {
    std::array<char, 128> ranks{};
    for (size_t i = 0; i < characters.size(); ++i) {
        const char16_t c = characters[i];
        if (c >= 128)
            continue;
        ranks[c] = static_cast<char>(firstRank + static_cast<char>(i));
        if (c >= u'a' && c <= u'z')
            ranks[c - u'a' + u'A'] = ranks[c];
    }
    return ranks;
}

// What a letter that is none of the list is made of.
QString partsOf(QChar c) {
    switch (c.unicode()) {
    case u'ß':
        return QStringLiteral(u"s\u0361s");
    case u'æ':
        return QStringLiteral(u"a\u0361e");
    case u'œ':
        return QStringLiteral(u"o\u0361e");
    case u'ø':
        return QStringLiteral(u"o\u0338");
    case u'ð':
        return QStringLiteral(u"d\u0335");
    default:
        return QString(c).normalized(QString::NormalizationForm_KD).toLower();
    }
}

struct Key {
    std::string letters;
    std::string marks; // of each letter, then of each accent on it

    bool addListed(QChar c) {
        const size_t place = characters.find(c.unicode());
        if (place == characters.npos)
            return false;
        letters += static_cast<char>(firstRank + static_cast<char>(place));
        marks += noAccent;
        return true;
    }
    void add(QChar c) {
        if (addListed(c) || c.category() == QChar::Other_Control || c.category() == QChar::Other_Format)
            return;
        if (c.isMark()) {
            const size_t place = accents.find(c.unicode());
            marks += place == accents.npos ? unlistedAccent
                                           : static_cast<char>(firstAccent + static_cast<char>(place));
            return;
        }
        letters += unlistedCharacter;
        letters += static_cast<char>(c.row());
        letters += static_cast<char>(c.cell());
        marks += noAccent;
    }
};

std::string keyBeyondAscii(const QString& text) {
    Key key;
    const QString small = text.toLower();
    for (const QChar c : small) {
        if (key.addListed(c))
            continue;
        for (const QChar part : partsOf(c))
            key.add(part);
    }
    while (key.marks.ends_with(noAccent))
        key.marks.pop_back();
    return key.marks.empty() ? key.letters : key.letters + '\0' + key.marks;
}

} // namespace

std::string collationKey(const QString& text) {
    // Nearly all texts are ASCII; the short way counts at the start.
    static constexpr std::array<char, 128> ranks = asciiRanks();
    std::string key(static_cast<size_t>(text.size()), '\0');
    for (qsizetype i = 0; i < text.size(); ++i) {
        const char16_t c = text[i].unicode();
        if (c >= ranks.size() || ranks[c] == 0)
            return keyBeyondAscii(text);
        key[static_cast<size_t>(i)] = ranks[c];
    }
    return key;
}

} // namespace orvinel
