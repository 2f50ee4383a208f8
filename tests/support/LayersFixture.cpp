#include "support/LayersFixture.h"

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

LayersFixture::LayersFixture() {
    putFile("Collectors.txt", "1\tAnna\t1\t1\r\nBy the harbour\r\n5 Apples\r\nAxe\t1\tFire +1\t \tSharp\r\n"
                              "Shield\t2\tIce +2\r\nRing\t4\r\n\r\n"
                              "2\tBerta\t0\t0\r\nOn the cliffs\r\n3 Pears\r\nBow\t1\tFire +3\r\n\r\n");
    putFile("CollectorsLocations.txt", "1\t1\t100\t100\t11\r\n2\t1\t105\t100\t12\r\n");
    putFile("PetsLocations.txt", "7\t1\t11\t200\t200\r\n8\t1\t12\t208\t200\r\n7\t2\t21\t50\t50\r\n");
    disk.put(u"/o/Campaign.00.Core/PetsList.txt"_s, "0007\tWolf\tgrey\r\n8\tBear\tbrown\r\n");
    disk.put(u"/o/Campaign.00.Core/imgPets/0007.jpg"_s, jpeg({160, 120}, QColor(200, 0, 0)));
    disk.put(u"/o/Campaign.03.Sunhollow/Treasures.txt"_s,
             "Old chest\t300\t300\t1\t11\r\nBig chest\t350\t300\t1\t12\r\n");
    disk.put(u"/o/Personal/Characters.txt"_s, "01\tAda\r\n02\tBo\r\n");
    disk.put(u"/o/Personal/Char01OpenedTreasures.txt"_s, "0001\t16102011\r\n");
    disk.put(u"/o/Personal/Notes.txt"_s,
             "Alpha\tfirst{#ENTER#}second\t500\t100\t3\t1\r\nBeta\tother\t60\t60\t3\t2\r\n");
}

void LayersFixture::startOnFjord() {
    start();
    makeViews();
    wireHooks();
    showFjord();
}

void LayersFixture::makeViews() {
    collectors = std::make_unique<CollectorsView>(state, *panel, *map);
    notes = std::make_unique<NotesView>(state, *panel, *map);
    treasures = std::make_unique<TreasuresView>(state, desktop, *panel, *map,
                                                [this](int index) { openedChest = index; });
    pets = std::make_unique<PetsView>(state, disk, *panel, *map);
    flashing = std::make_unique<Flashing>(state, *panel, *map);
    menus = std::make_unique<MapMenus>(MapMenus::Surroundings{state, files, desktop, *panel, *map},
                                       MapMenus::NoteActions{[this](const NoteRequest& asked) {
                                                                 request = asked;
                                                                 return storedNote;
                                                             },
                                                             [this] {
                                                                 ++noteFilters;
                                                                 notes->FilterNotes(true);
                                                             }});
    QObject::connect(map.get(), &frmMap::regionMenuWanted, menus.get(), &MapMenus::openRegionMenu);
    QObject::connect(notes.get(), &NotesView::menuWanted, menus.get(), &MapMenus::openNoteMenu);
    map->startFlashing = [this] { flashing->StartFlashing(); };
    map->setChains({{collectors.get(), notes.get(), treasures.get(), pets.get()},
                    {collectors.get(), notes.get(), treasures.get(), pets.get()},
                    {treasures.get(), collectors.get(), pets.get(), notes.get()}});
    map->setInformationWindows(
        {&collectors->window(), &notes->window(), &treasures->window(), &pets->window()});
}

void LayersFixture::wireHooks() {
    PanelHooks hooks;
    hooks.filters.fill([](bool) {});
    const auto filter = [&](Filter which) -> auto& {
        return hooks.filters[static_cast<size_t>(which)];
    };
    filter(Filter::Collectors) = [this](bool update) { collectors->FilterCollectors(update); };
    filter(Filter::Notes) = [this](bool update) { notes->FilterNotes(update); };
    filter(Filter::Treasures) = [this](bool update) { treasures->FilterTreasures(update); };
    filter(Filter::Pets) = [this](bool update) { pets->FilterPets(update); };
    hooks.showRegion = [this](const QString& picture, int campaign, int region) {
        map->InizializzaVariabili(picture, campaign, region);
    };
    hooks.updateMap = [this] { map->UpdateMapWithNewEliteSkills(); };
    hooks.drawMap = [this] { map->DrawEverythingOnMap(); };
    hooks.switchFlashing = [this](int layer, bool on) { flashing->switchFlashing(layer, on); };
    hooks.openMenu = [](int) {};
    hooks.quit = [] {};
    hooks.maximised = [] { return false; };
    panel->setHooks(std::move(hooks));
}

} // namespace orvinel
