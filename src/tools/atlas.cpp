// orvinel-atlas FOLDER OUT: the world as pages for a browser.

#include "tools/CommandLine.h"
#include "tools/OpenedFolder.h"
#include "tools/atlas/AtlasFolder.h"
#include "tools/atlas/AtlasModel.h"

#include <QDir>
#include <QFileInfo>

using namespace orvinel;
using namespace Qt::Literals::StringLiterals;

namespace {

const ToolTable table = {
    u"orvinel-atlas"_s,
    u"Writes the world as a folder of pages for a browser."_s,
    {{u"FOLDER"_s, u"The program's folder."_s},
     {u"OUT"_s, u"The folder to be made; an earlier atlas there is replaced."_s}},
    {{u"character"_s, u"Write in what this character has captured and opened."_s, u"NAME|NUMBER"_s},
     {u"notes"_s, u"Write in your notes."_s}}};

int write(const CommandLine& line, const OpenedFolder& folder, const AtlasChoice& choice) {
    const Atlas atlas =
        makeAtlas(folder.state, choice, [&](const QString& path) { return folder.disk.length(path) > 0; });
    if (atlas.regions.empty())
        return line.refuse(u"%1: there is no campaign folder with regions in it"_s.arg(folder.path));
    const std::vector<AtlasFile> files = atlasFiles(folder.state, atlas);
    const QString out = QDir::cleanPath(QFileInfo(line.word(1)).absoluteFilePath());
    ProgressLine progress;
    const DiskError error =
        writeAtlasFolder(folder.disk, out, files, [&](int done) { progress.show(done, std::ssize(files)); });
    return error ? line.refuse(*error) : ExitGood;
}

int run(const CommandLine& line) {
    const OpenedFolder folder(line.word(0));
    if (!folder.problem.isEmpty())
        return line.refuse(folder.problem);
    AtlasChoice choice;
    choice.notes = line.has(u"notes"_s);
    if (line.has(u"character"_s)) {
        QString reason;
        const auto meant = characterMeant(folder.state, line.value(u"character"_s), reason);
        if (!meant)
            return line.refuse(reason);
        choice.character = *meant;
    }
    return write(line, folder, choice);
}

} // namespace

int main(int argc, char** argv) {
    const CommandLine line(table, argc, argv);
    return line.ended() ? *line.ended() : run(line);
}
