#include "ui/dialogs/frmCredits.h"

#include "ui/map/CreditsList.h"
#include "ui/platform/PictureBox.h"

#include <QPushButton>
#include <QStringList>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QSize clientSize(514, 253);
constexpr QRect creditsPlace(4, 6, 507, 205);
constexpr QRect cancelPlace(430, 216, 79, 31);

constexpr Caption windowCaption = Caption::CreditsTitle;
constexpr Caption closeCaption = Caption::CloseWindow;

} // namespace

frmCredits::frmCredits(DialogContext context, QWidget* owner)
    : Dialog(u"frmCredits"_s, clientSize, context, owner) {
    setWindowTitle(state().text(windowCaption));
    auto* picCredits = new PictureBox(this);
    picCredits->setObjectName(u"picCredits"_s);
    picCredits->setGeometry(creditsPlace);
    picCredits->setBackground(0);
    picCredits->setAccessibleName(windowTitle());
    picCredits->setAccessibleDescription(creditsText());
    picCredits->clear();
    DrawCreditsList(picCredits->surface(), 0);
    const QStringList lines = creditsText().split(u'\n');
    const std::vector<QRect> places = creditsPlaces(creditsPlace.width());
    for (qsizetype i = 0; i < lines.size(); ++i)
        picCredits->tell(places[size_t(i)], lines[i]);
    QPushButton* cmdCancel = addButton(u"cmdCancel"_s, cancelPlace, state().text(closeCaption));
    cmdCancel->setDefault(true);
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
}

} // namespace orvinel
