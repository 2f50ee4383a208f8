#!/usr/bin/env python3
"""wine.py PROGRAM: the player's errands with the program for Windows, under Wine, down to the same bytes.

PROGRAM lies in the folder that packaging/windows/build has made. Exit code 77: Wine, the folder or a tool is missing.
"""

import os
import pathlib
import shutil
import subprocess
import sys

import journeys
import screen
from journeys import PROGRAM, Player
from screen import Running, pixels, until

PREFIX = PROGRAM.parent.parent / "wine"


def shipped(folder):
    """The folder as players unpack it: nothing is wrong with its world, and a region of it shows."""
    for part in PROGRAM.parent.iterdir():
        if part.name.startswith("Campaign."):
            (folder / part.name).symlink_to(part)
        else:
            (shutil.copytree if part.is_dir() else shutil.copy2)(part, folder / part.name)
    check = subprocess.run(["wine", folder / "orvinel-check.exe", folder, "--summary"], capture_output=True, text=True)
    assert check.returncode == 0, f"orvinel-check ends with {check.returncode}: {check.stdout}{check.stderr}"
    journeys.options(folder, Campaign=2, Region=1)
    with Player(folder) as player:
        until("a region in many colours", lambda: len(set(zip(*[iter(pixels(*player.view((50, 50)), 300, 300))] * 3))) > 500)
        player.quit()


def ends_with_the_session(folder):
    """A logout: what was chosen is remembered, and nothing is asked."""
    journeys.make_world(folder)
    written = {}
    for name in "quit", "logged out":
        (folder / "Data/Options.txt").unlink(missing_ok=True)
        with Player(folder) as player:
            player.choose(journeys.CAMPAIGN, 2)
            player.choose(journeys.REGION, 1)
            player.ready()
            if name == "quit":
                player.quit()
            else:
                subprocess.run(["wineboot", "--end-session"], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
                player.end()
        written[name] = journeys.content(folder / "Data/Options.txt")
    assert written["quit"] and written["quit"] == written["logged out"], written


def dots_per_inch(number):
    subprocess.run(["wine", "reg", "add", r"HKCU\Control Panel\Desktop", "/v", "LogPixels", "/t", "REG_DWORD",
                    "/d", str(number), "/f"], check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    for how in "--kill", "--persistent":  # it reads them at its start
        subprocess.run(["wineserver", how])


def enlarged(folder):
    dots_per_inch(192)
    try:
        journeys.stand_enlarged(folder)
    finally:
        dots_per_inch(96)


# Wine itself could not live with a limit to the size of files, and hands documents to programs of its own. Signals that end a
# program, systems without a display, and a scale in the environment are not Windows' ways.
ELSEWHERE = [journeys.cannot_write, journeys.shell, journeys.ends_by_signal, journeys.no_display, journeys.enlarged]
ERRANDS = [shipped, enlarged, *(errand for errand in journeys.ERRANDS if errand not in ELSEWHERE), ends_with_the_session]


def main(script, errands):
    """Runs the errands on a screen of their own, with a Wine that knows nothing but them."""
    if not PROGRAM.exists():
        print("skipped, not built: the program for Windows (packaging/windows/build)")
        return 77
    if not shutil.which("wine"):
        print("skipped, not installed: wine")
        return 77
    os.environ.update(WINEPREFIX=str(PREFIX), WINEDEBUG="-all", WINEDLLOVERRIDES="mscoree,mshtml=")
    screen.LIMIT = 60  # Wine starts a whole system before the first window
    Running.launcher = ["wine"]
    Running.program = "orvinel.exe"
    if "ORVINEL_JOURNEYS" not in os.environ:
        return journeys.main(script, errands)
    PREFIX.mkdir(exist_ok=True)
    try:
        subprocess.run(["wineserver", "--persistent"])
        # Into no pipe: the services that it starts stay, and with them the pipe's other end.
        subprocess.run(["wineboot", "--init"], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        return journeys.main(script, errands)
    finally:
        subprocess.run(["wineserver", "--kill"])


if __name__ == "__main__":
    sys.exit(main(__file__, ERRANDS))
