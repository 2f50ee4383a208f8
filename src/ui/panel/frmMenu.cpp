#include "ui/panel/frmMenu.h"

#include "app/modLanguage.h"
#include "base/About.h"
#include "layers/modGreenies.h"
#include "layers/modNotes.h"
#include "progress/modCharacters.h"
#include "ui/platform/Drawing.h"
#include "ui/platform/Fonts.h"
#include "ui/platform/Palette.h"
#include "ui/platform/PictureButton.h"
#include "ui/platform/SpokenRole.h"
#include "world/modCampaigns.h"
#include "world/modProfessions.h"

#include <QCloseEvent>
#include <QMouseEvent>
#include <QScopeGuard>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QSize designSize(217, 790);
constexpr QPoint quitPlace(201, 1);
constexpr int titleHeight = 16;

QString titleText() {
    return u"Orvinel v%1    "_s.arg(programVersion()) + byLine();
}

// Turns MenuReady off for a while; whatever happens it ends as it was.
auto notReady(bool& ready) {
    return qScopeGuard([&ready, before = std::exchange(ready, false)] { ready = before; });
}

} // namespace

frmMenu::frmMenu(const ProgramState& state, Desktop& desktop)
    : QWidget(nullptr, Qt::Window | frameless()), state_(state), desktop_(desktop), drag_(*this) {
    setSpokenRole(*this, QAccessible::Window);
    setObjectName(u"frmMenu"_s);
    setWindowTitle(programName());
    setAccessibleName(titleText());
    setFont(arial(points8_25));
    setFixedWidth(designSize.width());
    setCursor(programCursor(Pointer::Usual));
    cmdQuit_ = new PictureButton(u"cmdQuit"_s, u":/windows/quit.png"_s, state.text(Caption::Quit), this);
    cmdQuit_->move(quitPlace);
    connect(cmdQuit_, &QAbstractButton::clicked, this, [this] { hooks_.quit(); });
    menuBar_ = new MenuBar(this);
    selection_ = new SelectionArea(this);
    elitePage_ = new ElitePage(this);
    collectorsPage_ = new CollectorsPage(this);
    greensPage_ = new GreensPage(this);
    notesPage_ = new NotesPage(this);
    variousPage_ = new VariousPage(this);
    tabs_ = new TabStrip({elitePage_, collectorsPage_, greensPage_, notesPage_, variousPage_}, this);
    resize(designSize);
    connectSelection();
    connectElitePage();
    connectCollectorsPage();
    connectOtherPages();
    orderTabStops();
}

// From top to bottom, the tabs before their pages; the creation order decides what covers what. The button
// that ends the program comes last.
void frmMenu::orderTabStops() {
    QWidget* before = selection_->cmbAttribute;
    const auto append = [&](QWidget* next) {
        setTabOrder(before, next);
        before = next;
    };
    // Only the active tab is a stop, but all need their place in the order.
    for (TabHeader* header : tabs_->lblTab) {
        header->setFocusPolicy(Qt::TabFocus);
        append(header);
    }
    for (SmallCheckBox* box : tabs_->chkShowObject)
        append(box);
    for (TabHeader* header : tabs_->lblTab)
        header->setActive(false);
    setTabOrder(variousPage_->findChildren<ListBox*>().last(), cmdQuit_);
    selection_->cmbCampaign->setFocus();
}

void frmMenu::Form_Load() {
    ApplyPanelCaptions();
    RefillPanel();
    ApplyTabColours();
    tabs_->activate(Tab::Elites);
    selection_->cmbProfession->setDropRows(-1);
    elitePage_->cmbSecondaryProfession->setDropRows(-1);
    elitePage_->cmbCharacter->setDropRows(-1);
    collectorsPage_->cmbCollReq->setDropRows(20);
}

void frmMenu::ApplyPanelCaptions() {
    menuBar_->applyCaptions(state_);
    selection_->applyCaptions(state_);
    elitePage_->applyCaptions(state_);
    collectorsPage_->applyCaptions(state_);
    greensPage_->applyCaptions(state_);
    notesPage_->applyCaptions(state_);
    variousPage_->applyCaptions(state_);
    tabs_->applyCaptions(state_);
}

