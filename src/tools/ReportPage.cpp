#include "tools/Report.h"

#include "app/ProgramState.h"
#include "tools/Html.h"
#include "tools/ToolText.h"

#include <QHash>

#include <algorithm>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

using Part = CompletionRow::Part;

constexpr int shades = 5;       // of the grid's cells, from nothing to all
constexpr int plotHeight = 120; // SVG units
constexpr int barStep = 24;

QString pageStyle() {
    return uR"(nav ul { display: flex; flex-wrap: wrap; gap: .3rem 1.2rem; padding: 0; list-style: none; }
.whole { display: grid; gap: .2rem .8rem; max-width: 34rem; }
.whole svg.bar { height: 1.1rem; margin-bottom: .5rem; }
.count { color: var(--soft); white-space: nowrap; }
.rows th { width: 34%; font-weight: normal; }
.wide { overflow-x: auto; }
.grid { width: auto; }
.grid th, .grid td { padding: .2em .5em; white-space: nowrap; border: 1px solid var(--line); }
.grid td { text-align: center; min-width: 3.4em; }
.grid abbr { text-decoration: none; }
.s0 { background: #f6f3ec; color: #333; } .s1 { background: #d7e4f1; color: #222; } .s2 { background: #b3cde6; color: #111; }
.s3 { background: #2f6aa3; color: #fff; } .s4 { background: #17446f; color: #fff; }
@media (prefers-color-scheme: dark) { @media not print { .s0 { background: #22252a; color: #ddd; }
  .s1 { background: #22384f; color: #eee; } .s2 { background: #25507a; color: #fff; }
  .s3 { background: #8fbbe6; color: #111; } .s4 { background: #c9e0f7; color: #111; } } }
.plot { max-width: 100%; height: auto; }
.plot text { font-size: 11px; fill: var(--ink); }
ul.todo { list-style: none; padding: 0; margin: .2em 0; }
ul.todo li { display: grid; grid-template-columns: 1.1rem 2rem 1fr; gap: .6rem; align-items: start; padding: .25rem 0; }
ul.todo li.chest { grid-template-columns: 1.1rem 1fr; }
.tick { width: 1rem; height: 1rem; margin-top: .25rem; border: 1.5px solid var(--soft); border-radius: 2px;
  background: var(--box); }
.pic { width: 2rem; height: 2rem; }
.more { color: var(--soft); font-size: .9rem; display: block; }
h4 .more { display: inline; font-weight: normal; margin-left: .4em; }
h5 { margin: .8em 0 .1em; font-size: .95rem; color: var(--soft); }
@media (max-width: 30rem) { .count { font-size: .85rem; } .rows th { width: 30%; } }
@media print { section.character { break-before: page; } section.character:first-of-type { break-before: auto; }
  ul.todo { columns: 2; column-gap: 1.5rem; } .wide { overflow: visible; } .grid { font-size: 7pt; }
  .grid th, .grid td { padding: .1em .2em; min-width: 0; white-space: normal; }
  .s3, .s4 { color: #000; background: #8ab; } .s2 { background: #bcd; color: #000; } }
)"_s;
}

class PageWriter {
  public:
    using Picture = std::function<QByteArray(const QString&)>;

    PageWriter(const ProgramState& state, const Report& report, const Picture& picture)
        : state_(state), report_(report), picture_(picture) {}

    QString all() {
        html_ = u"<main>\n<h1>"_s + say(ToolText::ProgressTitle) + u"</h1>\n"_s;
        if (report_.characters.empty())
            html_ += u"<p>"_s + say(ToolText::NoCharacters) + u"</p>\n"_s;
        if (report_.characters.size() > 1)
            links();
        for (const CharacterReport& character : report_.characters)
            section(character);
        html_ += u"</main>\n"_s;
        return htmlText({toolText(state_, ToolText::LanguageCode), title(), pageStyle(), pictures() + html_});
    }

  private:
    QString say(ToolText number) const { return safeHtml(toolText(state_, number)); }

    // Of a text with a place for `name`, which is not escaped yet.
    QString say(ToolText number, const QString& name) const {
        return safeHtml(toolText(state_, number).arg(name));
    }

    QString count(const Share& share) const {
        return safeHtml(toolText(state_, ToolText::DoneOf).arg(share.done).arg(share.all));
    }

    QString title() const {
        const QString text = toolText(state_, ToolText::ProgressTitle);
        return report_.characters.size() == 1 ? report_.characters[0].name + u" - "_s + text : text;
    }

    void links() {
        html_ += u"<nav aria-label=\""_s + say(ToolText::Characters) + u"\"><ul>\n"_s;
        for (const CharacterReport& character : report_.characters)
            html_ += u"<li><a href=\"#c%1\">"_s.arg(character.number) + safeHtml(character.name) +
                     u"</a></li>\n"_s;
        html_ += u"</ul></nav>\n"_s;
    }

    void section(const CharacterReport& character) {
        const QString id = u"c%1"_s.arg(character.number);
        html_ += u"<section class=\"character\" aria-labelledby=\""_s + id + u"\">\n<h2 id=\""_s + id +
                 u"\">"_s + safeHtml(character.name) + u"</h2>\n"_s;
        whole(character.rows.front());
        if (character.won)
            winnings(*character.won);
        table(character.rows, Part::Campaign, ToolText::ByCampaign, ToolText::Campaign);
        table(character.rows, Part::Region, ToolText::ByRegion, ToolText::Region);
        table(character.rows, Part::Profession, ToolText::ByProfession, ToolText::Profession);
        grid(character.grid, character.name);
        plot(character.chests);
        missing(character.missing);
        html_ += u"</section>\n"_s;
    }

    void whole(const CompletionRow& row) {
        html_ += u"<div class=\"whole\">\n"_s;
        for (const auto& [text, share] :
             {std::pair(ToolText::Skills, row.skills), {ToolText::Chests, row.chests}})
            if (share.all > 0)
                html_ += u"<div>"_s + say(text) +
                         u" <strong>%1 %</strong> <span class=\"count\">"_s.arg(share.percent()) +
                         count(share) + u"</span></div>\n"_s +
                         htmlBar(share.done, share.all,
                                 toolText(state_, text) + u": %1 %"_s.arg(share.percent())) +
                         u'\n';
        html_ += u"</div>\n"_s;
    }

    void cell(const Share& share) {
        html_ += u"<td>"_s;
        if (share.all > 0)
            html_ += htmlBar(share.done, share.all, u"%1 %"_s.arg(share.percent())) +
                     u"<span class=\"count\">"_s + count(share) + u"</span>"_s;
        html_ += u"</td>"_s;
    }

    void table(const std::vector<CompletionRow>& rows, Part part, ToolText heading, ToolText first) {
        std::vector<const CompletionRow*> shown;
        bool chests = false;
        for (const CompletionRow& row : rows)
            if (row.part == part) {
                shown.push_back(&row);
                chests = chests || row.chests.all > 0;
            }
        if (shown.empty())
            return;
        html_ += u"<h3>"_s + say(heading) +
                 u"</h3>\n<table class=\"rows\">\n<thead><tr><th scope=\"col\">"_s + say(first) +
                 u"</th><th scope=\"col\">"_s + say(ToolText::Skills) + u"</th>"_s +
                 (chests ? u"<th scope=\"col\">"_s + say(ToolText::Chests) + u"</th>"_s : QString()) +
                 u"</tr></thead>\n<tbody>\n"_s;
        for (const CompletionRow* row : shown) {
            html_ += u"<tr><th scope=\"row\">"_s + safeHtml(row->name);
            if (!row->campaign.isEmpty())
                html_ += u" <span class=\"more\">"_s + safeHtml(row->campaign) + u"</span>"_s;
            html_ += u"</th>"_s;
            cell(row->skills);
            if (chests)
                cell(row->chests);
            html_ += u"</tr>\n"_s;
        }
        html_ += u"</tbody></table>\n"_s;
    }

    void grid(const CompletionGrid& grid, const QString& name) {
        if (grid.lines.empty() || grid.professions.empty())
            return;
        html_ += u"<h3>"_s + say(ToolText::Grid) +
                 u"</h3>\n<div class=\"wide\" tabindex=\"0\" role=\"region\" "
                 "aria-label=\""_s +
                 say(ToolText::Grid) + u": "_s + safeHtml(name) +
                 u"\">\n<table class=\"grid\">\n<thead><tr><th scope=\"col\">"_s + say(ToolText::Region) +
                 u"</th>"_s;
        for (const CompletionGrid::Head& head : grid.professions)
            html_ += u"<th scope=\"col\"><abbr title=\""_s + safeHtml(head.name) + u"\">"_s +
                     safeHtml(head.abbreviation.isEmpty() ? head.name : head.abbreviation) +
                     u"</abbr></th>"_s;
        html_ += u"</tr></thead>\n<tbody>\n"_s;
        for (const CompletionGrid::Line& line : grid.lines) {
            html_ += u"<tr><th scope=\"row\">"_s + safeHtml(line.region) + u"</th>"_s;
            for (const Share& share : line.shares)
                html_ += share.all == 0
                             ? u"<td></td>"_s
                             : u"<td class=\"s%1\">%2/%3</td>"_s.arg(share.done * (shades - 1) / share.all)
                                   .arg(share.done)
                                   .arg(share.all);
            html_ += u"</tr>\n"_s;
        }
        html_ += u"</tbody></table>\n</div>\n"_s;
    }

    static QString monthText(const ChestCount& count) {
        return count.month == 0 ? QString::number(count.year)
                                : u"%1-%2"_s.arg(count.year).arg(count.month, 2, 10, QChar(u'0'));
    }

    // The bars of the months, and the same as texts for those who cannot see them.
    void plot(const std::vector<ChestCount>& counts) {
        if (counts.empty())
            return;
        const int most = std::max_element(counts.begin(), counts.end(), [](const auto& a, const auto& b) {
                             return a.chests < b.chests;
                         })->chests;
        QString bars;
        QStringList told;
        for (size_t i = 0; i < counts.size(); ++i) {
            const int height = counts[i].chests * plotHeight / std::max(1, most);
            const int left = static_cast<int>(i) * barStep;
            bars += u"<rect class=\"part\" x=\"%1\" y=\"%2\" width=\"%3\" height=\"%4\"/>"_s.arg(left + 3)
                        .arg(plotHeight - height + 16)
                        .arg(barStep - 6)
                        .arg(height);
            if (counts[i].chests == 0)
                continue;
            bars += u"<text x=\"%1\" y=\"%2\" text-anchor=\"middle\">%3</text>"_s.arg(left + barStep / 2)
                        .arg(plotHeight - height + 12)
                        .arg(counts[i].chests);
            told << u"%1: %2"_s.arg(monthText(counts[i])).arg(counts[i].chests);
        }
        const int width = std::max(140, static_cast<int>(counts.size()) * barStep);
        bars += u"<text x=\"0\" y=\"%1\">%2</text>"_s.arg(plotHeight + 32).arg(monthText(counts.front()));
        if (counts.size() > 1)
            bars += u"<text x=\"%1\" y=\"%2\" text-anchor=\"end\">%3</text>"_s.arg(width)
                        .arg(plotHeight + 32)
                        .arg(monthText(counts.back()));
        html_ += u"<h3>"_s + say(ToolText::ChestPlot) +
                 u"</h3>\n<svg class=\"plot\" width=\"%1\" viewBox=\"0 0 %1 %2\" role=\"img\" aria-label=\""_s
                     .arg(width)
                     .arg(plotHeight + 38) +
                 safeHtml(toolText(state_, ToolText::ChestPlot) + u". "_s + told.join(u", "_s)) + u"\">"_s +
                 bars + u"</svg>\n"_s;
    }

    void missing(const std::vector<MissingRegion>& regions) {
        html_ += u"<h3>"_s + say(ToolText::StillToDo) + u"</h3>\n"_s;
        if (regions.empty())
            html_ += u"<p>"_s + say(ToolText::NothingMissing) + u"</p>\n"_s;
        for (const MissingRegion& region : regions) {
            html_ += u"<h4>"_s + (region.name.isEmpty() ? say(ToolText::NoPlace) : safeHtml(region.name)) +
                     u" <span class=\"more\">"_s + safeHtml(region.campaign) + u"</span></h4>\n"_s;
            for (const MissingZone& zone : region.zones) {
                html_ += u"<h5>"_s + (zone.name.isEmpty() ? say(ToolText::NoZone) : safeHtml(zone.name)) +
                         u"</h5>\n<ul class=\"todo\">\n"_s;
                for (const MissingSkill& skill : zone.skills)
                    missingSkill(skill);
                for (const MissingChest& chest : zone.chests)
                    html_ += u"<li class=\"chest\"><span class=\"tick\"></span><span>"_s +
                             say(ToolText::Chest, chest.name) + u"</span></li>\n"_s;
                html_ += u"</ul>\n"_s;
            }
        }
    }

    void missingSkill(const MissingSkill& skill) {
        QStringList more = {say(ToolText::CarriedBy, skill.boss)};
        if (skill.places > 1)
            more << say(ToolText::Places, QString::number(skill.places));
        if (!skill.code.isEmpty())
            more << say(ToolText::MarkerCode, skill.code);
        for (const QString& green : skill.greens)
            more << say(ToolText::GreenItem, green);
        if (!skill.note.isEmpty())
            more << safeHtml(skill.note.trimmed()).replace(u"\r\n"_s, u"<br>"_s);
        html_ += u"<li><span class=\"tick\"></span>"_s + pictureOf(skill.picture) + u"<span>"_s +
                 safeHtml(skill.name) + u"<span class=\"more\">"_s + more.join(u" &middot; "_s) +
                 u"</span></span></li>\n"_s;
    }

    // Each picture is in the page once, however many bosses and characters show it.
    QString pictureOf(const QString& path) {
        const auto known = symbols_.constFind(path);
        int symbol = known == symbols_.cend() ? -1 : *known;
        if (known == symbols_.cend()) {
            const QByteArray bytes = path.isEmpty() ? QByteArray() : picture_(path);
            if (!bytes.isEmpty()) {
                symbol = static_cast<int>(symbols_.size());
                pictures_ += u"<symbol id=\"p%1\" viewBox=\"0 0 64 64\"><image width=\"64\" height=\"64\" "
                             "href=\"data:image/jpeg;base64,"_s.arg(symbol) +
                             QString::fromLatin1(bytes.toBase64()) + u"\"/></symbol>\n"_s;
            }
            symbols_.insert(path, symbol);
        }
        return symbol < 0
                   ? u"<span class=\"pic\"></span>"_s
                   : u"<svg class=\"pic\" aria-hidden=\"true\"><use href=\"#p%1\"/></svg>"_s.arg(symbol);
    }

    QString pictures() const {
        return pictures_.isEmpty()
                   ? QString()
                   : u"<svg width=\"0\" height=\"0\" aria-hidden=\"true\">\n"_s + pictures_ + u"</svg>\n"_s;
    }

    void winnings(const Winnings& won) {
        html_ += u"<h3>"_s + say(ToolText::WonSince, report_.since) + u"</h3>\n"_s;
        if (won.empty())
            html_ += u"<p>"_s + say(ToolText::NothingWon) + u"</p>\n"_s;
        else
            html_ += u"<ul>\n"_s;
        for (const QString& skill : won.skills)
            html_ += u"<li>"_s + safeHtml(skill) + u"</li>\n"_s;
        for (const Winnings::Chest& chest : won.chests)
            html_ += u"<li>"_s + say(ToolText::Chest, chest.name) + u", "_s +
                     say(ToolText::OpenedOn, chest.openedOn.toString(Qt::ISODate)) + u"</li>\n"_s;
        html_ += won.empty() ? QString() : u"</ul>\n"_s;
    }

    const ProgramState& state_;
    const Report& report_;
    const Picture& picture_;
    QString html_;
    QString pictures_;
    QHash<QString, int> symbols_; // -1: there is no picture
};

} // namespace

QString reportHtml(const ProgramState& state, const Report& report,
                   const std::function<QByteArray(const QString& path)>& picture) {
    return PageWriter(state, report, picture).all();
}

} // namespace orvinel
