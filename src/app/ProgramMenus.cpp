#include "app/modOrvinel.h"

#include "base/About.h"
#include "ui/dialogs/frmCharacterList.h"
#include "ui/dialogs/frmCredits.h"
#include "ui/dialogs/frmInformation.h"
#include "ui/dialogs/frmManageNote.h"
#include "ui/dialogs/frmMarkEliteAsCaptured.h"
#include "ui/dialogs/frmMarkTreasureAsOpened.h"

namespace orvinel {

namespace {

enum Menu { ViewMenu, OptionsMenu, HelpMenu };

} // namespace

void Program::wireMenus() {
    popupMenu_->OnMenuEntryClick = [this](int menu, int entry) { OnMenuEntryClick(menu, entry); };
    connect(popupMenu_, &frmPopupMenu::opened, this, [this](int menu) { panel_->menuBar().markOpen(menu); });
    connect(popupMenu_, &frmPopupMenu::closed, this, [this](int) { panel_->menuBar().markClosed(); });
    connect(popupMenu_, &frmPopupMenu::switchWanted, this, &Program::openMenu);
    connect(legend_, &frmLegenda::closed, this, [this] { panel_->MenuLegendShown = 0; });
}

void Program::openMenu(int menu) {
    if (menu == ViewMenu)
        for (int k = 0; k < tabCount; ++k)
            popupMenu_->SetValue(menu, k, panel_->tabs().chkShowObject[size_t(k)]->value());
    if (menu == OptionsMenu) {
        popupMenu_->SetValue(menu, 0, panel_->MenuLegendShown);
        popupMenu_->SetValue(menu, 1, panel_->MenuAlwaysOnTop);
        popupMenu_->SetValue(menu, 4, panel_->MenuRightClickNeeded == 2);
        popupMenu_->SetValue(menu, 5, panel_->MenuRightClickNeeded == 0);
        popupMenu_->SetValue(menu, 6, panel_->MenuRightClickNeeded == 1);
    }
    popupMenu_->OpenMenu(menu, *panel_->menuBar().lblMenu[size_t(menu)]);
}

void Program::openMenuByKey(int menu) {
    panel_->activateWindow();
    openMenu(menu);
    popupMenu_->highlightFirst();
}

void Program::OnMenuEntryClick(int menu, int entry) {
    popupMenu_->hide();
    if (menu == ViewMenu) {
        SmallCheckBox& box = *panel_->tabs().chkShowObject[size_t(entry)];
        box.setValue(box.value() == 1 ? 0 : 1);
    } else if (menu == OptionsMenu) {
        chooseOption(entry);
    } else {
        chooseHelp(entry);
    }
}

void Program::chooseOption(int entry) {
    switch (entry) {
    case 0:
        return ToggleLegend();
    case 1:
        return ToggleAlwaysOnTop();
    case 4:
        panel_->MenuRightClickNeeded = 2;
        return;
    case 5:
        panel_->MenuRightClickNeeded = 0;
        return;
    case 6:
        panel_->MenuRightClickNeeded = 1;
        return;
    case 8:
        return OpenCharacterList();
    default:
        return;
    }
}

void Program::chooseHelp(int entry) {
    switch (entry) {
    case 0:
        return RunUpdater();
    case 1:
        return OpenWithShell(homePage());
    case 3:
        frmCredits(dialogContext(), panel_.get()).exec();
        return;
    case 5:
        return ShowHistory();
    case 6:
        return ShowGuide();
    case 8:
        frmInformation(dialogContext(), panel_.get()).exec();
        return;
    default:
        return;
    }
}

void Program::ToggleLegend() {
    Options& options = state_.AppOptions;
    if (panel_->MenuLegendShown != 0) {
        panel_->MenuLegendShown = 0;
        options.LegendX = twipsOf(legend_->x());
        options.LegendY = twipsOf(legend_->y());
        legend_->hide();
        return;
    }
    panel_->MenuLegendShown = 1;
    if (options.LegendX == -1) {
        options.LegendX = twipsOf(map_->x());
        options.LegendY = twipsOf(map_->y() + map_->height() - legend_->height());
    }
    legend_->move(pixelsOf(options.LegendX), pixelsOf(options.LegendY));
    legend_->show();
}

void Program::ToggleAlwaysOnTop() {
    panel_->MenuAlwaysOnTop = panel_->MenuAlwaysOnTop == 1 ? 0 : 1;
    applyAlwaysOnTop();
}

void Program::applyAlwaysOnTop() {
    for (QWidget* window : std::initializer_list<QWidget*>{panel_.get(), map_, legend_})
        desktop_.setAlwaysOnTop(*window, panel_->MenuAlwaysOnTop == 1);
}

void Program::OpenCharacterList() {
    frmCharacterList(dialogContext(), panel_.get()).exec();
    panel_->elitePage().optCapture[0]->setChecked(true);
    panel_->FillCharacterList();
}

DialogContext Program::dialogContext() {
    return {state_, files_, desktop_, panel_->MenuAlwaysOnTop};
}

void Program::openCapture(int eliteId, bool fromMap) {
    QWidget* owner = fromMap ? static_cast<QWidget*>(map_) : panel_.get();
    auto* dialog = new frmMarkEliteAsCaptured(
        dialogContext(), [this] { layers_->elites.FilterEliteSkills(true); }, owner);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->SetEliteNumber(eliteId);
    dialog->SetCharacter(panel_->elitePage().cmbCharacter->data());
    if (fromMap)
        dialog->exec();
    else
        dialog->show();
}

void Program::openTreasure(int index) {
    frmMarkTreasureAsOpened dialog(
        dialogContext(), [this] { layers_->treasures.FilterTreasures(true); }, map_);
    dialog.SetTreasureNumber(index);
    dialog.exec();
}

int Program::editNote(const NoteRequest& request) {
    frmManageNote dialog(dialogContext(), map_);
    dialog.SetX(request.at.x);
    dialog.SetY(request.at.y);
    dialog.SetNote(request.note);
    dialog.SetCampaign(request.campaign);
    dialog.SetRegion(request.region);
    dialog.exec();
    return dialog.savedNote();
}

} // namespace orvinel