void frmMenu::ApplyTabColours() {
    tabs_->applyColours(state_);
    for (QRadioButton* option : elitePage_->optCapture)
        setBackground(*option, state_.colourOf(Tab::Elites));
    collectorsPage_->applyColour(state_.colourOf(Tab::Collectors));
}

void frmMenu::RefillPanel() {
    MenuReady = false;
    selection_->FillCampaignCombo(state_);
    selection_->fillProfessionList(state_);
    elitePage_->cmbSecondaryProfession->setEntries(professionEntries(state_, Caption::None));
    elitePage_->cmbSecondaryProfession->select(0);
    FillCharacterList();
    collectorsPage_->cmbCollReq->setEntries(requestTypeEntries(state_, collectorsPage_->level()));
    collectorsPage_->cmbCollReq->select(0);
    collectorsPage_->cmbCollHand->select(0);
    ApplyOptionsToPanel();
    MenuReady = true;
    runAllFilters();
}

void frmMenu::chooseRegion(int campaign, int region) {
    {
        const auto guard = notReady(MenuReady);
        selection_->cmbCampaign->select(selection_->cmbCampaign->findData(campaign));
    }
    selection_->cmbRegion->select(selection_->cmbRegion->findData(region));
}

void frmMenu::FillCharacterList() {
    elitePage_->cmbCharacter->setEntries(characterEntries(state_));
    elitePage_->cmbCharacter->setDropRows(-1);
    elitePage_->cmbCharacter->select(0);
}

void frmMenu::ApplyOptionsToPanel() {
    const Options& options = state_.AppOptions;
    const auto choose = [](ItemCombo* combo, int index) {
        if (index >= 0 && index < combo->count())
            combo->select(index);
    };
    choose(selection_->cmbCampaign, options.Campaign);
    choose(selection_->cmbRegion, options.Region);
    choose(selection_->cmbZone, options.Zone);
    choose(selection_->cmbProfession, options.Profession);
    choose(elitePage_->cmbSecondaryProfession, options.SecondaryProfession);
    elitePage_->optCapture[options.AllElite ? 0 : 1]->setChecked(true);
    if (!options.AllElite)
        choose(elitePage_->cmbCharacter, options.Character);
    MenuLegendShown = options.Legend ? 1 : 0;
    tabs_->applyOptions(options);
    MenuRightClickNeeded = options.RightClickNeeded;
    collectorsPage_->setLevel(options.CollectorLevel);
    MenuAlwaysOnTop = options.AlwaysOnTop;
}

void frmMenu::readOptions(Options& options) const {
    options.Campaign = selection_->cmbCampaign->currentIndex();
    options.Region = selection_->cmbRegion->currentIndex();
    options.Zone = selection_->cmbZone->currentIndex();
    options.Profession = selection_->cmbProfession->currentIndex();
    options.SecondaryProfession = elitePage_->cmbSecondaryProfession->currentIndex();
    options.AllElite = elitePage_->optCapture[0]->isChecked();
    options.Character = elitePage_->cmbCharacter->currentIndex();
    tabs_->readOptions(options);
    options.RightClickNeeded = MenuRightClickNeeded;
    options.AlwaysOnTop = MenuAlwaysOnTop;
    options.CollectorLevel = collectorsPage_->level();
}

EliteChoice frmMenu::eliteChoice() const {
    EliteChoice choice;
    choice.place = selection_->place();
    choice.profession = selection_->profession();
    choice.attribute = selection_->attribute();
    elitePage_->read(choice);
    return choice;
}

CollectorChoice frmMenu::collectorChoice() const {
    CollectorChoice choice;
    choice.place = selection_->place();
    choice.attributeWords = attributeWords(state_, selection_->profession(), selection_->attribute());
    collectorsPage_->read(choice);
    return choice;
}

