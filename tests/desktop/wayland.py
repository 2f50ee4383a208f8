#!/usr/bin/env python3
"""wayland.py PROGRAM: the program in nested Wayland sessions, through Xwayland and with Qt's Wayland plugin alone: in those that
place windows as they like, and in one that lets them be placed.

Exit code 77: a tool is missing here.
"""

import contextlib
import glob
import os
import pathlib
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import time
from unittest import mock

import journeys
import windows as placed
from screen import Running, click, colour, hover, keys, near, pixels, run, until, windows

SOCKET = "orvinel-nested"
SCREEN = (1280, 900)
TITLE = (0, 0, 255)
PASTURE = (700, 700)  # a place of the screen where the mouse changes nothing: on the map, far from its markers
PLUGIN = "/usr/lib/*/qt6/plugins/platforms/libqwayland*.so"
NOBODY = 65534
WINDOW = 20000  # pixels that at least change where one is shown
SESSION_ENDS = 5  # seconds: a session may be left hanging by what it shows


class Session:
    """A desktop in a window on the screen. `socket` and `display` are what programs connect to; its files lie in a folder of
    its own, as it may have to run as somebody else."""

    @contextlib.contextmanager
    def running(self):
        with tempfile.TemporaryDirectory() as folder:
            self.folder = pathlib.Path(folder)
            self.socket = self.folder / SOCKET
            environment = {**os.environ, "XDG_RUNTIME_DIR": folder, "XDG_CONFIG_HOME": folder}
            self.process = subprocess.Popen(self.command(), env=environment, stdout=subprocess.DEVNULL,
                                            stderr=subprocess.DEVNULL, start_new_session=True)
            try:
                self.display = until("the nested session", self.ready)
                self.take_pointer()
                yield self
            finally:
                self.stop()

    def stop(self):
        with contextlib.suppress(ProcessLookupError):
            os.killpg(self.process.pid, signal.SIGTERM)
            try:
                until("the end of the session", self.ended, SESSION_ENDS)
            except AssertionError:
                os.killpg(self.process.pid, signal.SIGKILL)

    def ended(self):
        self.process.poll()  # takes notice of it
        try:
            os.killpg(self.process.pid, 0)
        except ProcessLookupError:
            return True
        return False

    def told(self):
        """What the session starts first writes down the displays."""
        return f"sh -c 'env > {self.folder}/new && mv {self.folder}/new {self.folder}/told'"

    def ready(self):
        told = self.folder / "told"
        if not told.exists():
            return None
        told = dict(line.partition("=")[::2] for line in told.read_text().splitlines())
        self.socket = self.folder / told["WAYLAND_DISPLAY"]
        return told["DISPLAY"]

    def take_pointer(self):
        pass


class Weston(Session):
    size = (1240, 820)

    def command(self):
        return ["weston", "--backend=x11-backend.so", "--use-pixman", "--no-config", "--idle-time=0", "--xwayland",
                f"--width={self.size[0]}", f"--height={self.size[1]}", f"--socket={SOCKET}", f"--log={self.folder}/log"]

    def ready(self):
        log = self.folder / "log"
        found = re.search(r"xserver listening on display (:\d+)", log.read_text() if log.exists() else "")
        return found and found.group(1)

    def take_pointer(self):
        """The session follows the mouse by how far it moves: in its upper left corner both are at the same place."""
        info = run("xwininfo", "-name", "Weston Compositor - screen0")
        x, y = (int(re.search(rf"Absolute upper-left {axis}:\s+(-?\d+)", info).group(1)) for axis in "XY")
        for dx, dy in ((600, 400), (self.size[0] - 2, self.size[1] - 2), (300, 200), (0, 0), (600, 400)):
            run("xdotool", "mousemove", str(x + dx), str(y + dy))
            time.sleep(0.1)


class Sway(Session):
    """It tiles. It never runs as root."""

    size = SCREEN

    def command(self):
        config = self.folder / "config"
        config.write_text(f"output * mode --custom {self.size[0]}x{self.size[1]}\n"
                          f'exec "xhost +si:localuser:root; {self.told()}"\n')
        everywhere = ["env", "WLR_BACKENDS=x11", "WLR_RENDERER=pixman"]
        if os.geteuid() == 0:
            os.chown(self.folder, NOBODY, NOBODY)
            everywhere += ["setpriv", f"--reuid={NOBODY}", f"--regid={NOBODY}", "--clear-groups"]
        return [*everywhere, "sway", "--config", str(config)]


class Kwin(Session):
    """It lets programs that come through Xwayland place their windows."""

    size = (2 * placed.MONITOR, SCREEN[1])

    def command(self):
        # The installed file may raise its own priority, which no container grants: a copy may not.
        program = shutil.copyfile(shutil.which("kwin_wayland"), self.folder / "kwin_wayland")
        program.chmod(0o755)
        return ["env", "KWIN_COMPOSE=Q", "dbus-run-session", "--", str(program), "--x11-display", os.environ["DISPLAY"],
                "--xwayland", "--no-lockscreen", "--width", str(self.size[0]), "--height", str(self.size[1]),
                "--socket", SOCKET, self.told()]


