#!/usr/bin/env python3
"""updater.py PROGRAM [ERRAND...]: plays how a player brings the program up to date, with update.exe beside PROGRAM, from the help
menu to the new version; with the machine switched off in the middle; with packages that are no good.

Exit code 77: a tool is missing here.
"""

import contextlib
import hashlib
import os
import pathlib
import shutil
import signal
import subprocess
import sys
import tarfile
import time
from unittest import mock

from journeys import EMPTY, HELP_MENU, PROGRAM, UPDATE_ROW, Player, content, crlf, in_marsh, main, make_world, note_menu, write_note
from screen import Running, has_focus, keys, run, steady, type_text, until

UPDATER = PROGRAM.parent / "update.exe"
TITLE = "Update Orvinel"
OLD, NEW = "4.0.0", "4.1.0"
VERSION_ROWS = {OLD: "Orvinel 4.0.0", NEW: "Orvinel 4.1.0, which has a name that makes the menu wider"}
BULK = 60  # files that make an update last
UPDATE = 90  # seconds that it may take on a busy machine


class Foreign:
    """A process that another one has started."""

    def __init__(self, pid):
        self.pid = pid

    def poll(self):
        try:
            with open(f"/proc/{self.pid}/stat", encoding="utf-8") as file:
                return None if file.read().rsplit(")", 1)[1].split()[0] != "Z" else 0
        except (FileNotFoundError, ProcessLookupError):
            return 0

    def kill(self):
        with contextlib.suppress(ProcessLookupError):
            os.kill(self.pid, signal.SIGKILL)

    def wait(self, timeout=10):
        until("the program's end", lambda: self.poll() is not None, timeout)
        return 0


def running(program):
    """Processes whose program is that file."""
    found = []
    for process in pathlib.Path("/proc").glob("[0-9]*"):
        with contextlib.suppress(OSError):
            if os.readlink(process / "exe") == str(program):
                found.append(int(process.name))
    return found


class StartedByOther(Player):
    """The program, whoever started it."""

    def __init__(self, folder):
        pid = until("the program started again", lambda: running(folder / "orvinel"), UPDATE)[0]
        self.main = set()
        self.process = Foreign(pid)

    def end(self):
        return self.process.wait()


class Settled(Player):
    """The program at the end of its start, when it takes the keyboard for its panel and lies above all else."""

    def __enter__(self):
        super().__enter__()
        steady("the keyboard in the panel", lambda: has_focus(self.panel))
        return self


class Updater(Running):
    """An updater of the folder that runs, with its window."""

    def __init__(self, folder, place="update.exe"):
        self.main = set()
        self.process = Foreign(until("the updater", lambda: running(folder / place))[0])

    def __enter__(self):
        self.box = self.window("its window", lambda w: w.title == TITLE)
        self.in_front()
        return self

    def __exit__(self, *_):
        pass  # it ends by itself; what does not goes with the errand

    def in_front(self):
        """The program, when it has just been started, gives the keyboard to its panel and lies above: a player would click."""
        until("the keyboard in the updater", lambda: has_focus(self.box) or run("xdotool", "windowactivate", str(self.box.number)))

    def begin(self):
        self.in_front()
        self.box = self.window("its window", lambda w: w.title == TITLE)  # where it is once it shows what it asks
        self.box.click(self.box.width - 138, self.box.height - 23)

    def message(self):
        """The box over the window, or instead of it."""
        return self.window("a message", lambda w: w.title in (TITLE, "Orvinel") and w.number != self.box.number)

    def use(self, package):
        self.box.click(100, self.box.height - 75)
        keys("ctrl+a")
        type_text(str(package))


@contextlib.contextmanager
def nothing_left(folder):
    try:
        yield
    finally:
        for process in pathlib.Path("/proc").glob("[0-9]*"):
            with contextlib.suppress(OSError):
                if os.readlink(process / "exe").startswith(str(folder) + "/"):
                    os.kill(int(process.name), signal.SIGKILL)


