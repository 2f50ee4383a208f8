"""Small worlds for the pages: one whose every pixel is known, one whose every text is an attack."""

import os
import shutil

HERE = os.path.dirname(os.path.abspath(__file__))
LANGUAGE = os.path.join(HERE, "..", "..", "world", "Data", "Language.txt")

# Places of the plain world, pixels of the picture (900 x 700, blue; red from 400, 300 on).
BOSS, CAPTURED, COLLECTOR, PET, ZONE, NOTE = (200, 100), (300, 250), (500, 400), (640, 200), (450, 350), (120, 400)

ATTACKS = [
    "<img src=x onerror=\"window.hacked=1\">",
    "</script><script>window.hacked=1</script>",
    "\"><svg onload=window.hacked=1>",
    "'><b id=hacked>bold</b>&lt;&amp;",
    "javascript:window.hacked=1 %1 %2 ${hacked} {{hacked}}",
    "\u202e\u2028</title></style><iframe src=//example.org>",
]


def write(folder, name, *lines):
    path = os.path.join(folder, name)
    os.makedirs(os.path.dirname(path), exist_ok=True)
    text = "".join(line + "\r\n" for line in lines)
    with open(path, "wb") as file:
        file.write(b"\xef\xbb\xbf" + text.encode())


def picture(folder, *names):
    for name in names:
        path = os.path.join(folder, name)
        os.makedirs(os.path.dirname(path), exist_ok=True)
        shutil.copy(os.path.join(HERE, "region.jpg"), path)


def place(*fields):
    return "\t".join(str(field) for field in fields)


def plain(folder):
    os.makedirs(os.path.join(folder, "Data"))
    shutil.copy(LANGUAGE, os.path.join(folder, "Data"))
    common, ash = "Campaign.00.Core", "Campaign.01.Ash"
    write(folder, f"{common}/Professions.txt", "1\tWarden\t&H2040C0\tW\tFire", "2\tMage\t&HC04020\tM\tIce")
    write(folder, f"{common}/EliteList.txt",
          "1\t1\tWall of Ember\tFire\tStance\t0\t5\t0\t\t30\tYou burn.", "2\t2\tÉclat\tIce\tSpell\t0\t0\t5\t1/4\t8\tIt freezes.",
          "3\t2\tLost Art\tIce\tSpell\t0\t0\t5\t2\t8\tNobody knows it.")
    write(folder, f"{common}/PetsList.txt", "0001\tMoor Hare\tShy")
    write(folder, f"{ash}/Regions.txt", "1\tCoast", "2\tHills")
    write(folder, f"{ash}/Zones.txt", place(5, 1, 4, 1, *ZONE, "Mirefen"), place(6, 2, 1, 0, 300, 300, "Tarn"))
    write(folder, f"{ash}/EliteLocations.txt", ";[Version]1.1", place(1, 1, *BOSS, "Old Borg", "P", 5, "Walks about."),
          place(2, 1, *CAPTURED, "Eir", "", 5), place(2, 2, 300, 200, "Eir", "?", 6))
    write(folder, f"{ash}/Greens.txt", "Borg's Iron Tooth\tOld Borg\tSword\tDamage +15%")
    write(folder, f"{ash}/Collectors.txt", "1\tAda Reed\t0\t1", "By the well", "5 Frog Skins", "Iron Mace\t1\tBlunt 16-28\t", "")
    write(folder, f"{ash}/CollectorsLocations.txt", place(1, 1, *COLLECTOR, 5))
    write(folder, f"{ash}/PetsLocations.txt", place("0001", 1, 5, *PET))
    write(folder, "Campaign.03.Sunhollow/Regions.txt", "1\tDunes")
    write(folder, "Campaign.03.Sunhollow/Treasures.txt", "Sunken Urn\t140\t160\t1\t9", "Grave Box\t340\t260\t1\t9")
    write(folder, "Personal/Characters.txt", "01\tSecretive Sue", "02\tBert")
    write(folder, "Personal/Char01CapElite.txt", "0002")
    write(folder, "Personal/Char01OpenedTreasures.txt", "0001\t16102026")
    write(folder, "Personal/Notes.txt", place("My hoard", "Under the{#ENTER#}oak", *NOTE, 1, 1))
    picture(folder, f"{ash}/1.jpg", f"{ash}/2.jpg", f"{common}/imgElite/0001.jpg")
    write(folder, "Campaign.03.Sunhollow/1.jpg", "no picture at all")
    return folder


def hostile(folder):
    os.makedirs(os.path.join(folder, "Data"))
    shutil.copy(LANGUAGE, os.path.join(folder, "Data"))
    common, ash = "Campaign.00.Core", "Campaign.01.<b onclick=1>'&amp"
    first = ATTACKS[0]
    write(folder, f"{common}/Professions.txt", place(1, ATTACKS[1], "&H2040C0", "W", ATTACKS[2]))
    write(folder, f"{common}/EliteList.txt", *(place(i + 1, 1, a, a, a, 0, 0, 5, "1" + a, 8, a) for i, a in enumerate(ATTACKS)))
    write(folder, f"{common}/PetsList.txt", *(place(i + 1, a, a) for i, a in enumerate(ATTACKS)))
    write(folder, f"{ash}/Regions.txt", place(1, first), place(2, ATTACKS[1]))
    write(folder, f"{ash}/Zones.txt", *(place(i + 1, 1, 4, 1, 100 + 100 * i, 100, a) for i, a in enumerate(ATTACKS)))
    write(folder, f"{ash}/EliteLocations.txt", ";[Version]1.1",
          *(place(i + 1, 1, 100 + 100 * i, 200, a, a[:2], i + 1, a) for i, a in enumerate(ATTACKS)))
    write(folder, f"{ash}/Greens.txt", *(place(a, a, a, a) for a in ATTACKS))
    for_all = [line for i, a in enumerate(ATTACKS) for line in (place(i + 1, a, 0, 1), a, "5 " + a, place(a, 1, a, a), "")]
    write(folder, f"{ash}/Collectors.txt", *for_all)
    write(folder, f"{ash}/CollectorsLocations.txt", *(place(i + 1, 1, 100 + 100 * i, 300, i + 1) for i in range(len(ATTACKS))))
    write(folder, f"{ash}/PetsLocations.txt", *(place(i + 1, 1, i + 1, 100 + 100 * i, 400) for i in range(len(ATTACKS))))
    write(folder, "Campaign.03.Sunhollow/Regions.txt", place(1, first))
    write(folder, "Campaign.03.Sunhollow/Treasures.txt", *(place(a, 100 + 100 * i, 500, 1, 1) for i, a in enumerate(ATTACKS)))
    write(folder, "Personal/Characters.txt", place("01", first))
    write(folder, "Personal/Char01CapElite.txt", "0001")
    write(folder, "Personal/Notes.txt", *(place(a, a, 100 + 100 * i, 600, 1, 1) for i, a in enumerate(ATTACKS)))
    picture(folder, f"{ash}/1.jpg")
    return folder
