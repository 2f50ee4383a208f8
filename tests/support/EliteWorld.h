#pragma once

#include "app/ProgramState.h"
#include "layers/EliteFiles.h"
#include "layers/modGreenies.h"
#include "progress/CapturedSkills.h"
#include "progress/modCharacters.h"
#include "support/MemoryDisk.h"
#include "world/HitIndex.h"
#include "world/modCampaigns.h"
#include "world/modProfessions.h"

#include <ostream>

namespace orvinel {

// Three campaigns (0 Core, 1 Ash, 2 Bay), three professions and two characters; tests add the files of skills
// and bosses and load.
struct EliteWorld {
    MemoryDisk disk;
    PlayerFiles files{disk};
    ProgramState state;

    EliteWorld() {
        state.AppPath = QStringLiteral("/o/");
        state.LanguageTable.grow(9) = QStringLiteral("All");
        state.LanguageTable.grow(45) = QStringLiteral("No attribute");
        file(0, "Professions.txt",
             "1\tWarden\t4369\tW\tFire\r\n2\tMage\t8738\tM\tIce\tWind\r\n3\tBard\t3\tB\r\n");
        file(1, "Regions.txt", "1\tCoast\r\n2\tHills\r\n");
        file(1, "Zones.txt",
             "5\t1\t2\t1\t9\t9\tMirefen\r\n8\t1\t2\t1\t9\t9\tBarrow\r\n7\t2\t2\t1\t9\t9\tTarn\r\n");
        file(2, "Regions.txt", "1\tShallows\r\n");
        disk.put(QStringLiteral("/o/Personal/Characters.txt"), "01\tAda\r\n02\tBert\r\n");
    }

    void file(int campaign, const char* name, const QByteArray& content) {
        static constexpr const char* folders[] = {"/o/Campaign.00.Core/", "/o/Campaign.01.Ash/",
                                                  "/o/Campaign.02.Bay/"};
        disk.put(QString::fromLatin1(folders[campaign]) + QString::fromLatin1(name), content);
    }

    void load() {
        LoadCharacters(state, files);
        LoadCampaigns(state, disk);
        LoadZones(state, disk);
        LoadProfessions(state, disk);
        LoadEliteSkills(state, disk);
        LoadGreens(state, disk);
        LoadEliteLocations(state, disk);
        LoadCapturedSkills(state, files);
    }
};

inline std::vector<int> dataOf(const std::vector<ListEntry>& entries) {
    std::vector<int> data;
    for (const ListEntry& entry : entries)
        data.push_back(entry.data);
    return data;
}

inline void PrintTo(const HitArea& area, std::ostream* out) {
    *out << area.id << '/' << area.part << " at " << area.left << ',' << area.top;
}
inline void PrintTo(const Marker& marker, std::ostream* out) {
    *out << (marker.kind == Marker::Kind::Box ? "box" : "sprite") << " at " << marker.left << ','
         << marker.top << " to " << marker.right << ',' << marker.bottom << " \"" << marker.code.toStdString()
         << '"';
}

} // namespace orvinel
