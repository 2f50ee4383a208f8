#!/usr/bin/env python3
"""journeys.py PROGRAM: whole errands of a player on a real screen with a window manager, down to the bytes of the files.

Each errand starts a copy of the program beside a small world of its own. Exit code 77: a tool is missing here.
"""

import datetime
import os
import pathlib
import resource
import shutil
import signal
import subprocess
import sys
import tempfile
import time
from unittest import mock

from screen import (Running, click, colour, drag, hover, keys, near, pixels, run, see, steady, type_text, until, windows)

NEEDED = ["Xvfb", "openbox", "xdotool", "xwininfo", "xprop", "import", "convert"]
PROGRAM = pathlib.Path(sys.argv[1]).resolve()

# Where the player clicks: pixels of the panel, and of the map's view.
PANEL_WIDTH = 217
CAMPAIGN, REGION = (40, 63), (150, 63)
OPTIONS_MENU, CHARACTERS_ROW = (60, 26), (12, 171)
HELP_MENU, UPDATE_ROW, HISTORY_ROW = (105, 26), (20, 19), (20, 114)
MISSING_ONLY = (8, 226)
QUIT = (208, 8)
BOSS, CHEST, EMPTY = (200, 300), (420, 300), (300, 500)
GROUND, EAST = (32, 64, 96), (160, 32, 32)
EDGE = 900  # where the region's western colour ends


def crlf(*lines):
    return "".join(line + "\r\n" for line in lines).encode("cp1252")


def make_world(folder):
    """The program with one campaign of one region: a boss, a chest, nothing else."""
    campaign = folder / "Campaign.03.Sunhollow"
    for part in (folder / "Data", campaign, folder / "Campaign.00.Common"):
        part.mkdir(parents=True)
    shutil.copy2(PROGRAM, folder / Running.program)
    texts = {13: "Characters", 15: "Create", 21: "New character", 65: "Note", 72: "Away with it?", 105: "Chest"}
    (folder / "Data/Language.txt").write_bytes(crlf(*(f"{n}\t{texts.get(n, f'T{n}')}" for n in range(1, 116))))
    (folder / "Campaign.00.Common/Professions.txt").write_bytes(crlf("1\tScout\t&H00FF00\tSc\tTracks"))
    files = {"Regions.txt": ["01\tMarsh"],
             "Zones.txt": ["5\t1\t1\t0\t700\t700\tReeds"],
             "EliteList.txt": ["7\t1\tNight Step\tTracks\tSkill\t0\t0\t5\t1\t10\tQuiet."],
             "EliteLocations.txt": [";[Version] 2.0", f"7\t1\t{BOSS[0]}\t{BOSS[1]}\tOld Heron\t\t5"],
             "Treasures.txt": [f"Sunken Box\t{CHEST[0]}\t{CHEST[1]}\t1\t5"]}
    for name, lines in files.items():
        (campaign / name).write_bytes(crlf(*lines))
    picture = ["-size", "1800x1400", f"xc:rgb{GROUND}".replace(" ", ""), "-fill", f"rgb{EAST}".replace(" ", ""),
               "-draw", f"rectangle {EDGE},0 1799,1399", "-quality", "95"]
    run("convert", *picture, str(campaign / "01.jpg"))
    return campaign


def options(folder, **values):
    (folder / "Data/Options.txt").write_bytes(crlf("[OLD SELECTION]", *(f"{k}={v}" for k, v in values.items())))


def in_marsh(folder):
    options(folder, Campaign=2, Region=1)


class Player(Running):
    """The program with its two windows found."""

    def __enter__(self):
        self.panel = self.window("the panel", lambda w: w.width == PANEL_WIDTH)
        self.map = self.window("the map", lambda w: w.width > PANEL_WIDTH)
        self.main = {self.panel.number, self.map.number}
        return self

    def view(self, point):
        """A place of the view on the screen."""
        return self.map.x + 2 + point[0], self.map.y + 2 + point[1]

    def choose(self, combo, row):
        popup = self.popup(lambda: self.panel.click(*combo))
        popup.click(30, 1 + 13 * row + 6)
        self.gone(popup)

    def ready(self):
        see("the region", *self.view((100, 100)), GROUND)
        return self

    def quit(self):
        self.panel.click(*QUIT)
        assert self.end() == 0


