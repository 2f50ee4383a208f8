#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace orvinel {

struct Progress;

// A boss to look for.
struct MissingSkill {
    int skill = 0;
    QString name; // as in every list, with the profession's abbreviation
    QString boss;
    QString note; // lines end with CR LF
    QString code; // in the boss's marker
    QStringList greens;
    QString picture; // full path, whether or not the file exists; empty: none
    int places = 1;  // of the zone where that boss may stand

    bool operator==(const MissingSkill&) const = default;
};

struct MissingChest {
    int chest = 0;
    QString name;
};

struct MissingZone {
    QString name; // empty: in no zone that the region knows
    std::vector<MissingSkill> skills;
    std::vector<MissingChest> chests;
};

struct MissingRegion {
    QString campaign;
    QString name; // empty: no such region
    std::vector<MissingZone> zones;
};

// What the character has still to do, in an order to be walked: campaigns and their regions as in every menu,
// zones by name, skills in the order of their list, chests in that of their table. The skills are those that
// the panel's "Missing for" lists, each once at every
// boss of a zone that carries it.
std::vector<MissingRegion> missingList(const Progress& state, int character);

} // namespace orvinel
