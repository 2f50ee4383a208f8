#!/usr/bin/env python3
"""wine_setup.py PROGRAM: the setup for Windows under Wine, from the first installation to the last.

PROGRAM lies in the folder that packaging/windows/build has made; a version that came before it is made up from that
folder. Exit code 77: Wine, the folder or a tool is missing.
"""

import pathlib
import re
import shutil
import subprocess
import sys
import time
import zipfile

import journeys
import wine
from journeys import PROGRAM, Player, content, crlf, options, write_note
from screen import Running, click, keys, pixels, until
from wine_packages import LISTED, NAME, NEW, OLD, everything, forget_setup, resources, setup, windows_path

MENU = "AppData/Roaming/Microsoft/Windows/Start Menu/Programs/Orvinel"
REFUSED = 2
NOTE = crlf("Well\tdeep\t100\t200\t3\t1")


# A program that lets nobody else have a file until its input ends.
HOLDING = b"""
#include <stdio.h>
#include <windows.h>
int main(int count, char** words) {
    if (CreateFileA(words[1], GENERIC_READ, 0, 0, OPEN_EXISTING, 0, 0) != INVALID_HANDLE_VALUE)
        fputs("held", stdout);
    fclose(stdout);
    return getchar();
}
"""


# What a player does


def start_setup(version, folder):
    # Windows wants the folder last and without quotes; Python would write them.
    return subprocess.Popen(["wine", str(setup(version)[0]), "/S", *f"/D={windows_path(folder)}".split(" ")],
                            stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)


def install(version, folder, code=0):
    ended = start_setup(version, folder).wait(timeout=120)
    assert ended == code, f"setup {version} ends with {ended} instead of {code}"