class Nested(Running):
    """The program in one window, found by what is seen of it: not every session tells where its windows are."""

    def corner(self):
        """The panel's upper left corner, where its title begins; None when it is not to be seen."""
        width, height = SCREEN
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
        return [w for w in windows(self.process.pid) if w.title == "Orvinel"]

    def appears_and_goes(self, what, come, go=None):
        """A window is shown and taken away again, by Escape where nothing else is said. Less than half as many pixels as it has
        may stay others: a clock, the mouse, the frame that tells where the keyboard is."""
        def shown():
            hover(*PASTURE)
            return int.from_bytes(pixels(0, 0, *SCREEN), "big")

        def changed():
            size = 3 * SCREEN[0] * SCREEN[1]
            return (size - (shown() ^ before).to_bytes(size, "big").count(0)) / 3
        before = shown()
        come()
        until(what, lambda: changed() >= WINDOW)
        if go:
            go()

        def gone():
            if not go:
                keys("Escape")  # again: what has just appeared may not have had the keyboard
            return changed() < WINDOW / 2
        until(f"the end of {what}", gone)


def uses(player, x, y):
    """Its menus, the legend and dialogs, as players come to them by mouse and keys."""
    below = (x + 88, y + 218)  # the page of bosses, where the menu is going to be
    page = colour(*below)

    def menu(wanted):
        click(x + journeys.OPTIONS_MENU[0], y + journeys.OPTIONS_MENU[1])
        until(f"a menu: {wanted}", lambda: near(colour(*below), page) != wanted)

    def choose(*way):
        menu(True)
        time.sleep(0.3)  # it hears keys once the session has given it the keyboard
        keys(*way, "Return")
    menu(True)
    menu(False)
    player.appears_and_goes("the legend", lambda: choose("Home"), lambda: choose("Home"))
    player.appears_and_goes("the characters", lambda: choose("End"))
    boss = (x + journeys.PANEL_WIDTH + 2 + journeys.BOSS[0], y + 2 + journeys.BOSS[1])
    player.appears_and_goes("the capture dialog", lambda: click(*boss, times=2))


def beside(folder):
    """One window with the map beside the panel and the button that quits, again and again; the places remembered elsewhere
    stay."""
    journeys.make_world(folder)
    journeys.options(folder, Campaign=2, Region=1, PosX=1500, PosY=1500, DimX=9000, DimY=6000)
    for _ in range(2):
        with Nested(folder) as player:
            through_x11 = "ORVINEL_NESTED_DISPLAY" in os.environ
            if through_x11:
                until("one window", lambda: len(player.main_windows()) == 1)
            x, y = until("the map beside the panel", player.settled)
            if not through_x11:  # through Xwayland weston tells no window its place
                uses(player, x, y)
            click(x + journeys.QUIT[0], y + journeys.QUIT[1])
            code = player.end()
            assert code == 0, f"exit code {code}"
        kept = (folder / "Data/Options.txt").read_text()
        assert all(f"{line}\n" in kept for line in ("PosX=1500", "PosY=1500", "DimX=9000", "DimY=6000")), kept


def nested(session, errand, x11):
    """The errand in a session of its own, through Xwayland or without an X display."""
    def played(folder):
        with contextlib.ExitStack() as during:
            opened = during.enter_context(session().running())
            launcher = ["env", "-u", "DISPLAY", f"WAYLAND_DISPLAY={opened.socket}", *([f"DISPLAY={opened.display}"] if x11 else [])]
            during.enter_context(mock.patch.object(Running, "launcher", launcher))
            if x11:
                during.enter_context(mock.patch.dict(os.environ, ORVINEL_NESTED_DISPLAY=opened.display))
            errand(folder)
    played.__name__ = f"{session.__name__.lower()}_{errand.__name__}" + "_plugin" * (not x11)
    return played


# The sessions by the programs that they are, with what is played in them.
PLACED = [placed.task_bar, placed.calm_start, placed.comes_back, placed.goes_along, placed.always_on_top,
          placed.dragged_past_the_edge, placed.hasty_click]
SESSIONS = {"weston": (Weston, [beside], "openbox"), "sway": (Sway, [placed.one_window], "none"),
            "kwin_wayland": (Kwin, PLACED, "none")}


def main():
    missing = [tool for tool in ("Xwayland", "xhost", "wmctrl") if not shutil.which(tool)]
    if not glob.glob(PLUGIN):
        missing.append("qt6-wayland")
    if missing:
        print("skipped, not installed:", ", ".join(missing))
        return 77
    if "ORVINEL_JOURNEYS" in os.environ:
        session, errands, _ = SESSIONS[os.environ["ORVINEL_SESSION"]]
        return journeys.main(__file__, [*(nested(session, e, True) for e in errands), nested(session, beside, False)])
    results = []
    for name, (session, _, manager) in SESSIONS.items():
        if not shutil.which(name):
            print("skipped, not installed:", name)
            continue
        print(f"in {name}", flush=True)
        width, height = max(SCREEN[0], session.size[0]), SCREEN[1]
        os.environ.update(ORVINEL_SESSION=name, ORVINEL_WINDOW_MANAGER=manager, ORVINEL_SCREEN=f"{width}x{height}")
        results.append(journeys.main(__file__, []))
    return next((code for code in results if code), 0) if results else 77


if __name__ == "__main__":
    sys.exit(main())
