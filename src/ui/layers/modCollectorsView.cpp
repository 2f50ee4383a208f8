#include "ui/layers/modCollectorsView.h"

#include "layers/modCollectors.h"
#include "ui/map/WindowRules.h"
#include "ui/panel/Controls.h"
#include "ui/platform/Fonts.h"

#include <algorithm>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr Caption listCaption = Caption::Collectors;
constexpr Caption locationCaption = Caption::Location;
constexpr Caption requestCaption = Caption::Collects;
constexpr Tab bandTab = Tab::Collectors; // whose colour the band has

constexpr int width = 290;
constexpr QPoint titleAt{14, 5};
constexpr int left = 14;
constexpr int right = width - 14;
constexpr int statsLeft = left + 8;
constexpr int belowTitle = 8;
constexpr int betweenTexts = 3;
constexpr int betweenColumns = 8;
constexpr int belowLocation = 9;
constexpr int lineBelowLocation = 5;
constexpr int betweenRewards = 3;
constexpr int bottomMargin = 10;

constexpr Colour matchingName = 0xAADDEE;
constexpr Colour otherReward = 0x969696;

const MapLocation& locationOf(const Content& state, int id, int) {
    return state.Collectors[id].Location;
}

} // namespace

CollectorsView::CollectorsView(const ProgramState& state, frmMenu& panel, frmMap& map)
    : ListedLayerView({state, panel, map}, *panel.collectorsPage().lstCollectors,
                      {Tab::Collectors, collectorMarkers, collectorHitAreas, locationOf,
                       u"picCollectorToolTip"_s, width}) {
    const auto label = [this](const QString& name, const QFont& font, Colour colour) {
        Label* created = informationLabel(name, font, colour, window());
        hideAllOnClick(this->map(), *created);
        return created;
    };
    lblCollName_ = label(u"lblCollName"_s, arial(points10, true), blackTitle);
    lblCollRequestCaption_ = label(u"lblCollRequestCaption"_s, arial(points8_25), paleCaption);
    lblCollRequest_ = label(u"lblCollRequest"_s, arial(points8_25), whiteText);
    lblCollLocationCaption_ = label(u"lblCollLocationCaption"_s, arial(points8_25), paleCaption);
    lblCollLocation_ = label(u"lblCollLocation"_s, arial(points8_25), whiteText);
    lblCollRequestCaption_->setCaption(state.text(requestCaption));
    lblCollLocationCaption_->setCaption(state.text(locationCaption));
    lblCollName_->setWrapWidth(right - titleAt.x());
    addReward();
    hideAllOnClick(map, window());
    connect(panel.collectorsPage().lstCollectors, &ListBox::picked, this,
            &CollectorsView::ShowSelectedCollector);
}

void CollectorsView::FilterCollectors(bool updateMap) {
    const CollectorsPage& page = panel().collectorsPage();
    panel().runFilter({*page.lstCollectors, *page.lblCollectors, listCaption,
                       [this] { return collectorEntries(state(), panel().collectorChoice()); }},
                      updateMap);
}

void CollectorsView::ShowSelectedCollector() {
    const ListBox& list = *panel().collectorsPage().lstCollectors;
    if (list.hasSelection())
        jumpTo(list.selectedEntry().data);
}

void CollectorsView::ShowCollectorTooltip(const HitArea& item) {
    FillCollectorTooltip(item.id);
    frame(item, state().colourOf(bandTab), *lblCollName_);
    window().separator(lblCollLocation_->y() + lblCollLocation_->height() + lineBelowLocation);
}

void CollectorsView::FillCollectorTooltip(int id) {
    const CollectorTooltip tooltip = collectorTooltip(state(), id, panel().collectorChoice());
    int y = placeTexts(tooltip);
    while (rewards_.size() < tooltip.objects.size())
        addReward();
    rewards_.resize(std::max<size_t>(1, tooltip.objects.size()));
    for (size_t k = 0; k < tooltip.objects.size(); ++k)
        y = placeReward(tooltip.objects[k], k, y);
    const Label& last = *rewards_.back().stats;
    window().resize(width, last.y() + last.height() + bottomMargin);
}

int CollectorsView::placeTexts(const CollectorTooltip& tooltip) {
    lblCollName_->setCaption(tooltip.name);
    lblCollName_->move(titleAt);
    const int column =
        left + betweenColumns + std::max(lblCollRequestCaption_->width(), lblCollLocationCaption_->width());
    int y = titleAt.y() + lblCollName_->height() + belowTitle;
    const auto place = [&](Label& caption, Label& text, const QString& content) {
        caption.move(left, y);
        text.setWrapWidth(right - column);
        text.setCaption(content);
        text.move(column, y);
        y += text.height() + betweenTexts;
    };
    place(*lblCollRequestCaption_, *lblCollRequest_, tooltip.request);
    place(*lblCollLocationCaption_, *lblCollLocation_, tooltip.location);
    return lblCollLocation_->y() + lblCollLocation_->height() + belowLocation;
}

int CollectorsView::placeReward(const CollectorTooltip::Object& object, size_t index, int y) {
    Label& name = *rewards_[index].name;
    Label& stats = *rewards_[index].stats;
    name.setColour(object.highlighted ? matchingName : otherReward);
    stats.setColour(object.highlighted ? whiteText : otherReward);
    name.setCaption(object.name);
    stats.setCaption(object.stats);
    name.move(left, y);
    stats.move(statsLeft, y + name.height());
    return stats.y() + stats.height() + betweenRewards;
}

void CollectorsView::addReward() {
    const int index = static_cast<int>(rewards_.size());
    Reward reward{std::unique_ptr<Label>(informationLabel(arrayName(u"lblCollObjectName"_s, index),
                                                          arial(points8_25, true), matchingName, window())),
                  std::unique_ptr<Label>(informationLabel(arrayName(u"lblCollObjectStats"_s, index),
                                                          arial(points8_25), whiteText, window()))};
    reward.name->setWrapWidth(right - left);
    reward.stats->setWrapWidth(right - statsLeft);
    for (Label* label : {reward.name.get(), reward.stats.get()}) {
        hideAllOnClick(map(), *label);
        label->show();
    }
    rewards_.push_back(std::move(reward));
}

} // namespace orvinel
