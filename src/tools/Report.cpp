#include "tools/Report.h"

#include "app/ProgramState.h"
#include "progress/modCharacters.h"
#include "tools/Csv.h"
#include "tools/ToolText.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

using Part = CompletionRow::Part;

// For programs: the same in every language.
QString partKey(Part part) {
    switch (part) {
    case Part::World:
        return u"World"_s;
    case Part::Campaign:
        return u"Campaign"_s;
    case Part::Region:
        return u"Region"_s;
    case Part::Profession:
        return u"Profession"_s;
    }
    return {};
}

QString partName(const ProgramState& state, Part part) {
    switch (part) {
    case Part::World:
        return toolText(state, ToolText::World);
    case Part::Campaign:
        return toolText(state, ToolText::Campaign);
    case Part::Region:
        return toolText(state, ToolText::Region);
    case Part::Profession:
        return toolText(state, ToolText::Profession);
    }
    return {};
}

QString placeName(const CompletionRow& row) {
    return row.campaign.isEmpty() ? row.name : u"%1 (%2)"_s.arg(row.name, row.campaign);
}

class TextWriter {
  public:
    TextWriter(const ProgramState& state, const Report& report) : state_(state), report_(report) {}

    QString all() {
        for (const CharacterReport& character : report_.characters) {
            text_ += (text_.isEmpty() ? QString() : u"\n"_s) + character.name + u'\n';
            if (character.won)
                winnings(*character.won);
            if (report_.missing)
                missing(character);
            if (!character.won && !report_.missing)
                table(character.rows);
        }
        return text_.isEmpty() ? say(ToolText::NoCharacters) + u'\n' : text_;
    }

  private:
    QString say(ToolText number) const { return toolText(state_, number); }

    void line(int depth, const QString& text) { text_ += QString(2 * depth, u' ') + text + u'\n'; }

    QString share(const Share& share) const {
        return share.all == 0 ? QString()
                              : say(ToolText::DoneOf).arg(share.done).arg(share.all) +
                                    u"  %1 %"_s.arg(share.percent(), 3);
    }

    void table(const std::vector<CompletionRow>& rows) {
        std::vector<QStringList> cells = {{{}, {}, say(ToolText::Skills), say(ToolText::Chests)}};
        for (const CompletionRow& row : rows)
            cells.push_back(
                {partName(state_, row.part), placeName(row), share(row.skills), share(row.chests)});
        qsizetype widths[4] = {};
        for (const QStringList& row : cells)
            for (int c = 0; c < 4; ++c)
                widths[c] = std::max(widths[c], row[c].size());
        for (const QStringList& row : cells) {
            QString text;
            for (int c = 0; c < 4; ++c)
                text +=
                    (c < 2 ? row[c].leftJustified(widths[c]) : row[c].rightJustified(widths[c])) + u"  "_s;
            while (text.endsWith(u' '))
                text.chop(1);
            line(1, text);
        }
    }

    void missing(const CharacterReport& character) {
        line(1, say(character.missing.empty() ? ToolText::NothingMissing : ToolText::StillToDo));
        for (const MissingRegion& region : character.missing) {
            line(1, region.name.isEmpty() ? say(ToolText::NoPlace)
                                          : u"%1 (%2)"_s.arg(region.name, region.campaign));
            for (const MissingZone& zone : region.zones) {
                line(2, zone.name.isEmpty() ? say(ToolText::NoZone) : zone.name);
                for (const MissingSkill& skill : zone.skills)
                    line(3, u"[ ] "_s + skillText(skill));
                for (const MissingChest& chest : zone.chests)
                    line(3, u"[ ] "_s + say(ToolText::Chest).arg(chest.name));
            }
        }
    }

    QString skillText(const MissingSkill& skill) const {
        QStringList parts = {skill.name, say(ToolText::CarriedBy).arg(skill.boss)};
        if (skill.places > 1)
            parts << say(ToolText::Places).arg(skill.places);
        if (!skill.code.isEmpty())
            parts << say(ToolText::MarkerCode).arg(skill.code);
        for (const QString& green : skill.greens)
            parts << say(ToolText::GreenItem).arg(green);
        if (!skill.note.isEmpty())
            parts << skill.note.simplified();
        return parts.join(u", "_s);
    }

    void winnings(const Winnings& won) {
        line(1, say(ToolText::WonSince).arg(report_.since));
        if (won.empty())
            line(2, say(ToolText::NothingWon));
        for (const QString& skill : won.skills)
            line(2, skill);
        for (const Winnings::Chest& chest : won.chests)
            line(2, say(ToolText::Chest).arg(chest.name) + u", "_s +
                        say(ToolText::OpenedOn).arg(chest.openedOn.toString(Qt::ISODate)));
    }

    const ProgramState& state_;
    const Report& report_;
    QString text_;
};