def content(path):
    return path.read_bytes() if path.exists() else None


def holds(path, wanted):
    try:
        until(path.name, lambda: content(path) == wanted)
    except AssertionError:
        raise AssertionError(f"{path.name} holds {content(path)} instead of {wanted}") from None


def selection_lasts(folder):
    make_world(folder)
    with Player(folder) as player:
        player.choose(CAMPAIGN, 2)
        player.choose(REGION, 1)
        player.ready()
        drag(player.view((700, 600)), player.view((400, 500)))
        see("the region pulled west", *player.view((EDGE - 300 + 5, 550)), EAST)
        see("the region pulled no further", *player.view((EDGE - 300 - 5, 550)), GROUND)
        place = [player.map.x * 15, (player.map.y + player.map.height - 227) * 15]
        player.quit()
    holds(folder / "Data/Options.txt", crlf(
        "[OLD SELECTION]", "Campaign=2", "Region=1", "Zone=0", "Profession=0", "SecondaryProfession=0", "AllElite=-1",
        "Character=0", "Legend=0", "PosX=-1", "PosY=-1", "DimX=-1", "DimY=-1", "ShowElites=1", "ShowCollectors=1",
        "ShowGreens=1", "ShowNotes=1", f"LegendX={place[0]}", f"LegendY={place[1]}", "RightClickNeeded=1",
        "AlwaysOnTop=0", "CollectorLevel=2"))
    before = content(folder / "Data/Options.txt")
    with Player(folder) as player:
        player.ready()
        player.quit()
    holds(folder / "Data/Options.txt", before)


def stand_enlarged(folder):
    """At twice the size panel and map are two windows side by side."""
    make_world(folder)
    options(folder, Campaign=2, Region=1, PosX=600, PosY=300, DimX=4500, DimY=3000)

    def beside():
        wide = sorted((w for w in windows(player.process.pid) if w.width > 2), key=lambda w: w.width)
        places = [(w.x, w.y, w.width) for w in wide]
        return places == [(80, 40, 2 * PANEL_WIDTH), (80 + 2 * PANEL_WIDTH, 40, 600)]
    with Running(folder) as player:
        steady("panel and map side by side", beside)
        click(80 + 2 * QUIT[0], 40 + 2 * QUIT[1])
        assert player.end() == 0


def enlarged(folder):
    with mock.patch.dict(os.environ, QT_SCALE_FACTOR="2"):
        stand_enlarged(folder)


def capture(folder):
    make_world(folder)
    in_marsh(folder)
    personal = folder / "Personal"
    with Player(folder) as player:
        player.ready()
        menu = player.popup(lambda: player.panel.click(*OPTIONS_MENU))
        menu.click(*CHARACTERS_ROW)
        listed = player.dialog("Characters")
        listed.click(270, 35)
        editor = player.dialog("New character")
        editor.click(90, 30)
        type_text("Ada")
        keys("Return")
        player.gone(editor)
        player.dialog("Characters").click(270, 232)
        player.gone(listed)
        holds(personal / "Characters.txt", crlf("01\tAda"))
        see("the boss", *player.view((BOSS[0] + 4, BOSS[1])), (0, 255, 0))
        click(*player.view(BOSS), times=2)
        dialog = player.dialog("Elite: Night Step")
        dialog.click(30, 27)
        dialog.click(183, 223)
        player.gone(dialog)
        holds(personal / "Char01CapElite.txt", crlf("0007"))
        player.panel.click(*MISSING_ONLY)
        see("the ground without the boss", *player.view((BOSS[0] + 4, BOSS[1])), GROUND)
        player.quit()


def write_note(dialog, title, body):
    dialog.click(90, 30)
    keys("ctrl+a")
    type_text(title)
    dialog.click(90, 150)
    keys("ctrl+a")
    for i, line in enumerate(body):
        if i > 0:
            keys("Return")
        type_text(line)
    dialog.click(183, 303)


