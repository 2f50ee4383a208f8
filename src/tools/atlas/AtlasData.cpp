#include "tools/atlas/AtlasData.h"

#include "app/ProgramState.h"
#include "tools/atlas/AtlasModel.h"
#include "tools/atlas/AtlasTexts.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

using Kind = AtlasPart::Kind;

// What the search tells apart, in the order in which its results are shown.
enum class Found { Skill, Boss, Green, Reward, Collector, Chest, Pet, Zone, Note };

QByteArray json(const QJsonObject& object) {
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}
QByteArray json(const QJsonArray& array) {
    return QJsonDocument(array).toJson(QJsonDocument::Compact);
}

QString htmlColour(Colour colour) {
    return u"#%1"_s.arg(opaqueRgb(colour) & 0xFFFFFFu, 6, 16, QLatin1Char('0'));
}

// Black or white, whichever can be read on the colour.
QString inkOn(Colour colour) {
    const std::uint32_t rgb = opaqueRgb(colour);
    const auto part = [=](int shift) { return static_cast<int>((rgb >> shift) & 0xFFu); };
    return part(16) * 299 + part(8) * 587 + part(0) * 114 > 110'000 ? u"#000"_s : u"#fff"_s;
}

QJsonObject partObject(const AtlasPart& part) {
    QJsonObject object{{u"kind"_s, static_cast<int>(part.kind)}};
    if (!part.heading.isEmpty())
        object.insert(u"heading"_s, part.heading);
    if (!part.picture.isEmpty())
        object.insert(u"picture"_s, part.picture);
    if (!part.lines.isEmpty())
        object.insert(u"lines"_s, QJsonArray::fromStringList(part.lines));
    QJsonArray facts;
    for (const auto& [name, value] : part.facts)
        facts.append(QJsonArray{name, value});
    if (!facts.isEmpty())
        object.insert(u"facts"_s, facts);
    return object;
}

QJsonObject placeObject(const AtlasPlace& place) {
    QJsonObject object{{u"layer"_s, static_cast<int>(place.layer)},
                       {u"x"_s, place.x},
                       {u"y"_s, place.y},
                       {u"name"_s, place.name}};
    if (!place.zone.isEmpty())
        object.insert(u"zone"_s, place.zone);
    if (place.sprite) {
        object.insert(u"sprite"_s,
                      QString::fromLatin1(spriteNames[static_cast<size_t>(*place.sprite)]) + u".png"_s);
        object.insert(u"anchor"_s, QJsonArray{place.anchorX, place.anchorY});
    }
    if (place.layer == AtlasLayer::Bosses) {
        object.insert(u"code"_s, place.code);
        object.insert(u"fill"_s, htmlColour(place.fill));
        object.insert(u"ink"_s, inkOn(place.fill));
        object.insert(u"green"_s, place.has(Kind::Green));
    }
    if (!place.won.isEmpty())
        object.insert(u"won"_s, place.won);
    QJsonArray parts;
    for (const AtlasPart& part : place.parts)
        parts.append(partObject(part));
    object.insert(u"parts"_s, parts);
    return object;
}

QJsonObject scriptTexts(const ProgramState& state) {
    const auto own = [&](AtlasText number) { return atlasText(state, number); };
    return {{u"found"_s, own(AtlasText::Found)},
            {u"nothingFound"_s, own(AtlasText::NothingFound)},
            {u"more"_s, own(AtlasText::AndMore)},
            {u"won"_s, own(AtlasText::AlreadyWon)},
            {u"noPicture"_s, own(AtlasText::NoPicture)},
            {u"noSuchPlace"_s, own(AtlasText::NoSuchPlace)},
            {u"nothingHere"_s, own(AtlasText::NothingHere)},
            {u"placeUnknown"_s, own(AtlasText::PlaceUnknown)},
            {u"zoomIn"_s, own(AtlasText::ZoomIn)},
            {u"zoomOut"_s, own(AtlasText::ZoomOut)},
            {u"map"_s, own(AtlasText::Map)},
            {u"close"_s, state.text(Caption::CloseWindow)}};
}

// The rows of the search. A row: kind, name, what is said beside it, region (-1: none), x, y, zone, further
// words.
class SearchRows {
  public:
    explicit SearchRows(const ProgramState& state) : state_(state) {}

