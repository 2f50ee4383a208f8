#!/usr/bin/env python3
"""windows.py PROGRAM: what the program asks of the window manager, under each of those that are installed.

Exit code 77: a tool is missing here.
"""

import os
import pathlib
import re
import shutil
import sys
import tempfile
import time

import journeys
from journeys import in_marsh, make_world
from managed import BAR, MONITOR, Bar, Desktop, OneWindow, all_have, close, is_iconic, places, state, two_monitors
from screen import click, colour, drag, has_focus, hover, keys, near, run, see, steady, until, windows

MANAGERS = ["openbox", "xfwm4", "kwin_x11", "marco"]
MINIMISING = ["openbox"]  # they minimise any window that they are asked to
MAXIMISE, MINIMISE = 26, 42  # pixels from the map's right edge
FIRST_SKILL = (60, 358)  # in the panel
MOTIF_MINIMISE, MOTIF_MAXIMISE = 8, 16  # what a window lets the window manager do


def task_bar(folder):
    make_world(folder)
    in_marsh(folder)
    with Desktop(folder) as player:
        player.ready()
        all_have(player, {"SKIP_TASKBAR"})
        assert "SKIP_TASKBAR" not in state(player.button.number)
        player.options("Home")  # the legend
        until("the legend", lambda: len(player.shown()) == 3)
        for _ in range(2):
            run("xdotool", "windowminimize", str(player.button.number))
            until("nothing left on the screen", lambda: not player.shown())
            run("xdotool", "windowactivate", str(player.button.number))
            until("all windows back", lambda: len(player.shown()) == 3)
            all_have(player, {"SKIP_TASKBAR"})


def calm_start(folder):
    """After the start the keyboard is in the panel, and the task bar's button asks for nothing."""
    make_world(folder)
    in_marsh(folder)
    for _ in range(2):
        with Desktop(folder) as player:
            steady("the keyboard in the panel", lambda: has_focus(player.panel))
            until("a calm button", lambda: "DEMANDS_ATTENTION" not in state(player.button.number))
            player.quit()


def minimised(player, window):
    """False when the window manager refuses, as it may for windows that have no button on the task bar."""
    run("xdotool", "windowminimize", str(window.number))
    try:  # a window may take its dialogs along at once; the program has gone when its button says so
        until("nothing left on the screen", lambda: not player.shown() and is_iconic(player.button), 2)
    except AssertionError:
        assert window.number in player.shown(), "minimised, and the others are not"
        return False
    return True


def keeps_keyboard(what, window):
    steady(what, lambda: has_focus(window))


def comes_back(folder):
    """Whichever window the window manager minimises, the program goes as a whole and its button brings all of it back."""
    make_world(folder)
    in_marsh(folder)
    with Desktop(folder) as player:
        player.ready()
        manager = os.environ["ORVINEL_WINDOW_MANAGER"]
        for name, window in (("panel", player.panel), ("map", player.map)) * 2:
            run("xdotool", "windowactivate", "--sync", str(window.number))
            keeps_keyboard(f"the keyboard in the {name}", window)
            if not minimised(player, window):
                assert manager not in MINIMISING, f"{manager} did not minimise the {name}"
                print(f"{manager} refuses to minimise the {name}")
                continue
            run("xdotool", "windowactivate", str(player.button.number))
            until("both windows back", lambda: len(player.shown()) == 2)
            keeps_keyboard("the keyboard where it was", window)
        run("xdotool", "windowactivate", "--sync", str(player.panel.number))
        player.options("End")
        dialog = player.dialog("Characters")
        for _ in range(2):
            if not minimised(player, dialog):
                run("xdotool", "windowminimize", str(player.button.number))
            until("nothing left on the screen", lambda: not player.shown())
            run("xdotool", "windowactivate", str(player.button.number))
            until("the dialog back with both windows", lambda: dialog.number in player.shown() and len(player.shown()) == 3)
            keeps_keyboard("the keyboard in the dialog", dialog)
        keys("Escape")
        player.gone(dialog)


def place_of(player, dialog):
    return next((w.x, w.y, w.width, w.height) for w in windows(player.process.pid) if w.number == dialog.number)


def goes_along(folder):
    """A dialog that is open goes with the program's own minimise button and comes back; it offers no button of that kind."""
    make_world(folder)
    in_marsh(folder)
    with Desktop(folder) as player:
        player.ready()
        player.panel.click(*FIRST_SKILL, times=2)
        dialog = player.dialog("Elite: Night Step")
        functions = int(run("xprop", "-id", str(dialog.number), "_MOTIF_WM_HINTS").split(",")[1], 16)
        assert not functions & (MOTIF_MINIMISE | MOTIF_MAXIMISE), "a dialog with buttons of a main window"
        place = place_of(player, dialog)
        for _ in range(2):
            player.map.click(player.map.width - MINIMISE, 10)
            until("nothing left on the screen", lambda: not player.shown())
            run("xdotool", "windowactivate", str(player.button.number))
            until("the dialog back with both windows", lambda: dialog.number in player.shown() and len(player.shown()) == 3)
            steady("the keyboard back", lambda: has_focus(player.map) or has_focus(dialog))
            assert place_of(player, dialog) == place, "the dialog came back elsewhere"
            stack = [int(n, 16) for n in re.findall("0x[0-9a-f]+", run("xprop", "-root", "_NET_CLIENT_LIST_STACKING"))]
            assert stack.index(dialog.number) > stack.index(player.map.number), "the dialog lies behind the map"