def list_installed(folder, version):
    """As packaging/list-installed does it."""
    (folder / "Data/Version.txt").write_text(version + "\n")
    listed = folder / "Data/Installed.txt"
    listed.unlink(missing_ok=True)
    files = sorted(str(f.relative_to(folder)) for f in folder.rglob("*") if f.is_file())
    listed.write_text("".join(f"{hashlib.sha256((folder / f).read_bytes()).hexdigest()}  {f}\n" for f in files))


def version(folder, number):
    """A folder as players get it. The programs of versions differ behind their end, where nobody looks."""
    make_world(folder)
    shutil.copy2(UPDATER, folder / "update.exe")
    for program in ("orvinel", "update.exe"):
        with (folder / program).open("ab") as file:
            file.write(number.encode())
    language = folder / "Data/Language.txt"
    texts = language.read_bytes().replace(b"108\tT108", b"108\t" + VERSION_ROWS[number].encode())
    language.write_bytes(texts)
    (folder / "Data/Languages").mkdir()
    (folder / "Data/Languages/English.txt").write_bytes(texts)
    for i in range(BULK):
        (folder / f"Campaign.03.Sunhollow/{i:03}.txt").write_text(f"{number} {i}")
    (folder / f"docs-{number}.txt").write_text(number)
    list_installed(folder, number)
    return folder


def package(downloads, number, change=lambda folder: None):
    """The version's archive."""
    downloads.mkdir(parents=True, exist_ok=True)
    folder = version(downloads / f"Orvinel-{number}", number)
    change(folder)
    made = downloads / f"Orvinel-{number}-Linux-x86_64.tar.gz"
    with tarfile.open(made, "w:gz", compresslevel=1) as archive:
        archive.add(folder, folder.name)
    shutil.rmtree(folder)
    return made


def state_of(folder):
    return {str(f.relative_to(folder)): f.read_bytes() for f in folder.rglob("*") if f.is_file()}


def at_home(folder):
    """Downloads are looked for there."""
    return mock.patch.dict(os.environ, HOME=str(folder), XDG_CONFIG_HOME=str(folder / "config"))


def update_from_menu(player):
    player.popup(lambda: player.panel.click(*HELP_MENU)).click(*UPDATE_ROW)
    assert player.end() == 0


def menu_width(player):
    popup = player.popup(lambda: player.panel.click(*HELP_MENU))
    keys("Escape")
    player.gone(popup)
    return popup.width


def up_to_date(folder):
    """Old version, note, update from the menu, new version in the menu, note there, changed files there."""
    home = version(folder / "Orvinel", OLD)
    package(folder / "Downloads", NEW)
    in_marsh(home)
    notes = home / "Personal/Notes.txt"
    written = crlf(f"Well\tdeep\t{EMPTY[0]}\t{EMPTY[1]}\t3\t1")
    with at_home(folder), nothing_left(folder):
        with Player(home) as player:
            player.ready()
            note_menu(player, 0)
            dialog = player.dialog("Note")
            write_note(dialog, "Well", ["deep"])
            player.gone(dialog)
            width = menu_width(player)
            update_from_menu(player)
        with Updater(home) as updater:
            keys("Return")  # the package in Downloads is offered
        with StartedByOther(home) as player:
            player.ready()
            assert menu_width(player) > width, "the menu does not show the new version"
            assert updater.process.wait() == 0
            assert content(notes) == written
            player.quit()
        after = state_of(home)
        assert after["orvinel"] == PROGRAM.read_bytes() + NEW.encode()
        assert after["update.exe"] == UPDATER.read_bytes() + NEW.encode() and os.access(home / "update.exe", os.X_OK)
        assert "update.dat" not in after and not (home / "Update.tmp").exists()
        assert f"docs-{NEW}.txt" in after and f"docs-{OLD}.txt" not in after
        assert after["Campaign.03.Sunhollow/007.txt"] == f"{NEW} 7".encode()


