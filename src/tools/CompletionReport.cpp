#include "tools/CompletionReport.h"

#include "app/ProgramState.h"
#include "progress/modCharacters.h"
#include "world/modCampaigns.h"

#include <algorithm>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

using Part = CompletionRow::Part;

class Counter {
  public:
    Counter(const ProgramState& state, const ListEntry& character) : state_(state), character_(character) {}

    std::vector<CompletionRow> rows() {
        add(
            {{}, Part::World, {}, {}}, [](const EliteSkill&) { return true; },
            [](const MapLocation&) { return true; });
        for (int n = 0; n <= state_.Campaigns.highest(); ++n)
            add(
                {{}, Part::Campaign, campaignName(state_, n), {}},
                [n](const EliteSkill& skill) { return skill.Campaign == n; },
                [n](const MapLocation& at) { return at.Campaign == n; });
        for (int n = 0; n <= state_.Campaigns.highest(); ++n)
            for (const int region : regionOrder(state_, n))
                addRegion(n, region);
        for (int p = 0; p <= state_.Professions.highest(); ++p)
            add(
                {{}, Part::Profession, state_.Professions[p].Name, {}},
                [p](const EliteSkill& skill) { return skill.Profession == p; },
                [](const MapLocation&) { return false; });
        return std::move(rows_);
    }

  private:
    void addRegion(int campaign, int region) {
        const auto here = [=](const MapLocation& at) {
            return at.Campaign == campaign && at.Region == region;
        };
        add(
            {{}, Part::Region, regionName(state_, campaign, region), campaignName(state_, campaign)},
            [&](const EliteSkill& skill) {
                return std::any_of(skill.Locations.begin(), skill.Locations.end(), here);
            },
            here);
    }

    template <typename SkillCounts, typename ChestCounts>
    void add(CompletionRow row, SkillCounts skillCounts, ChestCounts chestCounts) {
        row.character = character_.text;
        for (const EliteSkill& skill : state_.EliteSkills)
            if (skill.Exists && skillCounts(skill)) {
                ++row.skills;
                row.captured += skill.capturedBy(character_.data) ? 1 : 0;
            }
        for (const Treasure& chest : state_.Treasures)
            if (chestCounts(chest.Location)) {
                ++row.chests;
                row.opened += chest.openedBy(character_.data).isValid() ? 1 : 0;
            }
        if (row.part == Part::World || row.skills > 0 || row.chests > 0)
            rows_.push_back(std::move(row));
    }

    const ProgramState& state_;
    const ListEntry& character_;
    std::vector<CompletionRow> rows_;
};

QString partName(Part part) {
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

QString placeName(const CompletionRow& row) {
    return row.campaign.isEmpty() ? row.name : u"%1 (%2)"_s.arg(row.name, row.campaign);
}

// Rounded down, so that 100 % means all.
QString share(int done, int all) {
    return all == 0 ? QString() : u"%1 %"_s.arg(done * 100 / all);
}

QString quoted(QString text) {
    return u'"' + text.replace(u'"', u"\"\""_s) + u'"';
}

QString cells(const CompletionRow& row) {
    const auto cell = [](const QString& text) { return u"<td>"_s + text.toHtmlEscaped() + u"</td>"_s; };
    QString html = cell(partName(row.part)) + cell(placeName(row));
    for (const auto& [done, all] : {std::pair(row.captured, row.skills), std::pair(row.opened, row.chests)})
        html += all == 0 ? u"<td></td><td></td>"_s
                         : cell(u"%1 of %2"_s.arg(done).arg(all)) + cell(share(done, all));
    return html;
}

} // namespace

std::vector<CompletionRow> completionRows(const ProgramState& state) {
    std::vector<CompletionRow> rows;
    for (const ListEntry& character : namedCharacters(state))
        for (CompletionRow& row : Counter(state, character).rows())
            rows.push_back(std::move(row));
    return rows;
}

QString completionText(const std::vector<CompletionRow>& rows) {
    qsizetype widest = 0;
    for (const CompletionRow& row : rows)
        widest = std::max(widest, placeName(row).size());
    QString text;
    for (const CompletionRow& row : rows) {
        if (row.part == Part::World)
            text += (text.isEmpty() ? QString() : u"\n"_s) + row.character + u'\n';
        QString line =
            u"  %1 %2"_s.arg(partName(row.part).leftJustified(10), placeName(row).leftJustified(widest));
        line += row.skills == 0 ? QString(28, u' ')
                                : u"  skills %1 of %2 %3"_s.arg(row.captured, 5)
                                      .arg(row.skills, 5)
                                      .arg(share(row.captured, row.skills), 5);
        if (row.chests > 0)
            line += u"  chests %1 of %2 %3"_s.arg(row.opened, 5)
                        .arg(row.chests, 5)
                        .arg(share(row.opened, row.chests), 5);
        while (line.endsWith(u' '))
            line.chop(1);
        text += line + u'\n';
    }
    return text;
}

QString completionCsv(const std::vector<CompletionRow>& rows) {
    QString text = u"character,part,name,campaign,captured,skills,opened,chests\r\n"_s;
    for (const CompletionRow& row : rows) {
        for (const QString& field : {row.character, partName(row.part), row.name, row.campaign})
            text += quoted(field) + u',';
        text += u"%1,%2,%3,%4\r\n"_s.arg(row.captured).arg(row.skills).arg(row.opened).arg(row.chests);
    }
    return text;
}

QString completionHtml(const std::vector<CompletionRow>& rows) {
    QString html =
        u"<!DOCTYPE html>\n<html lang=\"en\"><head><meta charset=\"utf-8\"><title>Completion</title>\n"
        "<style>body{font-family:sans-serif}table{border-collapse:collapse}"
        "td,th{padding:.2em .8em;border-bottom:1px solid #ccc;text-align:left}</style></head><body>\n"
        "<h1>Completion</h1>\n"_s;
    for (size_t i = 0; i < rows.size(); ++i) {
        const CompletionRow& row = rows[i];
        if (row.part == Part::World)
            html +=
                u"<h2>%1</h2>\n<table><tr><th>Part</th><th>Name</th><th colspan=\"2\">Skills captured</th>"
                "<th colspan=\"2\">Chests opened</th></tr>\n"_s.arg(row.character.toHtmlEscaped());
        html += u"<tr>"_s + cells(row) + u"</tr>\n"_s;
        if (i + 1 == rows.size() || rows[i + 1].part == Part::World)
            html += u"</table>\n"_s;
    }
    return html + u"</body></html>\n"_s;
}

} // namespace orvinel
