#include "progress/OpenedTreasures.h"

#include "base/TextFile.h"
#include "progress/Progress.h"
#include "progress/modCharacters.h"

#include <algorithm>
#include <map>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int earliestYear = 1;
constexpr int latestYear = 9999;         // a date in the files has four digits for it
constexpr int earliestEnteredYear = 100; // "0011" is a slip for 2011, not the year 11

struct Limits {
    int lowest;
    int highest;
    int digits;
};

Limits limitsOf(DatePart part) {
    switch (part) {
    case DatePart::Day:
        return {1, 31, 2};
    case DatePart::Month:
        return {1, 12, 2};
    default:
        return {2006, 2100, 4};
    }
}

// QDate and QString::number write ASCII digits whatever the player's locale.
QString padded(int number, int digits) {
    return QString::number(number).rightJustified(digits, u'0');
}

// A month or day beyond its range carries over.
std::optional<QDate> carriedDate(int year, int month, int day) {
    const int months = month - 1;
    const int carry = months >= 0 ? months / 12 : (months - 11) / 12;
    const QDate first(year + carry, months - carry * 12 + 1, 1);
    const QDate date = first.addDays(day - 1);
    if (!date.isValid() || date.year() < earliestYear || date.year() > latestYear)
        return std::nullopt;
    return date;
}

// "ddmmyyyy"; nothing for any other length and for what gives no date.
std::optional<QDate> readDate(QStringView text) {
    if (text.size() != 8)
        return std::nullopt;
    const auto day = leadingInteger(text.first(2), -9, 99);
    const auto month = leadingInteger(text.sliced(2, 2), -9, 99);
    const auto year = leadingInteger(text.last(4), earliestYear, latestYear);
    if (text.trimmed().isEmpty() || !day || !month || !year)
        return std::nullopt;
    return carriedDate(*year, *month, *day);
}

QString writtenDate(const QDate& date) {
    return padded(date.day(), 2) + padded(date.month(), 2) + padded(date.year(), 4);
}

QString writtenLine(int treasure, const QDate& date) {
    return padded(treasure, 4) + u'\t' + writtenDate(date) + u"\r\n"_s;
}

// `seen`: what earlier lines of the file said.
void readLine(Progress& state, int character, TextFile& file, std::map<int, QDate>& seen) {
    if (!file.hasFields(1) || file.line().trimmed().isEmpty())
        return;
    const auto treasure = file.integer(0, "chest", 1, largestIdentifier);
    if (!treasure)
        return;
    const auto date = readDate(file.field(1));
    if (!date)
        file.skip(u"date"_s, u"\"%1\" is not a date (ddmmyyyy)"_s.arg(file.field(1)));
    else if (writtenDate(*date) != file.field(1))
        file.skip(u"date"_s, u"\"%1\" is taken for %2"_s.arg(file.field(1), writtenDate(*date)));
    else if (!seen.emplace(*treasure, *date).second && seen[*treasure] != *date)
        file.skip(u"chest"_s, u"a second line of this chest"_s);
    file.keepsOnly(2, {0});
    if (state.Treasures.has(*treasure))
        state.Treasures[*treasure].OpenedOn[static_cast<size_t>(character)] = date.value_or(QDate());
    else if (date)
        state.ChestsBeyondTable[character][*treasure] = *date;
    else
        state.ChestsBeyondTable[character].erase(*treasure);
}

// The value of a box that holds ASCII digits only, `fewest` to `most` of them.
std::optional<int> boxNumber(const QString& text, qsizetype fewest, qsizetype most) {
    const auto isDigit = [](QChar c) { return c >= u'0' && c <= u'9'; };
    if (text.size() < fewest || text.size() > most || !std::all_of(text.begin(), text.end(), isDigit))
        return std::nullopt;
    return text.toInt();
}

} // namespace

void LoadOpenedTreasures(Progress& state, PlayerFiles& files, Complaints* complaints) {
    growOpenedTreasures(state);
    state.ChestsBeyondTable.clear();
    for (int c = 1; c <= state.Characters.highest(); ++c) {
        const QString path = openedTreasuresPath(state, c);
        TextFile file(files.source(), path, complaints);
        std::map<int, QDate> seen;
        while (file.nextLine())
            readLine(state, c, file, seen);
        files.loaded(path, file);
    }
}

QString openedTreasuresPath(const Progress& state, int character) {
    return characterFilePath(state, character, u"OpenedTreasures.txt"_s);
}