    void add(int region, const AtlasPlace& place) {
        at_ = {region, place.x, place.y, place.zone};
        switch (place.layer) {
        case AtlasLayer::Bosses:
            return addBoss(place);
        case AtlasLayer::Collectors:
            return addCollector(place);
        case AtlasLayer::Chests:
            return row(Found::Chest, place.name, {});
        case AtlasLayer::Pets:
            return row(Found::Pet, place.name, {});
        case AtlasLayer::Notes:
            return row(Found::Note, place.name, {}, words(place.parts.front()));
        default:
            return row(Found::Zone, place.name, place.parts.front().lines.value(0));
        }
    }
    void addHomeless(const AtlasPart& skill) {
        at_ = {};
        row(Found::Skill, skill.heading, {}, words(skill));
    }
    const QJsonArray& rows() const { return rows_; }

  private:
    struct At {
        int region = -1;
        int x = 0;
        int y = 0;
        QString zone;
    };

    static QString words(const AtlasPart& part) {
        QString all = part.kind == Kind::Skill ? QString() : part.lines.join(u' ');
        for (const auto& [name, value] : part.facts)
            all += u' ' + value;
        return all;
    }
    void row(Found kind, const QString& name, const QString& detail, const QString& more = {}) {
        rows_.append(QJsonArray{static_cast<int>(kind), name, detail, at_.region, at_.x, at_.y, at_.zone,
                                more.trimmed()});
    }
    void addBoss(const AtlasPlace& boss) {
        QString skill;
        for (const AtlasPart& part : boss.parts) {
            if (part.kind == Kind::Skill) {
                skill = part.heading;
                row(Found::Skill, skill, atlasText(state_, AtlasText::CarriedBy).arg(boss.name), words(part));
            } else if (part.kind == Kind::Green) {
                row(Found::Green, part.heading, atlasText(state_, AtlasText::DroppedBy).arg(boss.name),
                    words(part));
            }
        }
        row(Found::Boss, boss.name, skill);
    }
    void addCollector(const AtlasPlace& collector) {
        const AtlasPart& head = collector.parts.front();
        const QString request = head.facts.front().second;
        row(Found::Collector, collector.name, request, words(head));
        for (const AtlasPart& part : collector.parts)
            if (part.kind == Kind::Reward)
                row(Found::Reward, part.heading,
                    atlasText(state_, AtlasText::GivenBy).arg(collector.name) + u" · "_s + request,
                    words(part));
    }

    const ProgramState& state_;
    At at_;
    QJsonArray rows_;
};

QJsonArray kindNames(const ProgramState& state) {
    QJsonArray names;
    for (const Caption caption :
         {Caption::EliteSkills, Caption::Boss, Caption::GreenItems, Caption::Reward, Caption::Collectors,
          Caption::Treasures, Caption::Pets, Caption::Zone, Caption::Notes})
        names.append(state.text(caption));
    return names;
}

} // namespace

QByteArray worldData(const ProgramState& state, const Atlas& atlas) {
    QJsonArray layers;
    for (const AtlasLayer layer : atlasLayers)
        layers.append(layerName(state, layer));
    QJsonArray regions;
    for (const AtlasRegion& region : atlas.regions)
        regions.append(QJsonObject{{u"key"_s, region.key()},
                                   {u"name"_s, region.name},
                                   {u"campaign"_s, region.campaignName},
                                   {u"picture"_s, !region.picture.isEmpty()}});
    return "var Atlas = " +
           json(QJsonObject{{u"texts"_s, scriptTexts(state)},
                            {u"layers"_s, layers},
                            {u"kinds"_s, kindNames(state)},
                            {u"regions"_s, regions},
                            {u"places"_s, QJsonObject()}}) +
           ";\n";
}

QByteArray regionData(const AtlasRegion& region) {
    QJsonArray places;
    for (const AtlasPlace& place : region.places)
        places.append(placeObject(place));
    return "Atlas.places[\"" + region.key().toLatin1() + "\"] = " + json(places) + ";\n";
}

QByteArray searchData(const ProgramState& state, const Atlas& atlas) {
    SearchRows rows(state);
    for (size_t region = 0; region < atlas.regions.size(); ++region)
        for (const AtlasPlace& place : atlas.regions[region].places)
            rows.add(static_cast<int>(region), place);
    for (const AtlasPart& skill : atlas.homeless)
        rows.addHomeless(skill);
    return "Atlas.search = " + json(rows.rows()) + ";\n";
}

} // namespace orvinel
