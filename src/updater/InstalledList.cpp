#include "updater/InstalledList.h"

#include <QCryptographicHash>
#include <QStringList>
#include <QVersionNumber>

#include <algorithm>
#include <set>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype sumDigits = 64;
constexpr qsizetype longestPath = 240; // behind which some systems need to be asked in another way
constexpr qsizetype longestVersion = 32;

bool isSum(QByteArrayView text) {
    return text.size() == sumDigits && std::all_of(text.begin(), text.end(), [](char c) {
               return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f');
           });
}

// As packaging/list-installed lets it be.
bool isPlainPart(const QString& part) {
    const auto odd = [](QChar c) { return c < u' ' || c > u'~' || u"\\:*?\"<>|"_s.contains(c); };
    return !part.isEmpty() && !part.endsWith(u'.') && !part.endsWith(u' ') &&
           std::none_of(part.begin(), part.end(), odd);
}

} // namespace

QByteArray sumOf(const QByteArray& bytes) {
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex();
}

bool isPathBelow(const QString& path) {
    const QStringList parts = path.split(u'/');
    return path.size() <= longestPath && std::all_of(parts.begin(), parts.end(), isPlainPart);
}

std::optional<FileSums> readInstalledList(const QByteArray& text) {
    FileSums sums;
    std::set<QString> folded;
    if (!text.endsWith('\n'))
        return std::nullopt; // cut off
    for (const QByteArray& line : text.chopped(1).split('\n')) {
        const QByteArray sum = line.first(std::min(sumDigits, line.size()));
        if (!isSum(sum) ||
            line.sliced(sumDigits).first(std::min<qsizetype>(2, line.size() - sumDigits)) != "  ")
            return std::nullopt;
        const QString path = QString::fromUtf8(line.sliced(sumDigits + 2));
        if (!isPathBelow(path) || !folded.insert(path.toLower()).second)
            return std::nullopt;
        sums[path] = sum;
    }
    return sums;
}

QString readVersion(const QByteArray& text) {
    const QString version = QString::fromLatin1(text.first(std::min(text.size(), longestVersion))).trimmed();
    return QVersionNumber::fromString(version).isNull() ? QString() : version;
}

bool isOlder(const QString& version, const QString& than) {
    return !version.isEmpty() && !than.isEmpty() &&
           QVersionNumber::fromString(version) < QVersionNumber::fromString(than);
}

} // namespace orvinel
