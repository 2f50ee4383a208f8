#include "ui/layers/modTreasuresView.h"

#include "layers/modTreasures.h"
#include "progress/OpenedTreasures.h"
#include "ui/map/WindowRules.h"
#include "ui/platform/Fonts.h"

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr Caption listCaption = Caption::Treasures;
constexpr Tab bandTab = Tab::Various; // whose colour the band has

constexpr int width = 240;
constexpr QPoint titleAt{14, 5};
constexpr int left = 14;
constexpr int textWidth = width - 2 * left;
constexpr int belowTitle = 8;
constexpr int belowHeading = 3;
constexpr int bottomMargin = 10;
constexpr int padding = 10; // padded lines end this far before the list's right edge

const MapLocation& locationOf(const Content& state, int index, int) {
    return state.Treasures[index].Location;
}

} // namespace

TreasuresView::TreasuresView(const ProgramState& state, const Desktop& desktop, frmMenu& panel, frmMap& map,
                             std::function<void(int)> openTreasure)
    : ListedLayerView(
          {state, panel, map}, *panel.variousPage().lstKesraTreasures,
          {Tab::Various, treasureMarkers, treasureHitAreas, locationOf, u"picTreasureTooltip"_s, width}),
      desktop_(desktop), openTreasure_(std::move(openTreasure)) {
    lblTreasureName_ = informationLabel(u"lblTreasureName"_s, arial(points10, true), blackTitle, window());
    lblTreasureOpenedBy_ =
        informationLabel(u"lblTreasureOpenedBy"_s, arial(points8_25, true), paleCaption, window());
    lblTreasureCharList_ = informationLabel(u"lblTreasureCharList"_s, arial(points8_25), whiteText, window());
    for (Label* label : {lblTreasureName_, lblTreasureOpenedBy_, lblTreasureCharList_}) {
        label->setWrapWidth(textWidth);
        hideAllOnClick(map, *label);
    }
    hideAllOnClick(map, window());
    const ListBox* list = panel.variousPage().lstKesraTreasures;
    connect(list, &ListBox::picked, this, &TreasuresView::listPicked);
    connect(list, &ListBox::activatedEntry, this,
            [this, list] { openTreasure_(list->selectedEntry().data); });
}

void TreasuresView::FilterTreasures(bool updateMap) {
    const VariousPage& page = panel().variousPage();
    panel().runFilter({*page.lstKesraTreasures, *page.lblTreasures, listCaption,
                       [this] { return treasureEntries(state(), {panel().selection().place()}); }},
                      updateMap);
}

// Chests and pets share page and map: only one of them has a selection.
void TreasuresView::listPicked() {
    const VariousPage& page = panel().variousPage();
    if (!page.lstKesraTreasures->hasSelection())
        return;
    page.lstPetLocations->select(-1);
    page.lstPets->select(-1);
    ShowSelectedTreasure();
}

void TreasuresView::ShowSelectedTreasure() {
    const ListBox& list = *panel().variousPage().lstKesraTreasures;
    if (list.hasSelection())
        jumpTo(list.selectedEntry().data);
}

bool TreasuresView::doubleClick(ViewPoint at) {
    const auto hit = HitTestTreasure(at);
    if (hit)
        openTreasure_(hit->id);
    return hit.has_value();
}

void TreasuresView::ShowTreasureTooltip(const HitArea& item) {
    const TreasureTooltip tooltip = treasureTooltip(state(), item.id);
    lblTreasureName_->setCaption(tooltip.name);
    lblTreasureOpenedBy_->setCaption(PadBetween(tooltip.headingLeft, tooltip.headingRight, true));
    lblTreasureCharList_->setCaption(characterLines(tooltip));
    lblTreasureName_->move(titleAt);
    lblTreasureOpenedBy_->move(left, titleAt.y() + lblTreasureName_->height() + belowTitle);
    lblTreasureCharList_->move(left,
                               lblTreasureOpenedBy_->y() + lblTreasureOpenedBy_->height() + belowHeading);
    window().resize(width, lblTreasureCharList_->y() + lblTreasureCharList_->height() + bottomMargin);
    frame(item, state().colourOf(bandTab), *lblTreasureName_);
}

QString TreasuresView::characterLines(const TreasureTooltip& tooltip) const {
    if (tooltip.lines.empty())
        return tooltip.instead;
    QStringList lines;
    for (const TreasureTooltip::Line& line : tooltip.lines) {
        const QString date = line.openedOn.isValid() ? desktop_.shortDate(line.openedOn) : QString();
        lines << (date.isEmpty() ? line.character
                                 : PadBetween(line.character, QString(date).replace(u'/', u'-'), false));
    }
    return lines.join(u"\r\n"_s);
}

QString TreasuresView::PadBetween(const QString& leftText, const QString& rightText, bool bold) const {
    const QFontMetrics metrics(arial(points8_25, bold));
    return padBetween(leftText, rightText, lblTreasureCharList_->width() - padding,
                      [&](const QString& text) { return metrics.horizontalAdvance(text); });
}

} // namespace orvinel
