// orvinel-check FOLDER [--summary]: what is wrong with the data below a program folder.

#include "base/FileDisk.h"
#include "tools/CommandLine.h"
#include "tools/WorldCheck.h"

using namespace orvinel;
using namespace Qt::Literals::StringLiterals;

int main(int argc, char** argv) {
    QStringList words = arguments(argc, argv);
    const bool summary = words.removeAll(u"--summary"_s) > 0;
    if (words.size() != 1 || words[0].startsWith(u"--"_s)) {
        printError(u"usage: orvinel-check FOLDER [--summary]\n"_s);
        return exitUnusable;
    }
    const QString folder = programFolder(words[0]);
    if (folder.isEmpty()) {
        printError(u"orvinel-check: no folder %1\n"_s.arg(words[0]));
        return exitUnusable;
    }
    FileDisk disk(folder);
    const WorldFindings result = checkWorld(disk, folder);
    if (summary)
        print(summaryText(result));
    else
        for (const Complaint& finding : result.findings)
            print(findingLine(finding) + u'\n');
    if (result.unreadable) {
        printError(u"orvinel-check: %1 cannot be read as a program folder\n"_s.arg(words[0]));
        return exitUnusable;
    }
    return result.findings.empty() ? exitGood : exitFindings;
}