def note_menu(player, row):
    menu = player.popup(lambda: click(*player.view(EMPTY), times=2))
    menu.click(20, int(menu.height * (2 * row + 1) / 6))


def notes(folder):
    make_world(folder)
    in_marsh(folder)
    file = folder / "Personal/Notes.txt"
    with Player(folder) as player:
        player.ready()
        for row, title, body, kept in ((0, "Well", ["deep", "and dry"], "deep{#ENTER#}and dry"),
                                       (1, "Well & <b>", ["full"], "full")):
            note_menu(player, row)
            dialog = player.dialog("Note")
            write_note(dialog, title, body)
            player.gone(dialog)
            holds(file, crlf(f"{title}\t{kept}\t{EMPTY[0]}\t{EMPTY[1]}\t3\t1"))
        note_menu(player, 2)
        question = player.dialog("Orvinel")
        keys("alt+y")
        player.gone(question)
        holds(file, b"")
        see("the ground without the note", *player.view(EMPTY), GROUND)
        player.quit()


def chest(folder):
    make_world(folder)
    in_marsh(folder)
    (folder / "Personal").mkdir()
    (folder / "Personal/Characters.txt").write_bytes(crlf("02\tBo"))
    today = datetime.date.today()
    with Player(folder) as player:
        player.ready()
        corner = player.view((CHEST[0] + 7 - 1, CHEST[1] - 7))  # of its information window: bottom right
        silver = (0xB4, 0xB4, 0xB4)

        def information():
            hover(*player.view(EMPTY))
            until("no information window", lambda: not near(colour(*corner), silver, 3))
            hover(*player.view(CHEST))
            see("the information window", *corner, silver)
            return pixels(corner[0] - 200, corner[1] - 60, 195, 55)

        unopened = information()
        click(*player.view(CHEST), times=2)
        dialog = player.dialog("Chest")
        dialog.click(30, 41)  # the second entry: number 1 has no name
        dialog.click(158, 246)
        player.gone(dialog)
        days = {today, datetime.date.today()}
        file = folder / "Personal/Char02OpenedTreasures.txt"
        until("the date", lambda: content(file) in [crlf(f"0001\t{day:%d%m%Y}") for day in days])
        assert information() != unopened, "the date is not shown"
        player.quit()


def only_once(folder):
    make_world(folder)
    with Player(folder) as player:
        with Running(folder) as second:
            assert second.end() == 0
        player.quit()


def no_language(folder):
    make_world(folder)
    (folder / "Data/Language.txt").unlink()
    with Running(folder) as program:
        program.dialog("Orvinel")
        keys("Return")
        assert program.end() != 0
    assert not (folder / "Personal").exists()


def unknown_campaign(folder):
    make_world(folder)
    (folder / "Campaign.05.Later").mkdir()
    with Running(folder) as program:
        program.dialog("Orvinel")
        keys("Return")
        assert program.end() != 0
    assert not (folder / "Data/Options.txt").exists()


def shell(folder):
    make_world(folder)
    asked = folder / "asked"
    for tool in (folder / "xdg-open", folder / "UPDATE.exe"):
        tool.write_text(f'#!/bin/sh\necho "$PWD ${{0##*/}} ${{1##*/}}" >> {asked}\n')
    (folder / "Data/history.txt").write_text(f"touch {folder}/executed\n")
    for file in (folder / "xdg-open", folder / "UPDATE.exe", folder / "Data/history.txt"):
        file.chmod(0o755)  # as a disk of another system gives them all
    wanted = f"{folder} xdg-open history.txt\n".encode()
    with mock.patch.dict(os.environ, PATH=f"{folder}:{os.environ['PATH']}"), Player(folder) as player:
        player.popup(lambda: player.panel.click(*HELP_MENU)).click(*HISTORY_ROW)
        holds(asked, wanted)
        player.popup(lambda: player.panel.click(*HELP_MENU)).click(*UPDATE_ROW)
        assert player.end() == 0
    holds(asked, wanted + f"{folder} UPDATE.exe \n".encode())
    assert not (folder / "executed").exists(), "a document was executed"


