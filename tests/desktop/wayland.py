#!/usr/bin/env python3
"""wayland.py PROGRAM: the program in a nested Wayland session that places windows as it likes: through Xwayland, and with
Qt's Wayland plugin alone.

Exit code 77: a tool is missing here.
"""

import glob
import os
import re
import shutil
import subprocess
import sys
import time
from unittest import mock

import journeys
from screen import Running, click, colour, near, pixels, run, until, windows

SOCKET = "orvinel-nested"
SIZE = (1240, 820)
TITLE = (0, 0, 255)
PLUGIN = "/usr/lib/*/qt6/plugins/platforms/libqwayland-generic.so"


class Session:
    """weston in a window on the screen; its files and its socket lie in the folder."""

    def __init__(self, folder):
        self.log = folder / "weston.log"
        command = ["weston", "--backend=x11-backend.so", "--use-pixman", "--no-config", "--idle-time=0", "--xwayland",
                   f"--width={SIZE[0]}", f"--height={SIZE[1]}", f"--socket={SOCKET}", f"--log={self.log}"]
        self.process = subprocess.Popen(command, env={**os.environ, "XDG_RUNTIME_DIR": str(folder)},
                                        stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        self.display = until("the nested session", self.ready)
        self.take_pointer()

    def take_pointer(self):
        """The session follows the mouse by how far it moves: in its upper left corner both are at the same place."""
        info = run("xwininfo", "-name", "Weston Compositor - screen0")
        x, y = (int(re.search(rf"Absolute upper-left {axis}:\s+(-?\d+)", info).group(1)) for axis in "XY")
        for dx, dy in ((600, 400), (SIZE[0] - 2, SIZE[1] - 2), (300, 200), (0, 0), (600, 400)):
            run("xdotool", "mousemove", str(x + dx), str(y + dy))
            time.sleep(0.1)

    def ready(self):
        found = re.search(r"xserver listening on display (:\d+)", self.log.read_text() if self.log.exists() else "")
        return found and found.group(1)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.process.terminate()
        self.process.wait()


class Nested(Running):
    """The program in the session; `display`: its X display, None where it is to do without."""

    def __init__(self, folder, display):
        self.display = display
        self.launcher = ["env", "-u", "DISPLAY", f"WAYLAND_DISPLAY={SOCKET}", *([f"DISPLAY={display}"] if display else [])]
        super().__init__(folder)

    def corner(self):
        """The panel's upper left corner, where its title begins; None when it is not to be seen."""
        width, height = 1280, 900
        shown = pixels(0, 0, width, height)
        row = bytes(TITLE) * 20
        at = shown.find(row)
        return None if at < 0 or at % 3 else (at // 3 % width, at // 3 // width)

    def beside(self):
        found = self.corner()
        if not found or not near(colour(found[0] + journeys.PANEL_WIDTH + 102, found[1] + 102), journeys.GROUND):
            return None
        return found

    def settled(self):
        """Where it still is a moment later: the session may move what it has just shown."""
        found = self.beside()
        time.sleep(0.4)
        return found if found and found == self.beside() else None

    def main_windows(self):
        with mock.patch.dict(os.environ, DISPLAY=self.display):
            return [w for w in windows(self.process.pid) if w.title == "Orvinel"]


def beside(folder, display):
    """One window with the map beside the panel, a menu and the button that quits, again and again; the places remembered
    elsewhere stay."""
    journeys.make_world(folder)
    journeys.options(folder, Campaign=2, Region=1, PosX=1500, PosY=1500, DimX=9000, DimY=6000)
    for _ in range(2):
        with Nested(folder, display) as player:
            if display:
                until("one window", lambda: len(player.main_windows()) == 1)
            x, y = until("the map beside the panel", player.settled)
            below = (x + 88, y + 218)  # the page of bosses, where the menu is going to be
            page = colour(*below)
            for wanted in (True, False) * (display is None):  # through Xwayland weston tells no window its place
                click(x + journeys.OPTIONS_MENU[0], y + journeys.OPTIONS_MENU[1])
                until(f"a menu: {wanted}", lambda: near(colour(*below), page) != wanted)
            click(x + journeys.QUIT[0], y + journeys.QUIT[1])
            code = player.end()
            assert code == 0, f"exit code {code}"
        kept = (folder / "Data/Options.txt").read_text()
        assert all(f"{line}\n" in kept for line in ("PosX=1500", "PosY=1500", "DimX=9000", "DimY=6000")), kept


def through_xwayland(folder):
    with Session(folder) as session:
        beside(folder, session.display)


def with_the_plugin(folder):
    with Session(folder):
        beside(folder, None)


def main():
    missing = [tool for tool in ("weston", "Xwayland") if not shutil.which(tool)]
    if not glob.glob(PLUGIN):
        missing.append("qt6-wayland")
    if missing:
        print("skipped, not installed:", ", ".join(missing))
        return 77
    return journeys.main(__file__, [through_xwayland, with_the_plugin])


if __name__ == "__main__":
    sys.exit(main())
