// orvinel-atlas FOLDER OUT: the world as pages for a browser.

#include "app/ProgramState.h"
#include "app/modData.h"
#include "app/modLanguage.h"
#include "base/FileDisk.h"
#include "progress/modCharacters.h"
#include "tools/CommandLine.h"
#include "tools/WorldWalk.h"
#include "tools/atlas/AtlasFolder.h"
#include "tools/atlas/AtlasModel.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>

#ifdef Q_OS_WIN
#include <io.h>
#else
#include <unistd.h>
#endif

#include <cstdio>

using namespace orvinel;
using namespace Qt::Literals::StringLiterals;

namespace {

ExitCode refuse(const QString& reason) {
    printError(u"orvinel-atlas: %1\n"_s.arg(reason));
    return exitUnusable;
}

// The number of the character that the player means by name or number; nothing, with the reason.
std::optional<int> characterNamed(const ProgramState& state, const QString& word, QString& reason) {
    std::vector<int> meant;
    for (const ListEntry& character : namedCharacters(state))
        if (character.text.compare(word, Qt::CaseInsensitive) == 0)
            meant.push_back(character.data);
    bool isNumber = false;
    const int number = word.toInt(&isNumber);
    if (meant.empty() && isNumber && state.Characters.has(number) && !state.Characters[number].isEmpty())
        meant.push_back(number);
    if (meant.size() == 1)
        return meant.front();
    reason = meant.empty()
                 ? u"there is no character \"%1\""_s.arg(word)
                 : u"%1 characters are called \"%2\": give the number"_s.arg(meant.size()).arg(word);
    return std::nullopt;
}

// One line on a terminal while something takes longer than a second.
class ProgressLine {
  public:
    explicit ProgressLine(qsizetype all) : all_(all) { clock_.start(); }
    ~ProgressLine() {
        if (shown_)
            printError(u"\r                    \r"_s);
    }
    void show(int done) {
#ifdef Q_OS_WIN
        const bool terminal = _isatty(_fileno(stderr)) != 0;
#else
        const bool terminal = isatty(STDERR_FILENO) != 0;
#endif
        if (!terminal || clock_.elapsed() < 1000)
            return;
        shown_ = true;
        printError(u"\r%1 / %2"_s.arg(done).arg(all_));
    }

  private:
    qsizetype all_;
    QElapsedTimer clock_;
    bool shown_ = false;
};

ExitCode writePages(const ProgramState& state, const FileDisk& disk, const AtlasChoice& choice,
                    const QString& out) {
    const Atlas atlas = makeAtlas(state, choice, [&](const QString& path) { return disk.length(path) > 0; });
    if (atlas.regions.empty())
        return refuse(u"%1: there is no campaign folder with regions in it"_s.arg(state.AppPath));
    const std::vector<AtlasFile> files = atlasFiles(state, atlas);
    ProgressLine line(std::ssize(files));
    const QString folder = QDir::cleanPath(QFileInfo(out).absoluteFilePath());
    if (const DiskError error = writeAtlasFolder(disk, folder, files, [&](int done) { line.show(done); }))
        return refuse(*error);
    return exitGood;
}

ExitCode run(const QCommandLineParser& line) {
    const QStringList words = line.positionalArguments();
    ProgramState state;
    state.AppPath = programFolder(words[0]);
    FileDisk disk(state.AppPath);
    if (state.AppPath.isEmpty() || !LoadLanguage(state, disk))
        return refuse(u"%1 is no program folder"_s.arg(words[0]));
    PlayerFiles files(disk);
    ComplaintList complaints;
    if (!loadTables(state, files, &complaints))
        return refuse(u"%1: the data files are too large"_s.arg(words[0]));
    for (const Complaint& complaint : complaints.all())
        if (complaint.line == 0 && complaint.field.isEmpty()) // a whole file that could not be read
            return refuse(u"%1: %2"_s.arg(complaint.file, complaint.reason));
    AtlasChoice choice;
    choice.notes = line.isSet(u"notes"_s);
    if (line.isSet(u"character"_s)) {
        QString reason;
        const std::optional<int> character = characterNamed(state, line.value(u"character"_s), reason);
        if (!character)
            return refuse(reason);
        choice.character = *character;
    }
    return writePages(state, disk, choice, words[1]);
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(u"orvinel-atlas"_s);
    QCoreApplication::setApplicationVersion(QStringLiteral(ORVINEL_VERSION));
    QCommandLineParser line;
    line.setApplicationDescription(u"Writes the world as a folder of pages for a browser."_s);
    line.addPositionalArgument(u"FOLDER"_s, u"The program's folder."_s);
    line.addPositionalArgument(u"OUT"_s, u"The folder to be made; an earlier atlas there is replaced."_s);
    line.addOption(
        {u"character"_s, u"Write in what this character has captured and opened."_s, u"NAME|NUMBER"_s});
    line.addOption({u"notes"_s, u"Write in your notes."_s});
    const QCommandLineOption help = line.addHelpOption();
    const QCommandLineOption version = line.addVersionOption();
    const bool understood = line.parse(QStringList(u"orvinel-atlas"_s) + arguments(argc, argv));
    if (understood && line.isSet(help)) {
        print(line.helpText());
        return exitGood;
    }
    if (understood && line.isSet(version)) {
        print(u"orvinel-atlas " ORVINEL_VERSION "\n"_s);
        return exitGood;
    }
    if (!understood || line.positionalArguments().size() != 2)
        return refuse(
            (understood ? u"a program folder and a folder to be made are needed"_s : line.errorText()) +
            u"; orvinel-atlas --help says more"_s);
    return run(line);
}
