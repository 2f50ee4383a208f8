#include "WorldFiles.h"

#include "base/Desktop.h"
#include "base/TextRules.h"
#include "world/World.h"
#include "world/modCampaigns.h"

#include <QColor>

namespace worldgen {

using namespace Qt::Literals::StringLiterals;

namespace {

QString field(int number) {
    return QString::number(number);
}

// Collects the lines of one file.
class Lines {
  public:
    // `remark` opens the file, but for itself makes no file.
    explicit Lines(const QString& remark = {}) : remark_(remark) {}

    void add(const QStringList& fields) { lines_.append(fields.join(u'\t')); }
    void addLine(const QString& line) { lines_.append(line); }
    bool isEmpty() const { return lines_.isEmpty(); }

    QByteArray bytes(const QString& fileName, QStringList& problems) const {
        QByteArray all;
        for (const QString& line : remark_.isEmpty() ? lines_ : QStringList(remark_) + lines_) {
            const QByteArray coded = orvinel::encodeText(line);
            all += coded + "\r\n";
            if (coded.size() != line.size()) // the code page has a byte for each letter
                problems.append(fileName + u": not in the code page: "_s + line);
        }
        return all;
    }

  private:
    QString remark_;
    QStringList lines_;
};

// One campaign's share of the world, file by file.
class CampaignWriter {
  public:
    CampaignWriter(const WorldSource& source, const WorldPlaces& places, const SourceCampaign& campaign)
        : source_(source), places_(places), campaign_(campaign) {}

    Lines regions() const;
    Lines zones() const;
    Lines professions() const;
    Lines skills() const;
    Lines bosses() const;
    Lines collectors() const;
    Lines collectorPlaces() const;
    Lines greens() const;
    Lines chests() const;
    Lines pets() const;
    Lines petPlaces() const;

  private:
    template <typename Record>
    bool isMine(const Record& record) const {
        return record.campaign == campaign_.number;
    }
    const SourceZone& zone(int index) const { return source_.zones[std::size_t(index)]; }
    QString bossCoordinate(int pixels) const;

