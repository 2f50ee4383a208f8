#include "updater/window/Downloads.h"

#include <QDir>
#include <QRegularExpression>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

bool isPackageName(const QString& name) {
    // Browsers number a second download: "Orvinel-4.1.0-windows (1).zip".
#ifdef Q_OS_WIN
    const QString pattern = u"^Orvinel-.*(windows.*\\.zip|setup.*\\.exe)$"_s;
#else
    const QString pattern = u"^Orvinel-(?!.*windows).*(\\.zip|\\.tar( \\(\\d+\\))?\\.[gx]z|\\.t[gx]z)$"_s;
#endif
    return QRegularExpression(pattern, QRegularExpression::CaseInsensitiveOption).match(name).hasMatch();
}

QString newestPackage(const QString& folder) {
    if (folder.isEmpty())
        return {};
    for (const QFileInfo& file : QDir(folder).entryInfoList(QDir::Files, QDir::Time))
        if (isPackageName(file.fileName()))
            return file.absoluteFilePath();
    return {};
}

} // namespace orvinel
