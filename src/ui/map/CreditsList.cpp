#include "ui/map/CreditsList.h"

#include "ui/platform/Drawing.h"
#include "ui/platform/Fonts.h"

#include <QStringList>

#include <algorithm>
#include <array>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

struct Credit {
    QString name;
    QString role;
};

// Pixels.
constexpr int columnGap = 8;  // of either column from the line between them
constexpr int windowTop = 15; // in the credits window
constexpr int thanksGap = 5;  // above the thanks
constexpr int thanksLines = 2;

const std::array<Credit, 9>& credits() {
    static const std::array<Credit, 9> list = {{
        {u"Orrel Tarn"_s, u"Program, windows and everything in between"_s},
        {u"Ferrowyn"_s, u"Region pictures, rivers, ruins, a moon and far too many trees"_s},
        {u"Old Brackwater"_s, u"Boss walks, counted step by step"_s},
        {u"Sorrel Ninthwatch"_s, u"Collectors and what they ask for"_s},
        {u"Dunmarrow"_s, u"Green items, found the hard way"_s},
        {u"Ilvane Pebblecroft"_s, u"Treasure chests and the keys that broke"_s},
        {u"Grimthistle"_s, u"Pets, and the bites that came with them"_s},
        {u"Wendrake & Mossby"_s, u"Texts in English, Italian and German"_s},
        {u"Lampwick"_s, u"Trying every build before anybody else"_s},
    }};
    return list;
}

const std::array<QString, thanksLines>& thanks() {
    static const std::array<QString, thanksLines> lines = {
        u"Special thanks to everyone in the community who has helped"_s,
        u"to make Orvinel the software it is. Keep up the good work."_s};
    return lines;
}

// Where a line begins, from the first line's top.
int belowTop(size_t line, int lineHeight) {
    return static_cast<int>(line) * lineHeight + (line < credits().size() ? 0 : thanksGap);
}

int widestRole(const Drawing& drawing) {
    int widest = 0;
    for (const Credit& credit : credits())
        widest = std::max(widest, drawing.textWidth(credit.role));
    return widest;
}

} // namespace

void DrawCreditsList(QImage& target, int placement) {
    const QSize size = target.deviceIndependentSize().toSize();
    Drawing drawing(&target);
    drawing.setFont(arial(points9));
    drawing.setForeground(creamText);
    const int th = drawing.lineHeight();
    const int lines = static_cast<int>(credits().size()) + thanksLines;
    const int top = placement == 1 ? size.height() - lines * th - thanksGap : windowTop;
    const int middle = size.width() - widestRole(drawing) - (placement == 1 ? 16 : 50);
    size_t line = 0;
    for (const Credit& credit : credits()) {
        const int y = top + belowTop(line++, th);
        drawing.print(middle + columnGap, y, credit.role);
        drawing.print(middle - columnGap - drawing.textWidth(credit.name), y, credit.name);
    }
    for (const QString& text : thanks())
        drawing.print(middle + columnGap, top + belowTop(line++, th), text);
}

std::vector<QRect> creditsPlaces(int width) {
    const int th = QFontMetrics(arial(points9)).height();
    std::vector<QRect> places;
    for (size_t line = 0; line < credits().size() + thanks().size(); ++line)
        places.emplace_back(0, windowTop + belowTop(line, th), width, th);
    return places;
}

QString creditsText() {
    QStringList lines;
    for (const Credit& credit : credits())
        lines << credit.name + u": "_s + credit.role;
    for (const QString& line : thanks())
        lines << line;
    return lines.join(u'\n');
}

} // namespace orvinel
