#!/usr/bin/env python3
"""power_cut.py BINARIES [CUTS]: what is on the medium when the current fails while Orvinel saves.

The system's own calls of a game are recorded with strace. Then a model of what file systems promise tells every state
that the medium may be in after a cut at each call; each must be one that the game went through, and none older than what
the player was told is saved. Where mounting is allowed, a real ext4 is switched off CUTS times as well, and filled to its
last block."""
import collections
import itertools
import os
import pathlib
import random
import re
import shutil
import struct
import subprocess
import sys
import tempfile
import time

from recording import record

STEPS = 44  # every kind of save four times
BLOCK = 4096
UNFINISHED = ".saving"


def apply(names, change):
    """One change of the names: path to file, a folder being None."""
    if change.kind == "create":
        names[change.name] = change.file
    elif change.kind == "mkdir":
        names[change.name] = None
    elif change.kind in ("unlink", "rmdir"):
        names.pop(change.name, None)
    elif change.kind == "rename":
        for path in [p for p in names if p == change.name or p.startswith(change.name + "/")]:
            names[change.to + path[len(change.name):]] = names.pop(path)


def reachable(path, names):
    return all(str(parent) in names for parent in list(pathlib.PurePath(path).parents)[:-1])


class Medium:
    """What has surely reached the medium, and what may have."""

    def __init__(self, names, contents):
        self.names = dict(names)
        self.safe = dict(contents)     # by file: the bytes that were flushed
        self.written = dict(contents)  # by file: all bytes
        self.pending = []              # changes of names, each with the folders whose flush it still waits for

    def do(self, change, ordered):
        if change.kind == "write":
            self.written[change.file] = self.written.get(change.file, b"") + change.data
        elif change.kind == "flush" and change.file is not None:
            self.safe[change.file] = self.written.get(change.file, b"")
        elif change.kind == "flush":
            # A journal takes all that came before with it; without its promise only the folder itself is flushed.
            waiting = []
            for old, folders in self.pending:
                folders = set() if ordered else folders - {change.name}
                if folders:
                    waiting.append((old, folders))
                else:
                    apply(self.names, old)
            self.pending = waiting
        elif change.folders:
            self.pending.append((change, set(change.folders)))

    def trees(self, ordered):
        """Every set of names that a cut may leave."""
        changes = [change for change, _ in self.pending]
        if ordered:
            chosen = [range(n) for n in range(len(changes) + 1)]
        else:
            chosen = [c for n in range(len(changes) + 1) for c in itertools.combinations(range(len(changes)), n)
                      if self.possible(changes, set(c))]
        for kept in chosen:
            names = dict(self.names)
            for n in kept:
                apply(names, changes[n])
            yield names

    @staticmethod
    def possible(changes, kept):
        """A change of a name cannot be there without the earlier ones of the same name."""
        def touched(change):
            return {n for n in (change.name, change.to) if n}
        return all(earlier in kept or not any(a == b or a.startswith(b + "/") or b.startswith(a + "/")
                                              for a in touched(changes[earlier]) for b in touched(changes[later]))
                   for later in kept for earlier in range(later))

    def contents(self, file):
        """What may be read from a file: what is not flushed is there, or in part, or zeros, or nothing."""
        safe, written = self.safe.get(file, b""), self.written.get(file, b"")
        tail = len(written) - len(safe)
        cuts = {len(safe), len(written), *range(len(safe) // BLOCK * BLOCK + BLOCK, len(written), BLOCK)}
        return {written[:cut] for cut in cuts if cut >= len(safe)} | {safe + bytes(tail)}

    def states(self, ordered, of_interest):
        for names in self.trees(ordered):
            paths = [p for p, file in names.items() if file is not None and of_interest(p) and reachable(p, names)]
            for contents in itertools.product(*(self.contents(names[p]) for p in paths)):
                yield dict(zip(paths, contents))


def players(path):
    return bool(re.search("(^|/)(Personal|Data/Options|Data/Char)", path)) and not path.endswith(UNFINISHED)


def snapshot(folder):
    names, contents = {}, {}
    for n, path in enumerate(sorted(folder.rglob("*"))):
        file = None if path.is_dir() else -1 - n
        names[str(path.relative_to(folder))] = file
        if file is not None:
            contents[file] = path.read_bytes()
    return names, contents


def history(start, changes):
    """The player's files after each change, as one sees them while the current is on."""
    names, contents = dict(start[0]), dict(start[1])
    seen = []
    for change in [None, *changes]:
        if change and change.kind == "write":
            contents[change.file] = contents.get(change.file, b"") + change.data
        elif change:
            apply(names, change)
        seen.append({p: contents.get(f, b"") for p, f in names.items() if f is not None and players(p)})
    return seen


def cut_everywhere(start, changes, ordered):
    """Every (moment, state) after a cut, and whether it is one of those that may be."""
    medium, seen, told = Medium(*start), history(start, changes), 0
    for moment, change in enumerate(changes, 1):
        medium.do(change, ordered)
        if change.kind == "told":
            told = moment
        for state in medium.states(ordered, players):
            yield moment, state, state in seen[told:moment + 1]


def try_model(what, start, changes):
    for ordered in (True, False):
        promise = "a journal in order" if ordered else "folders flushed one by one"
        tried = list(cut_everywhere(start, changes, ordered))
        bad = [(moment, state) for moment, state, good in tried if not good]
        for moment, _ in bad[:3]:
            print(f"broken after change {moment}: {changes[moment - 1][:3]}")
        print(f"{what}, {promise}: {len(changes)} changes, {len(tried)} states of the medium, {len(bad)} broken")
        if bad:
            sys.exit(1)
        # The model would see it if a flush were missing.
        for flushed, of_files in (("files", True), ("folders", False)):
            fewer = [c for c in changes if c.kind != "flush" or (c.file is not None) != of_files]
            if all(good for _, _, good in cut_everywhere(start, fewer, ordered)):
                sys.exit(f"{promise}: without any flush of {flushed} nothing would be found: the model is blind")


def fat_states(tree, pending):
    """A file allocation table has neither journal nor order: each entry of a folder, and the release of a replaced
    file's clusters, may reach the medium alone. Yields path to file; a file that was released is 'lost'."""
    parts = []
    for change in pending:
        if change.kind == "rename":
            old = tree.get(change.to)
            parts += [(change.to, change.file), (change.name, "gone")] + ([(None, old)] if old is not None else [])
        elif change.kind == "unlink":
            parts += [(change.name, "gone"), (None, tree.get(change.name))]
        elif change.kind == "create":
            parts += [(change.name, change.file)]
    for n in range(len(parts) + 1):
        for chosen in itertools.combinations(parts, n):
            names, released = dict(tree), {file for path, file in chosen if path is None}
            for path, file in chosen:
                if path is not None:
                    names[path] = file
            yield {p: "lost" if f in released else f for p, f in names.items() if f != "gone"}


def try_fat(start, changes):
    """Not a test but a count: what can be promised where nothing is promised."""
    names, outcomes, pending = dict(start[0]), collections.Counter(), []
    for change in changes:
        if change.kind == "flush" and change.file is None:
            for old in pending:
                apply(names, old)
            pending = []
        elif change.folders:
            file = change.file
            if change.kind == "rename":
                live = dict(names)
                for old in pending:
                    apply(live, old)
                file = live.get(change.name)
            pending.append(change._replace(file=file))
        renamed = [c for c in pending if c.kind == "rename" and c.name.endswith(UNFINISHED)]
        if not renamed:
            continue
        target, fresh = renamed[-1].to, renamed[-1].file
        for state in fat_states(names, pending):
            found = state.get(target)
            whole = found != "lost" and (found is not None or target not in names)
            aside = state.get(target + UNFINISHED) == fresh
            outcomes["whole" if whole else "whole beside it, as .saving" if aside else "lost"] += 1
    print("FAT, cut between rename and flush of the folder: " +
          ", ".join(f"{count} {outcome}" for outcome, count in outcomes.items()), flush=True)


def try_move(play, work):
    """The first start after an old version moves the player's files; a cut leaves them there or there."""
    folder = work / "old" / "o"
    (folder / "Data").mkdir(parents=True)
    mine = {"Characters.txt": b"01\tAda\r\n02\tBert\r\n", "Char01CapElite.txt": b"0001\r\n", "Char02CapElite.txt": b"0002\r\n"}
    for name, content in mine.items():
        (folder / "Data" / name).write_bytes(content)
    start = snapshot(folder)
    changes = record(play, folder, folder, 0, 0)
    states = {}
    for ordered in (True, False):
        medium = Medium(*start)
        for change in changes:
            medium.do(change, ordered)
            for names in medium.trees(ordered):
                names = {p: f for p, f in names.items() if reachable(p, names)}
                states[tuple(sorted((p, f is None) for p, f in names.items()))] = (
                    names, {f: medium.written[f] for f in names.values() if f is not None})
    for number, (names, contents) in enumerate(states.values()):
        after = work / f"moved{number}"
        for path, file in sorted(names.items()):
            (after / path).parent.mkdir(parents=True, exist_ok=True)
            (after / path).mkdir(exist_ok=True) if file is None else (after / path).write_bytes(contents[file])
        subprocess.run([play, after, "0", "0"], check=True, stdout=subprocess.DEVNULL)
        found = {n: (after / "Personal" / n).read_bytes() for n in mine if (after / "Personal" / n).exists()}
        if found != mine:
            sys.exit(f"the move into Personal, cut off at {sorted(names)}: only {sorted(found)} arrived")
    print(f"the move into Personal: {len(states)} states of the medium, each start has all files")


class Image:
    """A real file system in a file. `with` mounts it."""

    def __init__(self, work, megabytes):
        self.file, self.place = work / "image", work / "mounted"
        self.place.mkdir(exist_ok=True)
        with self.file.open("wb") as file:
            file.truncate(megabytes << 20)
        subprocess.run(["mkfs.ext4", "-q", "-F", "-m", "0", self.file], check=True)

    def mount(self):
        return subprocess.run(["mount", "-o", "loop", self.file, self.place], capture_output=True).returncode == 0

    def unmount(self):
        subprocess.run(["umount", self.place], check=True)

    def switch_off(self):
        """Nothing more reaches the medium, not even the journal's latest."""
        import fcntl
        handle = os.open(self.place, os.O_RDONLY)
        shutdown, at_once = 0x8004587D, struct.pack("I", 2)  # FS_IOC_SHUTDOWN, without flushing the log
        fcntl.ioctl(handle, shutdown, at_once)
        os.close(handle)


def seen_in(folder):
    return {str(p.relative_to(folder)): p.read_bytes() for p in folder.rglob("*")
            if p.is_file() and players(str(p.relative_to(folder)))}


def switch_off_once(image, play, before, seen, steps, chance):
    if not image.mount():
        return None
    folder = image.place / "o"
    shutil.copytree(before, folder)
    os.sync()
    game = subprocess.Popen([play, folder, "0", str(STEPS)], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
    told = sum(bool(game.stdout.readline()) for _ in range(chance.randrange(STEPS)))
    time.sleep(chance.uniform(0, 0.01))
    # What is told later counts as not told: without current nobody would have read it.
    os.set_blocking(game.stdout.fileno(), False)
    told += len(game.stdout.readlines())
    image.switch_off()
    game.communicate()
    image.unmount()
    image.mount()
    found = seen_in(folder)
    unfinished = any(folder.rglob("*" + UNFINISHED))
    good = found in seen[steps[told]:] and subprocess.run(
        [play, folder, str(told), str(told)], stdout=subprocess.DEVNULL).returncode == 0
    shutil.rmtree(folder)
    image.unmount()
    return good, told, unfinished


def try_real(play, before, seen, steps, cuts, work):
    image = Image(work, 8)
    chance, results = random.Random(1), []
    for _ in range(cuts):
        result = switch_off_once(image, play, before, seen, steps, chance)
        if result is None:
            print("mounting is not allowed here: no real file system was switched off")
            return
        results.append(result)
    broken = sum(not good for good, _, _ in results)
    inside = sum(0 < told < STEPS for _, told, _ in results)
    print(f"ext4, switched off {cuts} times: {inside} in the middle of the game, at "
          f"{len({told for _, told, _ in results})} different steps, {sum(u for _, _, u in results)} in the middle of a "
          f"file; {broken} broken")
    if broken or not inside:
        sys.exit(1)
    fill(image, play, before, seen, steps)


def use_up(ballast):
    """What was removed comes free only when the journal is written: until nothing more does."""
    with ballast.open("wb", buffering=0) as file:
        for _ in range(5):
            try:
                while file.write(bytes(1024)):
                    pass
            except OSError:
                os.sync()


def fill(image, play, before, seen, steps):
    """Every kind of save with no block left: told, and the folder as it was; with room again all goes on."""
    image.mount()
    try:
        folder, ballast = image.place / "o", image.place / "ballast"
        shutil.copytree(before, folder)
        subprocess.run([play, folder, "0", "11"], check=True, stdout=subprocess.DEVNULL)
        refused = 0
        for step in range(11, 22):
            use_up(ballast)
            was = {p: p.read_bytes() for p in folder.rglob("*") if p.is_file()}
            told = subprocess.run([play, folder, str(step), str(step + 1)], stdout=subprocess.DEVNULL).returncode == 1
            is_now = {p: p.read_bytes() for p in folder.rglob("*") if p.is_file()}
            if told and was != is_now:
                sys.exit(f"full: step {step} was told to have failed and changed the folder")
            if not told and was == is_now and seen[steps[step]] != seen[steps[step + 1]]:
                sys.exit(f"full: step {step} was told to be saved and is not")
            refused += told
            ballast.unlink()
            if told:
                subprocess.run([play, folder, str(step), str(step + 1)], check=True, stdout=subprocess.DEVNULL)
        print(f"ext4 without a free block: {refused} of 11 steps refused, the folder as before; each saved later")
        if refused < 5:
            sys.exit("the file system was not full")
    finally:
        image.unmount()


def main():
    play = pathlib.Path(sys.argv[1]).resolve() / "play_steps"
    cuts = int(sys.argv[2]) if len(sys.argv) > 2 else 20
    if not shutil.which("strace") or subprocess.run(["strace", "-qq", "-o", "/dev/null", "true"]).returncode:
        print("strace is missing or not allowed here: skipped")
        sys.exit(77)
    with tempfile.TemporaryDirectory(prefix="orvinel-cut-") as temporary:
        work = pathlib.Path(temporary)
        folder, before = work / "game" / "o", work / "before"
        folder.mkdir(parents=True)
        subprocess.run([play, folder, "0", "0"], check=True, stdout=subprocess.DEVNULL)
        shutil.copytree(folder, before)
        start = snapshot(folder)
        changes = record(play, folder, folder, 0, STEPS)
        told = [n for n, change in enumerate(changes, 1) if change.kind == "told"]
        assert len(told) == STEPS and history(start, changes)[-1] == seen_in(folder), "the record is not complete"
        try_model("the game", start, changes)
        nowhere = work / "nowhere"
        nowhere.mkdir()
        try_model("in folders that are not there", ({}, {}), record(play, nowhere, nowhere / "a/b/o", 0, 2))
        try_fat(start, changes)
        try_move(play, work)
        if os.geteuid() == 0 and shutil.which("mkfs.ext4"):
            try_real(play, before, history(start, changes), [0, *told], cuts, work)
        else:
            print("no rights to mount: no real file system was switched off")


if __name__ == "__main__":
    main()
