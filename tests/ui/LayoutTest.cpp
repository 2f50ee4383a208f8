#include "support/Layout.h"
#include "app/modLanguage.h"
#include "support/LayersFixture.h"
#include "support/Printing.h"
#include "ui/DialogFixture.h"
#include "ui/dialogs/frmCharacterList.h"
#include "ui/dialogs/frmCredits.h"
#include "ui/dialogs/frmManageCharacter.h"
#include "ui/dialogs/frmManageNote.h"

#include <QFile>

#include <gmock/gmock.h>

namespace orvinel {
namespace {

using namespace Qt::Literals::StringLiterals;
using testing::IsEmpty;

// Everything that the world and the player may name, in words of these many letters and once as one long
// word.
struct Wording {
    int letters;
    bool oneWord;

    QByteArray operator()(const char* word) const {
        QByteArray text(word);
        while (text.size() < letters)
            text += (oneWord ? "m" : " long") + text.left(7).toLower();
        return text.left(letters);
    }
};

struct LayoutTest : LayersFixture, testing::WithParamInterface<Wording> {
    LayoutTest() {
        const Wording& w = GetParam();
        putFile("EliteList.txt", "1\t1\t" + w("Flare") + "\tFire\t" + w("Spell") + "\t-1\t7\t5\t1/4\t120\t" +
                                     w("Burns.") + "\r\n2\t2\tHymn\r\n");
        putFile("EliteLocations.txt",
                ";[Version]2.0\r\n1\t1\t100\t300\t" + w("Bront") + "\t?\t11\t" + w("by the pier") +
                    "\r\n2\t1\t150\t300\tGrim\t\t12\r\n0\t1\t200\t400\t" + w("Nobody") + "\t1\t12\r\n");
        putFile("Greens.txt", w("Blade") + "\t" + w("Bront") + "\t" + w("Damage +1") + "\tFire Magic\r\n" +
                                  w("Totem") + "\t" + w("Nobody") + "\t" + w("Luck") + "\r\n");
        putFile("Collectors.txt", "1\t" + w("Anna") + "\t1\t1\r\n" + w("By the harbour") + "\r\n" +
                                      w("5 Apples") + "\r\n" + w("Axe") + "\t1\t" + w("Fire +1") +
                                      "\tSharp\r\nRing\t4\r\n\r\n");
        putFile("CollectorsLocations.txt", "1\t1\t100\t100\t11\r\n");
        disk.put(u"/o/Campaign.00.Core/PetsList.txt"_s,
                 "0007\t" + w("Wolf") + "\tgrey\r\n8\t" + w("Bear") + "\tbrown\r\n");
        disk.put(u"/o/Campaign.03.Sunhollow/Treasures.txt"_s, w("Old chest") + "\t300\t300\t1\t11\r\n");
        disk.put(u"/o/Personal/Characters.txt"_s, "01\t" + w("Ada") + "\r\n02\tBo\r\n");
        disk.put(u"/o/Personal/Notes.txt"_s,
                 w("Alpha").left(30) + "\t" + w("first") + "{#ENTER#}second\t500\t100\t3\t1\r\n");
    }
};

TEST_P(LayoutTest, informationWindowsHoldAllTheirTextsSideBySide) {
    startOnFjord();
    const std::pair<InformationWindow&, QPoint> items[] = {
        {elites->window(), {97, 300}},      {elites->window(), {150, 300}}, {elites->window(), {200, 400}},
        {collectors->window(), {100, 100}}, {notes->window(), {500, 100}},  {treasures->window(), {300, 300}},
        {pets->window(), {200, 200}},       {pets->window(), {213, 200}}};
    for (const auto& [window, place] : items) {
        hover(place);
        ASSERT_TRUE(window.isVisible()) << place.x() << ", " << place.y();
        EXPECT_THAT(misplaced(window), IsEmpty()) << window.objectName().toStdString();
    }
}

TEST_P(LayoutTest, thePanelsListsHaveTheirRoomAtAnyHeight) {
    startOnFjord();
    for (const int height : {620, 700, 872, 1000, 2100}) {
        panel->resize(panel->width(), height);
        for (const Tab tab : allTabs) {
            panel->tabs().activate(tab);
            for (const TabPage* page : panel->findChildren<TabPage*>()) {
                if (!page->isVisible())
                    continue;
                const QStringList faults = misplaced(*page->inner()).filter(u"lst"_s);
                EXPECT_THAT(faults, IsEmpty()) << height << ", page " << int(tab);
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(OfAnyLength, LayoutTest,
                         testing::Values(Wording{1, false}, Wording{12, false}, Wording{60, false},
                                         Wording{60, true}, Wording{400, false}, Wording{400, true}));

// The dialogs in one of the languages that are shipped; their captions are of very different lengths.
struct DialogsIn : DialogFixture, testing::WithParamInterface<const char*> {
    DialogsIn() {
        const QString name = QLatin1String(GetParam());
        QFile texts(QStringLiteral(QT_TESTCASE_SOURCEDIR) + u"/../world/Data/Languages/%1.txt"_s.arg(name));
        EXPECT_TRUE(texts.open(QIODevice::ReadOnly)) << GetParam();
        disk.put(u"/o/Data/Language.txt"_s, texts.readAll());
        EXPECT_TRUE(LoadLanguage(state, disk));
    }
};

TEST_P(DialogsIn, holdTheirControlsSideBySide) {
    std::vector<std::unique_ptr<QWidget>> dialogs;
    dialogs.push_back(std::make_unique<frmCharacterList>(context(), nullptr));
    dialogs.push_back(std::make_unique<frmManageCharacter>(context(), nullptr));
    dialogs.push_back(std::make_unique<frmManageNote>(context(), nullptr));
    dialogs.push_back(std::make_unique<frmCredits>(context(), nullptr));
    for (const auto& dialog : dialogs) {
        dialog->show();
        EXPECT_THAT(misplaced(*dialog), IsEmpty()) << dialog->objectName().toStdString();
    }
}

INSTANTIATE_TEST_SUITE_P(EachLanguage, DialogsIn, testing::Values("English", "Deutsch", "Italiano"));

} // namespace
} // namespace orvinel
