#pragma once

#include <QByteArray>
#include <QString>
#include <QStringView>

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

namespace orvinel {

// The rules that all text files of the program share: code page, numbers, fields, folding for searches.

// Bytes to text: Windows-1252, or UTF-8 when the bytes begin with its byte order mark. Bytes that the
// code page leaves undefined become the control character of the same value, so nothing is lost.
QString decodeText(const QByteArray& bytes);

// Text to bytes in Windows-1252; when a character does not fit, the whole text as UTF-8 with the mark.
QByteArray encodeText(const QString& text);

// The value of the number at the beginning of `text`: leading blanks, sign, digits, decimal part, exponent;
// 0 when there is none ("12abc" is 12, "abc" is 0). Beyond the range of double: infinity.
double leadingNumber(QStringView text);

// The leading number rounded to the nearest integer, halves to even; nothing when outside lowest..highest.
std::optional<int> leadingInteger(QStringView text, int lowest, int highest);

// As leadingInteger, but the whole field (blanks at both ends aside) must be the number. "&H1F" is
// hexadecimal.
std::optional<int> wholeNumber(QStringView text, int lowest, int highest);

// Nothing but digits, with a sign before them or blanks around them: what is written again for the number
// says the same.
bool isBareNumber(QStringView text);

// False: the bytes begin with UTF-8's mark, and there are some among them that are none. decodeText gives
// U+FFFD in their place.
bool isWholeText(const QByteArray& bytes);

// Lower-cased UTF-8 of a text: one substring search in it is a case-insensitive search in the text.
std::string folded(QStringView text);
// Appends folded(text) to `all`.
void appendFolded(std::string& all, QStringView text);

// "\n" written as backslash and n becomes CR LF.
QString withLineBreaks(QString text);

// Whether there is nothing to be seen: no character, or blanks alone.
inline bool isBlank(QStringView text) {
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c.isSpace(); });
}

// A text typed or pasted into a one-line field: TAB and every kind of line break become blanks.
QString oneLine(QString text);

// `number` as at least `digits` ASCII digits; of a longer number only the last `digits` remain.
QString fixedDigits(int number, int digits);

} // namespace orvinel
