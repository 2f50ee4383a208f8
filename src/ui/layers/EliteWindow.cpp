#include "ui/layers/EliteWindow.h"

#include "app/modLanguage.h"
#include "layers/modElite.h"
#include "ui/map/WindowRules.h"
#include "ui/platform/Fonts.h"
#include "ui/platform/Palette.h"

#include <algorithm>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int windowWidth = 312;
constexpr int left = 14; // of everything but the column beside the picture
constexpr int textWidth = windowWidth - 2 * left;
constexpr int nameTop = 5;
constexpr int nameMargin = 2; // above and below the name in its band
constexpr QRect picturePlace(left, 31, 64, 64);
constexpr int besidePicture = 88;
constexpr int rowTop = 31; // of the first row beside the picture
constexpr int rowStep = 15;
constexpr int columnGap = 8; // between captions and values
constexpr int costTop = 79;
constexpr int costStep = 43; // five costs fill the column; those that are seen stand from its left
constexpr int iconSize = 16;
constexpr int costTextTop = costTop + 2;
constexpr int descriptionTop = 102;
constexpr int statsIndent = 8;

// Distances of the flowing part.
constexpr int bossBelowDescription = 9;
constexpr int separatorBelowDescription = 5;
constexpr int lineGap = 2;
constexpr int greensGap = 7;
constexpr int separatorAboveGreens = 5;
constexpr int bottomMargin = 8;
constexpr int fractionDrop = 2;

constexpr Colour captionColour = 0xCBECF5;
constexpr Colour bossColour = 0x9CD8FF;
constexpr Colour greenColour = 0x8CF08C;
constexpr Colour statsColour = 0xD8F0D8;

// Black or white, whichever can be read on the ground, which the map below makes darker.
Colour readableOn(Colour ground) {
    const int brightness =
        299 * int(ground & 0xFF) + 587 * int(ground >> 8 & 0xFF) + 114 * int(ground >> 16 & 0xFF);
    return brightness >= 145'000 ? 0 : white;
}

QString elementName(const char* array, size_t index) {
    return QLatin1String(array) + u'(' + QString::number(index) + u')';
}

int below(const QWidget* control, int gap) {
    return control->y() + control->height() + gap;
}

} // namespace

EliteWindow::EliteWindow(const ProgramState& state, frmMap& map)
    : InformationWindow(u"picExtToolTip"_s, windowWidth, map.picMap()), frame_(map),
      lblExtEliteName_(informationLabel(u"lblExtEliteName"_s, arial(points10, true), white, *this)),
      imgExtElite_(informationPicture(u"imgExtElite"_s, picturePlace, *this)),
      type_(makeRow("Type", state.text(Caption::Type), rowTop)),
      attribute_(makeRow("Attribute", state.text(Caption::Attribute), rowTop + rowStep)),
      campaign_(makeRow("Campaign", state.text(Caption::Campaign), rowTop + 2 * rowStep)),
      upkeep_(makeCost("imgExtUpKeep", "lblExtUpKeep", state.text(Caption::Upkeep))),
      adrenaline_(makeCost("imgExtAdrenaline", "lblExtAdrenaline", state.text(Caption::Adrenaline))),
      energy_(makeCost("imgExtEnergy", "lblExtEnergy", state.text(Caption::Energy))),
      recharge_(makeCost("imgExtRecharge", "lblExtRechargeTime", state.text(Caption::Recharge))),
      cast_(makeCost("imgExtCast", "lblExtCastTime", state.text(Caption::CastTime))),
      lblExtDescription_(informationLabel(u"lblExtDescription"_s, arial(points8_25), white, *this)),
      boss_(makeRow("Boss", state.text(Caption::Boss), 0)),
      zone_(makeRow("Zone", state.text(Caption::Zone), 0)),
      lblExtCaptionNote_(informationLabel(u"lblExtCaptionNote"_s, arial(points8_25), captionColour, *this)),
      lblExtNote_(informationLabel(u"lblExtNote"_s, arial(points8_25), white, *this)) {
    lblExtEliteName_->move(left, nameTop);
    lblExtEliteName_->setLongest(textWidth);
    lblExtEliteName_->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    lblExtDescription_->move(left, descriptionTop);
    lblExtDescription_->setWrapWidth(textWidth);
    lblExtCaptionNote_->setCaption(state.text(Caption::BossNote));
    lblExtNote_->setWrapWidth(textWidth);
    boss_.value->setFont(arial(points8_25, true));
    boss_.value->setColour(bossColour);
    alignValues();
    hideOnClicks(map);
    green(0);
}

