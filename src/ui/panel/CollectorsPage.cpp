#include "ui/panel/CollectorsPage.h"

#include "layers/modCollectors.h"

#include <QButtonGroup>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::array<QRect, 3> typePlaces = {QRect(2, 22, 95, 16), QRect(2, 38, 189, 16),
                                             QRect(2, 54, 199, 16)};

} // namespace

CollectorsPage::CollectorsPage(QWidget* parent) : TabPage(Tab::Collectors, parent) {
    lblCollStuffType = panelLabel(u"lblCollStuffType"_s, {4, 8}, inner());
    // Without a group of their own they would belong together with the levels, which lie deeper on this page:
    // a click on the type chosen would leave none chosen.
    auto* types = new QButtonGroup(this);
    for (int i = 0; i < 3; ++i) {
        optCollType[size_t(i)] = panelOption(arrayName(u"optCollType"_s, i), typePlaces[size_t(i)], inner());
        types->addButton(optCollType[size_t(i)]);
    }
    lblCollectorLevel = panelLabel(u"lblCollectorLevel"_s, {124, 8}, inner());
    picCollLevels = new QWidget(inner());
    picCollLevels->setObjectName(u"picCollLevels"_s);
    picCollLevels->setGeometry(122, 24, 93, 55);
    for (int i = 0; i < 3; ++i)
        optCollLevel[size_t(i)] =
            panelOption(arrayName(u"optCollLevel"_s, i), {0, 16 * i, 93, 14}, picCollLevels);
    lblCollRequest = panelLabel(u"lblCollRequest"_s, {4, 72}, inner());
    cmbCollReq = panelCombo(u"cmbCollReq"_s, {4, 86, 209, 22}, inner());
    lblCollhand = panelLabel(u"lblCollhand"_s, {4, 112}, inner());
    cmbCollHand = panelCombo(u"cmbCollHand"_s, {4, 126, 89, 22}, inner());
    lblCollSearch = panelLabel(u"lblCollSearch"_s, {98, 112}, inner());
    txtCollSearch = panelField(u"txtCollSearch"_s, {98, 126, 115, 21}, inner());
    lblCollectors = panelLabel(u"lblCollectors"_s, {2, 160}, inner());
    lstCollectors = panelList(u"lstCollectors"_s, {2, 174, 213, 360}, inner());
    optCollType[0]->setChecked(true);
    optCollLevel[0]->setChecked(true);
    lblCollRequest->nameFor(cmbCollReq);
    lblCollhand->nameFor(cmbCollHand);
    lblCollSearch->nameFor(txtCollSearch);
    lblCollectors->nameFor(lstCollectors);
    leadToList(*txtCollSearch, *lstCollectors);
}

void CollectorsPage::applyCaptions(const ProgramState& state) {
    lblCollStuffType->setCaption(state.text(Caption::Reward));
    lblCollectorLevel->setCaption(state.text(Caption::Level));
    for (size_t i = 0; i < 3; ++i) {
        setOptionCaption(*optCollType[i],
                         state.text(std::array{Caption::All, Caption::WeaponsAndTools, Caption::Armour}[i]),
                         state.text(Caption::Reward));
        setOptionCaption(*optCollLevel[i],
                         state.text(std::array{Caption::All, Caption::HighLevel, Caption::LowLevel}[i]),
                         state.text(Caption::Level));
    }
    lblCollRequest->setCaption(state.text(Caption::CollectsChoice));
    lblCollhand->setCaption(state.text(Caption::Type));
    lblCollSearch->setCaption(state.text(Caption::Search));
    lblCollectors->setCaption(state.text(Caption::Collectors));
    cmbCollHand->setEntries({{pinnedText(state.text(Caption::All)), 0},
                             {state.text(Caption::OneHanded), 1},
                             {state.text(Caption::TwoHanded), 2},
                             {state.text(Caption::OffHand), 4},
                             {state.text(Caption::OtherHand), 8}});
}

void CollectorsPage::applyColour(Colour colour) {
    setColour(colour);
    setBackground(*picCollLevels, colour);
    for (size_t i = 0; i < 3; ++i) {
        setBackground(*optCollType[i], colour);
        setBackground(*optCollLevel[i], colour);
    }
}

int CollectorsPage::level() const {
    return optCollLevel[0]->isChecked() ? 2 : optCollLevel[1]->isChecked() ? 1 : 0;
}

void CollectorsPage::setLevel(int level) {
    for (int i = 0; i < 3; ++i) {
        QRadioButton& option = *optCollLevel[size_t(i)];
        // Alone, so that a level that no option stands for leaves none of them chosen.
        option.setAutoExclusive(false);
        option.setChecked(level == 2 - i);
        option.setAutoExclusive(true);
    }
}

void CollectorsPage::read(CollectorChoice& choice) const {
    choice.level = level();
    choice.kind = optCollType[0]->isChecked()   ? CollectorChoice::Kind::All
                  : optCollType[1]->isChecked() ? CollectorChoice::Kind::Objects
                                                : CollectorChoice::Kind::Armour;
    if (cmbCollReq->currentIndex() >= 1)
        choice.request = cmbCollReq->currentText();
    choice.searchText = txtCollSearch->text();
    choice.handMask = cmbCollHand->currentIndex() >= 1 ? cmbCollHand->data() : 255;
}

void CollectorsPage::arrange() {
    lstCollectors->resize(lstCollectors->width(), innerHeight() - lstCollectors->y() - 5);
}

} // namespace orvinel