def own_stays(folder):
    """What the player has changed is named and stays."""
    home = version(folder / "Orvinel", OLD)
    package(folder / "Downloads", NEW)
    own = home / "Campaign.03.Sunhollow/Zones.txt"
    own.write_bytes(own.read_bytes() + b";mine\r\n")
    kept = own.read_bytes()
    with at_home(folder), nothing_left(folder):
        with Settled(home) as waited_for, start(home) as updater:
            updater.begin()
            time.sleep(1)  # nothing may happen while the program runs
            assert content(home / "Data/Version.txt") == (OLD + "\n").encode()
            waited_for.process.kill()
            waited_for.process.wait()
            until("the new version", lambda: content(home / "Data/Version.txt") == (NEW + "\n").encode(), UPDATE)
            until("the end of the update", lambda: not (home / "Update.tmp").exists(), UPDATE)
            keys("Return")  # the button that starts the program
            with StartedByOther(home) as player:
                player.quit()
            updater.process.wait()
    assert own.read_bytes() == kept and content(home / "Campaign.03.Sunhollow/007.txt") == f"{OLD} 7".encode()


@contextlib.contextmanager
def start(home):
    with subprocess.Popen([home / "update.exe"], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL) as process:
        try:
            with Updater(home) as updater:
                yield updater
        finally:
            process.kill()


def switch_off(home):
    """Begins an update and ends it with the middle of the files replaced."""
    with start(home) as updater:
        keys("Return")
        middle = home / f"Update.tmp/old/Campaign.03.Sunhollow/{BULK // 2:03}.txt"
        until("the middle of the update", middle.exists, UPDATE)
        updater.process.kill()
        updater.process.wait()
    assert (home / "Update.tmp/begun").exists(), "it was too late"
    # As players start it, by a link or a starter of the desktop.
    assert content(home / "orvinel").startswith(b"#!/bin/sh")


def switched_off(folder):
    """The next start of the program takes the half of an update back; so does the next one of the updater, which then goes on."""
    home = version(folder / "Orvinel", OLD)
    package(folder / "Downloads", NEW)
    (home / "Personal").mkdir()
    (home / "Personal/Notes.txt").write_bytes(crlf(f"Well\tdeep\t{EMPTY[0]}\t{EMPTY[1]}\t3\t1"))
    before = state_of(home)
    with at_home(folder), nothing_left(folder):
        switch_off(home)
        with Running(home):
            with Updater(home, "Update.tmp/repair/update.exe"):
                assert state_of(home) == {**before, **leftovers(home)}
                keys("Return")
            with StartedByOther(home) as player:
                until("everything taken back", lambda: not (home / "Update.tmp").exists())
                player.quit()
        assert {k: v for k, v in state_of(home).items() if k in before} == before
        switch_off(home)
        with start(home) as updater:
            assert {k: v for k, v in state_of(home).items() if k in before} == before
            keys("Return")
            with StartedByOther(home) as player:
                player.quit()
            updater.process.wait()
        assert content(home / "Data/Version.txt") == (NEW + "\n").encode()
        assert content(home / "Personal/Notes.txt") == before["Personal/Notes.txt"]


def leftovers(home):
    return {name: bytes_ for name, bytes_ in state_of(home).items() if name.startswith("Update.tmp/")}


def no_good(folder):
    """Packages that are damaged, older or of something else change nothing."""
    home = version(folder / "Orvinel", NEW)
    def damage(made):
        (made / "Data/Version.txt").write_text("9.9.9\n")
    bad = [package(folder / "damaged", NEW, damage), package(folder / "older", OLD), folder / "setup.exe", folder / "missing.zip",
           home / "Data/Language.txt"]
    (folder / "setup.exe").write_bytes(b"MZ")
    before = state_of(home)
    with at_home(folder), nothing_left(folder), start(home) as updater:
        for file in bad:
            updater.use(file)
            keys("Return")
            box = updater.message()
            until("the keyboard in the message", lambda: has_focus(box))
            keys("Escape")
            updater.gone(box)
            assert state_of(home) == before, file
        keys("Escape")


ERRANDS = [up_to_date, own_stays, switched_off, no_good]

if __name__ == "__main__":
    if not UPDATER.exists():
        print("skipped: no updater was built")
        sys.exit(77)
    sys.exit(main(__file__, ERRANDS))