    const WorldSource& source_;
    const WorldPlaces& places_;
    const SourceCampaign& campaign_;
};

Lines CampaignWriter::regions() const {
    Lines lines;
    for (const SourceRegion& region : source_.regions) {
        if (isMine(region)) {
            lines.add({region.fileNumber, region.name});
        }
    }
    return lines;
}

Lines CampaignWriter::zones() const {
    Lines lines(u"; number, region, kind, marker, x, y, name"_s);
    for (std::size_t i = 0; i < source_.zones.size(); ++i) {
        const SourceZone& zone = source_.zones[i];
        const QPoint place = places_.zones[i];
        if (isMine(zone)) {
            lines.add({field(zone.id), field(zone.region), field(int(zone.kind)), field(zone.marker ? 1 : 0),
                       field(place.x()), field(place.y()), zone.name});
        }
    }
    return lines;
}

// Red lies in the low byte of a colour of the program.
QString colourField(QRgb colour) {
    const QString digits = u"%1%2%3"_s.arg(qBlue(colour), 2, 16, QLatin1Char('0'))
                               .arg(qGreen(colour), 2, 16, QLatin1Char('0'))
                               .arg(qRed(colour), 2, 16, QLatin1Char('0'));
    return u"&H"_s + digits.toUpper();
}

Lines CampaignWriter::professions() const {
    Lines lines;
    for (const SourceProfession& profession : source_.professions) {
        if (isMine(profession)) {
            lines.add(QStringList{field(profession.number), profession.name, colourField(profession.colour),
                                  profession.abbreviation} +
                      profession.attributes);
        }
    }
    return lines;
}

Lines CampaignWriter::skills() const {
    Lines lines(
        u"; number, profession, name, attribute, type, upkeep, adrenaline, energy, cast time, recharge, description"_s);
    for (const SourceSkill& skill : source_.skills) {
        if (isMine(skill)) {
            lines.add({field(skill.id), field(skill.profession), skill.name, skill.attribute, skill.type,
                       field(skill.upkeep), field(skill.adrenaline), field(skill.energy), skill.castTime,
                       field(skill.recharge), skill.description});
        }
    }
    return lines;
}

QString CampaignWriter::bossCoordinate(int pixels) const {
    const bool inPixels = !campaign_.version.isEmpty() && campaign_.version != u"1.0";
    return field(inPixels ? pixels : pixels * orvinel::twipsPerPixel);
}

Lines CampaignWriter::bosses() const {
    Lines lines;
    for (std::size_t i = 0; i < source_.bosses.size(); ++i) {
        const SourceBoss& boss = source_.bosses[i];
        if (!isMine(boss))
            continue;
        if (lines.isEmpty() && !campaign_.version.isEmpty())
            lines.addLine(u";[Version] "_s + campaign_.version);
        QStringList fields{field(boss.skill),
                           field(zone(boss.zone).region),
                           bossCoordinate(places_.bosses[i].x()),
                           bossCoordinate(places_.bosses[i].y()),
                           boss.name,
                           boss.code,
                           field(zone(boss.zone).id)};
        if (!boss.note.isEmpty())
            fields.append(boss.note);
        lines.add(fields);
    }
    return lines;
}

Lines CampaignWriter::collectors() const {
    Lines lines(
        u"; number, name, armour, level; whereabouts; request; rewards: name, hands, what they do; an empty line"_s);
    for (const SourceCollector& collector : source_.collectors) {
        if (!isMine(collector))
            continue;
        lines.add(
            {field(collector.id), collector.name, field(collector.armour ? 1 : 0), field(collector.level)});
        lines.addLine(collector.whereabouts);
        lines.addLine(collector.request);
        for (const SourceReward& reward : collector.rewards) {
            lines.add(QStringList{reward.name, field(reward.hands)} + reward.stats);
        }
        lines.addLine({});
    }
    return lines;
}

Lines CampaignWriter::collectorPlaces() const {
    Lines lines;
    for (std::size_t i = 0; i < source_.collectors.size(); ++i) {
        const SourceCollector& collector = source_.collectors[i];
        const QPoint place = places_.collectors[i];
        if (isMine(collector) && collector.zone >= 0) {
            lines.add({field(collector.id), field(zone(collector.zone).region), field(place.x()),
                       field(place.y()), field(zone(collector.zone).id)});
        }
    }
    return lines;
}

Lines CampaignWriter::greens() const {
    Lines lines(u"; name, boss, what it does"_s);
    for (const SourceGreen& green : source_.greens) {
        if (isMine(green)) {
            lines.add(QStringList{green.name, green.boss} + green.stats);
        }
    }
    return lines;
}

Lines CampaignWriter::chests() const {
    Lines lines(u"; name, x, y, region, zone"_s);
    for (std::size_t i = 0; campaign_.number == 3 && i < source_.chests.size(); ++i) {
        const SourceChest& chest = source_.chests[i];
        const QPoint place = places_.chests[i];
        lines.add({chest.name, field(place.x()), field(place.y()), field(zone(chest.zone).region),
                   field(zone(chest.zone).id)});
    }
    return lines;
}

Lines CampaignWriter::pets() const {
    Lines lines(u"; number, name, remark"_s);
    for (const SourcePet& pet : source_.pets) {
        if (campaign_.number == 0) {
            lines.add({pet.idText, pet.name, pet.remark});
        }
    }
    return lines;
}

Lines CampaignWriter::petPlaces() const {
    Lines lines(u"; pet, region, zone, x, y, remark"_s);
    for (std::size_t i = 0; i < source_.petPlaces.size(); ++i) {
        const SourcePetPlace& petPlace = source_.petPlaces[i];
        const QPoint place = places_.petPlaces[i];
        if (!isMine(petPlace))
            continue;
        QStringList fields{petPlace.pet, field(zone(petPlace.zone).region), field(zone(petPlace.zone).id),
                           field(place.x()), field(place.y())};
        if (!petPlace.remark.isEmpty())
            fields.append(petPlace.remark);
        lines.add(fields);
    }
    return lines;
}

} // namespace

std::map<QString, QByteArray> campaignFiles(const WorldSource& source, const WorldPlaces& places,
                                            const SourceCampaign& campaign, QStringList& problems) {
    const CampaignWriter writer(source, places, campaign);
    const std::pair<QString, Lines> tables[] = {
        {u"Regions.txt"_s, writer.regions()},
        {u"Zones.txt"_s, writer.zones()},
        {u"Professions.txt"_s, writer.professions()},
        {u"EliteList.txt"_s, writer.skills()},
        {u"EliteLocations.txt"_s, writer.bosses()},
        {u"Collectors.txt"_s, writer.collectors()},
        {u"CollectorsLocations.txt"_s, writer.collectorPlaces()},
        {u"Greens.txt"_s, writer.greens()},
        {u"Treasures.txt"_s, writer.chests()},
        {u"PetsList.txt"_s, writer.pets()},
        {u"PetsLocations.txt"_s, writer.petPlaces()},
    };
    std::map<QString, QByteArray> files;
    for (const auto& [name, lines] : tables) {
        if (!lines.isEmpty())
            files[name] = lines.bytes(campaignFolder(campaign) + u'/' + name, problems);
    }
    return files;
}

QString campaignFolder(const SourceCampaign& campaign) {
    orvinel::World world;
    world.Campaigns.grow(campaign.number).CampaignName = campaign.name;
    return orvinel::campaignFolder(world, campaign.number);
}

QString skillPicture(int id) {
    return orvinel::fixedDigits(id, 4) + u".jpg"_s;
}

} // namespace worldgen
