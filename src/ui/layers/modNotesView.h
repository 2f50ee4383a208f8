#pragma once

#include "ui/layers/ListedLayerView.h"

namespace orvinel {

// The player's notes on the panel and on the map.
class NotesView : public ListedLayerView {
    Q_OBJECT
  public:
    NotesView(const ProgramState& state, frmMenu& panel, frmMap& map);

    void FilterNotes(bool updateMap);
    void refilter(bool updateMap) override { FilterNotes(updateMap); }
    void ShowSelectedNote();
    void DrawNotes(std::vector<Marker>& markers) const { drawMarkers(markers); }
    std::optional<HitArea> FindNoteAt(ViewPoint at) { return hitTest(at); }
    bool NoteMouseOver(ViewPoint at) { return showOver(FindNoteAt(at)); }

    void appendMarkers(std::vector<Marker>& markers) override { DrawNotes(markers); }
    bool mouseOver(ViewPoint at) override { return NoteMouseOver(at); }
    // The last of its chain: always True, since the menu opens on empty map too.
    bool doubleClick(ViewPoint at) override;

  signals:
    // The note menu is asked for: about a note, or with -1 for a new one at that place of the map. `global`:
    // screen position.
    void menuWanted(int note, orvinel::MapPoint at, QPoint global);

  private:
    void wantMenuAt(ViewPoint at, QPoint global);
    // For the note selected in the list.
    void wantMenuForSelected(QPoint global);
    void menuKeyOnMap();
    void menuKeyOnList();
    void showTooltip(const HitArea& item) override { ShowNoteTooltip(item); }
    void ShowNoteTooltip(const HitArea& item);

    Label* lblShortDescription_;
    Label* lblDescription_;
};

} // namespace orvinel
