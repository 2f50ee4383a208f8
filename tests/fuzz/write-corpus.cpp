// write_corpus FOLDER: a folder per reader with the healthy file that mutations begin with.

#include "fuzz/HostileWorld.h"
#include "tools/TarArchive.h"
#include "tools/ZipArchive.h"

#include <QDir>
#include <QFile>

using namespace Qt::Literals::StringLiterals;

namespace {

bool write(const QString& folder, const char* reader, const QByteArray& bytes) {
    const QString name = folder + u'/' + QLatin1String(reader);
    QDir().mkpath(name);
    QFile out(name + u"/healthy"_s);
    return out.open(QIODevice::WriteOnly) && out.write(bytes) == bytes.size();
}

} // namespace

int main(int argc, char** argv) {
    const QString folder = QString::fromLocal8Bit(argc > 1 ? argv[1] : "corpus");
    bool good = true;
    std::vector<orvinel::ArchivedFile> files;
    for (const orvinel::HostileFile& file : orvinel::hostileFiles()) {
        good = write(folder, file.reader, file.good) && good;
        if (QByteArrayView(file.path).startsWith("Personal/"))
            files.push_back({QString::fromLatin1(file.path), file.good});
    }
    const QDateTime then(QDate(2026, 3, 7), QTime(12, 0));
    const QByteArray zip = orvinel::writeZip(files, then);
    const qsizetype seal = zip.lastIndexOf("Orvinel SHA-256 ") - 2; // fuzz_readers puts it on again
    good = write(folder, "zip", zip.first(seal)) && good;
    return write(folder, "tar", orvinel::writeTar(files, then).value_or(QByteArray())) && good ? 0 : 1;
}
