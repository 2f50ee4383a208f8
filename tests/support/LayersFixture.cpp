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
    collectors = &layers->collectors;
    notes = &layers->notes;
    treasures = &layers->treasures;
    pets = &layers->pets;
    menus = std::make_unique<MapMenus>(
        MapMenus::Surroundings{state, files, desktop, *map},
        MapMenus::Actions{[this](int campaign, int region) { panel->chooseRegion(campaign, region); },
                          [this](const NoteRequest& asked) {
                              request = asked;
                              return storedNote;
                          },
                          [this] {
                              ++noteFilters;
                              notes->FilterNotes(true);
                          }});
    QObject::connect(map.get(), &frmMap::regionMenuWanted, menus.get(), &MapMenus::openRegionMenu);
    QObject::connect(notes, &NotesView::menuWanted, menus.get(), &MapMenus::openNoteMenu);
    showFjord();
}

} // namespace orvinel