GreenChoice frmMenu::greenChoice() const {
    return {selection_->place(), greensPage_->txtGreensName->text(), greensPage_->txtGreenAdditional->text(),
            attributeWords(state_, selection_->profession(), selection_->attribute())};
}

NoteChoice frmMenu::noteChoice() const {
    return {selection_->place(), notesPage_->txtNoteShortDesc->text(), notesPage_->txtNoteBody->text()};
}

void frmMenu::runFilter(const Refill& refill, bool updateMap) {
    if (!MenuReady)
        return;
    refill.list.setEntries(refill.entries());
    refill.label.setCaption(state_.text(refill.caption) + u": "_s + QString::number(refill.list.count()));
    elitePage_->clearLocations();
    if (updateMap)
        hooks_.updateMap();
}

void frmMenu::runFilters(size_t first, size_t last) {
    for (size_t i = first; i <= last; ++i)
        hooks_.layers[i]->refilter(i == last);
}

void frmMenu::connectSelection() {
    connect(selection_->cmbCampaign, &ItemCombo::picked, this, &frmMenu::campaignPicked);
    connect(selection_->cmbRegion, &ItemCombo::picked, this, &frmMenu::regionPicked);
    connect(selection_->cmbZone, &ItemCombo::picked, this, &frmMenu::zonePicked);
    connect(selection_->cmbProfession, &ItemCombo::picked, this, &frmMenu::professionPicked);
    connect(selection_->cmbAttribute, &ItemCombo::picked, this,
            [this] { runFilters(Filter::Elites, Filter::Notes); });
    connect(menuBar_, &MenuBar::menuWanted, this, [this](int menu) { hooks_.openMenu(menu); });
    for (const Tab tab : allTabs)
        connect(tabs_->chkShowObject[indexOf(tab)], &SmallCheckBox::changed, this,
                [this, tab] { layerSwitched(tab); });
}

void frmMenu::connectElitePage() {
    const auto filter = [this] { runFilters(Filter::Elites, Filter::Elites); };
    connect(elitePage_->cmbSecondaryProfession, &ItemCombo::picked, this, filter);
    connect(elitePage_->cmbCharacter, &ItemCombo::picked, this, filter);
    connect(elitePage_->txtEliteName, &QLineEdit::textChanged, this, filter);
    connect(elitePage_->txtEliteBossName, &QLineEdit::textChanged, this, filter);
    for (QRadioButton* option : elitePage_->optCapture)
        connect(option, &QRadioButton::toggled, this, [this, filter](bool on) {
            if (!on)
                return; // the other one says it
            elitePage_->cmbCharacter->setEnabled(elitePage_->optCapture[1]->isChecked());
            filter();
        });
}

void frmMenu::connectCollectorsPage() {
    const auto filter = [this] { runFilters(Filter::Collectors, Filter::Collectors); };
    connect(collectorsPage_->cmbCollHand, &ItemCombo::picked, this, filter);
    connect(collectorsPage_->cmbCollReq, &ItemCombo::picked, this, filter);
    connect(collectorsPage_->txtCollSearch, &QLineEdit::textChanged, this, filter);
    for (int i = 0; i < 3; ++i) {
        connect(collectorsPage_->optCollType[size_t(i)], &QRadioButton::toggled, this, [this, i](bool on) {
            if (on)
                collectorTypePicked(i);
        });
        connect(collectorsPage_->optCollLevel[size_t(i)], &QRadioButton::toggled, this, [this](bool on) {
            if (!on)
                return;
            collectorsPage_->cmbCollReq->setEntries(requestTypeEntries(state_, collectorsPage_->level()));
            collectorsPage_->cmbCollReq->select(0);
        });
    }
}

