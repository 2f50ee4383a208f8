#include "tools/CommandLine.h"

#include <QDir>
#include <QProcess>

#include <algorithm>
#include <cstdio>

#ifdef Q_OS_WIN
#include <io.h>
#include <memory>
#include <windows.h>

#include <shellapi.h>
#else
#include <langinfo.h>
#include <unistd.h>

#include <clocale>
#endif

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qint64 quietTime = 1000; // milliseconds before a progress line appears
constexpr qint64 lineTime = 100;   // between two states of it
constexpr int barLength = 30;

bool errorsOnTerminal() {
#ifdef Q_OS_WIN
    return _isatty(_fileno(stderr)) != 0;
#else
    return isatty(STDERR_FILENO) != 0;
#endif
}

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

#ifdef Q_OS_WIN
// After a double click the tool has a console for itself, which goes with it: orvinel-beside, which lies
// beside it, does what a player can want of it, without one.
bool handOver(const QString& tool) {
    DWORD users[2];
    if (GetConsoleProcessList(users, 2) != 1)
        return false;
    QProcess beside;
    beside.setProgram(QCoreApplication::applicationDirPath() + u"/orvinel-beside.exe"_s);
    beside.setArguments({tool.sliced(u"orvinel-"_s.size())});
    beside.setCreateProcessArgumentsModifier([](QProcess::CreateProcessArguments* process) {
        process->flags &= ~static_cast<unsigned long>(CREATE_NEW_CONSOLE | CREATE_NO_WINDOW);
        process->flags |= DETACHED_PROCESS;
    });
    return beside.startDetached();
}
#else
bool handOver(const QString&) {
    return false;
}
#endif

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

CommandLine::CommandLine(const ToolTable& table, int argc, char** argv)
    : name_(table.name.toLatin1()), argv_{name_.data(), nullptr}, application_(argc_, argv_) {
#ifndef Q_OS_WIN
    // Names in archives go through the C library's locale; files' names are UTF-8 to Qt whatever that is.
    if (qstrcmp(nl_langinfo(CODESET), "UTF-8") != 0)
        std::setlocale(LC_CTYPE, "C.UTF-8");
#endif
    parser_.setApplicationDescription(table.description);
    for (const ToolTable::Word& word : table.words)
        parser_.addPositionalArgument(word.name, word.description, word.name);
    for (const ToolTable::Option& option : table.options)
        parser_.addOption({option.name, option.description, option.value});
    ended_ = understand(table, arguments(argc, argv));
}

std::optional<int> CommandLine::understand(const ToolTable& table, const QStringList& words) {
    if (words.isEmpty() && handOver(table.name))
        return ExitGood;
    const QCommandLineOption help({u"h"_s, u"help"_s}, u"Print this help."_s);
    const QCommandLineOption version({u"v"_s, u"version"_s}, u"Print the version."_s);
    parser_.addOption(help);
    parser_.addOption(version);
    const bool understood = parser_.parse(QStringList(table.name) + words);
    if (understood && parser_.isSet(help)) {
        print(parser_.helpText());
        return ExitGood;
    }
    if (understood && parser_.isSet(version)) {
        print(table.name + u" " ORVINEL_VERSION "\n"_s);
        return ExitGood;
    }
    if (!understood)
        return misunderstood(parser_.errorText());
    const auto needed = std::count_if(table.words.begin(), table.words.end(),
                                      [](const auto& word) { return !word.name.startsWith(u'['); });
    const bool endless = !table.words.empty() && table.words.back().name.contains(u"..."_s);
    if (parser_.positionalArguments().size() < needed)
        return misunderstood(u"%1 is missing"_s.arg(
            table.words[static_cast<size_t>(parser_.positionalArguments().size())].name));
    if (!endless && parser_.positionalArguments().size() > std::ssize(table.words))
        return misunderstood(u"there is no use for \"%1\""_s.arg(word(static_cast<int>(table.words.size()))));
    return std::nullopt;
}

int CommandLine::refuse(const QString& reason, ExitCode code) const {
    printError(QString::fromLatin1(name_) + u": "_s + reason + u'\n');
    return code;
}

int CommandLine::misunderstood(const QString& reason) const {
    return refuse(reason + u"; \"%1 --help\" says more"_s.arg(QLatin1String(name_)));
}

ProgressLine::ProgressLine() : terminal_(errorsOnTerminal()) {
    clock_.start();
}

ProgressLine::~ProgressLine() {
    if (shown_)
        printError(u'\r' + QString(barLength + 8, u' ') + u'\r');
}

void ProgressLine::show(qint64 done, qint64 all) {
    const qint64 now = clock_.elapsed();
    if (!terminal_ || all < 1 || now < quietTime || now - last_ < lineTime)
        return;
    last_ = now;
    shown_ = true;
    const auto filled = static_cast<qsizetype>(std::clamp<qint64>(done * barLength / all, 0, barLength));
    printError(u"\r[%1%2] %3 %"_s.arg(QString(filled, u'#'), QString(barLength - filled, u'.'))
                   .arg(done * 100 / all, 3));
}

void print(const QString& text) {
    write(stdout, text);
}

void printError(const QString& text) {
    write(stderr, text);
}

} // namespace orvinel
