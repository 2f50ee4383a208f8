#pragma once

#include <QByteArray>
#include <QString>

#include <map>
#include <optional>

namespace orvinel {

// What a package brings or has brought: the sum of each file by its path from the folder, with '/'.
using FileSums = std::map<QString, QByteArray>;

// Where a folder that players get holds its list and its version.
inline constexpr QLatin1String installedListPath("Data/Installed.txt");
inline constexpr QLatin1String installedVersionPath("Data/Version.txt");

// SHA-256 as it stands in a list: 64 small hexadecimal digits.
QByteArray sumOf(const QByteArray& bytes);

// Nothing when `text` is no list, or names a file that would not lie in the folder.
std::optional<FileSums> readInstalledList(const QByteArray& text);

// A path that leads to a file below the folder, on every system.
bool isPathBelow(const QString& path);

// "4.0.0\n" without its end; empty for what is no version.
QString readVersion(const QByteArray& text);

// False when one of them is empty.
bool isOlder(const QString& version, const QString& than);

} // namespace orvinel
