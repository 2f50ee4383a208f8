#include "tools/Html.h"

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

// Nothing is loaded and nothing runs, whatever slips into the page.
const QString policy = u"default-src 'none'; style-src 'unsafe-inline'; img-src data:; "
                       "base-uri 'none'; form-action 'none'"_s;

QString commonStyle() {
    return uR"(:root { color-scheme: light dark; --paper: #fbfaf7; --ink: #22211e; --soft: #5c574c; --line: #d8d2c4;
  --head: #1d3f66; --bar: #2f6aa3; --track: #e6e1d5; --box: #fff; }
@media (prefers-color-scheme: dark) { :root { --paper: #191b1f; --ink: #e8e6e1; --soft: #b3aea3; --line: #3d4047;
  --head: #9cc4ef; --bar: #5f9bd6; --track: #33363d; --box: #22252a; } }
* { box-sizing: border-box; }
body { font: 16px/1.5 "Liberation Sans", Arial, sans-serif; color: var(--ink); background: var(--paper);
  margin: 0 auto; max-width: 62rem; padding: 1rem 1rem 4rem; overflow-wrap: anywhere; }
h1, h2, h3, h4 { line-height: 1.25; color: var(--head); margin: 1.6em 0 .5em; }
h1 { font-size: 1.7rem; margin-top: .5em; }
h2 { font-size: 1.4rem; border-bottom: 2px solid var(--line); padding-bottom: .2em; }
h3 { font-size: 1.1rem; }
h4 { font-size: 1rem; margin: 1.2em 0 .3em; }
a { color: var(--head); }
:focus-visible { outline: 3px solid var(--bar); outline-offset: 2px; }
table { border-collapse: collapse; width: 100%; }
th, td { text-align: left; padding: .3em .6em .3em 0; border-bottom: 1px solid var(--line); vertical-align: middle; }
svg.bar { display: block; width: 100%; min-width: 3rem; height: .6rem; }
svg .track { fill: var(--track); }
svg .part { fill: var(--bar); }
@page { size: A4; margin: 15mm; }
@media print { :root { --paper: #fff; --ink: #000; --soft: #333; --line: #999; --head: #000; --bar: #444; --track: #ddd;
  --box: #fff; color-scheme: light; } body { max-width: none; padding: 0; font-size: 10pt; }
  svg, tr, li { break-inside: avoid; } h2, h3, h4 { break-after: avoid; } nav { display: none; }
  * { print-color-adjust: exact; -webkit-print-color-adjust: exact; } }
)"_s;
}

} // namespace

QString safeHtml(const QString& text) {
    QString safe = text.toHtmlEscaped();
    safe.replace(u'\'', u"&#39;"_s);
    for (QChar& c : safe)
        if ((c < u' ' && c != u'\t' && c != u'\n') || (c >= QChar(0x7F) && c <= QChar(0x9F)))
            c = QChar::ReplacementCharacter;
    return safe;
}

QString htmlText(const HtmlPage& page) {
    return u"<!DOCTYPE html>\n<html lang=\""_s + safeHtml(page.language) +
           u"\">\n<head>\n<meta charset=\"utf-8\">\n<meta http-equiv=\"Content-Security-Policy\" content=\""_s +
           policy +
           u"\">\n<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n<title>"_s +
           safeHtml(page.title) + u"</title>\n<link rel=\"icon\" href=\"data:,\">\n<style>\n"_s +
           commonStyle() + page.style + u"</style>\n</head>\n<body>\n"_s + page.body +
           u"</body>\n</html>\n"_s;
}

QString htmlBar(int done, int all, const QString& label) {
    return u"<svg class=\"bar\" viewBox=\"0 0 100 6\" preserveAspectRatio=\"none\" role=\"img\" aria-label=\""_s +
           safeHtml(label) +
           u"\"><rect class=\"track\" width=\"100\" height=\"6\" rx=\"1\"/><rect class=\"part\" width=\"%1\" "
           "height=\"6\" rx=\"1\"/></svg>"_s.arg(100.0 * done / all, 0, 'f', 1);
}

} // namespace orvinel
