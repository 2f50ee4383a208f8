#include "tools/atlas/AtlasPages.h"

#include "app/ProgramState.h"
#include "app/modLanguage.h"
#include "tools/Html.h"
#include "tools/atlas/AtlasModel.h"
#include "tools/atlas/AtlasTexts.h"

#include <algorithm>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

// `root`: the way back to the atlas's folder.
struct Frame {
    QString title;
    QString root;
    QString head;
    QString body;
};

QByteArray page(const ProgramState& state, const Frame& frame) {
    const QString text =
        u"<!DOCTYPE html>\n<html lang=\""_s + safeHtml(atlasText(state, AtlasText::LanguageCode)) +
        u"\">\n<head>\n<meta charset=\"utf-8\">\n"
        "<meta http-equiv=\"Content-Security-Policy\" content=\"default-src 'none'; script-src 'self'; "
        "style-src 'self'; img-src 'self' data:; base-uri 'none'; form-action 'none'\">\n"
        "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n"
        "<meta name=\"color-scheme\" content=\"light dark\">\n<title>"_s +
        safeHtml(frame.title) + u"</title>\n<link rel=\"icon\" href=\""_s + frame.root + u"icon.svg\">\n"_s +
        frame.head + u"<link rel=\"stylesheet\" href=\""_s + frame.root + u"atlas.css\">\n</head>\n"_s +
        frame.body + u"</html>\n"_s;
    return text.toUtf8();
}

// The list of the regions, by campaign.
QString regionLinks(const Atlas& atlas) {
    QString html;
    QString campaign;
    for (const AtlasRegion& region : atlas.regions) {
        if (html.isEmpty() || region.campaignName != campaign) {
            html += (html.isEmpty() ? u""_s : u"</ul>\n"_s) + u"<h3 class=\"name\">"_s +
                    safeHtml(region.campaignName) + u"</h3>\n<ul>\n"_s;
            campaign = region.campaignName;
        }
        html += u"<li><a class=\"name\" href=\"regions/"_s + region.key() + u".html\">"_s +
                safeHtml(region.name) + u"</a></li>\n"_s;
    }
    return html.isEmpty() ? html : html + u"</ul>\n"_s;
}

QString scripts() {
    QString html;
    for (const auto& script :
         {"leaflet/leaflet.js", "data/world.js", "regionmap.js", "search.js", "start.js"})
        html += u"<script defer src=\"%1\"></script>\n"_s.arg(QLatin1String(script));
    return html;
}

QString partHtml(const AtlasPart& part, const QString& root) {
    QString html;
    if (!part.heading.isEmpty())
        html += u"<h4 class=\"name\">"_s + safeHtml(part.heading) + u"</h4>"_s;
    if (!part.picture.isEmpty())
        html += u"<img class=\"small\" loading=\"lazy\" alt=\"\" src=\""_s + root + part.picture + u"\">"_s;
    for (const QString& line : part.lines)
        html += u"<p>"_s + safeHtml(line) + u"</p>"_s;
    QString facts;
    for (const auto& [name, value] : part.facts)
        facts += u"<div><dt>"_s + safeHtml(name) + u"</dt><dd>"_s + safeHtml(value) + u"</dd></div>"_s;
    if (!facts.isEmpty())
        html += u"<dl>"_s + facts + u"</dl>"_s;
    return u"<div class=\"part\">"_s + html + u"</div>\n"_s;
}

QString placeHtml(const ProgramState& state, const AtlasRegion& region, const AtlasPlace& place) {
    QString html = u"<li><h3 class=\"name\">"_s + safeHtml(place.name) + u"</h3>\n"_s;
    html +=
        u"<p class=\"where\">"_s + (place.zone.isEmpty() ? QString() : safeHtml(place.zone) + u" · "_s) +
        u"<a href=\"../index.html#region=%1&amp;at=%2,%3\">"_s.arg(region.key()).arg(place.x).arg(place.y) +
        safeHtml(atlasText(state, AtlasText::ShowOnMap)) + u"<span class=\"hidden\">: "_s +
        safeHtml(place.name) + u"</span></a></p>\n"_s;
    if (!place.won.isEmpty())
        html += u"<p class=\"won\">"_s + safeHtml(place.won) + u"</p>\n"_s;
    for (const AtlasPart& part : place.parts)
        html += partHtml(part, u"../"_s);
    return html + u"</li>\n"_s;
}