EliteWindow::Row EliteWindow::makeRow(const char* name, const QString& caption, int top) {
    const auto make = [&](const char* prefix, Colour colour) {
        Label* label =
            informationLabel(QLatin1String(prefix) + QLatin1String(name), arial(points8_25), colour, *this);
        label->move(besidePicture, top);
        return label;
    };
    const Row row{make("lblExtCaption", captionColour), make("lblExt", white)};
    row.caption->setCaption(caption);
    return row;
}

EliteWindow::Cost EliteWindow::makeCost(const char* icon, const char* value, const QString& spoken) {
    const QString file = QLatin1String(icon);
    const Cost cost{informationPicture(file, {besidePicture, costTop, iconSize, iconSize}, *this),
                    informationLabel(QLatin1String(value), arial(points8), white, *this)};
    cost.icon->setAccessibleName(spoken);
    setPicture(*cost.icon, QImage(u":/windows/%1.png"_s.arg(file)));
    return cost;
}

// The values stand in one column per part, right of the widest caption.
void EliteWindow::alignValues() {
    const auto align = [](std::initializer_list<Row> rows, int x) {
        int widest = 0;
        for (const Row& row : rows)
            widest = std::max(widest, row.caption->width());
        for (const Row& row : rows) {
            row.caption->move(x, row.caption->y());
            row.value->move(x + widest + columnGap, row.value->y());
        }
        return windowWidth - left - (x + widest + columnGap);
    };
    const int beside = align({type_, attribute_, campaign_}, besidePicture);
    for (const Row& row : {type_, attribute_, campaign_})
        row.value->setLongest(beside);
    const int width = align({boss_, zone_}, left);
    boss_.value->setWrapWidth(width);
    zone_.value->setWrapWidth(width);
    lblExtCaptionNote_->move(left, 0);
    lblExtNote_->move(left, 0);
}

// All but the skill's name.
void EliteWindow::hideOnClicks(frmMap& map) {
    hideAllOnClick<PictureBox>(map, *this);
    for (Label* label : findChildren<Label*>())
        if (label != lblExtEliteName_)
            hideAllOnClick(map, *label);
}

void EliteWindow::fill(const EliteTooltip& tip, const QImage& picture) {
    fillSkill(tip, picture);
    int y = placeBoss(tip);
    y = placeGreens(tip, y);
    resize(width(), y + bottomMargin);
}

void EliteWindow::fillSkill(const EliteTooltip& tip, const QImage& picture) {
    lblExtEliteName_->setCaption(tip.name);
    lblExtEliteName_->resize(lblExtEliteName_->width(),
                             lblExtEliteName_->fontMetrics().height() + 2 * nameMargin);
    lblExtEliteName_->setColour(readableOn(tip.band));
    setPicture(*imgExtElite_, picture);
    imgExtElite_->setAccessibleName(tip.name);
    type_.value->setCaption(tip.type);
    attribute_.value->setCaption(tip.attribute);
    campaign_.value->setCaption(tip.campaign);
    lblExtDescription_->setCaption(tip.description);
    for (QWidget* control : {lblExtEliteName_, imgExtElite_, type_.caption, type_.value, attribute_.caption,
                             attribute_.value, campaign_.caption, campaign_.value, lblExtDescription_})
        control->setVisible(tip.skillShown);
    int x = besidePicture;
    for (const auto& [cost, text] :
         {std::pair(&upkeep_, &tip.upkeep), std::pair(&adrenaline_, &tip.adrenaline),
          std::pair(&energy_, &tip.energy), std::pair(&cast_, &tip.castTime),
          std::pair(&recharge_, &tip.recharge)}) {
        const bool seen = *text && tip.skillShown;
        fillCost(*cost, *text, seen, x);
        x += seen ? costStep : 0;
    }
    // A fraction would be too wide for its slot.
    cast_.value->setFont(arial(tip.castTimeHasSlash ? points7 : points8));
    cast_.value->move(cast_.value->x(), recharge_.value->y() + (tip.castTimeHasSlash ? fractionDrop : 0));
}

