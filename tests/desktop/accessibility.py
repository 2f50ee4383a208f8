#!/usr/bin/env python3
"""accessibility.py PROGRAM: walks the program's windows as a screen reader does, through AT-SPI.

Fails on every control that can take the keyboard and has no name, and on what is there to be seen but not to be read.
Exit code 77: a tool is missing here.
"""

import importlib.util
import os
import pathlib
import re
import shutil
import subprocess
import sys

import journeys
import updater
from journeys import BOSS, EMPTY, Player, in_marsh, make_world
from screen import click, hover, keys, type_text, until

SYSTEM_PYTHON = "/usr/bin/python3"  # the one that the desktop's own packages are for
LAUNCHERS = ["/usr/libexec/at-spi-bus-launcher", "/usr/lib/at-spi2-core/at-spi-bus-launcher"]
RENAMED = {"push button": ("push button", "button"), "separator": ("separator", "filler")}  # by newer versions of AT-SPI
PAGES = ["Elites", "Collectors", "Greens", "Notes", "Various"]


class Tree:
    """The program as AT-SPI shows it at one moment."""

    def __init__(self, program="orvinel", windows=2):
        self.nodes = []
        self._walk(until("the program on the accessibility bus", lambda: application(program, windows)))

    def _walk(self, node):
        self.nodes.append(node)
        for index in range(node.childCount):
            child = node.getChildAtIndex(index)
            if child is not None:
                self._walk(child)

    def having(self, role, name=None):
        roles = RENAMED.get(role, (role,))
        return [n for n in self.nodes if n.getRoleName() in roles and (name is None or n.name == name)]

    def one(self, role, name):
        found = self.having(role, name)
        assert found, f"no {role} {name!r}, only {[n.name for n in self.having(role)]}"
        return found[0]

    def shown(self, text):
        """Some visible name or description holds the text."""
        return any(text in n.name + "\n" + n.description for n in self.nodes if has(n, "SHOWING"))


def application(program, windows):
    import pyatspi
    for found in pyatspi.Registry.getDesktop(0):
        if found is not None and found.name == program and found.childCount >= windows:
            return found
    return None


def has(node, state):
    import pyatspi
    return node.getState().contains(getattr(pyatspi, f"STATE_{state}"))


def path(node):
    steps = []
    while node is not None and len(steps) < 12:
        steps.append(f"{node.getRoleName()} {node.name!r}")
        node = node.parent
    return " in ".join(steps)


def labels(node):
    import pyatspi
    return [relation.getTarget(i).name for relation in node.getRelationSet()
            if relation.getRelationType() == pyatspi.RELATION_LABELLED_BY for i in range(relation.getNTargets())]


def nothing_is_nameless(tree):
    nameless = [path(n) for n in tree.nodes if has(n, "FOCUSABLE") and has(n, "SHOWING") and not n.name.strip()]
    assert not nameless, "without a name: " + "; ".join(nameless)


def becomes(what, look, *of):
    """What look() says of a fresh tree, as soon as it is true."""
    def fresh():
        try:
            return look(Tree(*of))
        except RuntimeError:  # the program was just changing what is read
            return False
    return until(what, fresh)


def panel(folder):
    make_world(folder)
    in_marsh(folder)
    with Player(folder) as player:
        player.ready()
        tree = Tree()
        nothing_is_nameless(tree)
        assert any(re.match(r"Orvinel v\d+\.\d+\.\d+ ", n.name) for n in tree.nodes)
        for page in PAGES:
            tree.one("page tab", page)
        assert [n.name for n in tree.having("page tab") if has(n, "SELECTED")] == ["Elites"]
        for word in ("T111", "T112", "T109"):
            tree.one("menu item", word)
        boxes = tree.having("check box")
        assert len(boxes) == len(PAGES) and all(has(n, "CHECKED") for n in boxes), boxes
        options = {n.name: has(n, "CHECKED") for n in tree.having("radio button")}
        assert options["T11"] and not options["T6"], options
        skills = tree.one("list", "T32: 1")
        assert [skills.getChildAtIndex(i).name for i in range(skills.childCount)] == ["Night Step [Sc]"]
        captions = sum((labels(n) for n in tree.having("combo box")), [])
        assert {"T2", "T3", "T41", "T5", "T53", "Secondary prof.", "T46", "T10"} <= set(captions), captions
        for number, page in enumerate(PAGES, 1):
            keys(f"alt+{number}")
            becomes(page, lambda t: [n.name for n in t.having("page tab") if has(n, "SELECTED")] == [page])
            nothing_is_nameless(Tree())


