#!/usr/bin/env python3
"""keyboard.py PROGRAM: an evening with the program without ever touching the mouse, down to the bytes of the files.

Exit code 77: a tool is missing here.
"""

import sys

import journeys
from journeys import BOSS, Player, crlf, holds, make_world
from screen import has_focus, keys, type_text, until

LEGEND_HEIGHT = 227


class Typist(Player):
    """The player who only has keys."""

    def in_panel(self):
        until("the keyboard in the panel", lambda: has_focus(self.panel))

    def menu(self, number, *typed):
        """Opens a menu of the bar and takes the entry that the keys lead to."""
        menu = self.popup(lambda: keys("F10"))
        keys(*["Right"] * number, *typed, "Return")
        self.gone(menu)

    def next_window(self, window):
        keys("F6")
        until("the keyboard in the next window", lambda: has_focus(window))


def choose_region(player):
    """The program starts with the keyboard in the list of campaigns."""
    player.in_panel()
    keys("End", "Tab", "End")
    player.ready()


def new_character(player):
    player.menu(1, "End")
    listed = player.dialog("Characters")
    keys("alt+c")
    editor = player.dialog("New character")
    type_text("Ada")
    keys("Return")
    player.gone(editor)
    player.dialog("Characters")
    keys("Escape")
    player.gone(listed)
    player.in_panel()


def find_skill(player):
    """Past the tab, the five layers and the two options to the search for names; Enter goes to what it found."""
    keys("ctrl+Tab", "alt+1", *["Tab"] * 7)
    type_text("night")
    keys("Return")


def pin_note(player):
    """At the skill's place."""
    player.next_window(player.map)
    player.popup(lambda: keys("Insert"))
    keys("Return")
    dialog = player.dialog("Note")
    type_text("Tonight")
    keys("Tab")
    type_text("Seen here.")
    keys("Tab", "Return")
    player.gone(dialog)
    until("the keyboard on the map", lambda: has_focus(player.map))
    player.next_window(player.panel)


def capture(player):
    """The keyboard is still in the list."""
    keys("Return")
    dialog = player.dialog("Elite: Night Step")
    keys("Home", "Return")
    player.gone(dialog)
    player.in_panel()


def evening(folder):
    make_world(folder)
    personal = folder / "Personal"
    with Typist(folder) as player:
        choose_region(player)
        new_character(player)
        holds(personal / "Characters.txt", crlf("01\tAda"))
        find_skill(player)
        pin_note(player)
        holds(personal / "Notes.txt", crlf(f"Tonight\tSeen here.\t{BOSS[0]}\t{BOSS[1]}\t3\t1"))
        capture(player)
        holds(personal / "Char01CapElite.txt", crlf("0007"))
        player.menu(1, "Home")
        player.window("the legend", lambda w: w.title == "T30")
        player.menu(0, "Down")  # the collectors' layer
        place = [player.map.x * 15, (player.map.y + player.map.height - LEGEND_HEIGHT) * 15]
        keys("alt+F4")
        assert player.end() == 0
    holds(folder / "Data/Options.txt", crlf(
        "[OLD SELECTION]", "Campaign=2", "Region=1", "Zone=0", "Profession=0", "SecondaryProfession=0", "AllElite=-1",
        "Character=0", "Legend=-1", "PosX=-1", "PosY=-1", "DimX=-1", "DimY=-1", "ShowElites=1", "ShowCollectors=0",
        "ShowGreens=1", "ShowNotes=1", f"LegendX={place[0]}", f"LegendY={place[1]}", "RightClickNeeded=1",
        "AlwaysOnTop=0", "CollectorLevel=2"))


if __name__ == "__main__":
    sys.exit(journeys.main(__file__, [evening]))