void EliteWindow::fillCost(const Cost& cost, const std::optional<QString>& text, bool seen, int x) {
    cost.value->setLongest(windowWidth - left - (x + iconSize + 3));
    cost.value->setCaption(text.value_or(QString()));
    cost.icon->move(x, costTop);
    cost.value->move(x + iconSize + 3, costTextTop);
    cost.value->setVisible(seen);
    cost.icon->setVisible(seen);
}

int EliteWindow::placeBoss(const EliteTooltip& tip) {
    const auto place = [](const Row& row, const QString& text, int y) {
        row.value->setCaption(text);
        row.value->move(row.value->x(), y);
        row.caption->move(row.caption->x(), y);
    };
    place(boss_, tip.boss,
          tip.skillShown ? below(lblExtDescription_, bossBelowDescription) : nameTop + lineGap);
    place(zone_, tip.zone, below(boss_.value, lineGap));
    const bool noted = !tip.note.isEmpty();
    lblExtCaptionNote_->setVisible(noted);
    lblExtNote_->setVisible(noted);
    const int y = below(zone_.value, lineGap);
    if (!noted)
        return y;
    lblExtCaptionNote_->move(left, y);
    lblExtNote_->setCaption(tip.note);
    lblExtNote_->move(left, below(lblExtCaptionNote_, lineGap));
    return below(lblExtNote_, lineGap);
}

int EliteWindow::placeGreens(const EliteTooltip& tip, int y) {
    const size_t count = tip.greens.size();
    for (size_t j = std::max<size_t>(count, 1); j < greens_.size(); ++j) {
        // They may be asked for later in this very event.
        greens_[j].name->deleteLater();
        greens_[j].stats->deleteLater();
        greens_[j].name->setParent(nullptr);
        greens_[j].stats->setParent(nullptr);
    }
    greens_.resize(std::clamp<size_t>(count, 1, greens_.size()));
    greens_[0].name->setVisible(count > 0);
    greens_[0].stats->setVisible(count > 0);
    if (count > 0)
        y += greensGap;
    for (size_t j = 0; j < count; ++j) {
        const Green& pair = green(j);
        pair.name->setCaption(tip.greens[j].name);
        pair.name->move(left, y);
        pair.stats->setCaption(tip.greens[j].stats);
        pair.stats->move(left + statsIndent, below(pair.name, 0));
        y = below(pair.stats, 1);
    }
    return y;
}

EliteWindow::Green& EliteWindow::green(size_t index) {
    while (greens_.size() <= index) {
        const size_t j = greens_.size();
        const Green pair{
            informationLabel(elementName("lblGreen", j), arial(points8_25, true), greenColour, *this),
            informationLabel(elementName("lblGreenStats", j), arial(points8_25), statsColour, *this)};
        pair.name->setWrapWidth(textWidth);
        pair.stats->setWrapWidth(textWidth - statsIndent);
        hideAllOnClick(frame_, *pair.name);
        hideAllOnClick(frame_, *pair.stats);
        pair.name->setVisible(j > 0);
        pair.stats->setVisible(j > 0);
        greens_.push_back(pair);
    }
    return greens_[index];
}

void EliteWindow::present(const EliteTooltip& tip, const QRect& marker) {
    if (tip.skillShown)
        frameWithBand(tip.band, lblExtEliteName_->height() + 4, marker);
    else
        frameWithoutBand(marker);
    if (tip.skillShown)
        separator(below(lblExtDescription_, separatorBelowDescription));
    if (!tip.greens.empty())
        separator(greens_[0].name->y() - separatorAboveGreens);
}

} // namespace orvinel