QString missingCsv(const Report& report) {
    QString text = u"character,campaign,region,zone,kind,id,name,boss,marker,greens,note\r\n"_s;
    for (const CharacterReport& character : report.characters)
        for (const MissingRegion& region : character.missing)
            for (const MissingZone& zone : region.zones) {
                const QStringList place = {character.name, region.campaign, region.name, zone.name};
                for (const MissingSkill& skill : zone.skills)
                    text += csvLine(place + QStringList{u"skill"_s, QString::number(skill.skill), skill.name,
                                                        skill.boss, skill.code, skill.greens.join(u"; "_s),
                                                        skill.note.simplified()});
                for (const MissingChest& chest : zone.chests)
                    text += csvLine(
                        place +
                        QStringList{u"chest"_s, QString::number(chest.chest), chest.name, {}, {}, {}, {}});
            }
    return text;
}

QString winningsCsv(const Report& report) {
    QString text = u"character,kind,name,date\r\n"_s;
    for (const CharacterReport& character : report.characters) {
        for (const QString& skill : character.won->skills)
            text += csvLine({character.name, u"skill"_s, skill, {}});
        for (const Winnings::Chest& chest : character.won->chests)
            text += csvLine({character.name, u"chest"_s, chest.name, chest.openedOn.toString(Qt::ISODate)});
    }
    return text;
}

QJsonArray rowsJson(const std::vector<CompletionRow>& rows) {
    QJsonArray array;
    for (const CompletionRow& row : rows)
        array.append(QJsonObject{{u"part"_s, partKey(row.part).toLower()},
                                 {u"name"_s, row.name},
                                 {u"campaign"_s, row.campaign},
                                 {u"captured"_s, row.skills.done},
                                 {u"skills"_s, row.skills.all},
                                 {u"opened"_s, row.chests.done},
                                 {u"chests"_s, row.chests.all}});
    return array;
}

QJsonObject zoneJson(const MissingZone& zone) {
    QJsonArray skills;
    for (const MissingSkill& skill : zone.skills)
        skills.append(QJsonObject{{u"id"_s, skill.skill},
                                  {u"name"_s, skill.name},
                                  {u"boss"_s, skill.boss},
                                  {u"marker"_s, skill.code},
                                  {u"places"_s, skill.places},
                                  {u"note"_s, skill.note},
                                  {u"greens"_s, QJsonArray::fromStringList(skill.greens)}});
    QJsonArray chests;
    for (const MissingChest& chest : zone.chests)
        chests.append(QJsonObject{{u"number"_s, chest.chest}, {u"name"_s, chest.name}});
    return {{u"zone"_s, zone.name}, {u"skills"_s, skills}, {u"chests"_s, chests}};
}

QJsonArray missingJson(const std::vector<MissingRegion>& regions) {
    QJsonArray array;
    for (const MissingRegion& region : regions) {
        QJsonArray zones;
        for (const MissingZone& zone : region.zones)
            zones.append(zoneJson(zone));
        array.append(
            QJsonObject{{u"campaign"_s, region.campaign}, {u"region"_s, region.name}, {u"zones"_s, zones}});
    }
    return array;
}

QJsonObject winningsJson(const Report& report, const Winnings& won) {
    QJsonArray chests;
    for (const Winnings::Chest& chest : won.chests)
        chests.append(
            QJsonObject{{u"name"_s, chest.name}, {u"date"_s, chest.openedOn.toString(Qt::ISODate)}});
    QStringList skills(won.skills.begin(), won.skills.end());
    return {
        {u"since"_s, report.since}, {u"skills"_s, QJsonArray::fromStringList(skills)}, {u"chests"_s, chests}};
}

} // namespace

Report makeReport(const ProgramState& state, int character, const ProgramState* before) {
    Report report;
    for (const ListEntry& entry : namedCharacters(state)) {
        if (character != 0 && entry.data != character)
            continue;
        CharacterReport one{entry.text,
                            entry.data,
                            completionRows(state, entry.data),
                            completionGrid(state, entry.data),
                            chestCounts(state, entry.data),
                            missingList(state, entry.data),
                            {}};
        if (before)
            one.won = winningsSince(*before, state, entry.data);
        report.characters.push_back(std::move(one));
    }
    return report;
}

QString reportText(const ProgramState& state, const Report& report) {
    return TextWriter(state, report).all();
}

QString reportCsv(const Report& report) {
    if (report.missing)
        return missingCsv(report);
    if (!report.since.isEmpty())
        return winningsCsv(report);
    QString text = u"character,part,name,campaign,captured,skills,opened,chests\r\n"_s;
    for (const CharacterReport& character : report.characters)
        for (const CompletionRow& row : character.rows) {
            text += csvLine({character.name, partKey(row.part), row.name, row.campaign}).chopped(2);
            for (const int number : {row.skills.done, row.skills.all, row.chests.done, row.chests.all})
                text += u',' + QString::number(number);
            text += u"\r\n"_s;
        }
    return text;
}

QString reportJson(const Report& report) {
    QJsonArray characters;
    for (const CharacterReport& character : report.characters) {
        QJsonObject one{{u"name"_s, character.name},
                        {u"number"_s, character.number},
                        {u"progress"_s, rowsJson(character.rows)}};
        if (report.missing)
            one[u"missing"_s] = missingJson(character.missing);
        if (character.won)
            one[u"won"_s] = winningsJson(report, *character.won);
        characters.append(one);
    }
    return QString::fromUtf8(QJsonDocument(QJsonObject{{u"characters"_s, characters}}).toJson());
}

} // namespace orvinel
