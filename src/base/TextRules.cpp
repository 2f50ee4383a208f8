#include "base/TextRules.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>

namespace orvinel {

namespace {

// Windows-1252 differs from Latin-1 in 0x80..0x9F only; 0 marks the five bytes that it leaves undefined.
constexpr std::array<char16_t, 32> upperControls = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

const QByteArray utf8Mark = QByteArrayLiteral("\xEF\xBB\xBF");

bool isNumberBlank(QChar c) {
    return c == u' ' || c == u'\t';
}

int windows1252Byte(char16_t c) {
    if (c < 0x80 || (c >= 0xA0 && c <= 0xFF))
        return c;
    for (size_t i = 0; i < upperControls.size(); ++i)
        if (upperControls[i] == c || (upperControls[i] == 0 && c == 0x80 + i))
            return static_cast<int>(0x80 + i);
    return -1;
}

// The bits that no ASCII character has, in eight bytes of them at once.
template <typename Unit>
constexpr std::uint64_t beyondAscii = sizeof(Unit) == 1 ? 0x8080808080808080u : 0xFF80FF80FF80FF80u;

// Eight at a time: whole files go through this.
bool isAscii(const QByteArray& bytes) {
    const char* at = bytes.constData();
    const char* const end = at + bytes.size();
    std::uint64_t seen = 0;
    for (; end - at >= 8; at += 8) {
        std::uint64_t eight;
        std::memcpy(&eight, at, sizeof eight);
        seen |= eight;
    }
    for (; at < end; ++at)
        seen |= static_cast<unsigned char>(*at);
    return (seen & beyondAscii<char>) == 0;
}

bool isDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}

// The longest prefix of `text` that is a decimal number, as ASCII, and how many characters it took.
struct NumberPrefix {
    std::string ascii;
    qsizetype taken = 0;
};

NumberPrefix numberPrefix(QStringView text) {
    NumberPrefix result;
    qsizetype i = 0;
    while (i < text.size() && isNumberBlank(text[i]))
        ++i;
    std::string ascii;
    if (i < text.size() && (text[i] == u'-' || text[i] == u'+')) {
        if (text[i] == u'-')
            ascii += '-';
        ++i;
    }
    const auto digits = [&] {
        const qsizetype from = i;
        for (; i < text.size() && isDigit(text[i]); ++i)
            ascii += static_cast<char>(text[i].unicode());
        return i - from;
    };
    qsizetype count = digits();
    if (i < text.size() && text[i] == u'.') {
        ascii += '.';
        ++i;
        count += digits();
    }
    if (count == 0)
        return result;
    result = {ascii, i};
    if (i < text.size() && (text[i] == u'e' || text[i] == u'E' || text[i] == u'd' || text[i] == u'D')) {
        ascii += 'e';
        ++i;
        if (i < text.size() && (text[i] == u'-' || text[i] == u'+')) {
            if (text[i] == u'-')
                ascii += '-';
            ++i;
        }
        if (digits() > 0)
            result = {ascii, i};
    }
    return result;
}

double valueOf(const std::string& ascii) {
    double value = 0;
    const auto [end, error] = std::from_chars(ascii.data(), ascii.data() + ascii.size(), value);
    if (error == std::errc::result_out_of_range) {
        const bool tiny = ascii.find("e-") != std::string::npos;
        return tiny ? 0 : std::copysign(std::numeric_limits<double>::infinity(), ascii[0] == '-' ? -1 : 1);
    }
    return value;
}

// What nearly every number is: few digits and nothing else.
std::optional<int> plainDigits(QStringView text) {
    if (text.isEmpty() || text.size() > 9)
        return std::nullopt;
    int value = 0;
    for (const QChar c : text) {
        if (!isDigit(c))
            return std::nullopt;
        value = 10 * value + (c.unicode() - u'0');
    }
    return value;
}

std::optional<int> inRange(int value, int lowest, int highest) {
    return value >= lowest && value <= highest ? std::optional(value) : std::nullopt;
}

std::optional<int> inRange(double value, int lowest, int highest) {
    const double rounded = std::nearbyint(value);
    if (!(rounded >= lowest && rounded <= highest))
        return std::nullopt;
    return static_cast<int>(rounded);
}

} // namespace

QString decodeText(const QByteArray& bytes) {
    if (bytes.startsWith(utf8Mark))
        return QString::fromUtf8(QByteArrayView(bytes).sliced(utf8Mark.size()));
    QString text = QString::fromLatin1(bytes);
    if (isAscii(bytes))
        return text;
    for (QChar& c : text)
        if (c >= QChar(0x80) && c <= QChar(0x9F))
            if (const char16_t mapped = upperControls[c.unicode() - 0x80u])
                c = mapped;
    return text;
}

