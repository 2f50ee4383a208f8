#pragma once

#include "base/Complaints.h"
#include "base/Listing.h"
#include "base/PlayerFiles.h"

#include <QDate>
#include <QString>

#include <array>
#include <map>
#include <optional>

namespace orvinel {

struct Progress;

// Fills OpenedOn of every chest from the files of all characters.
void LoadOpenedTreasures(Progress& state, PlayerFiles& files, Complaints* complaints = nullptr);

QString openedTreasuresPath(const Progress& state, int character);
// The text of a character's file for the tables as they stand.
QString openedTreasuresFile(const Progress& state, int character);

struct ChestOpening {
    int treasure = 0;  // an index of Treasures
    int character = 0; // 1..highest character number
    QDate date;        // valid, years 1 to 9999
};
// Notes the day and rewrites the character's file; when that failed the day noted before stands.
SaveResult openTreasure(Progress& state, PlayerFiles& files, const ChestOpening& opening,
                        bool evenIfChanged = false);

// After a character was created: every chest gets an entry for every character number.
void growOpenedTreasures(Progress& state);
// After a character was deleted: it has opened nothing. The file is the caller's.
void forgetOpenedTreasures(Progress& state, int character);

enum class DatePart { Day, Month, Year };
using DateOrder = std::array<DatePart, 3>;

// The order of the parts in the player's short dates, told by how 16 October 2011 looks in them.
DateOrder detectDateOrder(const QString& formatted16Oct2011);

// Of the dialog's date boxes, as they stand.
struct DateFields {
    QString day;
    QString month;
    QString year;
};
// The date that the boxes mean: a day or month beyond its range carries over. Nothing unless the year has
// four digits and the date exists with day and month as written or swapped.
std::optional<QDate> enteredDate(const DateFields& fields);
bool isEnteredDateValid(const DateFields& fields);

// What the box of `part` shows after an arrow key; `direction` is 1 (up) or -1 (down). The limits wrap.
QString stepDate(DatePart part, const QString& text, int direction);

// A date, or the part of a date that a box shows, with ASCII digits: "07", "2011".
QString datePartText(DatePart part, const QDate& date);
// All parts in that order.
QString dateText(const DateOrder& order, const QDate& date, const QString& separator = QStringLiteral("-"));

// Entries of the dialog's lstCharacters: every character number with its name, which may be empty, and behind
// it the day on which it opened the chest, if it has; the item data is the number.
std::vector<ListEntry> chestCharacterEntries(const Progress& state, int treasure, const DateOrder& order);

} // namespace orvinel
