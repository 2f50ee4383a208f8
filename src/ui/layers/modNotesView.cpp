#include "ui/layers/modNotesView.h"

#include "layers/modNotes.h"
#include "ui/map/WindowRules.h"
#include "ui/platform/Fonts.h"

#include <QCursor>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr Caption listCaption = Caption::Notes;
constexpr Colour bandColour = 0xDDDDDD;

constexpr int width = 260;
constexpr QPoint titleAt{14, 5};
constexpr int left = 14;
constexpr int textWidth = width - 2 * left;
constexpr int belowTitle = 8;
constexpr int bottomMargin = 10;

const MapLocation& locationOf(const Content& state, int index, int) {
    return state.Notes[index].At;
}

} // namespace

NotesView::NotesView(const ProgramState& state, frmMenu& panel, frmMap& map)
    : ListedLayerView({state, panel, map}, *panel.notesPage().lstNotes,
                      {Tab::Notes, noteMarkers, noteHitAreas, locationOf, u"picNoteTooltip"_s, width}) {
    lblShortDescription_ =
        informationLabel(u"lblShortDescription"_s, arial(points10, true), blackTitle, window());
    lblDescription_ = informationLabel(u"lblDescription"_s, arial(points8_25), whiteText, window());
    for (Label* label : {lblShortDescription_, lblDescription_}) {
        label->setWrapWidth(textWidth);
        hideAllOnClick(map, *label);
    }
    hideAllOnClick(map, window());
    const ListBox* list = panel.notesPage().lstNotes;
    connect(list, &ListBox::picked, this, &NotesView::ShowSelectedNote);
    connect(list, &ListBox::activatedEntry, this, &NotesView::menuKeyOnList);
    connect(list, &ListBox::menuKeyPressed, this, &NotesView::menuKeyOnList);
    connect(&map, &frmMap::menuKeyPressed, this, &NotesView::menuKeyOnMap);
}

void NotesView::FilterNotes(bool updateMap) {
    const NotesPage& page = panel().notesPage();
    panel().runFilter({*page.lstNotes, *page.lblNoteList, listCaption,
                       [this] { return noteEntries(state(), panel().noteChoice()); }},
                      updateMap);
}

void NotesView::ShowSelectedNote() {
    const ListBox& list = *panel().notesPage().lstNotes;
    if (list.hasSelection())
        jumpTo(list.selectedEntry().data);
}

bool NotesView::doubleClick(ViewPoint at) {
    wantMenuAt(at, QCursor::pos());
    return true;
}

void NotesView::wantMenuAt(ViewPoint at, QPoint global) {
    const auto hit = FindNoteAt(at);
    emit menuWanted(hit ? hit->id : -1, map().toMap(at), global);
}

void NotesView::wantMenuForSelected(QPoint global) {
    const int note = panel().notesPage().lstNotes->selectedEntry().data;
    const MapLocation& at = state().Notes[note].At;
    emit menuWanted(note, {at.X, at.Y}, global);
}

// Without a selected note the menu is for the middle of the map: notes can be pinned without a mouse.
void NotesView::menuKeyOnMap() {
    MapViewport& view = map().picMap();
    const ListBox& list = *panel().notesPage().lstNotes;
    if (list.hasSelection()) {
        const MapLocation& at = state().Notes[list.selectedEntry().data].At;
        const QRect marker = view.toWidget(QRect(at.X, at.Y, 1, 1));
        const bool seen = map().shown(0).shows(at.Campaign, at.Region) && view.rect().contains(marker);
        wantMenuForSelected(view.mapToGlobal(seen ? marker.topLeft() : view.rect().center()));
    } else if (map().mapLoaded()) {
        const QSize pixels = view.screenPixels();
        wantMenuAt({pixels.width() / 2., pixels.height() / 2.}, view.mapToGlobal(view.rect().center()));
    }
}

void NotesView::menuKeyOnList() {
    const ListBox& list = *panel().notesPage().lstNotes;
    if (list.hasSelection())
        wantMenuForSelected(list.viewport()->mapToGlobal(list.visualRect(list.currentIndex()).bottomLeft()));
}

void NotesView::ShowNoteTooltip(const HitArea& item) {
    const Note& note = state().Notes[item.id];
    lblShortDescription_->setCaption(note.ShortDesc);
    lblDescription_->setCaption(note.Body);
    lblShortDescription_->move(titleAt);
    lblDescription_->move(left, titleAt.y() + lblShortDescription_->height() + belowTitle);
    window().resize(width, lblDescription_->y() + lblDescription_->height() + bottomMargin);
    frame(item, bandColour, *lblShortDescription_);
}

} // namespace orvinel
