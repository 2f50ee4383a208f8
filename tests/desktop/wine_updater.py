#!/usr/bin/env python3
"""wine_updater.py PROGRAM: update.exe for Windows under Wine: an update from a downloaded package, one that is cut off, one
whose package is a setup.

PROGRAM lies in the folder that packaging/windows/build has made. Exit code 77: Wine, the folder or a tool is missing.
"""

import pathlib
import shutil
import sys
import time

import wine
from journeys import PROGRAM, QUIT, PANEL_WIDTH, Player, content, crlf, options
from screen import Running, has_focus, keys, pixels, type_text, until, windows
from wine_packages import NAME, NEW, OLD, everything, forget_setup, package, setup

TITLE = "Update Orvinel"
SLOW = 90  # seconds that an update may take on a busy machine
NOTE = crlf("Well\tdeep\t100\t200\t3\t1")


def processes(program):
    """The system's processes that run a program of the folder under Wine."""
    wanted = "Z:" + str(program).replace("/", "\\")
    found = []
    for process in pathlib.Path("/proc").glob("[0-9]*"):
        try:
            words = (process / "cmdline").read_bytes().decode("utf-8", "replace").replace("/", "\\").split("\0")
        except OSError:
            continue
        if words and words[0].strip('"').lower() in (wanted.lower(), str(program).replace("/", "\\").lower()):
            found.append(int(process.name))
    return found


class Updater(Running):
    """The updater of a folder, with the keyboard in its window."""

    def __init__(self, folder):
        Running.program, before = "update.exe", Running.program
        try:
            super().__init__(folder)
        finally:
            Running.program = before

    def __enter__(self):
        self.box = self.dialog(TITLE)
        return self

    def use(self, file):
        self.box.click(100, self.box.height - 75)
        keys("ctrl+a")
        type_text("Z:" + str(file))
        keys("Return")


def home_of(folder, zipped=True):
    """A player's folder of the old version, and the new version's package."""
    home = package(OLD, folder / "Orvinel")
    (home / "Personal").mkdir()
    (home / "Personal/Notes.txt").write_bytes(NOTE)
    options(home, Campaign=3, Region=1)
    if not zipped:
        return home, None
    package(NEW, folder / "new" / "Orvinel")
    return home, shutil.make_archive(folder / f"Orvinel-{NEW}-windows", "zip", folder / "new")


def is_new(home):
    under_way = [name for name in ("Update.tmp", "Setup.tmp") if (home / name).exists()]
    return content(home / "Data/Version.txt") == f"{NEW}\n".encode() and not under_way


def window_of(program, title):
    """That of a program that something else starts."""
    return until(title, lambda: next((w for pid in processes(program) for w in windows(pid) if w.title == title), None), SLOW)


