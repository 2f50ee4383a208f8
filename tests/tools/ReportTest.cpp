#include "tools/Report.h"
#include "app/modData.h"
#include "layers/modElite.h"
#include "support/EliteWorld.h"
#include "tools/SnapshotDisk.h"

#include <QJsonDocument>
#include <QJsonValue>

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <set>

namespace orvinel {
namespace {

using namespace Qt::Literals::StringLiterals;

struct ReportTest : testing::Test, EliteWorld {
    ReportTest() {
        file(1, "EliteList.txt", "1\t1\tOne\r\n2\t2\tTwo\r\n");
        file(2, "EliteList.txt", "3\t1\tThree\r\n");
        file(1, "EliteLocations.txt",
             ";[Version]1."
             "1\r\n1\t1\t50\t50\tBorg\t\t5\r\n1\t1\t90\t90\tUlf\t\t5\r\n2\t2\t50\t50\tEir\t\t7\r\n");
        disk.put(u"/o/Campaign.03.Sunhollow/Regions.txt"_s, "1\tDunes\r\n");
        disk.put(u"/o/Campaign.03.Sunhollow/Treasures.txt"_s, "Urn\t9\t9\t1\t1\r\nBox\t40\t40\t1\t1\r\n");
        disk.put(u"/o/Personal/Characters.txt"_s, "01\tA \"b\" <c>\r\n02\tBert\r\n");
        disk.put(u"/o/Personal/Char01CapElite.txt"_s, "0001\r\n0003\r\n");
        disk.put(u"/o/Personal/Char01OpenedTreasures.txt"_s, "0002\t01012026\r\n");
        loadTables(state, files);
    }
};

TEST_F(ReportTest, countsEverySkillOnceInEachPart) {
    const QString csv = reportCsv(makeReport(state, 0, nullptr));
    EXPECT_EQ(u"character,part,name,campaign,captured,skills,opened,chests\r\n"
              "\"A \"\"b\"\" <c>\",\"World\",\"\",\"\",2,3,1,2\r\n"
              "\"A \"\"b\"\" <c>\",\"Campaign\",\"Ash\",\"\",1,2,0,0\r\n"
              "\"A \"\"b\"\" <c>\",\"Campaign\",\"Bay\",\"\",1,1,0,0\r\n"
              "\"A \"\"b\"\" <c>\",\"Campaign\",\"Sunhollow\",\"\",0,0,1,2\r\n"
              "\"A \"\"b\"\" <c>\",\"Region\",\"Coast\",\"Ash\",1,1,0,0\r\n"
              "\"A \"\"b\"\" <c>\",\"Region\",\"Hills\",\"Ash\",0,1,0,0\r\n"
              "\"A \"\"b\"\" <c>\",\"Region\",\"Dunes\",\"Sunhollow\",0,0,1,2\r\n"
              "\"A \"\"b\"\" <c>\",\"Profession\",\"Warden\",\"\",2,2,0,0\r\n"
              "\"A \"\"b\"\" <c>\",\"Profession\",\"Mage\",\"\",0,1,0,0\r\n"_s,
              csv.first(csv.indexOf(u"\"Bert\""_s)));
    const CompletionGrid grid = completionGrid(state, 1);
    ASSERT_EQ(2u, grid.lines.size());
    EXPECT_EQ((Share{1, 1}), grid.lines[0].shares[0]);
    EXPECT_EQ((Share{0, 1}), grid.lines[1].shares[1]);
    EXPECT_EQ((std::vector<ChestCount>{{2026, 1, 1}}), chestCounts(state, 1));
}

TEST_F(ReportTest, listsWhatIsMissingWhereItIsToBeFound) {
    const auto missing = missingList(state, 2);
    ASSERT_EQ(3u, missing.size());
    EXPECT_EQ(u"Coast"_s, missing[0].name);
    ASSERT_EQ(1u, missing[0].zones.size());
    EXPECT_EQ(u"Mirefen"_s, missing[0].zones[0].name);
    EXPECT_EQ(2u, missing[0].zones[0].skills.size()); // two bosses carry it there
    EXPECT_EQ(u"Borg"_s, missing[0].zones[0].skills[0].boss);
    EXPECT_EQ(2u, missing[2].zones[0].chests.size());
    Report report = makeReport(state, 2, nullptr);
    report.missing = true;
    EXPECT_TRUE(reportText(state, report).contains(u"\n    Mirefen\n      [ ] One [W], carried by Borg"_s))
        << reportText(state, report).toStdString();
    EXPECT_TRUE(reportCsv(report).contains(u"\"Bert\",\"Ash\",\"Hills\",\"Tarn\",\"skill\",\"2\","_s));
    const auto json = QJsonDocument::fromJson(reportJson(report).toUtf8())[u"characters"_s][0][u"missing"_s];
    EXPECT_EQ(u"Eir"_s, json[1][u"zones"_s][0][u"skills"_s][0][u"boss"_s].toString());
}

TEST_F(ReportTest, tellsWhatWasWonSinceABackup) {
    ProgramState before;
    before.AppPath = state.AppPath;
    SnapshotDisk then(disk, u"/o/"_s,
                      {{u"Personal/Characters.txt"_s, "04\tA \"B\" <C>\r\n"},
                       {u"Personal/Char04CapElite.txt"_s, "0001\r\n"}});
    PlayerFiles oldFiles(then);
    loadTables(before, oldFiles);
    const Winnings won = winningsSince(before, state, 1); // the same name under another number
    EXPECT_EQ((std::vector<QString>{u"Three [W]"_s}), won.skills);
    ASSERT_EQ(1u, won.chests.size());
    EXPECT_EQ(QDate(2026, 1, 1), won.chests[0].openedOn);
    EXPECT_TRUE(winningsSince(state, state, 1).empty());
}

TEST_F(ReportTest, isSafeAndWholeAsAPage) {
    state.EliteSkills[2].Locations[1].Note = u"<img src=x onerror=alert(1)>\r\nsecond"_s;
    const QString page =
        reportHtml(state, makeReport(state, 0, nullptr), [](const QString&) { return QByteArray("JPEG"); });
    EXPECT_TRUE(page.contains(u">A &quot;b&quot; &lt;c&gt;</h2>"_s));
    EXPECT_FALSE(page.contains(u"<img"_s));
    EXPECT_FALSE(page.contains(u"<script"_s));
    EXPECT_EQ(page.count(u"<table"_s), page.count(u"</table>"_s));
    EXPECT_EQ(page.count(u"<section"_s), page.count(u"</section>"_s));
    EXPECT_EQ(1, page.count(u"lang=\"en\""_s));
}

// A world of up to 40 skills with bosses here and there; the first character has captured a third.
struct RandomWorld : EliteWorld {
    explicit RandomWorld(std::mt19937& random) {
        const auto upTo = [&](int most) {
            return static_cast<int>(random() % static_cast<unsigned>(most + 1));
        };
        QByteArray list;
        QByteArray places;
        QByteArray captured;
        for (int id = 1; id <= 40; ++id) {
            const QByteArray number = QByteArray::number(id);
            if (upTo(9) > 0)
                list += number + '\t' + QByteArray::number(upTo(4)) + "\tSkill " +
                        QByteArray::number(upTo(30)) + "\r\n";
            for (int n = upTo(3); n > 0; --n)
                places += number + '\t' + QByteArray::number(upTo(3)) + "\t50\t" +
                          QByteArray::number(50 * n) + "\tBoss\t\t" + QByteArray::number(5 + upTo(4)) +
                          "\r\n";
            if (upTo(2) == 0)
                captured += number + "\r\n";
        }
        file(1 + upTo(1), "EliteList.txt", list);
        file(1 + upTo(1), "EliteLocations.txt", ";[Version]1.1\r\n" + places);
        disk.put(u"/o/Personal/Char01CapElite.txt"_s, captured);
        loadTables(state, files);
    }
    // What the panel lists as missing.
    std::vector<ListEntry> listed() const {
        EliteChoice choice;
        choice.character = 1;
        choice.uncapturedOnly = true;
        return eliteEntries(state, choice);
    }
};

// The skills of the to-do list, each as often as it names a place.
std::multiset<int> skillsOfMissingList(const ProgramState& state) {
    std::multiset<int> told;
    for (const MissingRegion& region : missingList(state, 1))
        for (const MissingZone& zone : region.zones)
            for (const MissingSkill& skill : zone.skills)
                for (int n = 0; n < skill.places; ++n)
                    told.insert(skill.skill);
    return told;
}

// Whatever the world: the to-do list names the skills that the panel lists as missing, at each of their
// bosses, and the counts agree with it.
TEST(ReportProperty, callsMissingWhatThePanelListsAsMissing) {
    std::mt19937 random(20261123);
    for (int round = 0; round < 60; ++round) {
        const RandomWorld world(random);
        std::multiset<int> listed;
        int existing = 0;
        for (const ListEntry& entry : world.listed()) {
            const EliteSkill& skill = world.state.EliteSkills[entry.data];
            existing += skill.Exists ? 1 : 0;
            for (int n = 0; n < skill.Locations.count(); ++n)
                listed.insert(entry.data);
        }
        EXPECT_EQ(listed, skillsOfMissingList(world.state)) << round;
        const Share all = completionRows(world.state, 1).front().skills;
        const auto bossless =
            std::count_if(world.state.EliteSkills.begin(), world.state.EliteSkills.end(),
                          [](const auto& s) { return s.Exists && !s.capturedBy(1) && s.Locations.empty(); });
        EXPECT_EQ(existing + bossless, all.all - all.done) << round;
    }
}

} // namespace
} // namespace orvinel