def unmanaged(folder):
    """Where nobody minimises anything the windows stay."""
    make_world(folder)
    in_marsh(folder)
    with Desktop(folder) as player:
        player.ready()
        before = places(player)
        player.map.click(player.map.width - MINIMISE, 10)
        steady("the windows as they were", lambda: places(player) == before)
        player.quit()


def one_window(folder):
    """Where the window manager tiles, panel and map are one window, in which all of the program can be used."""
    make_world(folder)
    journeys.options(folder, Campaign=2, Region=1, PosX=1500, PosY=1500, DimX=9000, DimY=6000)
    for _ in range(2):
        with OneWindow(folder) as player:
            room = int(re.search(r"Width: (\d+)", run("xwininfo", "-root")).group(1))
            assert player.whole.width > 0.9 * room, "the room is not used"
            see("the region beside the panel", *player.view((100, 100)), journeys.GROUND)
            see("the panel's title", player.whole.x + 150, player.whole.y + 3, (0, 0, 255))
            stood = player.place()
            for button in (MINIMISE, MAXIMISE, MAXIMISE):
                player.press_button(button)
                steady("the window as it was", lambda: player.place() == stood)
            drag((player.whole.x + 150, player.whole.y + 8), (player.whole.x + 400, player.whole.y + 300))
            steady("the parts where they were", lambda: near(colour(*player.view((100, 100))), journeys.GROUND))
            menu = player.popup(lambda: keys("F10"))
            assert menu.x < player.whole.x + journeys.PANEL_WIDTH, "the menu is not at the panel"
            keys("Escape")
            player.gone(menu)
            click(*player.view(journeys.BOSS), times=2)
            dialog = player.dialog("Elite: Night Step")
            keys("Escape")
            player.gone(dialog)
            player.whole.click(*journeys.QUIT)
            assert player.end() == 0
        kept = (folder / "Data/Options.txt").read_text()
        assert all(f"{line}\n" in kept for line in ("PosX=1500", "PosY=1500", "DimX=9000", "DimY=6000")), kept


def always_on_top(folder):
    make_world(folder)
    in_marsh(folder)
    with Desktop(folder) as player:
        player.ready()
        before = player.shown()
        player.options("Home", "Down")
        all_have(player, {"ABOVE", "SKIP_TASKBAR"})
        assert player.shown() == before, "a window was made anew"
        assert int(run("xdotool", "getactivewindow")) == player.panel.number, "another window became active"
        run("xdotool", "windowminimize", str(player.button.number))
        until("nothing left on the screen", lambda: not player.shown())
        run("xdotool", "windowactivate", str(player.button.number))
        until("both windows back", lambda: len(player.shown()) == 2)
        all_have(player, {"ABOVE", "SKIP_TASKBAR"})
        player.options("End")
        dialog = player.dialog("Characters")
        until("the dialog above", lambda: {"ABOVE", "SKIP_TASKBAR"} <= state(dialog.number))
        keys("Escape")
        player.gone(dialog)
        player.options("Home", "Down")
        all_have(player, {"SKIP_TASKBAR"}, unwanted={"ABOVE"})


def second_monitor(folder):
    make_world(folder)
    in_marsh(folder)
    two_monitors()
    with Desktop(folder) as player:
        assert player.map.x + player.map.width <= MONITOR, "more than the first monitor is filled"
        player.map.click(player.map.width - MAXIMISE, 10)
        until("smaller windows", lambda: places(player)[0][0] > 0)
        x, y, _, _ = places(player)[0]
        run("xdotool", "mousemove", str(x + 150), str(y + 8), "mousedown", "1")

        def pulled(by):
            run("xdotool", "mousemove", str(x + 150 + by), str(y + 20))
            return places(player)[0][0] > x

        steps = iter(range(1, MONITOR))  # the window manager needs a moment to take over
        until("the windows to follow", lambda: pulled(next(steps)))
        pulled(MONITOR - 30)
        run("xdotool", "mouseup", "1")
        until("the windows on the second monitor",
              lambda: places(player)[0][0] >= MONITOR and places(player)[1][0] == sum(places(player)[0][::2]))
        stood = places(player)
        close(player.panel)
        assert player.end() == 0
    with Desktop(folder) as player:
        until(f"the windows at {stood}", lambda: places(player) == stood)


