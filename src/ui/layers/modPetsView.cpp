#include "ui/layers/modPetsView.h"

#include "layers/modPets.h"
#include "ui/map/RegionPictures.h"
#include "ui/map/WindowRules.h"
#include "ui/platform/Fonts.h"

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr Caption listCaption = Caption::Pets;
constexpr Tab bandTab = Tab::Various; // whose colour the band has

constexpr QPoint titleAt{14, 5};
constexpr int left = 14;
constexpr int belowTitle = 8;
constexpr int bottomMargin = 10;
constexpr QSize largestPicture(320, 240);

const MapLocation& locationOf(const Content& state, int id, int part) {
    return state.Pets[id].Locations[part];
}

} // namespace

PetsView::PetsView(const ProgramState& state, const Disk& disk, frmMenu& panel, frmMap& map)
    : ListedLayerView(
          {state, panel, map}, *panel.variousPage().lstPets,
          {Tab::Various, petMarkers, petHitAreas, locationOf, u"picPetTooltip"_s, largestPicture.width()}),
      disk_(disk) {
    lblPetName_ = informationLabel(u"lblPetName"_s, arial(points10, true), blackTitle, window());
    imgPetImage_ = informationLabel(u"imgPetImage"_s, arial(points8_25), whiteText, window());
    hideAllOnClick(map, window());
    const VariousPage& page = panel.variousPage();
    connect(page.lstPets, &ListBox::picked, this, &PetsView::ShowPetLocations);
    connect(page.lstPetLocations, &ListBox::picked, this, &PetsView::locationPicked);
}

const MapLocation* PetsView::selected() const {
    const VariousPage& page = panel().variousPage();
    if (!page.lstPets->hasSelection() || !page.lstPetLocations->hasSelection())
        return nullptr;
    return &locationOf(state(), page.lstPets->selectedEntry().data,
                       page.lstPetLocations->selectedEntry().data);
}

void PetsView::FilterPets(bool updateMap) {
    const VariousPage& page = panel().variousPage();
    const auto entries = [this, &page] {
        page.lstPetLocations->clear();
        return petEntries(state(), {panel().selection().place()});
    };
    panel().runFilter({*page.lstPets, *page.lblPets, listCaption, entries}, updateMap);
}

void PetsView::ShowPetLocations() {
    const VariousPage& page = panel().variousPage();
    if (!page.lstPets->hasSelection())
        return;
    const int id = page.lstPets->selectedEntry().data;
    listedPet_ = id;
    const std::vector<ListEntry> entries = petLocationEntries(state(), id, {panel().selection().place()});
    page.lstPetLocations->setEntries(entries);
    page.lstPetLocations->extendToTexts();
    page.lblPetLocations->setEnabled(state().Pets[id].Locations.count() >= 1);
    if (!entries.empty())
        page.lstPetLocations->select(0);
}

// Chests and pets share page and map: only one of them has a selection.
void PetsView::locationPicked() {
    const VariousPage& page = panel().variousPage();
    if (!page.lstPetLocations->hasSelection())
        return;
    page.lstKesraTreasures->select(-1);
    if (!page.lstPets->hasSelection()) {
        // A chest was chosen meanwhile: the places are those of the pet before it.
        const int place = page.lstPetLocations->selectedEntry().data;
        page.lstPets->selectData(listedPet_);
        page.lstPetLocations->selectData(place);
    }
    ShowSelectedPetLocation();
}

void PetsView::ShowSelectedPetLocation() {
    const VariousPage& page = panel().variousPage();
    if (page.lstPets->hasSelection() && page.lstPetLocations->hasSelection())
        jumpTo(page.lstPets->selectedEntry().data, page.lstPetLocations->selectedEntry().data);
}

void PetsView::ShowPetTooltip(const HitArea& item) {
    const Pet& pet = state().Pets[item.id];
    lblPetName_->setWrapWidth(0);
    lblPetName_->setCaption(pet.Name);
    showPicture(pet);
    const int width = 2 * left + imgPetImage_->width();
    lblPetName_->setWrapWidth(width - 2 * titleAt.x());
    lblPetName_->move(titleAt);
    imgPetImage_->move(left, titleAt.y() + lblPetName_->height() + belowTitle);
    window().resize(width, imgPetImage_->y() + imgPetImage_->height() + bottomMargin);
    frame(item, state().colourOf(bandTab), *lblPetName_);
}

// A pet without a picture leaves an empty line as wide as its name.
void PetsView::showPicture(const Pet& pet) {
    QImage picture = loadPicture(disk_, pet.Picture, largestIcon);
    if (picture.width() > largestPicture.width() || picture.height() > largestPicture.height())
        picture = picture.scaled(largestPicture, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    imgPetImage_->setPixmap(QPixmap::fromImage(picture));
    imgPetImage_->setAccessibleName(pet.Name);
    imgPetImage_->resize(picture.isNull() ? QSize(lblPetName_->width(), 0) : picture.size());
}

} // namespace orvinel
