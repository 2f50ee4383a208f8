#include "tools/CommandLine.h"

#include <QDir>

#include <cstdio>

namespace orvinel {

namespace {

void write(std::FILE* stream, const QString& text) {
    const QByteArray bytes = text.toUtf8();
    std::fwrite(bytes.constData(), 1, static_cast<size_t>(bytes.size()), stream);
}

} // namespace

QStringList arguments(int argc, char** argv) {
    QStringList words;
    for (int i = 1; i < argc; ++i)
        words << QString::fromLocal8Bit(argv[i]);
    return words;
}

QString programFolder(const QString& argument) {
    const QDir folder(argument);
    if (argument.isEmpty() || !folder.exists())
        return {};
    const QString path = folder.absolutePath();
    return path.endsWith(u'/') ? path : path + u'/';
}

void print(const QString& text) {
    write(stdout, text);
}

void printError(const QString& text) {
    write(stderr, text);
}

} // namespace orvinel
