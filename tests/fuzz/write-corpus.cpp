// write_corpus FOLDER: a folder per reader with the healthy file that mutations begin with.

#include "fuzz/HostileWorld.h"

#include <QDir>
#include <QFile>

int main(int argc, char** argv) {
    const QString folder = QString::fromLocal8Bit(argc > 1 ? argv[1] : "corpus");
    for (const orvinel::HostileFile& file : orvinel::hostileFiles()) {
        const QString name = folder + u'/' + QLatin1String(file.reader);
        QDir().mkpath(name);
        QFile out(name + QStringLiteral("/healthy"));
        if (!out.open(QIODevice::WriteOnly) || out.write(file.good) < 0)
            return 1;
    }
    return 0;
}
