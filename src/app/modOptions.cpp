#include "app/modOptions.h"

#include "app/ProgramState.h"
#include "base/TextFile.h"

#include <array>
#include <limits>
#include <variant>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

enum class Kind { Number, Zone, Flag, Byte, Mode };

struct Row {
    const char* key;
    Kind kind;
    std::variant<int Options::*, bool Options::*> member;
};

// In the order in which the file is written.
const std::array<Row, 21> rows = {{{"Campaign", Kind::Number, &Options::Campaign},
                                   {"Region", Kind::Number, &Options::Region},
                                   {"Zone", Kind::Zone, &Options::Zone},
                                   {"Profession", Kind::Number, &Options::Profession},
                                   {"SecondaryProfession", Kind::Number, &Options::SecondaryProfession},
                                   {"AllElite", Kind::Flag, &Options::AllElite},
                                   {"Character", Kind::Number, &Options::Character},
                                   {"Legend", Kind::Flag, &Options::Legend},
                                   {"PosX", Kind::Number, &Options::PosX},
                                   {"PosY", Kind::Number, &Options::PosY},
                                   {"DimX", Kind::Number, &Options::DimX},
                                   {"DimY", Kind::Number, &Options::DimY},
                                   {"ShowElites", Kind::Byte, &Options::ShowElites},
                                   {"ShowCollectors", Kind::Byte, &Options::ShowCollectors},
                                   {"ShowGreens", Kind::Byte, &Options::ShowGreens},
                                   {"ShowNotes", Kind::Byte, &Options::ShowNotes},
                                   {"LegendX", Kind::Number, &Options::LegendX},
                                   {"LegendY", Kind::Number, &Options::LegendY},
                                   {"RightClickNeeded", Kind::Mode, &Options::RightClickNeeded},
                                   {"AlwaysOnTop", Kind::Byte, &Options::AlwaysOnTop},
                                   {"CollectorLevel", Kind::Byte, &Options::CollectorLevel}}};

int number(const Options& options, const Row& row) {
    return options.*std::get<int Options::*>(row.member);
}

void store(Options& options, const Row& row, std::optional<int> value) {
    if (row.kind == Kind::Flag) {
        options.*std::get<bool Options::*>(row.member) = value != 0;
        return;
    }
    int& member = options.*std::get<int Options::*>(row.member);
    const int usual = number(Options{}, row);
    const int most = row.kind == Kind::Byte ? 255 : 2;
    if (row.kind == Kind::Zone)
        member = 0; // the zone list always starts on its first entry
    else if (!value || (row.kind != Kind::Number && (*value < 0 || *value > most)))
        member = usual;
    else
        member = *value;
}

QString written(const Options& options, const Row& row) {
    if (row.kind == Kind::Flag)
        return options.*std::get<bool Options::*>(row.member) ? u"-1"_s : u"0"_s;
    if (row.kind == Kind::Mode)
        return number(options, row) == 1 ? u"1"_s : u"2"_s;
    return QString::number(number(options, row));
}

} // namespace

QString optionsPath(const ProgramState& state) {
    return state.AppPath + u"Data/Options.txt"_s;
}

void LoadOptions(ProgramState& state, PlayerFiles& files) {
    state.AppOptions = {};
    TextFile file(files.source(), optionsPath(state));
    while (file.nextLine()) {
        const QStringView line = file.line().trimmed();
        const qsizetype equals = line.indexOf(u'=');
        if (line.startsWith(u'[') || equals < 0)
            continue;
        for (const Row& row : rows)
            if (line.first(equals) == QLatin1String(row.key))
                store(state.AppOptions, row,
                      leadingInteger(line.sliced(equals + 1), std::numeric_limits<int>::min(),
                                     std::numeric_limits<int>::max()));
    }
    files.loaded(optionsPath(state), file);
}

QString optionsFile(const Options& options) {
    QString text = u"[OLD SELECTION]\r\n"_s;
    for (const Row& row : rows)
        text += QLatin1String(row.key) + u'=' + written(options, row) + u"\r\n"_s;
    return text;
}

} // namespace orvinel
