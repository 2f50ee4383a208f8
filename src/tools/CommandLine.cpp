#include "tools/CommandLine.h"

#include <QDir>

#include <cstdio>

#ifdef Q_OS_WIN
#include <io.h>
#include <memory>
#include <windows.h>

#include <shellapi.h>
#endif

namespace orvinel {

namespace {

void write(std::FILE* stream, const QString& text) {
#ifdef Q_OS_WIN
    // A console takes UTF-8 only after it has been told so, for good; a file takes it as it is.
    HANDLE console = reinterpret_cast<HANDLE>(_get_osfhandle(_fileno(stream)));
    DWORD mode = 0;
    if (GetConsoleMode(console, &mode)) {
        WriteConsoleW(console, text.utf16(), static_cast<DWORD>(text.size()), nullptr, nullptr);
        return;
    }
#endif
    const QByteArray bytes = text.toUtf8();
    std::fwrite(bytes.constData(), 1, static_cast<size_t>(bytes.size()), stream);
}

} // namespace

#ifdef Q_OS_WIN

// main's own have lost what the machine's code page lacks.
QStringList arguments(int, char**) {
    int count = 0;
    const std::unique_ptr<LPWSTR, decltype(&LocalFree)> wide(CommandLineToArgvW(GetCommandLineW(), &count),
                                                             &LocalFree);
    QStringList words;
    for (int i = 1; wide && i < count; ++i)
        words << QString::fromWCharArray(wide.get()[i]);
    return words;
}

#else

QStringList arguments(int argc, char** argv) {
    QStringList words;
    for (int i = 1; i < argc; ++i)
        words << QString::fromLocal8Bit(argv[i]);
    return words;
}

#endif

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
