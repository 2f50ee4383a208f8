#include "ui/panel/TabStrip.h"

#include "ui/panel/Controls.h"
#include "ui/platform/Windows.h"

#include <algorithm>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int rowLength = 3;

struct TabDesign {
    const char16_t* caption; // the same in every language
    QRect place;
    Colour textColour;
    Caption layer;            // what the check box switches
    int Options::*remembered; // nullptr: the layer is shown at every start
};
// By Tab.
const std::array<TabDesign, tabCount> designs = {{
    {u"Elites ", {7, 177, 54, 18}, 0x0040C0, Caption::EliteSkills, &Options::ShowElites},
    {u"Collectors ", {63, 177, 80, 18}, 0xC00000, Caption::Collectors, &Options::ShowCollectors},
    {u"Greens ", {145, 177, 64, 18}, 0x008000, Caption::GreenItems, &Options::ShowGreens},
    {u"Notes ", {77, 158, 56, 18}, 0xFFFFFF, Caption::Notes, &Options::ShowNotes},
    {u"Various ", {7, 158, 68, 18}, 0xC0E0FF, Caption::TreasuresAndPets, nullptr},
}};
constexpr QRect falseBorderPlace(8, 193, 52, 3);

int rowOf(Tab tab) {
    return static_cast<int>(tab) / rowLength;
}

} // namespace

TabStrip::TabStrip(std::array<TabPage*, tabCount> pages, QWidget* panel)
    : QObject(panel), pages_(pages), picFalseBorder_(new QWidget(panel)) {
    for (const Tab tab : allTabs) {
        const size_t i = indexOf(tab);
        const TabDesign& design = designs[i];
        auto* header = new TabHeader(tab, QString::fromUtf16(design.caption), design.textColour, panel);
        header->setGeometry(design.place);
        auto* box = new SmallCheckBox(arrayName(u"chkShowObject"_s, static_cast<int>(tab)), panel);
        box->move(design.place.topLeft() + QPoint(3, 3));
        connect(header, &TabHeader::clicked, this, [this, tab] { activateWithFocus(tab); });
        connect(header, &TabHeader::stepWanted, this, &TabStrip::step);
        lblTab[i] = header;
        chkShowObject[i] = box;
        pages_[i]->setAccessibleName(header->text().trimmed());
    }
    picFalseBorder_->setObjectName(u"picFalseBorder"_s);
    picFalseBorder_->setGeometry(falseBorderPlace);
    picFalseBorder_->setCursor(programCursor(Pointer::Usual));
    picFalseBorder_->setAttribute(Qt::WA_NoMousePropagation);
}

void TabStrip::applyColours(const ProgramState& state) {
    for (const Tab tab : allTabs) {
        const size_t i = indexOf(tab);
        colours_[i] = state.colourOf(tab);
        lblTab[i]->setColour(colours_[i]);
        pages_[i]->setColour(colours_[i]);
        setBackground(*chkShowObject[i], colours_[i]);
    }
    setBackground(*picFalseBorder_, state.colourOf(Tab::Elites));
}

void TabStrip::applyCaptions(const ProgramState& state) {
    for (size_t i = 0; i < designs.size(); ++i)
        chkShowObject[i]->setAccessibleName(state.text(designs[i].layer));
}

void TabStrip::applyOptions(const Options& options) {
    for (size_t i = 0; i < designs.size(); ++i)
        if (designs[i].remembered)
            chkShowObject[i]->setValue(options.*designs[i].remembered);
}

void TabStrip::readOptions(Options& options) const {
    for (size_t i = 0; i < designs.size(); ++i)
        if (designs[i].remembered)
            options.*designs[i].remembered = chkShowObject[i]->value();
}

std::optional<Tab> TabStrip::active() const {
    const auto found =
        std::find_if(allTabs.begin(), allTabs.end(), [&](Tab tab) { return lblTab[indexOf(tab)]->active(); });
    return found == allTabs.end() ? std::nullopt : std::optional(*found);
}

void TabStrip::activate(Tab tab) {
    const std::optional<Tab> previous = active();
    if (previous == tab)
        return;
    if (previous) {
        if (rowOf(*previous) != rowOf(tab))
            swapRows(*previous, tab);
        lblTab[indexOf(*previous)]->setActive(false);
        pages_[indexOf(*previous)]->hide();
    }
    TabHeader& header = *lblTab[indexOf(tab)];
    header.setActive(true);
    setBackground(*picFalseBorder_, colours_[indexOf(tab)]);
    pages_[indexOf(tab)]->show();
    picFalseBorder_->setGeometry(header.x() + 1, falseBorderPlace.y(), header.width() - 2,
                                 falseBorderPlace.height());
    picFalseBorder_->raise();
}

void TabStrip::activateWithFocus(Tab tab) {
    activate(tab);
    lblTab[indexOf(tab)]->setFocus(Qt::TabFocusReason);
}

void TabStrip::step(int by) {
    const int from = static_cast<int>(active().value_or(Tab::Elites));
    activateWithFocus(static_cast<Tab>((from + by + tabCount) % tabCount));
}

void TabStrip::swapRows(Tab left, Tab right) {
    const int leftTop = lblTab[indexOf(left)]->y();
    const int rightTop = lblTab[indexOf(right)]->y();
    for (const Tab tab : allTabs) {
        if (rowOf(tab) != rowOf(left) && rowOf(tab) != rowOf(right))
            continue;
        const size_t i = indexOf(tab);
        const int top = rowOf(tab) == rowOf(left) ? rightTop : leftTop;
        lblTab[i]->move(lblTab[i]->x(), top);
        chkShowObject[i]->move(chkShowObject[i]->x(), top + 2);
    }
}

} // namespace orvinel
