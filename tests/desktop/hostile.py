#!/usr/bin/env python3
"""hostile.py PROGRAM [ERRAND...]: the program where it is not welcome: started twice at once, in folders that cannot be
written to, and in folders made to eat its memory. With names: only those errands, the long ones among them.
"""

import os
import pathlib
import shutil
import subprocess
import sys
import time

import screen
from journeys import (BOSS, EMPTY, GROUND, PROGRAM, QUIT, Player, content, crlf, in_marsh, main, make_world, note_menu,
                      options, write_note)
from screen import Running, keys, run, see, until, windows

MEMORY = 1 << 20  # kB that the program may take, whatever the folder holds
MEGABYTE = 1 << 20
SUM = 24 * MEGABYTE  # what it reads of all text files
NOBODY = 65534
CAMPAIGNS = ["Campaign.00.Common", "Campaign.01.Ash", "Campaign.02.Oak", "Campaign.03.Sunhollow", "Campaign.04.Elm"]
SANITIZED = b"__asan_init" in PROGRAM.read_bytes()  # which takes memory of its own


# Two at once


def twins(folder):
    make_world(folder)
    for _ in range(20):
        command = ["sh", "-c", "read go && exec ./orvinel"]
        pair = [subprocess.Popen(command, cwd=folder, stdin=subprocess.PIPE, stderr=subprocess.DEVNULL) for _ in range(2)]
        try:
            for process in pair:
                process.stdin.write(b"go\n")
            for process in pair:
                process.stdin.flush()
            until("the end of one of the two", lambda: any(p.poll() is not None for p in pair), 30)
            first = next((p for p in pair if p.poll() is None), None)
            assert first, "both ended"
            shown = until("the windows of the other", lambda: len(windows(first.pid)) >= 2 and windows(first.pid), 30)
            assert first.poll() is None, "both ended"
            second = pair[1 - pair.index(first)]
            assert second.returncode == 0, f"the second ended with {second.returncode}"
            next(w for w in shown if w.width == 217).click(*QUIT)
            assert first.wait(timeout=30) == 0
        finally:
            for process in pair:
                process.kill()
                process.wait()
                process.stdin.close()


# Folders that cannot be written to


def everything_below(folder):
    return {path: content(path) for path in sorted(folder.rglob("*")) if path.is_file()}


class Warned(Player):
    """The program that says at its start that nothing can be saved."""

    def __enter__(self):
        warning = self.dialog("Orvinel")
        keys("Return")
        self.gone(warning)
        return super().__enter__()


def says_what_it_cannot_save(folder, at_start=True, **how):
    """A note that cannot be saved is told once and stays on the screen; quitting asks; nothing on the disk changes.

    at_start: the program knows it from the beginning, and says so.
    """
    before = everything_below(folder)
    with (Warned if at_start else Player)(folder, **how) as player:
        player.ready()
        note_menu(player, 0)
        dialog = player.dialog("Note")
        write_note(dialog, "Well", ["deep"])
        player.dialog("Orvinel")
        keys("Return")
        player.dialog("Note")
        keys("Escape")
        player.gone(dialog)
        player.panel.click(*QUIT)
        player.dialog("Orvinel")
        keys("alt+y")
        assert player.end() == 0
    assert everything_below(folder) == before, "something on the disk has changed"


def only_nobodys(folder):
    """The folder is somebody else's, as it is where a program was installed for all."""
    make_world(folder)
    in_marsh(folder)
    if os.getuid() != 0:
        run("chmod", "-R", "a-w", str(folder))
        says_what_it_cannot_save(folder)
        run("chmod", "-R", "u+w", str(folder))
        return
    run("chmod", "-R", "go=rX", str(folder))
    says_what_it_cannot_save(folder, user=NOBODY, group=NOBODY, extra_groups=[])


class Mounted:
    """A small file system in memory, or nothing where mounting is not allowed."""

    def __init__(self, folder):
        self.folder = folder

    def __enter__(self):
        size = PROGRAM.stat().st_size + 4 * MEGABYTE
        command = ["mount", "-t", "tmpfs", "-o", f"size={size}", "tmpfs", str(self.folder)]
        self.mounted = subprocess.run(command, capture_output=True).returncode == 0
        if not self.mounted:
            print("mounting is not allowed here: left out")
        return self.mounted

    def __exit__(self, *_):
        if self.mounted:
            run("umount", str(self.folder))


def read_only_medium(folder):
    with Mounted(folder) as mounted:
        if mounted:
            make_world(folder)
            in_marsh(folder)
            run("mount", "-o", "remount,ro", str(folder))
            says_what_it_cannot_save(folder)


def full_medium(folder):
    with Mounted(folder) as mounted:
        if mounted:
            make_world(folder)
            in_marsh(folder)
            with open(folder / "filler", "wb", buffering=0) as filler:
                for size in (65536, 1):
                    try:
                        while True:
                            filler.write(bytes(size))
                    except OSError:
                        pass
            says_what_it_cannot_save(folder, at_start=False)


# Memory


def repeated(line, count):
    return (line + "\r\n").encode("cp1252") * count


def numbered(line, count):
    """`line` with a number in it that counts up from 0."""
    return "".join(f"{line}\r\n".replace("#", str(n)) for n in range(count)).encode("cp1252")


