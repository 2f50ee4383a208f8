#include "ui/map/MapMenus.h"

#include "app/Saving.h"
#include "app/modLanguage.h"
#include "layers/modNotes.h"
#include "ui/platform/ControlText.h"
#include "world/modCampaigns.h"

#include <QGuiApplication>

#include <algorithm>
#include <utility>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

QAction* addEntry(QMenu& menu, const QString& name, const QString& caption) {
    QAction* entry = menu.addAction(verbatim(caption));
    entry->setObjectName(name);
    return entry;
}

} // namespace

std::vector<CampaignMenu> regionMenus(const ProgramState& state) {
    std::vector<CampaignMenu> menus;
    for (int c = 1; c < firstUnknownCampaign && c <= state.Campaigns.highest(); ++c) {
        const QString caption = campaignName(state, c);
        if (caption.isEmpty())
            continue;
        CampaignMenu menu{c, caption, {}};
        for (const int region : regionOrder(state, c))
            menu.regions.push_back({regionName(state, c, region), region});
        if (!menu.regions.empty())
            menus.push_back(std::move(menu));
    }
    return menus;
}

MapMenus::MapMenus(Surroundings with, Actions actions)
    : with_(with), actions_(std::move(actions)), MenuPopUp_(new QMenu(&with.map)),
      MenuPopupRegion_(new QMenu(&with.map)) {
    buildNoteMenu();
    buildRegionMenu();
    // Only a click closes a menu by itself, a screen reader's choice does not.
    for (QMenu* menu : {MenuPopUp_, MenuPopupRegion_})
        connect(menu, &QMenu::triggered, menu, &QMenu::close);
}

void MapMenus::buildNoteMenu() {
    const ProgramState& state = with_.state;
    MenuPopUp_->setObjectName(u"MenuPopUp"_s);
    MenuPopUp_->setAccessibleName(state.text(Caption::Notes));
    mnuNoteInsert_ = addEntry(*MenuPopUp_, u"mnuNoteInsert"_s, state.text(Caption::NewNoteHere));
    mnuNoteEdit_ = addEntry(*MenuPopUp_, u"mnuNoteEdit"_s, state.text(Caption::EditNote));
    mnuNoteDelete_ = addEntry(*MenuPopUp_, u"mnuNoteDelete"_s, state.text(Caption::DeleteNote));
    // Not at once: a screen reader that chooses waits for an answer, and the dialogs stay open for long.
    connect(mnuNoteInsert_, &QAction::triggered, this, &MapMenus::editNote, Qt::QueuedConnection);
    connect(mnuNoteEdit_, &QAction::triggered, this, &MapMenus::editNote, Qt::QueuedConnection);
    connect(mnuNoteDelete_, &QAction::triggered, this, &MapMenus::askToDelete, Qt::QueuedConnection);
}

void MapMenus::buildRegionMenu() {
    MenuPopupRegion_->setObjectName(u"MenuPopupRegion"_s);
    MenuPopupRegion_->setAccessibleName(with_.state.text(Caption::Region));
    for (const CampaignMenu& campaign : regionMenus(with_.state)) {
        QMenu* submenu = MenuPopupRegion_->addMenu(verbatim(campaign.caption));
        submenu->setObjectName(arrayName(u"mnuCampaign"_s, campaign.campaign));
        submenu->setAccessibleName(campaign.caption);
        const QString name = u"mnuC%1Region"_s.arg(campaign.campaign - 1);
        int i = 0;
        for (const ListEntry& region : campaign.regions) {
            const QAction* entry = addEntry(*submenu, arrayName(name, ++i), region.text);
            connect(entry, &QAction::triggered, this,
                    [this, c = campaign.campaign, r = region.data] { chooseRegion(c, r); });
        }
    }
}

// Choosing the campaign clears the map, which nobody is to see before the region is there.
void MapMenus::chooseRegion(int campaign, int region) {
    MapViewport& view = with_.map.picMap();
    view.setUpdatesEnabled(false);
    actions_.chooseRegion(campaign, region);
    view.setUpdatesEnabled(true);
}

void MapMenus::openRegionMenu(QPoint global) {
    if (!MenuPopupRegion_->isEmpty())
        MenuPopupRegion_->popup(global);
}

void MapMenus::openNoteMenu(int note, MapPoint at, QPoint global) {
    note_ = note;
    // Beside a small picture a note would be kept, but never drawn.
    const QSize picture = with_.map.picMap().view().picture();
    at_ = {std::clamp(at.x, 0, std::max(0, picture.width() - 1)),
           std::clamp(at.y, 0, std::max(0, picture.height() - 1))};
    const bool there = with_.state.Notes.has(note);
    mnuNoteInsert_->setEnabled(!there);
    mnuNoteEdit_->setEnabled(there);
    mnuNoteDelete_->setEnabled(there);
    MenuPopUp_->popup(global);
    if (QGuiApplication::mouseButtons() == Qt::NoButton) // opened by a key, which goes on from a marked entry
        MenuPopUp_->setActiveAction(there ? mnuNoteEdit_ : mnuNoteInsert_);
}

void MapMenus::editNote() {
    NoteRequest request{-1, at_, with_.map.MapCampaign(), with_.map.MapRegion()};
    if (with_.state.Notes.has(note_)) {
        // Its own region: the note may have been picked from the list while the map shows another one.
        const MapLocation& place = with_.state.Notes[note_].At;
        request = {note_, {place.X, place.Y}, place.Campaign, place.Region};
    }
    if (actions_.editNote(request) != -1)
        actions_.refilterNotes();
}

void MapMenus::askToDelete() {
    ProgramState& state = with_.state;
    if (!with_.desktop.ask(MessageIcon::Question, programName(), state.text(Caption::DeleteNoteQuestion)))
        return;
    const auto remove = [&](bool evenIfChanged) {
        return deleteNote(state, with_.files, note_, evenIfChanged);
    };
    if (saveAndTell(state, with_.desktop, remove))
        actions_.refilterNotes();
}

} // namespace orvinel