QByteArray encodeText(const QString& text) {
    QByteArray bytes;
    bytes.reserve(text.size());
    for (const QChar c : text) {
        const int byte = windows1252Byte(c.unicode());
        if (byte < 0)
            return utf8Mark + text.toUtf8();
        bytes.append(static_cast<char>(byte));
    }
    // Bytes that happen to look like the mark would be read back as UTF-8.
    return bytes.startsWith(utf8Mark) ? utf8Mark + text.toUtf8() : bytes;
}

double leadingNumber(QStringView text) {
    const NumberPrefix prefix = numberPrefix(text);
    return prefix.taken == 0 ? 0 : valueOf(prefix.ascii);
}

std::optional<int> leadingInteger(QStringView text, int lowest, int highest) {
    if (const std::optional<int> plain = plainDigits(text))
        return inRange(*plain, lowest, highest);
    return inRange(leadingNumber(text), lowest, highest);
}

std::optional<int> wholeNumber(QStringView text, int lowest, int highest) {
    if (const std::optional<int> plain = plainDigits(text))
        return inRange(*plain, lowest, highest);
    const QStringView trimmed = text.trimmed();
    if (trimmed.startsWith(u"&H", Qt::CaseInsensitive)) {
        bool ok = false;
        QStringView digits = trimmed.sliced(2);
        if (digits.endsWith(u'&'))
            digits.chop(1);
        const uint value = digits.startsWith(u'-') || digits.startsWith(u'+') ? 0 : digits.toUInt(&ok, 16);
        return ok ? inRange(static_cast<int>(value), lowest, highest) : std::nullopt;
    }
    const NumberPrefix prefix = numberPrefix(trimmed);
    if (prefix.taken == 0 || prefix.taken != trimmed.size())
        return std::nullopt;
    return inRange(valueOf(prefix.ascii), lowest, highest);
}

bool isBareNumber(QStringView text) {
    text = text.trimmed();
    if (text.startsWith(u'-') || text.startsWith(u'+'))
        text = text.sliced(1);
    return !text.isEmpty() && std::all_of(text.begin(), text.end(), isDigit);
}

bool isWholeText(const QByteArray& bytes) {
    return !bytes.startsWith(utf8Mark) || QUtf8StringView(bytes.data(), bytes.size()).isValidUtf8();
}

namespace {

char foldedAscii(char16_t c) {
    return static_cast<char>(c >= u'A' && c <= u'Z' ? c + (u'a' - u'A') : c);
}

// Four ASCII characters at a time, each in its sixteen bits: bit 7 of a sum tells a capital letter. Gives the
// characters, since only afterwards is it known whether they were ASCII.
std::uint64_t foldFour(const char16_t* from, char* to) {
    constexpr std::uint64_t ones = 0x0001000100010001u;
    std::uint64_t units;
    std::memcpy(&units, from, sizeof units);
    const std::uint64_t fromA = units + ones * (0x80 - u'A');
    const std::uint64_t beyondZ = units + ones * (0x7F - u'Z');
    std::uint64_t small = units + ((fromA & ~beyondZ & ones * 0x80) >> 2);
    small = (small | small >> 8) & 0x0000FFFF0000FFFFu;
    const auto bytes = static_cast<std::uint32_t>(small | small >> 16);
    std::memcpy(to, &bytes, sizeof bytes);
    return units;
}

std::string foldedUnicode(QStringView text) {
    return text.toString().toLower().toStdString();
}

} // namespace

std::string folded(QStringView text) {
    std::string result;
    appendFolded(result, text);
    return result;
}

// Nearly all texts are ASCII; folding those without the detour counts at the start.
void appendFolded(std::string& all, QStringView text) {
    const auto length = static_cast<size_t>(text.size());
    const char16_t* const from = text.utf16();
    const size_t before = all.size();
    all.resize(before + length);
    char* const to = all.data() + before;
    std::uint64_t seen = 0;
    if (length < 4) {
        for (size_t i = 0; i < length; ++i) {
            seen |= from[i];
            to[i] = foldedAscii(from[i]);
        }
    } else {
        for (size_t i = 0; i + 4 < length; i += 4)
            seen |= foldFour(from + i, to + i);
        seen |= foldFour(from + length - 4, to + length - 4); // some of them once more
    }
    if (seen & beyondAscii<char16_t>)
        all.replace(before, length, foldedUnicode(text));
}

QString withLineBreaks(QString text) {
    if (text.contains(u'\\'))
        text.replace(QLatin1String("\\n"), QLatin1String("\r\n"));
    return text;
}

QString oneLine(QString text) {
    text.replace(QLatin1String("\r\n"), QLatin1String(" "));
    for (QChar& c : text)
        if (c.unicode() < 0x20 || c == QChar(0x85) || c == QChar::LineSeparator ||
            c == QChar::ParagraphSeparator)
            c = u' ';
    return text;
}

QString fixedDigits(int number, int digits) {
    return QString::number(number).rightJustified(digits, u'0').right(digits);
}

} // namespace orvinel