def map_and_its_windows(folder):
    make_world(folder)
    in_marsh(folder)
    with Player(folder) as player:
        player.ready()
        shown = Tree().one("image", "Marsh")
        assert shown.description == "Sunhollow", path(shown)
        hover(*player.view(BOSS))
        becomes("the information window", lambda t: t.shown("Night Step") and t.shown("Old Heron"))
        told = [n for n in Tree().having("tool tip") if has(n, "SHOWING")]
        assert [n.name.split("\n")[0] for n in told] == ["Night Step"], told
        assert "Old Heron" in Tree().one("image", "Marsh").description
        nothing_is_nameless(Tree())
        hover(*player.view(EMPTY))
        becomes("the map alone", lambda t: t.one("image", "Marsh").description == "Sunhollow")


def rows(menu):
    """(role, name) of what stands in an open menu."""
    known = {new: role for role, names in RENAMED.items() for new in names}
    shown = [menu.getChildAtIndex(i) for i in range(menu.childCount)]
    return [(known.get(n.getRoleName(), n.getRoleName()), n.name) for n in shown]


def focused(tree):
    return [n.name for n in tree.nodes if has(n, "FOCUSED") and n.getRoleName() in ROWS]


def selected_rows(tree):
    return [n.name for n in tree.having("list item") if has(n, "SELECTED") and has(n.parent, "SHOWING")]


ROWS = ("menu item", "check box", "radio button")


def open_menus(folder):
    make_world(folder)
    in_marsh(folder)
    with Player(folder) as player:
        player.ready()
        menu = player.popup(lambda: keys("F10"))
        view = becomes("the first menu", lambda t: t.having("popup menu", "T111"))[0]
        assert rows(view) == [("check box", name) for name in ("T32", "T44", "T59", "Note", "T113")], rows(view)
        assert all(has(view.getChildAtIndex(i), "CHECKED") for i in range(5))
        keys("Right", "Down")
        becomes("the second menu's second row", lambda t: t.having("popup menu", "T112") and focused(t) == ["T95"])
        options = Tree().having("popup menu", "T112")[0]
        assert rows(options) == [
            ("check box", "T62"), ("check box", "T95"), ("separator", ""), ("label", "T74"), ("radio button", "T91"),
            ("radio button", "T75"), ("radio button", "T76"), ("separator", ""), ("menu item", "T14")], rows(options)
        chosen = [has(options.getChildAtIndex(i), "CHECKED") for i in (4, 5, 6)]
        assert chosen == [False, False, True], chosen
        keys("Escape")
        player.gone(menu)
        becomes("no menu", lambda t: not t.having("popup menu"))


def menus_of_the_map(folder):
    make_world(folder)
    in_marsh(folder)
    with Player(folder) as player:
        player.ready()
        notes = player.popup(lambda: click(*player.view(EMPTY), times=2))
        menu = becomes("the notes' menu", lambda t: t.having("popup menu", "Note"))[0]
        assert rows(menu) == [("menu item", f"T{n}") for n in (66, 67, 68)], rows(menu)
        assert [has(menu.getChildAtIndex(i), "ENABLED") for i in range(3)] == [True, False, False]
        keys("Escape")
        player.gone(notes)
        regions = player.popup(lambda: click(*player.view(EMPTY), button=3))
        keys("Down", "Right")
        becomes("the regions", lambda t: t.having("popup menu", "Sunhollow") and focused(t)[-1:] == ["Marsh"])
        keys("Escape", "Escape")
        player.gone(regions)


def lists_and_their_rows(folder):
    make_world(folder)
    in_marsh(folder)
    with Player(folder) as player:
        player.ready()
        keys("Tab")  # to the regions
        player.popup(lambda: keys("alt+Down"))
        becomes("the open list", lambda t: selected_rows(t) == ["Marsh"])
        keys("Escape")
        keys("ctrl+Tab", "alt+1", *["Tab"] * 7)
        type_text("night")
        keys("Return")
        becomes("the skill and its place", lambda t: selected_rows(t) == ["Night Step [Sc]", "Reeds - Marsh - Sunhollow"])
        assert has(Tree().one("list", "T32: 1"), "FOCUSED")


def choose_from_menu(player, *way):
    menu = player.popup(lambda: keys("F10"))
    keys(*way, "Return")
    player.gone(menu)