def no_writing():
    """Every write fails, for root too."""
    signal.signal(signal.SIGXFSZ, signal.SIG_IGN)
    resource.setrlimit(resource.RLIMIT_FSIZE, (0, 0))


def cannot_write(folder):
    make_world(folder)
    in_marsh(folder)
    before = content(folder / "Data/Options.txt")
    with Player(folder, preexec_fn=no_writing) as player:
        player.ready()
        player.panel.click(*QUIT)
        player.dialog("Orvinel")
        keys("alt+y")
        assert player.end() == 0
    holds(folder / "Data/Options.txt", before)


def ends_by_signal(folder):
    """A logout: what was chosen is remembered, also over an open dialog, and nothing is asked."""
    make_world(folder)
    written = {}
    for name, ending in ("quit", None), ("terminated", signal.SIGTERM), ("dialog", signal.SIGTERM), ("hung up", signal.SIGHUP):
        (folder / "Data/Options.txt").unlink(missing_ok=True)
        with Player(folder) as player:
            player.choose(CAMPAIGN, 2)
            player.choose(REGION, 1)
            player.ready()
            if name == "dialog":
                player.popup(lambda: player.panel.click(*OPTIONS_MENU)).click(*CHARACTERS_ROW)
                player.dialog("Characters")
            if ending:
                player.process.send_signal(ending)
                assert player.end() == 0, name
            else:
                player.quit()
        written[name] = content(folder / "Data/Options.txt")
    assert written["quit"] and all(options == written["quit"] for options in written.values()), written


def bad_pictures(folder):
    campaign = make_world(folder)
    in_marsh(folder)
    picture = campaign / "01.jpg"
    good = picture.read_bytes()
    size = good.index(b"\xff\xc0") + 5
    enormous = good[:size] + b"\xff\xdc\xff\xdc" + good[size + 4:]
    for bad in (b"no picture at all" * 100, enormous):
        picture.write_bytes(bad)
        with Player(folder) as player:
            see("the empty map", *player.view((player.map.width - 40, 150)), (0, 0, 0))
            player.quit()


def no_display(folder):
    make_world(folder)
    blind = {name: value for name, value in os.environ.items() if name not in ("DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM")}
    for _ in range(2):  # no lock is left behind
        started = subprocess.run([folder / Running.program], env={**blind, "XDG_RUNTIME_DIR": str(folder)}, capture_output=True,
                                 text=True, timeout=20)
        assert started.returncode == 1 and "no display" in started.stderr, started
    with Player(folder) as player:
        player.quit()


ERRANDS = [selection_lasts, enlarged, capture, notes, chest, only_once, no_language, unknown_campaign, shell,
           cannot_write, ends_by_signal, bad_pictures, no_display]


def main(script, errands):
    """Runs the errands (or those named on the command line) on a screen of their own."""
    missing = [tool for tool in NEEDED if not shutil.which(tool)]
    if missing:
        print("skipped, not installed:", ", ".join(missing))
        return 77
    if "ORVINEL_JOURNEYS" not in os.environ:
        with_display = pathlib.Path(__file__).resolve().parents[2] / "tools/dev/with-display"
        command = [with_display, sys.executable, script, *sys.argv[1:]]
        return subprocess.run(command, env={**os.environ, "ORVINEL_JOURNEYS": "1"}).returncode
    failed = 0
    wanted = sys.argv[2:]
    for errand in errands:
        if wanted and errand.__name__ not in wanted:
            continue
        started = time.monotonic()
        with tempfile.TemporaryDirectory() as folder:
            try:
                errand(pathlib.Path(folder))
                result = "ok"
            except (AssertionError, subprocess.SubprocessError) as error:
                failed += 1
                result = f"FAILED: {error}"
        print(f"{errand.__name__}: {result} ({time.monotonic() - started:.1f} s)", flush=True)
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main(__file__, ERRANDS))
