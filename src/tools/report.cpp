// orvinel-report FOLDER [--format text|csv|html]: how far each character has come.

#include "app/ProgramState.h"
#include "app/modData.h"
#include "app/modLanguage.h"
#include "base/FileDisk.h"
#include "tools/CommandLine.h"
#include "tools/CompletionReport.h"

using namespace orvinel;
using namespace Qt::Literals::StringLiterals;

namespace {

using Writer = QString (*)(const std::vector<CompletionRow>&);

Writer writerOf(const QString& format) {
    return format == u"text"   ? completionText
           : format == u"csv"  ? completionCsv
           : format == u"html" ? completionHtml
                               : nullptr;
}

} // namespace

int main(int argc, char** argv) {
    const QStringList words = arguments(argc, argv);
    const bool formatted = words.size() == 3 && words[1] == u"--format";
    const Writer writer = formatted ? writerOf(words[2]) : words.size() == 1 ? completionText : nullptr;
    if (!writer) {
        printError(u"usage: orvinel-report FOLDER [--format text|csv|html]\n"_s);
        return exitUnusable;
    }
    ProgramState state;
    state.AppPath = programFolder(words[0]);
    FileDisk disk(state.AppPath);
    if (state.AppPath.isEmpty() || !LoadLanguage(state, disk)) {
        printError(u"orvinel-report: %1 is no program folder\n"_s.arg(words[0]));
        return exitUnusable;
    }
    PlayerFiles files(disk);
    if (!loadTables(state, files)) {
        printError(u"orvinel-report: %1: the data files are too large\n"_s.arg(words[0]));
        return exitUnusable;
    }
    print(writer(completionRows(state)));
    return exitGood;
}
