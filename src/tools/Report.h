#pragma once

#include "tools/CompletionReport.h"
#include "tools/MissingList.h"
#include "tools/Winnings.h"

#include <QByteArray>
#include <QString>

#include <functional>
#include <optional>
#include <vector>

namespace orvinel {

struct ProgramState;

// All that can be said of one character.
struct CharacterReport {
    QString name;
    int number = 0;
    std::vector<CompletionRow> rows;
    CompletionGrid grid;
    std::vector<ChestCount> chests;
    std::vector<MissingRegion> missing;
    std::optional<Winnings> won; // since the backup that was asked for
};

struct Report {
    std::vector<CharacterReport> characters;
    QString since;        // the backup's name
    bool missing = false; // what is still to do was asked for
};

// `character` 0: every named one. `before` may be nullptr.
Report makeReport(const ProgramState& state, int character, const ProgramState* before);

// For people to read on a terminal, in the language of the language file.
QString reportText(const ProgramState& state, const Report& report);
// Comma-separated with a heading, CR LF, texts quoted. One table: what is still to do or was won when that
// was asked for, else how far everything is.
QString reportCsv(const Report& report);
QString reportJson(const Report& report);
// A page of its own, without anything from elsewhere. `picture` gives a small JPEG's bytes, empty when there
// is none.
QString reportHtml(const ProgramState& state, const Report& report,
                   const std::function<QByteArray(const QString& path)>& picture);

} // namespace orvinel