void frmMenu::connectOtherPages() {
    const auto filterGreens = [this] { runFilters(Filter::Greens, Filter::Greens); };
    connect(greensPage_->txtGreensName, &QLineEdit::textChanged, this, filterGreens);
    connect(greensPage_->txtGreenAdditional, &QLineEdit::textChanged, this, filterGreens);
    const auto filterNotes = [this] { runFilters(Filter::Notes, Filter::Notes); };
    connect(notesPage_->txtNoteShortDesc, &QLineEdit::textChanged, this, filterNotes);
    connect(notesPage_->txtNoteBody, &QLineEdit::textChanged, this, filterNotes);
}

void frmMenu::campaignPicked() {
    {
        const auto guard = notReady(MenuReady);
        selection_->FillRegionCombo(state_);
        selection_->FillZoneCombo(state_);
    }
    runAllFilters();
}

void frmMenu::regionPicked() {
    desktop_.processPendingEvents();
    const int campaign = selection_->cmbCampaign->data(-1);
    const int number = selection_->cmbRegion->data();
    const Region* region = findRegion(state_, campaign, number);
    if (selection_->cmbRegion->currentIndex() < 1 || !region)
        hooks_.showRegion({}, -1, -1);
    else
        hooks_.showRegion(region->RegionPicture, campaign, number);
    {
        const auto guard = notReady(MenuReady);
        selection_->FillZoneCombo(state_);
    }
    runAllFilters();
}

void frmMenu::zonePicked() {
    runAllFilters();
    if (MenuReady && selection_->cmbZone->currentIndex() > 0 && elitePage_->lstElite->count() > 0)
        elitePage_->lstElite->select(0);
}

void frmMenu::professionPicked() {
    {
        const auto guard = notReady(MenuReady);
        selection_->FillAttributeList(state_);
    }
    const bool chosen = selection_->cmbProfession->currentIndex() >= 1;
    elitePage_->lblSecondaryProfession->setEnabled(chosen);
    elitePage_->cmbSecondaryProfession->setEnabled(chosen);
    runFilters(Filter::Elites, Filter::Notes);
}

void frmMenu::collectorTypePicked(int index) {
    const bool handMatters = index != 2;
    if (!handMatters) {
        // On afterwards in any case; the other handlers restore what they found.
        MenuReady = false;
        collectorsPage_->cmbCollHand->select(0);
        MenuReady = true;
    }
    collectorsPage_->cmbCollHand->setEnabled(handMatters);
    collectorsPage_->lblCollhand->setEnabled(handMatters);
    runFilters(Filter::Collectors, Filter::Collectors);
}

void frmMenu::layerSwitched(Tab tab) {
    if (!MenuReady)
        return;
    hooks_.switchFlashing(tab, layerShown(tab));
    hooks_.drawMap();
}

void frmMenu::paintEvent(QPaintEvent*) {
    Drawing drawing(this);
    drawing.filledBox(0, 0, width() - 1, titleHeight, titleBlue);
    drawing.setFont(arial(points8_25, true));
    drawing.setForeground(white);
    drawing.print(2, (titleHeight - drawing.lineHeight()) / 2, titleText());
}

// ArrangePanel: each page stretches its own lists when its height changes.
void frmMenu::resizeEvent(QResizeEvent*) {
    for (TabPage* page :
         std::initializer_list<TabPage*>{elitePage_, collectorsPage_, greensPage_, notesPage_, variousPage_})
        page->resize(page->width(), height() - page->y() + 1);
}

void frmMenu::moveEvent(QMoveEvent*) {
    emit attachMap();
}

void frmMenu::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    keepOffTaskBar(*this);
}

void frmMenu::mousePressEvent(QMouseEvent* event) {
    if (hooks_.maximised())
        return;
    if (event->button() == Qt::LeftButton)
        drag_.press(event->globalPosition().toPoint());
    emit attachMap();
}

void frmMenu::mouseMoveEvent(QMouseEvent* event) {
    drag_.move(event->globalPosition().toPoint());
}

void frmMenu::mouseReleaseEvent(QMouseEvent*) {
    drag_.release();
}

void frmMenu::closeEvent(QCloseEvent* event) {
    event->ignore();
    hooks_.quit();
}

} // namespace orvinel
