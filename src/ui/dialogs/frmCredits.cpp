#include "ui/dialogs/frmCredits.h"

#include "ui/map/CreditsList.h"
#include "ui/platform/PictureBox.h"

#include <QPushButton>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QSize clientSize(514, 253);
constexpr QRect creditsPlace(4, 6, 507, 205);
constexpr QRect cancelPlace(430, 216, 79, 31);

constexpr int windowCaption = 102;
constexpr int closeCaption = 103;

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
    auto* cmdCancel = new QPushButton(state().text(closeCaption), this);
    cmdCancel->setObjectName(u"cmdCancel"_s);
    cmdCancel->setGeometry(cancelPlace);
    cmdCancel->setDefault(true);
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
}

} // namespace orvinel
