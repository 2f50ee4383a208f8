#pragma once

#include <QString>

namespace orvinel {

// Texts from data files reach a page through here only: no mark-up in them works, and what no page may hold
// is replaced.
QString safeHtml(const QString& text);

// A page that needs nothing from elsewhere and runs no script: one file, light or dark as the reader likes,
// for a small screen, a large one and paper.
struct HtmlPage {
    QString language; // its code, as in "en"
    QString title;    // not escaped yet
    QString style;    // of its own, after the common one
    QString body;     // finished
};
QString htmlText(const HtmlPage& page);

// How much of `all` is done as a bar, with `label` for those who cannot see it. `all` is above 0.
QString htmlBar(int done, int all, const QString& label);

} // namespace orvinel
