#include "Translation.h"
#include "WorldBuilder.h"
#include "WorldSource.h"

#include <QFileInfo>
#include <QFontMetrics>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <map>
#include <set>

namespace worldgen {

using namespace Qt::Literals::StringLiterals;

namespace {

// What the hand-written tables say, as players read it in lists and boxes.
struct WorldTexts : testing::Test {
    QStringList problems;
    WorldSource source = readWorldSource(QString::fromUtf8(WORLDGEN_WORLD), u"No attribute"_s, problems);

    const SourceZone& zone(int index) const { return source.zones[std::size_t(index)]; }

    static int width(const QString& text) {
        QFont face(u"Liberation Sans"_s); // as wide as the face of the windows
        face.setPixelSize(11);
        return QFontMetrics(face).horizontalAdvance(text);
    }
};

TEST_F(WorldTexts, giveEachPlaceOfASkillALineOfItsOwn) {
    std::set<std::tuple<int, QString, QString>> lines;
    std::map<QString, int> places;
    for (const SourceBoss& boss : source.bosses) {
        EXPECT_TRUE(lines.insert({boss.skill, boss.name, zone(boss.zone).name}).second)
            << boss.name.toStdString() << " stands twice in " << zone(boss.zone).name.toStdString();
        ++places[boss.name];
    }
    for (const SourceBoss& boss : source.bosses) {
        EXPECT_GE(1, boss.code.size()) << boss.name.toStdString() << ": two letters are cut by the marker";
        EXPECT_TRUE((boss.code != u"a" && boss.code != u"P") || places[boss.name] > 1)
            << boss.name.toStdString() << " has one place to be";
    }
}

TEST_F(WorldTexts, fitTheirLists) {
    constexpr int chestLine = 188;
    constexpr int regionLine = 105; // beside the arrow of the box
    for (const SourceChest& chest : source.chests) {
        const QString line = chest.name + u" ("_s + zone(chest.zone).name + u')';
        EXPECT_GE(chestLine, width(line)) << line.toStdString();
    }
    for (const SourceRegion& region : source.regions) {
        EXPECT_GE(regionLine, width(region.name)) << region.name.toStdString();
    }
}

// The numbers in a text, in no order: languages put them where they like.
std::multiset<QString> numbers(const QString& text) {
    static const QRegularExpression number(u"\\d+(\\.\\.\\.\\d+)?"_s);
    std::multiset<QString> found;
    for (const QRegularExpressionMatch& match : number.globalMatch(text))
        found.insert(match.captured());
    return found;
}

TEST_F(WorldTexts, sayTheSameAndFitInEveryLanguage) {
    int widest = 0;
    for (const SourceSkill& skill : source.skills)
        widest = std::max(widest, width(skill.description));
    for (std::size_t language = 0; language < std::size(worldLanguages); ++language) {
        const WorldSource other = translated(source, QString::fromUtf8(WORLDGEN_WORLD), language, problems);
        EXPECT_TRUE(problems.isEmpty()) << problems.join(u'\n').toStdString();
        for (std::size_t i = 0; i < source.skills.size(); ++i) {
            const QString& text = other.skills[i].description;
            EXPECT_EQ(numbers(source.skills[i].description), numbers(text)) << text.toStdString();
            EXPECT_NE(source.skills[i].description, text);
            EXPECT_GE(widest * 1.05, width(text)) << text.toStdString();
        }
        for (std::size_t i = 0; i < source.collectors.size(); ++i) {
            EXPECT_EQ(numbers(source.collectors[i].request), numbers(other.collectors[i].request));
            EXPECT_NE(source.collectors[i].request, other.collectors[i].request);
        }
        for (const SourceChest& chest : other.chests) {
            const QString line = chest.name + u" ("_s + zone(chest.zone).name + u')';
            EXPECT_GE(188, width(line)) << line.toStdString();
        }
    }
}

TEST_F(WorldTexts, tellWhenNobodyTranslatedThem) {
    source.bosses[0].note = u"Only on Tuesdays."_s;
    source.chests[0].name = u"Damage +7% while moving"_s;
    const WorldSource german = translated(source, QString::fromUtf8(WORLDGEN_WORLD), 0, problems);
    EXPECT_EQ(QStringList(u"no translation: Only on Tuesdays."_s), problems);
    EXPECT_EQ(u"Schaden +7% in Bewegung"_s, german.chests[0].name) << "numbers stay";
}

TEST_F(WorldTexts, repaintOnlyWhatTheyChange) {
    const QTemporaryDir folder;
    const auto painted = [&] {
        std::map<QString, QDateTime> times;
        EXPECT_TRUE(paintPictures(source, folder.path(), u"imgPets/00"_s).isEmpty());
        for (const SourcePet& pet : source.pets) {
            QFile file(folder.filePath(u"Campaign.00.Common/imgPets/"_s + pet.idText + u".jpg"_s));
            EXPECT_TRUE(file.open(QIODevice::ReadWrite));
            times[pet.idText] = file.fileTime(QFileDevice::FileModificationTime);
            file.setFileTime(times[pet.idText].addSecs(-60), QFileDevice::FileModificationTime);
            times[pet.idText] = file.fileTime(QFileDevice::FileModificationTime);
        }
        return times;
    };
    const auto first = painted();
    source.pets[1].animal.ground = u"snow"_s;
    const auto second = painted();
    for (const auto& [pet, time] : second) {
        EXPECT_EQ(pet == source.pets[1].idText, time > first.at(pet)) << pet.toStdString();
    }
}

TEST_F(WorldTexts, nameNoZoneLikeASkill) {
    std::set<QString> skills;
    for (const SourceSkill& skill : source.skills)
        skills.insert(skill.name);
    for (const SourceZone& zone : source.zones) {
        EXPECT_EQ(0U, skills.count(zone.name)) << zone.name.toStdString();
    }
}

// Every text that a player reads, with what it belongs to.
std::vector<std::pair<QString, QString>> sentences(const WorldSource& source) {
    std::vector<std::pair<QString, QString>> all;
    for (const SourceSkill& skill : source.skills)
        all.emplace_back(skill.name, skill.name + u' ' + skill.description);
    for (const SourceBoss& boss : source.bosses)
        all.emplace_back(boss.name, boss.name + u' ' + boss.note);
    for (const SourceZone& zone : source.zones)
        all.emplace_back(zone.name, zone.name);
    for (const SourcePet& pet : source.pets)
        all.emplace_back(pet.name, pet.remark);
    for (const SourceCollector& collector : source.collectors) {
        QString text = collector.whereabouts + u' ' + collector.request;
        for (const SourceReward& reward : collector.rewards)
            text += u' ' + reward.name + u' ' + reward.stats.join(u' ');
        all.emplace_back(collector.name, text);
    }
    for (const SourceGreen& green : source.greens)
        all.emplace_back(green.name, green.name + u' ' + green.stats.join(u' '));
    return all;
}

TEST_F(WorldTexts, areSpeltAsInBritain) {
    const QRegularExpression american(
        u"\\b(colors?|gr[a]y\\w*|armor\\w*|honor\\w*|favor\\w*|center\\w*|defense|offense|travele[rd]\\w*|"
        u"jewelry|"
        "theater|plow\\w*|mold\\w*|rumor\\w*|neighbor\\w*|harbor\\w*|vapor|valor|luster|meager|saber|specter|"
        "somber|"
        "\\w+iz(e|es|ed|ing)|skillful|fulfill|sulfur\\w*|parlor|savior|odor|vigor|ardor|clamor|humor|labor|"
        "splendor|ax|check|gauge[ds]?|caliber|scepter|sepulcher|marvelous|woolen|gage)\\b"_s,
        QRegularExpression::CaseInsensitiveOption);
    for (const auto& [owner, text] : sentences(source)) {
        const QRegularExpressionMatch found = american.match(text);
        EXPECT_FALSE(found.hasMatch()) << owner.toStdString() << ": " << found.captured().toStdString();
    }
}

TEST_F(WorldTexts, haveDashesOfASetter) {
    for (const auto& [owner, text] : sentences(source)) {
        EXPECT_FALSE(text.contains(u" - ") || text.contains(u"--") || text.contains(u"  ") ||
                     text.contains(u" ,") ||
                     text.contains(u".."_s) != text.contains(QRegularExpression(u"\\d\\.\\.\\.\\d"_s)))
            << owner.toStdString() << ": " << text.toStdString();
        EXPECT_FALSE(text.contains(QRegularExpression(u"\\d-\\d"_s)))
            << owner.toStdString() << ": a range takes an en dash: " << text.toStdString();
    }
}

} // namespace
} // namespace worldgen
