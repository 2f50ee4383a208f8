#include "ui/dialogs/frmMarkTreasureAsOpened.h"

#include "app/Saving.h"
#include "ui/dialogs/DateBox.h"
#include "ui/platform/Label.h"
#include "ui/platform/ListBox.h"

#include <QPushButton>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QSize client{314, 268};
constexpr QPoint charactersLabelAt{8, 6};
constexpr QRect charactersAt{6, 20, 303, ListBox::wholeLines(158)};
constexpr QPoint explanationAt{8, 182};
constexpr int explanationWidth = 299; // two lines in the longest language
constexpr QRect firstDateAt{6, 236, 19, 21};
constexpr int yearWidth = 31; // pixels; day and month are as wide as the first box
constexpr int separatorDrop = 4;
constexpr QRect saveAt{92, 231, 132, 31};
constexpr QRect cancelAt{230, 231, 79, 31};

QString tagOf(DatePart part) {
    return part == DatePart::Day ? u"dd"_s : part == DatePart::Month ? u"mm"_s : u"yyyy"_s;
}

} // namespace

frmMarkTreasureAsOpened::frmMarkTreasureAsOpened(DialogContext context, std::function<void()> refilter,
                                                 QWidget* owner)
    : Dialog(u"frmMarkTreasureAsOpened"_s, client, context, owner), refilter_(std::move(refilter)),
      order_(detectDateOrder(desktop().shortDate(QDate(2011, 10, 16)))) {
    setWindowTitle(state().text(Caption::TreasureOpened));
    addLabel(u"lblCharacters"_s, charactersLabelAt, state().text(Caption::Characters));
    lstCharacters_ = addList(u"lstCharacters"_s, charactersAt, state().text(Caption::Characters));
    addLabel(u"lblExplanation"_s, explanationAt, state().text(Caption::ChooseOpener))
        ->setWrapWidth(explanationWidth);
    lstCharacters_->setAccessibleDescription(state().text(Caption::ChooseOpener));
    addDate();
    LayoutDateBoxes();
    cmdSave_ = addButton(u"cmdSave"_s, saveAt, state().text(Caption::OpenedOn));
    cmdSave_->setDefault(true);
    cmdSave_->setEnabled(false);
    auto* cmdCancel = addButton(u"cmdCancel"_s, cancelAt, state().text(Caption::Cancel));
    for (DateBox* box : txtDate_)
        connect(box, &DateBox::textChanged, this, &frmMarkTreasureAsOpened::UpdateSaveCaption);
    connect(lstCharacters_, &ListBox::picked, this, [this] { cmdSave_->setEnabled(true); });
    connect(cmdSave_, &QPushButton::clicked, this, &frmMarkTreasureAsOpened::save);
    connect(cmdCancel, &QPushButton::clicked, this, &frmMarkTreasureAsOpened::reject);
}

void frmMarkTreasureAsOpened::addDate() {
    for (size_t k = 0; k < txtDate_.size(); ++k) {
        txtDate_[k] = new DateBox(u"txtDate(%1)"_s.arg(k), this);
        txtDate_[k]->setPart(order_[k], state().text(Caption::Date) + u' ' + tagOf(order_[k]));
    }
    for (size_t k = 0; k < lblSeparatore_.size(); ++k)
        lblSeparatore_[k] = addLabel(u"lblSeparatore(%1)"_s.arg(k), {}, u"-"_s);
}

void frmMarkTreasureAsOpened::LayoutDateBoxes() {
    QRect place = firstDateAt;
    for (size_t k = 0; k < txtDate_.size(); ++k) {
        place.setWidth(order_[k] == DatePart::Year ? yearWidth : firstDateAt.width());
        txtDate_[k]->setGeometry(place);
        if (k == lblSeparatore_.size())
            break;
        Label& separator = *lblSeparatore_[k];
        separator.move(place.left() + place.width() - 1, place.top() + separatorDrop);
        place.moveLeft(separator.x() + separator.width());
    }
}

void frmMarkTreasureAsOpened::load() {
    lstCharacters_->setEntries(chestCharacterEntries(state(), treasure_, order_));
    for (DateBox* box : txtDate_)
        box->setText(datePartText(box->part(), desktop().today()));
    lstCharacters_->setFocus();
}

void frmMarkTreasureAsOpened::UpdateSaveCaption() {
    const QStringList texts{txtDate_[0]->text(), txtDate_[1]->text(), txtDate_[2]->text()};
    setCaption(*cmdSave_, state().text(Caption::OpenedOn) + u' ' + texts.join(u'-'));
}

DateFields frmMarkTreasureAsOpened::fields() const {
    DateFields fields;
    for (const DateBox* box : txtDate_)
        (box->part() == DatePart::Day     ? fields.day
         : box->part() == DatePart::Month ? fields.month
                                          : fields.year) = box->text();
    return fields;
}

void frmMarkTreasureAsOpened::save() {
    const std::optional<QDate> date = enteredDate(fields());
    if (!date) {
        tellProblem(state().text(Caption::InvalidDate));
        return;
    }
    const ChestOpening opening{treasure_, lstCharacters_->selectedEntry().data, *date};
    const auto open = [&](bool evenIfChanged) {
        return openTreasure(state(), files(), opening, evenIfChanged);
    };
    if (!saveAndTell(state(), desktop(), open))
        return;
    refilter_();
    accept();
}

} // namespace orvinel
