#include "WorldSource.h"

#include <QFontMetrics>
#include <QRegularExpression>

#include <gtest/gtest.h>

#include <map>
#include <set>

namespace worldgen {

using namespace Qt::Literals::StringLiterals;

namespace {

/// What the hand-written tables say, as players read it in lists and boxes.
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
    constexpr int ChestLine = 188;
    constexpr int RegionLine = 105; // beside the arrow of the box
    for (const SourceChest& chest : source.chests) {
        const QString line = chest.name + u" ("_s + zone(chest.zone).name + u')';
        EXPECT_GE(ChestLine, width(line)) << line.toStdString();
    }
    for (const SourceRegion& region : source.regions) {
        EXPECT_GE(RegionLine, width(region.name)) << region.name.toStdString();
    }
}

TEST_F(WorldTexts, nameNoZoneLikeASkill) {
    std::set<QString> skills;
    for (const SourceSkill& skill : source.skills) {
        skills.insert(skill.name);
    }
    for (const SourceZone& zone : source.zones) {
        EXPECT_EQ(0U, skills.count(zone.name)) << zone.name.toStdString();
    }
}

/// Every text that a player reads, with what it belongs to.
std::vector<std::pair<QString, QString>> sentences(const WorldSource& source) {
    std::vector<std::pair<QString, QString>> all;
    for (const SourceSkill& skill : source.skills) {
        all.emplace_back(skill.name, skill.name + u' ' + skill.description);
    }
    for (const SourceBoss& boss : source.bosses) {
        all.emplace_back(boss.name, boss.name + u' ' + boss.note);
    }
    for (const SourceZone& zone : source.zones) {
        all.emplace_back(zone.name, zone.name);
    }
    for (const SourcePet& pet : source.pets) {
        all.emplace_back(pet.name, pet.remark);
    }
    for (const SourceCollector& collector : source.collectors) {
        QString text = collector.whereabouts + u' ' + collector.request;
        for (const SourceReward& reward : collector.rewards) {
            text += u' ' + reward.name + u' ' + reward.stats.join(u' ');
        }
        all.emplace_back(collector.name, text);
    }
    for (const SourceGreen& green : source.greens) {
        all.emplace_back(green.name, green.name + u' ' + green.stats.join(u' '));
    }
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