QString openedTreasuresFile(const Progress& state, int character) {
    QString text;
    for (int t = 1; t <= state.Treasures.count(); ++t)
        if (const QDate date = state.Treasures[t].openedBy(character); date.isValid())
            text += writtenLine(t, date);
    if (const auto unknown = state.ChestsBeyondTable.find(character);
        unknown != state.ChestsBeyondTable.end())
        for (const auto& [treasure, date] : unknown->second)
            text += writtenLine(treasure, date);
    return text;
}

SaveResult openTreasure(Progress& state, PlayerFiles& files, const ChestOpening& opening,
                        bool evenIfChanged) {
    growOpenedTreasures(state);
    QDate& noted = state.Treasures[opening.treasure].OpenedOn[static_cast<size_t>(opening.character)];
    const QDate before = std::exchange(noted, opening.date);
    SaveResult result = files.save(openedTreasuresPath(state, opening.character),
                                   openedTreasuresFile(state, opening.character), evenIfChanged);
    if (!result.saved())
        noted = before;
    return result;
}

void growOpenedTreasures(Progress& state) {
    const size_t count = static_cast<size_t>(state.Characters.highest()) + 1;
    for (Treasure& treasure : state.Treasures)
        if (treasure.OpenedOn.size() < count)
            treasure.OpenedOn.resize(count);
}

void forgetOpenedTreasures(Progress& state, int character) {
    for (Treasure& treasure : state.Treasures)
        if (static_cast<size_t>(character) < treasure.OpenedOn.size())
            treasure.OpenedOn[static_cast<size_t>(character)] = QDate();
    state.ChestsBeyondTable.erase(character);
}

DateOrder detectDateOrder(const QString& formatted) {
    const qsizetype fullYear = formatted.indexOf(u"2011"_s);
    struct Found {
        DatePart part;
        qsizetype at;
    };
    // Where a search fails the positions may be equal; then this order decides.
    std::array<Found, 3> found = {{{DatePart::Month, formatted.indexOf(u"10"_s)},
                                   {DatePart::Year, fullYear >= 0 ? fullYear : formatted.indexOf(u"11"_s)},
                                   {DatePart::Day, formatted.indexOf(u"16"_s)}}};
    std::stable_sort(found.begin(), found.end(), [](const Found& a, const Found& b) { return a.at < b.at; });
    return {found[0].part, found[1].part, found[2].part};
}

std::optional<QDate> enteredDate(const DateFields& fields) {
    const auto day = boxNumber(fields.day, 1, 4);
    const auto month = boxNumber(fields.month, 1, 4);
    const auto year = boxNumber(fields.year, 4, 4);
    if (!day || !month || !year || *year < earliestEnteredYear)
        return std::nullopt;
    if (!QDate::isValid(*year, *month, *day) && !QDate::isValid(*year, *day, *month))
        return std::nullopt;
    return carriedDate(*year, *month, *day);
}

bool isEnteredDateValid(const DateFields& fields) {
    return enteredDate(fields).has_value();
}

QString stepDate(DatePart part, const QString& text, int direction) {
    const Limits limits = limitsOf(part);
    const auto value = leadingInteger(text, 0, 999'999);
    if (!value)
        return text;
    int stepped = *value + direction;
    if (direction > 0 && *value == limits.highest)
        stepped = limits.lowest;
    else if (direction < 0 && (*value == limits.lowest || *value == 0))
        stepped = limits.highest;
    return padded(std::max(0, stepped), limits.digits);
}

QString datePartText(DatePart part, const QDate& date) {
    const int value = part == DatePart::Day     ? date.day()
                      : part == DatePart::Month ? date.month()
                                                : date.year();
    return padded(value, limitsOf(part).digits);
}

QString dateText(const DateOrder& order, const QDate& date, const QString& separator) {
    return datePartText(order[0], date) + separator + datePartText(order[1], date) + separator +
           datePartText(order[2], date);
}

std::vector<ListEntry> chestCharacterEntries(const Progress& state, int treasure, const DateOrder& order) {
    std::vector<ListEntry> entries;
    for (int c = 1; c <= state.Characters.highest(); ++c) {
        QString text = state.Characters[c];
        if (const QDate date = state.Treasures[treasure].openedBy(c); date.isValid())
            text += u" ("_s + dateText(order, date) + u')';
        entries.push_back({text, c});
    }
    return entries;
}

} // namespace orvinel
