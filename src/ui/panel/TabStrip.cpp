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
};
const std::array<TabDesign, tabCount> designs = {{{u"Elites ", {7, 177, 54, 18}, 0x0040C0},
                                                  {u"Collectors ", {63, 177, 80, 18}, 0xC00000},
                                                  {u"Greens ", {145, 177, 64, 18}, 0x008000},
                                                  {u"Notes ", {77, 158, 56, 18}, 0xFFFFFF},
                                                  {u"Various ", {7, 158, 68, 18}, 0xC0E0FF}}};
constexpr std::array<Caption, tabCount> layerTexts = {Caption::EliteSkills, Caption::Collectors,
                                                      Caption::GreenItems, Caption::Notes,
                                                      Caption::TreasuresAndPets};
constexpr QRect falseBorderPlace(8, 193, 52, 3);

} // namespace

TabStrip::TabStrip(std::array<TabPage*, tabCount> pages, QWidget* panel)
    : QObject(panel), pages_(pages), picFalseBorder_(new QWidget(panel)) {
    for (int i = 0; i < tabCount; ++i) {
        const TabDesign& design = designs[size_t(i)];
        auto* header = new TabHeader(i, QString::fromUtf16(design.caption), design.textColour, panel);
        header->setGeometry(design.place);
        auto* box = new SmallCheckBox(arrayName(u"chkShowObject"_s, i), panel);
        box->move(design.place.topLeft() + QPoint(3, 3));
        connect(header, &TabHeader::clicked, this, [this, i] { activateWithFocus(i); });
        connect(header, &TabHeader::stepWanted, this, &TabStrip::step);
        lblTab[size_t(i)] = header;
        chkShowObject[size_t(i)] = box;
        pages_[size_t(i)]->setAccessibleName(header->text().trimmed());
    }
    picFalseBorder_->setObjectName(u"picFalseBorder"_s);
    picFalseBorder_->setGeometry(falseBorderPlace);
    picFalseBorder_->setCursor(programCursor(101));
    picFalseBorder_->setAttribute(Qt::WA_NoMousePropagation);
}

void TabStrip::applyColours(const ProgramState& state) {
    for (size_t i = 0; i < tabCount; ++i) {
        colours_[i] = state.TabColors[i];
        lblTab[i]->setColour(colours_[i]);
        pages_[i]->setColour(colours_[i]);
        setBackground(*chkShowObject[i], colours_[i]);
    }
    setBackground(*picFalseBorder_, colours_[0]);
}

void TabStrip::applyCaptions(const ProgramState& state) {
    for (size_t i = 0; i < tabCount; ++i)
        chkShowObject[i]->setAccessibleName(state.text(layerTexts[i]));
}

int TabStrip::active() const {
    const auto found =
        std::find_if(lblTab.begin(), lblTab.end(), [](const TabHeader* tab) { return tab->tag() == u"1"_s; });
    return found == lblTab.end() ? -1 : static_cast<int>(found - lblTab.begin());
}

void TabStrip::activate(int index) {
    const int previous = active();
    if (previous == index)
        return;
    if (previous >= 0) {
        if (previous / rowLength != index / rowLength)
            swapRows(previous, index);
        lblTab[size_t(previous)]->setTag({});
        pages_[size_t(previous)]->hide();
    }
    TabHeader& header = *lblTab[size_t(index)];
    header.setTag(u"1"_s);
    setBackground(*picFalseBorder_, colours_[size_t(index)]);
    pages_[size_t(index)]->show();
    picFalseBorder_->setGeometry(header.x() + 1, falseBorderPlace.y(), header.width() - 2,
                                 falseBorderPlace.height());
    picFalseBorder_->raise();
    emit activated(index);
}

void TabStrip::activateWithFocus(int index) {
    activate(index);
    lblTab[size_t(index)]->setFocus(Qt::TabFocusReason);
}

void TabStrip::step(int by) {
    activateWithFocus((active() + by + tabCount) % tabCount);
}

void TabStrip::swapRows(int left, int right) {
    const int leftTop = lblTab[size_t(left)]->y();
    const int rightTop = lblTab[size_t(right)]->y();
    for (int i = 0; i < tabCount; ++i) {
        const int row = i / rowLength;
        if (row != left / rowLength && row != right / rowLength)
            continue;
        const int top = row == left / rowLength ? rightTop : leftTop;
        lblTab[size_t(i)]->move(lblTab[size_t(i)]->x(), top);
        chkShowObject[size_t(i)]->move(chkShowObject[size_t(i)]->x(), top + 2);
    }
}

} // namespace orvinel