QString layerHtml(const ProgramState& state, const AtlasRegion& region, AtlasLayer layer) {
    QString items;
    int count = 0;
    for (const AtlasPlace& place : region.places)
        if (place.layer == layer) {
            items += placeHtml(state, region, place);
            ++count;
        }
    if (count == 0)
        return {};
    return u"<section>\n<h2>"_s + safeHtml(layerName(state, layer)) +
           u" <span class=\"count\">%1</span></h2>\n<ul class=\"places\">\n"_s.arg(count) + items +
           u"</ul>\n</section>\n"_s;
}

} // namespace

QByteArray startPage(const ProgramState& state, const Atlas& atlas) {
    const auto own = [&](AtlasText number) { return safeHtml(atlasText(state, number)); };
    const QString search = own(AtlasText::SearchEverything);
    const QString title = programName() + u' ' + atlasText(state, AtlasText::Atlas);
    // Without a script there is no map, search or choice: the style sheet hides what is "scripted" then.
    const QString body =
        u"<body class=\"start\">\n<a class=\"skip\" href=\"#lists\">"_s + own(AtlasText::SkipToLists) +
        u"</a>\n<header>\n<h1><img alt=\"\" src=\"icon.svg\"> "_s + safeHtml(title) +
        u"</h1>\n<form id=\"search\" class=\"scripted\" role=\"search\">\n<label class=\"hidden\" for=\"query\">"_s +
        search +
        u"</label>\n<input type=\"search\" id=\"query\" autocomplete=\"off\" spellcheck=\"false\" placeholder=\""_s +
        search +
        u"\">\n</form>\n<div id=\"results\" hidden></div>\n</header>\n<main>\n"
        "<noscript><p class=\"notice\">"_s +
        own(AtlasText::NeedsScript) +
        u"</p></noscript>\n<section id=\"mappart\" class=\"scripted\" aria-label=\""_s + own(AtlasText::Map) +
        u"\">\n<div id=\"map\"></div>\n<p id=\"message\" role=\"status\"></p>\n</section>\n"
        "<section id=\"lists\" tabindex=\"-1\">\n<div class=\"scripted\">\n<h2 class=\"field\"><label for=\"region\">"_s +
        safeHtml(state.text(Caption::Region)) +
        u"</label></h2>\n<select id=\"region\"></select>\n<fieldset id=\"layers\"><legend>"_s +
        own(AtlasText::Layers) + u"</legend></fieldset>\n<h2>"_s + own(AtlasText::InThisRegion) +
        u"</h2>\n<div id=\"here\"></div>\n</div>\n<nav aria-labelledby=\"reading\">\n<h2 id=\"reading\">"_s +
        own(AtlasText::ReadingLists) + u"</h2>\n"_s + regionLinks(atlas) + u"</nav>\n<footer><p>"_s +
        own(AtlasText::ShownWith).arg(u"<a href=\"leaflet/LICENSE.txt\">Leaflet</a>"_s) +
        u"</p></footer>\n</section>\n</main>\n</body>\n"_s;
    const QString head = u"<link rel=\"stylesheet\" href=\"leaflet/leaflet.css\">\n"_s + scripts();
    return page(state, {title, {}, head, body});
}

QByteArray regionPage(const ProgramState& state, const AtlasRegion& region) {
    const auto own = [&](AtlasText number) { return safeHtml(atlasText(state, number)); };
    QString lists;
    for (const AtlasLayer layer : atlasLayers)
        lists += layerHtml(state, region, layer);
    if (lists.isEmpty())
        lists = u"<p>"_s + own(AtlasText::NothingHere) + u"</p>\n"_s;
    const QString picture = region.picture.isEmpty()
                                ? u"<p>"_s + own(AtlasText::NoPicture) + u"</p>\n"_s
                                : u"<img class=\"picture\" alt=\""_s + own(AtlasText::Map) + u": "_s +
                                      safeHtml(region.name) + u"\" src=\"../pictures/regions/"_s +
                                      region.key() + u".jpg\">\n"_s;
    const QString body = u"<body class=\"reading\">\n<header>\n<p class=\"name\">"_s +
                         safeHtml(region.campaignName) + u"</p>\n<h1 class=\"name\">"_s +
                         safeHtml(region.name) + u"</h1>\n<p><a href=\"../index.html#region="_s +
                         region.key() + u"\">"_s + own(AtlasText::BackToMap) +
                         u"</a></p>\n</header>\n<main>\n"_s + picture + lists + u"</main>\n</body>\n"_s;
    return page(state, {region.name + u" - "_s + programName(), u"../"_s, {}, body});
}

} // namespace orvinel
