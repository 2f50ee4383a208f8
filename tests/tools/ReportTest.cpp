#include "app/modData.h"
#include "support/EliteWorld.h"
#include "tools/CompletionReport.h"

#include <gtest/gtest.h>

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
    const QString csv = completionCsv(completionRows(state));
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
}

TEST_F(ReportTest, isReadableAndSafeAsAPage) {
    const std::vector<CompletionRow> rows = completionRows(state);
    EXPECT_TRUE(
        completionText(rows).contains(u"  Profession Warden             skills     2 of     2 100 %\n"_s))
        << completionText(rows).toStdString();
    const QString page = completionHtml(rows);
    EXPECT_TRUE(page.contains(u"<h2>A &quot;b&quot; &lt;c&gt;</h2>"_s));
    EXPECT_TRUE(page.contains(u"<td>World</td><td></td><td>2 of 3</td><td>66 %</td><td>1 of 2</td>"_s));
    EXPECT_EQ(2, page.count(u"<table>"_s));
    EXPECT_EQ(2, page.count(u"</table>"_s));
}

} // namespace
} // namespace orvinel