def below_the_bar(folder):
    """With two monitors and a bar on the first, the first start fills what the bar leaves of that one."""
    make_world(folder)
    two_monitors()
    with Bar(), Desktop(folder) as player:
        wanted = [(0, BAR, journeys.PANEL_WIDTH, 900 - BAR),
                  (journeys.PANEL_WIDTH, BAR, MONITOR - journeys.PANEL_WIDTH, 900 - BAR)]
        for _ in range(2):
            try:
                steady("room filled", lambda: places(player) == wanted)
            except AssertionError:
                raise AssertionError(f"{places(player)} instead of {wanted}") from None
            player.map.click(player.map.width - MAXIMISE, 10)
            until("smaller windows", lambda: places(player)[0][0] > 0)
            x, y, width, _ = places(player)[1]
            click(x + width - MAXIMISE, y + 10)


def lower_edge(folder):
    make_world(folder)
    journeys.options(folder, PosX=1500, PosY=6000, DimX=9000, DimY=9000)
    with Desktop(folder) as player:
        def beside():
            panel, map_window = sorted((w for w in windows(player.process.pid) if w.width > 1), key=lambda w: w.width)
            return (map_window.x, map_window.y) == (panel.x + panel.width, panel.y)
        until("the map beside the panel, partly below the screen", beside)
        run("xdotool", "windowminimize", str(player.button.number))
        until("nothing left on the screen", lambda: not player.shown())
        run("xdotool", "windowactivate", str(player.button.number))
        until("both windows back", lambda: len(player.shown()) == 2)
        until("the map beside the panel again", beside)


def drag_panel(player, dx, dy):
    """Drags the panel by its background in small steps; the mouse stays on the screen."""
    x, y, _, _ = places(player)[0]
    x, y = x + 150, y + 8
    run("xdotool", "mousemove", str(x), str(y), "mousedown", "1")
    for step in range(1, 21):
        run("xdotool", "mousemove", str(x + dx * step // 20), str(y + dy * step // 20))
        time.sleep(0.02)
    run("xdotool", "mouseup", "1")


def dragged_past_the_edge(folder):
    """Window managers that keep windows on the screen hold one of the pair back: they stand side by side all the same."""
    make_world(folder)
    journeys.options(folder, PosX=1500, PosY=1500, DimX=9000, DimY=6000)

    def beside(player):
        (x, y, width, _), map_place = places(player)
        return map_place[:2] == (x + width, y)

    with Desktop(folder) as player:
        until("the map beside the panel", lambda: beside(player))
        for dx, dy in ((2 * MONITOR - 600, 0), (0, 600), (-400, -100)):
            before = places(player)[0]
            drag_panel(player, dx, dy)
            steady("the map beside the panel again", lambda: beside(player))
            assert places(player)[0] != before, "nothing moved"
        stood = places(player)
        close(player.panel)
        assert player.end() == 0
    with Desktop(folder) as player:
        steady(f"the windows at {stood}", lambda: places(player) == stood)


def hasty_click(folder):
    """A button that is let go at once leaves no window hanging on the pointer; a drag in one go takes it along."""
    make_world(folder)
    journeys.options(folder, PosX=1500, PosY=750, DimX=9000, DimY=6000)
    with Desktop(folder) as player:
        until("the windows", lambda: places(player)[0][:2] == (100, 50))
        stood = places(player)
        for x, y in [(250, 95), (916, 200)] * 2:  # the panel's background, the map's right edge
            click(x, y)
            hover(900, 700)
            menu = player.popup(lambda: keys("Alt_L"))  # a key is heard after all of this
            keys("Escape")
            player.gone(menu)
            assert places(player) == stood, f"moved by a click at {x}, {y}: {places(player)}"
        run("xdotool", "mousemove", "250", "95", "mousedown", "1", "mousemove", "290", "115", "mouseup", "1")
        until("the windows at their new place", lambda: [p[:2] for p in places(player)] == [(140, 70), (357, 70)])


ERRANDS = [task_bar, calm_start, comes_back, goes_along, always_on_top, second_monitor, below_the_bar, lower_edge,
           dragged_past_the_edge, hasty_click]
SPECIAL = {"none": [unmanaged], "i3": [one_window]}


def main():
    if "ORVINEL_JOURNEYS" in os.environ:
        return journeys.main(__file__, SPECIAL.get(os.environ["ORVINEL_WINDOW_MANAGER"], ERRANDS))
    missing = [tool for tool in ("xrandr", "wmctrl") if not shutil.which(tool)]
    if missing:
        print("skipped, not installed:", ", ".join(missing))
        return 77
    missing = [manager for manager in [*MANAGERS, "i3"] if not shutil.which(manager)]
    if missing:
        print("skipped, not installed:", ", ".join(missing))
    results = []
    for manager in [*filter(shutil.which, [*MANAGERS, "i3"]), "none"]:
        print(f"under {manager}", flush=True)
        with tempfile.TemporaryDirectory() as settings:
            i3 = pathlib.Path(settings) / "i3/config"  # without one it asks at its start
            i3.parent.mkdir()
            i3.write_text("# i3 config file (v4)\n")
            os.environ.update(XDG_CONFIG_HOME=settings, ORVINEL_WINDOW_MANAGER=manager, ORVINEL_SCREEN=f"{2 * MONITOR}x900")
            results.append(journeys.main(__file__, ERRANDS))
    return next((code for code in results if code), 0)


if __name__ == "__main__":
    sys.exit(main())