def legend_and_drawn_windows(folder):
    make_world(folder)
    in_marsh(folder)
    with Player(folder) as player:
        player.ready()
        choose_from_menu(player, "Right", "Home")
        becomes("the legend", lambda t: t.shown("T30") and t.shown("Scout") and t.shown("T83"))
        nothing_is_nameless(Tree())
        for way, texts in ((["End"], ("free software", "Maruvel")),
                           (["Down", "Down"], ("Special thanks", "Lampwick"))):
            choose_from_menu(player, "Left", *way)
            becomes(f"the window with {texts[0]}", lambda t: all(t.shown(text) for text in texts))
            assert not Tree().shown("Mail to"), "a mail link without an address"
            nothing_is_nameless(Tree())
            keys("Escape")
            becomes("its end", lambda t: not t.shown(texts[0]))


def dialogs(folder):
    make_world(folder)
    in_marsh(folder)
    with Player(folder) as player:
        player.ready()
        choose_from_menu(player, "Right", "End")
        player.dialog("Characters")
        becomes("the characters", lambda t: t.having("push button", "Create"))
        nothing_is_nameless(Tree())
        keys("alt+c")
        player.dialog("New character")
        becomes("the editor", lambda t: any(n.childCount for n in t.having("list")))
        nothing_is_nameless(Tree())


UPDATER = ("update.exe", 1)


def buttons(tree):
    """Those that show, and whether they can be pressed."""
    return {n.name: has(n, "ENABLED") for n in tree.having("push button") if has(n, "SHOWING")}


def bars(tree):
    return [n for n in tree.having("progress bar") if has(n, "SHOWING")]


def told(tree):
    return [n.name for n in tree.having("label") if has(n, "SHOWING")]


def update_window(folder):
    """What the updater asks, does and has kept, in each of its states."""
    home = updater.version(folder / "Orvinel", updater.OLD)
    archive = updater.package(folder / "Downloads", updater.NEW)
    (home / "Campaign.03.Sunhollow/Zones.txt").write_bytes(b"mine")
    with updater.at_home(folder), updater.nothing_left(folder), updater.Settled(home) as player, updater.start(home) as window:
        tree = becomes("what it asks", lambda t: any("Choose the package" in text for text in told(t)) and t, *UPDATER)
        nothing_is_nameless(tree)
        assert tree.one("text", "Package of Orvinel").queryText().getText(0, -1) == str(archive)
        assert buttons(tree) == {"Browse...": True, "Start Orvinel": True, "Update": True, "Quit": True}, buttons(tree)
        assert not bars(tree)
        window.begin()
        tree = becomes("that it waits", lambda t: any("still running" in text for text in told(t)) and t, *UPDATER)
        nothing_is_nameless(tree)
        assert buttons(tree) == {"Browse...": False, "Start Orvinel": False, "Update": False, "Cancel": True}, buttons(tree)
        assert [(n.name, n.queryValue().currentValue > 0) for n in bars(tree)] == [(updater.TITLE, True)], bars(tree)
        player.process.kill()
        tree = becomes("what was kept", lambda t: any("\nCampaign.03.Sunhollow" in text for text in told(t)) and t, *UPDATER)
        nothing_is_nameless(tree)
        assert any(f"Version {updater.NEW} is installed." in text for text in told(tree)), told(tree)
        assert buttons(tree) == {"Start Orvinel": True, "Quit": True} and not bars(tree), buttons(tree)
        assert has(tree.one("push button", "Start Orvinel"), "FOCUSED")
        keys("Escape")


def on_the_bus():
    """Runs this script again with a session bus and an accessibility bus of its own."""
    launcher = next((path for path in LAUNCHERS if pathlib.Path(path).exists()), None)
    missing = [tool for tool in ("dbus-run-session",) if not shutil.which(tool)]
    if not launcher or missing or not importlib.util.find_spec("pyatspi"):
        print("skipped: at-spi2-core, pyatspi or dbus is not installed")
        return 77
    environment = {**os.environ, "ORVINEL_BUS": launcher, "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}
    return subprocess.run(["dbus-run-session", "--", sys.executable, *sys.argv], env=environment).returncode


def main():
    if not importlib.util.find_spec("pyatspi") and sys.executable != SYSTEM_PYTHON and os.path.exists(SYSTEM_PYTHON):
        os.execv(SYSTEM_PYTHON, [SYSTEM_PYTHON, *sys.argv])
    if "ORVINEL_BUS" not in os.environ:
        return on_the_bus()
    errands = [panel, open_menus, menus_of_the_map, lists_and_their_rows, map_and_its_windows,
               legend_and_drawn_windows, dialogs, update_window]
    if "ORVINEL_JOURNEYS" not in os.environ:
        return journeys.main(__file__, errands)
    bus = subprocess.Popen([os.environ["ORVINEL_BUS"], "--launch-immediately"])
    try:
        return journeys.main(__file__, errands)
    finally:
        bus.terminate()


if __name__ == "__main__":
    sys.exit(main())