def shows_progress(box):
    """Something has an outline where the bar is."""
    return len(set(zip(*[iter(pixels(box.x + box.width // 2, box.y + box.height - 60, 1, 24))] * 3))) > 1


def started_again(home):
    """The panel of the program that something else has started."""
    def look():
        return next((w for pid in processes(home / "orvinel.exe") for w in windows(pid) if w.width == PANEL_WIDTH), None)
    return until("the program started again", look, SLOW)


def quit_by_mouse(home, panel):
    panel.click(*QUIT)
    until("the program's end", lambda: not processes(home / "orvinel.exe"), SLOW)


def wanted_of(folder, but=()):
    return {path: s for path, s in everything(folder).items() if not path.startswith("Data/Char") and path not in but}


def up_to_date(folder):
    """A package is typed in; the new version starts by itself and puts the new updater into its place."""
    home, archive = home_of(folder)
    german = home / "Data/Worlds/Deutsch" / NAME
    shutil.copytree(german, home / NAME, dirs_exist_ok=True)
    with Updater(home) as updater:
        updater.use(archive)
        panel = started_again(home)
        assert updater.end() == 0
    assert is_new(home), "the program was started before the update was done"
    until("the new updater in its place", lambda: not (home / "update.dat").exists(), SLOW)
    quit_by_mouse(home, panel)
    own = {"Personal/Notes.txt", "Data/Options.txt"}
    there, brought = everything(home), wanted_of(folder / "new/Orvinel")
    copied = {f"{NAME}/{path.name}": there[f"Data/Worlds/Deutsch/{NAME}/{path.name}"] for path in german.iterdir()}
    wrong = [path for path, s in {**brought, **copied}.items() if there.get(path) != s]
    assert not wrong, f"not as the new version brings it: {wrong[:5]}"
    extra = {path for path in there if path not in brought and path not in own and not path.startswith("Personal/")}
    assert not {path for path in extra if not path.startswith("Data/Char")}, extra
    assert content(home / "Personal/Notes.txt") == NOTE


def own_is_named(folder):
    """What the player has changed stays, and the window says so before the program starts."""
    home, archive = home_of(folder)
    (home / NAME / "Zones.txt").write_bytes(b"mine")
    with Updater(home) as updater:
        updater.use(archive)
        until("the new version", lambda: is_new(home), SLOW)
        until("the end of the progress bar", lambda: not shows_progress(updater.box))
        assert not processes(home / "orvinel.exe")
        keys("Return")
        panel = started_again(home)
        assert updater.end() == 0
    quit_by_mouse(home, panel)
    assert content(home / NAME / "Zones.txt") == b"mine"


def cut_off(folder):
    """Killed while it replaces: the next start of the program takes that back and says so."""
    home, archive = home_of(folder)
    before = everything(home)
    for _ in range(5):
        with Updater(home) as updater:
            updater.use(archive)
            until("the middle of the update", (home / "Update.tmp/old/Data").exists, SLOW)
            updater.process.kill()
            updater.process.wait()
        if (home / "Update.tmp/begun").exists():
            break
    assert (home / "Update.tmp/begun").exists(), "it was too late each time"
    with Running(home) as first:
        box = window_of(home / "Update.tmp/repair/update.exe", TITLE)
        until("the keyboard in the message", lambda: has_focus(box))
        after = everything(home)
        assert {path: s for path, s in after.items() if path in before} == before, "not as it was before"
        keys("Return")
        panel = started_again(home)
        first.process.wait(timeout=SLOW)
    quit_by_mouse(home, panel)
    with Player(home) as player:  # while it ran the repairing updater could not be removed
        until("nothing left of it", lambda: not (home / "Update.tmp").exists(), SLOW)
        player.quit()
    assert content(home / "Data/Version.txt") == f"{OLD}\n".encode() and content(home / "Personal/Notes.txt") == NOTE


def by_setup(folder):
    """A setup as the package: the updater starts it for its folder and makes room."""
    home, _ = home_of(folder, zipped=False)
    forget_setup()
    with Updater(home) as updater:
        updater.use(setup(NEW)[0])
        assert updater.end() == 0
    language = window_of(setup(NEW)[0], "Installer Language")
    until("the keyboard in it", lambda: has_focus(language))
    keys("Return")
    box = window_of(setup(NEW)[0], "Orvinel Setup")
    for _ in range(2):
        box.click(box.width - 136, box.height - 22)
        time.sleep(1)  # pages come without a sign
    until("the new version", lambda: is_new(home), SLOW)
    assert content(home / "Personal/Notes.txt") == NOTE
    assert content(home / "update.exe") == content(PROGRAM.parent / "update.exe")


ERRANDS = [up_to_date, own_is_named, cut_off, by_setup]


def main():
    if not shutil.which("makensis"):
        print("skipped, not installed: nsis")
        return 77
    wine.PREFIX = PROGRAM.parent.parent / "wine-updater"
    return wine.main(__file__, ERRANDS)


if __name__ == "__main__":
    sys.exit(main())
