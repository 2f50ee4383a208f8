#pragma once

#include <QDate>
#include <QString>

#include <vector>

namespace orvinel {

struct Progress;

// So many of so many.
struct Share {
    int done = 0;
    int all = 0;

    void add(bool isDone) {
        ++all;
        done += isDone ? 1 : 0;
    }
    // In percent, rounded down, so that 100 means all; `all` is above 0.
    int percent() const { return static_cast<int>(100ll * done / all); }
    bool operator==(const Share&) const = default;
};

// How far a character has come in one part of the world.
struct CompletionRow {
    enum class Part { World, Campaign, Region, Profession };
    Part part = Part::World;
    QString name;     // of the campaign, region or profession; empty for the world
    QString campaign; // of a region
    Share skills;     // captured
    Share chests;     // opened

    bool operator==(const CompletionRow&) const = default;
};

// The world, then campaigns, regions and professions that have skills or chests. A skill counts for the
// campaign whose list defines it, for its profession, and once for every region where a boss carries it.
std::vector<CompletionRow> completionRows(const Progress& state, int character);

// The skills captured, by region and profession: both only those that have skills.
struct CompletionGrid {
    struct Head {
        QString name;
        QString abbreviation;
    };
    struct Line {
        QString region;
        QString campaign;
        std::vector<Share> shares; // by profession
    };
    std::vector<Head> professions;
    std::vector<Line> lines;
};
CompletionGrid completionGrid(const Progress& state, int character);

// Chests opened in a month, or in a year (month 0) where the days are too far apart for months.
struct ChestCount {
    int year = 0;
    int month = 0;
    int chests = 0;

    bool operator==(const ChestCount&) const = default;
};
// In order of time; months without a chest in between stand with 0.
std::vector<ChestCount> chestCounts(const Progress& state, int character);

} // namespace orvinel
