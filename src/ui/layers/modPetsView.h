#pragma once

#include "base/Disk.h"
#include "ui/layers/ListedLayerView.h"

namespace orvinel {

// The pets on the panel and on the map. A part of a pet is one of its locations.
class PetsView : public ListedLayerView {
    Q_OBJECT
  public:
    // `disk` outlives the view; it holds the pets' pictures.
    PetsView(const ProgramState& state, const Disk& disk, frmMenu& panel, frmMap& map);

    void FilterPets(bool updateMap);
    const MapLocation* selected() const override;
    void refilter(bool updateMap) override { FilterPets(updateMap); }
    void ShowPetLocations();
    void ShowSelectedPetLocation();
    void DrawPets(std::vector<Marker>& markers) const { drawMarkers(markers); }
    std::optional<HitArea> HitTestPet(ViewPoint at) { return hitTest(at); }
    bool PetMouseOver(ViewPoint at) { return showOver(HitTestPet(at)); }

    void appendMarkers(std::vector<Marker>& markers) override { DrawPets(markers); }
    bool mouseOver(ViewPoint at) override { return PetMouseOver(at); }
    bool doubleClick(ViewPoint at) override { return HitTestPet(at).has_value(); }

  private:
    void locationPicked();
    void showTooltip(const HitArea& item) override { ShowPetTooltip(item); }
    void ShowPetTooltip(const HitArea& item);
    void showPicture(const Pet& pet);

    int listedPet_ = 0; // whose places lstPetLocations holds
    const Disk& disk_;
    Label* lblPetName_;
    Label* imgPetImage_;
};

} // namespace orvinel
