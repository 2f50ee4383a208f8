#include "CrowdedWorld.h"

#include "base/IndexedTable.h"

#include <algorithm>
#include <array>
#include <random>

namespace worldgen {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int theCampaign = 3; // the only one with chests
constexpr int theRegion = 1;
constexpr QSize pictureSize(3000, 2400);
constexpr int border = 20; // pixels without a marker
constexpr int professions = 10;
constexpr int zonesOnce = 400;
constexpr int mostZones = 32767; // a larger number is no zone's
constexpr int skillsOnce = 400;
constexpr int bossesOnce = 1500;
constexpr int collectorsOnce = 600;
constexpr int rewardsEach = 4;
constexpr int statsEach = 3;
constexpr int notesOnce = 500;
constexpr int chestsOnce = 300;
constexpr int petsOnce = 30;
constexpr int petPlacesOnce = 300;
constexpr int greensOnce = 200;

constexpr std::array words = {"Amber",  "River",   "Stone", "Marker",  "Wolf",  "Harbour", "Chest", "Mage",
                              "Trader", "Hill",    "Moss",  "Lantern", "Briar", "Ember",   "Frost", "Reed",
                              "Quest",  "Thicket", "Crown", "Dagger",  "Vale",  "Willow",  "Grove", "Iron"};

// Everything at random, the same at every call.
class Crowd {
  public:
    explicit Crowd(int scale) : scale_(scale) {}

    WorldSource source() {
        WorldSource world;
        world.campaigns = {{0, u"Common"_s, {}}, {theCampaign, u"Sunhollow"_s, u"2.0"_s}};
        world.regions = {{theCampaign, theRegion, u"01"_s, u"Crowd"_s, Theme::Temperate, pictureSize, 7}};
        addZones(world);
        addProfessions(world);
        addSkills(world);
        addCollectors(world);
        addGreens(world);
        addChests(world);
        addPets(world);
        return world;
    }
    WorldPlaces places(const WorldSource& source) {
        WorldPlaces places(source);
        for (auto* all :
             {&places.zones, &places.bosses, &places.collectors, &places.chests, &places.petPlaces})
            std::generate(all->begin(), all->end(), [this] { return place(); });
        return places;
    }
    QByteArray notes() {
        QByteArray lines;
        for (int n = 1; n <= notesOnce * scale_; ++n) {
            const QPoint at = place();
            lines += u"%1 %2\t%3{#ENTER#}%4\t%5\t%6\t%7\t%8\r\n"_s.arg(text(2))
                         .arg(n)
                         .arg(text(5), text(6))
                         .arg(at.x())
                         .arg(at.y())
                         .arg(theCampaign)
                         .arg(theRegion)
                         .toLatin1();
        }
        return lines;
    }

  private:
    void addZones(WorldSource& world) {
        for (int n = 1; n <= zones(); ++n)
            world.zones.push_back({.id = n,
                                   .campaign = theCampaign,
                                   .region = theRegion,
                                   .kind = ZoneKind(1 + upTo(5)),
                                   .marker = upTo(4) == 0,
                                   .painted = false,
                                   .name = numbered(1, n)});
    }
    void addProfessions(WorldSource& world) {
        for (int n = 1; n <= professions; ++n)
            world.professions.push_back({0,
                                         n,
                                         text(1) + QString::number(n),
                                         qRgb(25 * n, 255 - 25 * n, 90),
                                         QString(QChar(u'A' + n)),
                                         {text(1), text(1), text(1)}});
    }
    void addSkills(WorldSource& world) {
        for (int n = 1; n <= skillsOnce * scale_; ++n) {
            SourceSkill skill;
            skill.id = n;
            skill.campaign = theCampaign;
            skill.profession = 1 + n % professions;
            skill.name = numbered(1, n);
            skill.attribute = text(1);
            skill.type = u"Spell"_s;
            skill.energy = 5 + upTo(20);
            skill.castTime = u"1/4"_s;
            skill.recharge = upTo(30);
            skill.description = text(14);
            world.skills.push_back(std::move(skill));
        }
        const int bosses = std::min(bossesOnce * scale_, orvinel::largestIdentifier);
        for (int n = 0; n < bosses; ++n)
            world.bosses.push_back(
                {theCampaign, 1 + n % (skillsOnce * scale_), bossName(n), code(), zone(), {}});
    }
    void addCollectors(WorldSource& world) {
        const int collectors = std::min(collectorsOnce * scale_, orvinel::largestIdentifier / rewardsEach);
        for (int n = 1; n <= collectors; ++n) {
            SourceCollector collector;
            collector.id = n;
            collector.campaign = theCampaign;
            collector.name = numbered(1, n);
            collector.armour = upTo(2) == 0;
            collector.level = upTo(2);
            collector.whereabouts = text(4);
            collector.request = u"5 "_s + text(2);
            collector.zone = zone();
            for (int k = 0; k < rewardsEach; ++k)
                collector.rewards.push_back({text(2), 1 << upTo(4), statLines()});
            world.collectors.push_back(std::move(collector));
        }
    }
    void addGreens(WorldSource& world) {
        for (int n = 0; n < greensOnce * scale_; ++n)
            world.greens.push_back({theCampaign, numbered(2, n), bossName(7 * n), statLines()});
    }
    void addChests(WorldSource& world) {
        for (int n = 1; n <= chestsOnce * scale_; ++n)
            world.chests.push_back({numbered(2, n), zone()});
    }
    void addPets(WorldSource& world) {
        const int pets = petsOnce * scale_;
        for (int n = 1; n <= pets; ++n)
            world.pets.push_back({petNumber(n), numbered(1, n), {}, text(3), {}});
        for (int n = 0; n < petPlacesOnce * scale_; ++n)
            world.petPlaces.push_back({theCampaign, petNumber(1 + n % pets), zone(), {}});
    }

    int upTo(int most) { return int(random_() % unsigned(most)); }
    int zones() const { return std::min(zonesOnce * scale_, mostZones); }
    int zone() { return upTo(zones()); }
    QPoint place() {
        const int x = border + upTo(pictureSize.width() - 2 * border);
        return {x, border + upTo(pictureSize.height() - 2 * border)};
    }
    QString text(int count) {
        QString all = QLatin1String(words[std::size_t(upTo(int(words.size())))]);
        for (int i = 1; i < count; ++i)
            all += u' ' + QString(QLatin1String(words[std::size_t(upTo(int(words.size())))])).toLower();
        return all;
    }
    QString numbered(int count, int n) { return text(count) + u' ' + QString::number(n); }
    QStringList statLines() {
        QStringList lines;
        for (int k = 0; k < statsEach; ++k)
            lines << u"%1 +%2"_s.arg(text(2)).arg(1 + upTo(20));
        return lines;
    }
    QString code() { return upTo(2) == 0 ? QString() : QString(QChar(u'A' + upTo(26))); }
    // Of the boss number `n`; so a green item can name it.
    static QString bossName(int n) {
        const auto count = int(words.size());
        return u"%1 %2 %3"_s
            .arg(QLatin1String(words[std::size_t(n % count)]),
                 QLatin1String(words[std::size_t(n / count % count)]))
            .arg(n);
    }
    static QString petNumber(int n) { return u"%1"_s.arg(n, 4, 10, QLatin1Char('0')); }

    int scale_;
    std::mt19937 random_{11};
};

} // namespace

CrowdedWorld::CrowdedWorld(int scale) : places_(source_) {
    Crowd crowd(scale);
    source_ = crowd.source();
    places_ = crowd.places(source_);
    notes_ = crowd.notes();
}

} // namespace worldgen
