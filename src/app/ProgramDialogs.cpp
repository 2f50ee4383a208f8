#include "app/ProgramDialogs.h"

#include "ui/dialogs/frmCharacterList.h"
#include "ui/dialogs/frmCredits.h"
#include "ui/dialogs/frmInformation.h"
#include "ui/dialogs/frmManageNote.h"
#include "ui/dialogs/frmMarkEliteAsCaptured.h"
#include "ui/dialogs/frmMarkTreasureAsOpened.h"
#include "ui/platform/DialogPlace.h"

#include <utility>

namespace orvinel {

ProgramDialogs::ProgramDialogs(Surroundings with, Refilter refilter)
    : with_(with), refilter_(std::move(refilter)) {
}

DialogContext ProgramDialogs::context() const {
    return {with_.state, with_.files, with_.desktop, with_.panel.MenuAlwaysOnTop};
}

void ProgramDialogs::OpenCharacterList() {
    frmCharacterList dialog(context(), &with_.panel);
    dialog.setAsked(placeOnDesktop(with_.panel.menuBar()));
    dialog.exec();
    with_.panel.elitePage().optCapture[0]->setChecked(true);
    with_.panel.FillCharacterList();
    if (capture_)
        capture_->follow();
}

void ProgramDialogs::openCredits() {
    frmCredits dialog(context(), &with_.panel);
    dialog.setAsked(placeOnDesktop(with_.panel.menuBar()));
    dialog.exec();
}

void ProgramDialogs::openInformation() {
    frmInformation(context(), &with_.panel).exec();
}

// A marker's surroundings as far as it is in view, else the middle of the map.
QRect ProgramDialogs::onMap(MapPoint place) const {
    constexpr int reach = 10; // pixels of the region picture
    const MapViewport& view = with_.map.picMap();
    const QRect marker =
        view.toWidget(QRect(place.point(), QSize(1, 1)).adjusted(-reach, -reach, reach, reach));
    const QRect seen = view.rect().intersects(marker) ? marker : QRect(view.rect().center(), QSize(1, 1));
    return {view.mapToGlobal(seen.topLeft()), seen.size()};
}

void ProgramDialogs::openCapture(int eliteId, bool fromMap) {
    if (capture_ && capture_->isVisible() && !fromMap) {
        showCapture(*capture_, eliteId, {});
        capture_->raise();
        capture_->activateWindow();
        return;
    }
    delete capture_;
    QWidget* owner = fromMap ? static_cast<QWidget*>(&with_.map) : &with_.panel;
    capture_ = new frmMarkEliteAsCaptured(context(), refilter_.elites, owner);
    capture_->setAttribute(Qt::WA_DeleteOnClose);
    capture_->setModal(fromMap);
    showCapture(*capture_, eliteId,
                fromMap ? onMap(with_.map.toMap(with_.map.lastPress()))
                        : placeOnDesktop(*with_.panel.elitePage().lstElite));
}

void ProgramDialogs::showCapture(frmMarkEliteAsCaptured& dialog, int eliteId, const QRect& asked) {
    dialog.setCharacter(with_.panel.elitePage().cmbCharacter->data());
    dialog.SetEliteNumber(eliteId);
    if (dialog.isVisible())
        return;
    dialog.setAsked(asked);
    if (dialog.isModal())
        dialog.exec();
    else
        dialog.show();
}

void ProgramDialogs::openTreasure(int index) {
    frmMarkTreasureAsOpened dialog(context(), refilter_.treasures, &with_.map);
    dialog.SetTreasureNumber(index);
    dialog.setAsked(onMap(with_.map.toMap(with_.map.lastPress())));
    dialog.exec();
}

int ProgramDialogs::editNote(const NoteRequest& request) {
    frmManageNote dialog(context(), &with_.map);
    dialog.SetX(request.at.x);
    dialog.SetY(request.at.y);
    dialog.SetNote(request.note);
    dialog.SetCampaign(request.campaign);
    dialog.SetRegion(request.region);
    dialog.setAsked(onMap(request.at));
    dialog.exec();
    return dialog.savedNote();
}

} // namespace orvinel
