#include "base/SingleInstance.h"

#ifdef Q_OS_WIN
#include <QCryptographicHash>
#include <QDir>

#include <windows.h>
#else
#include <QFile>

#include <cerrno>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>
#endif

namespace orvinel {

#ifdef Q_OS_WIN

SingleInstance::SingleInstance(const QString& folder) {
    const QByteArray path = QDir(folder).canonicalPath().toLower().toUtf8();
    const QByteArray name = "Orvinel-" + QCryptographicHash::hash(path, QCryptographicHash::Sha1).toHex();
    mutex_ = CreateMutexA(nullptr, FALSE, name.constData());
    first_ = !(mutex_ && GetLastError() == ERROR_ALREADY_EXISTS);
}

SingleInstance::~SingleInstance() {
    if (mutex_)
        CloseHandle(mutex_);
}

#else

SingleInstance::SingleInstance(const QString& folder) {
    // Closed on exec: a document or the updater that the program starts must not keep the lock.
    folder_ = open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    first_ = folder_ < 0 || flock(folder_, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
}

SingleInstance::~SingleInstance() {
    if (folder_ >= 0)
        close(folder_);
}

#endif

} // namespace orvinel