def uninstall(folder):
    subprocess.run(["wine", folder / "Uninstall.exe", "/S"], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    until("the end of the uninstaller", lambda: not listed())
    until("the end of its files", lambda: not (folder / "orvinel.exe").exists())


def listed():
    """The entry in the list of programs."""
    said = subprocess.run(["wine", "reg", "query", LISTED], capture_output=True, text=True).stdout
    rows = [line.strip().split("    ", 2) for line in said.splitlines() if line.startswith("    ")]
    return {row[0]: row[-1] for row in rows if len(row) == 3}


def menu():
    users = [user for user in (wine.PREFIX / "drive_c/users").iterdir() if (user / MENU).exists()]
    return sorted(path.stem for path in (users[0] / MENU).iterdir()) if users else []


def holds_version(version, folder, but=()):
    """All that the version brings is there, and nothing of another; `but`: the files that are the player's."""
    there = everything(folder)
    first = "Data/Char"  # the first start's characters, which are no more there then
    wanted = {path: s for path, s in setup(version)[1].items() if path not in but and not path.startswith(first)}
    extra = {path for path in there if path not in setup(version)[1] and path not in but and path != "Uninstall.exe"
             and not path.startswith("Personal/")}
    wrong = [path for path, s in wanted.items() if there.get(path) != s]
    assert not wrong, f"not as version {version} brings it: {wrong[:5]}"
    assert not extra, f"too much for version {version}: {sorted(extra)[:5]}"


def boxes():
    """Message boxes on the screen, of whatever program."""
    return subprocess.run(["xdotool", "search", "--onlyvisible", "--name", "^Orvinel$"], capture_output=True,
                          text=True).stdout.split()


def with_personal(folder):
    (folder / "Personal").mkdir()
    (folder / "Personal/Notes.txt").write_bytes(NOTE)


# Errands


def shown_by_the_system(folder):
    """Icon, version and manifest of every program."""
    for program in (*PROGRAM.parent.glob("*.exe"), setup(NEW)[0]):
        kinds = resources(program)
        sizes = {kinds[14][0][6 + 14 * i] for i in range(kinds[14][0][4])}
        assert {16, 32, 48, 0} <= sizes, f"{program.name}: icons of {sizes} pixels; 0 is 256"
        told = kinds[16][0].decode("utf-16-le", "replace")
        for wanted in ("Orvinel", "The Orvinel authors", NEW):
            assert f"\0{wanted}\0" in told, f"{program.name} does not tell {wanted}"
        manifest = kinds[24][0].decode()
        for wanted in (r"longPathAware\b[^>]*>true<", r"dpiAware\b[^>]*>true", 'level="asInvoker"',
                       r"\{8e0f7a12-bfb3-4fe8-b9a5-48fd50a15a9a\}"):
            assert re.search(wanted, manifest), f"{program.name}: the manifest lacks {wanted}"


def a_players_year(folder):
    """Install, write a note, update, find the note, go."""
    place = folder / "Players of old" / "Orvinel"
    install(OLD, place)
    holds_version(OLD, place)
    entry = listed()
    assert entry["DisplayVersion"] == OLD and int(entry["EstimatedSize"], 16) > 10000, entry
    assert entry["InstallLocation"] == windows_path(place), entry
    assert {"Orvinel", "Guide", "Progress", "Atlas", "Back up", "Uninstall Orvinel"} == set(menu()), menu()
    options(place, Campaign=3, Region=1)
    with Player(place) as player:
        until("a region in many colours", lambda: len(set(zip(*[iter(pixels(*player.view((50, 50)), 300, 300))] * 3))) > 500)
        popup = player.popup(lambda: click(*player.view((20, 20)), times=2))
        popup.click(20, popup.height // 6)
        dialog = player.dialog("Notes")
        write_note(dialog, "Well", ["deep"])
        player.gone(dialog)
        player.quit()
    own = ("Data/Options.txt", "Personal/Notes.txt")
    before = {name: content(place / name) for name in own}
    assert before[own[1]].startswith(b"Well\tdeep\t"), before

    install(NEW, place)
    holds_version(NEW, place, but=own)
    assert not (place / "Campaign.02.Former").exists() and not (place / "Setup.tmp").exists()
    assert {name: content(place / name) for name in own} == before
    assert listed()["DisplayVersion"] == NEW
    with Player(place) as player:
        player.quit()

    before[own[0]] = content(place / own[0])
    install(OLD, place, REFUSED)
    holds_version(NEW, place, but=own)
    uninstall(place)
    assert {name: content(place / name) for name in own} == before
    left = {path.split("/")[0] for path in everything(place)}
    assert left == {"Personal", "Data"} and menu() == [], (left, menu())


def what_is_the_players(folder):
    install(OLD, folder)
    with_personal(folder)
    changed = {NAME + "/Zones.txt": b"mine", NAME + "/More.txt": b"mine", "Data/Languages/Italiano.txt": b"mine",
               "Data/Languages/Mine.txt": b"mine", "Campaign.04.Mine/Regions.txt": crlf("1\tHome")}
    shutil.rmtree(next(folder.glob("Campaign.04.*")))
    (folder / "Campaign.04.Mine").mkdir()
    for name, text in changed.items():
        (folder / name).write_bytes(text)
    shutil.copy(folder / "Data/Languages/Deutsch.txt", folder / "Data/Language.txt")
    campaign = {path: s for path, s in everything(folder).items() if path.startswith(NAME)}
    for _ in range(2):
        install(NEW, folder)
        assert {name: content(folder / name) for name in changed} == changed
        assert {path: s for path, s in everything(folder).items() if path.startswith(NAME)} == campaign
        assert [path.name for path in folder.glob("Campaign.04.*")] == ["Campaign.04.Mine"]
        assert content(folder / "Data/Language.txt") == content(PROGRAM.parent / "Data/Languages/Deutsch.txt")
        assert content(folder / "Data/History.txt") == content(PROGRAM.parent / "Data/History.txt")
    (folder / "Data/Language.txt").write_bytes(crlf("1\tMine"))
    install(NEW, folder)
    assert content(folder / "Data/Language.txt") == crlf("1\tMine")
    uninstall(folder)
    assert set(everything(folder)) == {*changed, "Data/Language.txt", "Personal/Notes.txt"}, everything(folder)


def in_other_words(folder):
    """The world in German over the campaign is no change of the player's: it follows, and goes with the program."""
    install(OLD, folder)
    german = folder / "Data/Worlds/Deutsch" / NAME
    shutil.copytree(german, folder / NAME, dirs_exist_ok=True)
    (folder / "update.dat").write_bytes(b"an older updater, which the next start would swap in")
    for _ in range(2):
        install(NEW, folder)
        names = [path.name for path in german.iterdir()]
        assert len(names) > 3 and not any(content(german / name).endswith(b"; old\r\n") for name in names)
        for name in names:
            assert content(folder / NAME / name) == content(german / name), name
        holds_version(NEW, folder, but=[f"{NAME}/{name}" for name in names])
    uninstall(folder)
    assert not folder.exists() or everything(folder) == {}, everything(folder)


def in_the_way(folder):
    """A folder of the player's where a file should be: refused, and it is still there."""
    install(OLD, folder)
    (folder / "licences/Orvinel.txt").unlink()
    (folder / "licences/Orvinel.txt").mkdir()
    (folder / "licences/Orvinel.txt/mine.txt").write_text("mine")
    before = everything(folder)
    install(NEW, folder, REFUSED)
    assert everything(folder) == before
    uninstall(folder)
    assert set(everything(folder)) == {"licences/Orvinel.txt/mine.txt"}, everything(folder)


def unfinished_update(folder):
    """Uninstalled between an updater that was cut off and the next start: nothing of it stays but what nobody brought."""
    for own in ({}, {"old/docs/mine.txt": b"mine"}):
        place = folder / f"with {len(own)}"
        install(OLD, place)
        with_personal(place)
        work = place / "Update.tmp"
        package = PROGRAM.parent
        halves = {"begun": b"+orvinel.exe\n", "new/Data/Installed.txt": content(package / "Data/Installed.txt"),
                  "new/Data/History.txt": b"half", "repair/update.exe": content(package / "update.exe"),
                  "old/orvinel.exe": content(place / "orvinel.exe"), f"old/{NAME}/Zones.txt": content(place / NAME / "Zones.txt")}
        for name, text in {**halves, **own}.items():
            (work / name).parent.mkdir(parents=True, exist_ok=True)
            (work / name).write_bytes(text)
        shutil.copy(package / NAME / "Zones.txt", place / NAME)
        (place / "New").mkdir()  # not of the new version, so that it is the player's
        (place / "New/mine.txt").write_text("mine")
        uninstall(place)
        left = {f"Update.tmp/{name}" for name in own} | ({"Update.tmp/begun"} if own else set())
        assert set(everything(place)) == {"Personal/Notes.txt", "New/mine.txt"} | left, everything(place)


def by_hand(folder):
    """The windows, in Italian; the program then speaks Italian too."""
    place = next((wine.PREFIX / "drive_c/users").glob("[!P]*")) / "AppData/Local/Programs/Orvinel"
    shutil.rmtree(place, ignore_errors=True)
    forget_setup()
    Running.program, before = setup(NEW)[0], Running.program
    try:
        with Running(folder) as running:
            running.dialog("Installer Language")
            keys("Down", "Return")
            running.dialog("Installazione di Orvinel")
            for _ in range(2):
                keys("Return")
                time.sleep(1)
            until("the installed program", lambda: (place / "Uninstall.exe").exists() and "Guida" in menu(), 60)
            until("the last page", lambda: listed().get("Language") == "1040", 60)
            running.process.kill()
    finally:
        Running.program = before
    italian = "Data/Language.txt"
    assert content(place / italian) == content(place / "Data/Languages/Italiano.txt")
    holds_version(NEW, place, but=[italian])
    install(NEW, place)
    assert content(place / italian) == content(place / "Data/Languages/Italiano.txt")
    uninstall(place)
    assert not place.exists(), everything(place)


def beside_the_program(folder):
    """The start menu's entries and a double click on a tool: pages and backups without a terminal."""
    install(NEW, folder)
    with_personal(folder)
    shutil.copy(folder / "Data/Characters.txt", folder / "Personal")
    opened = folder / "opened.txt"
    for key, value in ((r"HKCR\.html", "Page"), (r"HKCR\Page\shell\open\command", f'cmd /c echo "%1">>{windows_path(opened)}')):
        subprocess.run(["wine", "reg", "add", key, "/ve", "/d", value, "/f"], stdout=subprocess.DEVNULL, check=True)
    links = next((wine.PREFIX / "drive_c/users").glob("[!P]*")) / MENU
    for start, page in ((links / "Progress.lnk", "progress.html"), (links / "Atlas.lnk", "Atlas\\index.html"),
                        (folder / "orvinel-report.exe", "progress.html")):
        opened.unlink(missing_ok=True)
        subprocess.run(["wine", "start", "/unix", str(start)], stderr=subprocess.DEVNULL)
        until(f"{page} in the browser", lambda: opened.exists() and page in opened.read_text(), 60)
        assert "</html>" in (folder / "Pages" / page.replace("\\", "/")).read_text()
    subprocess.run(["wine", "start", "/unix", str(links / "Back up.lnk")], stderr=subprocess.DEVNULL)
    until("what the backup says", boxes, 60)
    saved = list((folder / "Backups").glob("*.zip"))
    assert len(saved) == 1 and "Personal/Notes.txt" in zipfile.ZipFile(saved[0]).namelist(), saved
    time.sleep(1)
    keys("Return")
    until("the end of the box", lambda: not boxes())
    uninstall(folder)
    assert {path.split("/")[0] for path in everything(folder)} == {"Personal", "Backups", "opened.txt"}, everything(folder)


def while_it_runs(folder):
    install(OLD, folder)
    options(folder, Campaign=1, Region=1)
    with Player(folder) as player:
        before = everything(folder)
        install(NEW, folder, REFUSED)
        subprocess.run(["wine", folder / "Uninstall.exe", "/S"], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        time.sleep(2)
        assert everything(folder) == before, "something has changed under the running program"
        player.quit()
    install(NEW, folder)
    holds_version(NEW, folder, but=["Data/Options.txt"])
    uninstall(folder)


def cannot_be_finished(folder):
    """A file that another program holds: all that was replaced before it comes back."""
    install(OLD, folder)
    with_personal(folder)
    before = everything(folder)
    holding = folder.parent / "holding.exe"
    subprocess.run(["x86_64-w64-mingw32-gcc-posix", "-x", "c", "-", "-o", holding], input=HOLDING, check=True)
    holder = subprocess.Popen(["wine", holding, windows_path(folder / "licences/Orvinel.txt")], stdin=subprocess.PIPE,
                              stdout=subprocess.PIPE)
    try:
        assert holder.stdout.read(4) == b"held"
        install(NEW, folder, REFUSED)
        assert everything(folder) == before, "not as it was before"
    finally:
        holder.communicate()
        holding.unlink()
    install(NEW, folder)
    holds_version(NEW, folder)
    uninstall(folder)


def cut_off(folder):
    """Killed while it replaces: the next setup takes it back first, then does its own."""
    halves = 0
    for delay in (0, 0.01, 0.03, 0.06, 0.1, 0.2):
        place = folder / str(delay)
        install(OLD, place)
        with_personal(place)
        running = start_setup(NEW, place)
        until("the beginning", lambda: (place / "Setup.tmp/begun").exists() or running.poll() is not None, 60)
        time.sleep(delay)
        running.kill()
        running.wait()
        half = (place / "Setup.tmp/begun").exists()
        halves += half
        install(OLD, place, 0 if half else REFUSED)
        holds_version(OLD if half else NEW, place)
        assert content(place / "Personal/Notes.txt") == NOTE and not (place / "Setup.tmp").exists()
    print(f"  {halves} times in the middle")
    assert halves, "never killed in the middle"
    uninstall(place)


def no_place(folder):
    """Where nothing may be written, and where there is too little room."""
    install(NEW, pathlib.Path("/proc/Orvinel"), REFUSED)
    room = sum(path.stat().st_size for path in PROGRAM.parent.rglob("*") if path.is_file()) * 5 // 4
    mount = ["mount", "-t", "tmpfs", "-o", f"size={room}", "tmpfs", str(folder)]
    if subprocess.run(mount, capture_output=True).returncode != 0:
        print("  mounting is not allowed here: the full disk is left out")
        return
    try:
        install(OLD, folder)
        with_personal(folder)
        before = everything(folder)
        (folder / "filler").write_bytes(bytes(max(0, shutil.disk_usage(folder).free - 8 * 1024 * 1024)))
        install(NEW, folder, REFUSED)
        (folder / "filler").unlink()
        assert everything(folder) == before, "a full disk changed something"
        uninstall(folder)
    finally:
        subprocess.run(["umount", str(folder)])


ERRANDS = [shown_by_the_system, a_players_year, what_is_the_players, in_other_words, in_the_way, unfinished_update, by_hand,
           beside_the_program, while_it_runs, cannot_be_finished, cut_off, no_place]


def main():
    if not shutil.which("makensis"):
        print("skipped, not installed: nsis")
        return 77
    wine.PREFIX = PROGRAM.parent.parent / "wine-setup"
    return wine.main(__file__, ERRANDS)


if __name__ == "__main__":
    sys.exit(main())
