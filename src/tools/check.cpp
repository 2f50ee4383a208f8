// orvinel-check: what is wrong with the data below a program folder.

#include "base/FileDisk.h"
#include "tools/CommandLine.h"
#include "tools/WorldCheck.h"

using namespace orvinel;
using namespace Qt::Literals::StringLiterals;

namespace {

const ToolTable table = {u"orvinel-check"_s,
                         u"Finds what is wrong with the data files."_s,
                         {{u"FOLDER"_s, u"The program's folder."_s}},
                         {{u"summary"_s, u"Print only how many findings there are."_s},
                          {u"json"_s, u"Print the findings for editors and scripts."_s},
                          {u"werror"_s, u"Take warnings for errors: they too make the exit code 1."_s}}};

int run(const CommandLine& line, const QString& folder) {
    FileDisk disk(folder);
    const WorldFindings result = checkWorld(disk, folder);
    if (line.has(u"json"_s))
        print(findingsJson(result));
    else if (line.has(u"summary"_s))
        print(summaryText(result));
    else
        for (const Finding& finding : result.findings)
            print(findingLine(finding) + u'\n');
    if (result.unreadable)
        return line.refuse(u"%1 cannot be read as a program folder"_s.arg(line.word(0)));
    return result.counts.errors > 0 || (line.has(u"werror"_s) && !result.findings.empty()) ? ExitFindings
                                                                                           : ExitGood;
}

} // namespace

int main(int argc, char** argv) {
    const CommandLine line(table, argc, argv);
    if (line.ended())
        return *line.ended();
    if (line.has(u"json"_s) && line.has(u"summary"_s))
        return line.misunderstood(u"--json and --summary exclude each other"_s);
    const QString folder = programFolder(line.word(0));
    if (folder.isEmpty())
        return line.refuse(u"no folder %1"_s.arg(line.word(0)));
    return run(line, folder);
}