MANY = 65535
STATS = "\ty" * 37
WIDE, FEW = "\ty" * 252, 9_000  # with the others as many fields as count
FILLS = {  # what to put where, in each campaign: the shortest lines that take the most memory
    "zones": {"Zones.txt": lambda: repeated("5\t1\t1\t0\t7\t7\tx", MANY)},
    "skills": {"EliteList.txt": lambda: numbered("#\t1\tx\ty\tz\t0\t0\t5\t1\t10\tq", MANY)},
    "bosses": {"EliteLocations.txt": lambda: b";[Version] 2.0\r\n" + repeated("7\t1\t9\t9\tU\tb\t5\tz", MANY),
               "Greens.txt": lambda: repeated("R\tU", 32)},
    "collectors": {"Collectors.txt": lambda: b"1\tx\t0\r\ny\r\nz q\r\n" + repeated("o\t1" + STATS, MANY)},
    "headers": {"Collectors.txt": lambda: numbered("#\tx\t0\r\ny\r\n1 z#\r\n", MANY)},
    "greens": {"Greens.txt": lambda: numbered("R\t#" + STATS, MANY)},
    "wide": {"Collectors.txt": lambda: b"1\tx\t0\r\ny\r\nz q\r\n" + repeated("o\t1" + WIDE, FEW)},
    "wide greens": {"Greens.txt": lambda: numbered("R\t#" + WIDE, FEW)},
    "chests": {"Treasures.txt": lambda: repeated("x\t9\t9\t1\t5", MANY)},
    "pets": {"PetsList.txt": lambda: numbered("#\tx\ty", MANY),
             "PetsLocations.txt": lambda: repeated("1\t1\t5\t9\t9", MANY)},
    "texts": {"Zones.txt": lambda: repeated("5\t1\t1\t0\t7\t7\t" + "x" * 90_000, 50),
              "EliteList.txt": lambda: numbered("#\t1\t" + "y" * 90_000, 50)},
}
PERSONAL = {
    "Notes.txt": lambda: repeated("x\ty\t1\t1\t3\t1", MANY),
    "Characters.txt": lambda: b"".join(b"%02d\tN%d\r\n" % (n, n) for n in range(1, 100)),
    **{f"Char{n:02}CapElite.txt": lambda: repeated("99999", 12_000) for n in range(1, 100)},
    **{f"Char{n:02}OpenedTreasures.txt": lambda: numbered("#\t01012011", 9_000) for n in range(1, 100)},
}


def fill(folder, kinds, personal=True):
    make_world(folder)
    options(folder, Campaign=4, Region=1)  # of the campaign whose first region is the first of its list
    for campaign in CAMPAIGNS:
        (folder / campaign).mkdir(exist_ok=True)
        (folder / campaign / "Regions.txt").write_bytes(crlf("01\tMarsh"))
        for kind in kinds:
            for name, text in FILLS[kind].items():
                (folder / campaign / name).write_bytes(text())
    (folder / "Personal").mkdir(exist_ok=True)
    for name, text in PERSONAL.items() if personal else ():
        (folder / "Personal" / name).write_bytes(text())


def measured(folder, what):
    """Starts and looks at the region; what it took at most, in kB."""
    started = time.monotonic()
    screen.LIMIT = 120
    with Running(folder) as player:
        def windows_or_message():
            found = windows(player.process.pid)
            if any(w.title == "Orvinel" and w.width < 1000 for w in found) and len(found) == 1:
                keys("Return")
            return sum(w.width > 1 for w in found) >= 2
        until("the windows", windows_or_message, screen.LIMIT)
        took = time.monotonic() - started
        time.sleep(2)
        status = pathlib.Path(f"/proc/{player.process.pid}/status").read_text()
        peak = int(next(line for line in status.splitlines() if line.startswith("VmHWM")).split()[1])
    print(f"  {what}: {peak // 1024} MB, {took:.1f} s to the windows", flush=True)
    assert SANITIZED or peak < MEMORY, f"{peak // 1024} MB for {what}"
    return peak


def emptied(folder):
    for path in folder.iterdir():
        shutil.rmtree(path) if path.is_dir() else path.unlink()


def each_table_full(folder):
    for kind in FILLS:
        fill(folder, [kind], personal=False)
        measured(folder, kind)
        emptied(folder)
    fill(folder, [])
    measured(folder, "the player's files")


def all_tables_full(folder):
    """More than is read altogether, a player's files first; and the largest pictures that are shown."""
    fill(folder, [kind for kind in FILLS if kind not in ("headers", "texts", "wide", "wide greens")])
    for campaign in CAMPAIGNS:
        # Progressive: while it is decoded that takes two and a half times what the picture does.
        run("convert", "-size", "8190x8190", "xc:red", "-interlace", "JPEG", "-sampling-factor", "1x1", "-quality", "50",
            str(folder / campaign / "01.jpg"))
    assert measured(folder, "everything") > 600 << 10, "the picture was not shown"


def many_entries(folder):
    make_world(folder)
    in_marsh(folder)
    (folder / "Personal").mkdir()
    (folder / "Personal/Characters.txt").write_bytes(PERSONAL["Characters.txt"]())
    for place in (folder, folder / "Personal", folder / "Campaign.03.Sunhollow"):
        for n in range(100_000):
            (place / f"Campaign.{n}").touch()
    measured(folder, "100,000 entries in each folder")


ERRANDS = [twins, only_nobodys, read_only_medium, full_medium, all_tables_full]
LONG = [each_table_full, many_entries]

if __name__ == "__main__":
    sys.exit(main(__file__, ERRANDS + (LONG if sys.argv[2:] else [])))
