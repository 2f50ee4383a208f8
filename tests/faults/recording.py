"""The changes that a program makes to a folder, as the system's own calls tell: recorded with strace."""
import collections
import itertools
import os
import re
import subprocess
import sys

CALL = re.compile(r"^(?:\[pid +\d+\] |\d+ +)?(\w+)\((.*)\) += (-?\d+)")
CHANGING = "write,pwrite64,writev,fsync,fdatasync,ftruncate,fallocate,sync_file_range,close,dup,dup2,dup3,lseek,sendfile"
NAMES = ("mkdir", "unlink", "rmdir", "rename")
BY_HANDLE = ("pwrite64", "writev", "ftruncate", "fallocate", "sync_file_range", "sendfile", "lseek")
BY_NAME = ("link", "linkat", "symlink", "renameat", "renameat2", "unlinkat", "mkdirat", "truncate", "creat")

Change = collections.namedtuple("Change", "kind name to file data folders")


def text(argument):
    """A string as strace -xx writes it."""
    return bytes.fromhex(argument[1:argument.rindex('"')].replace("\\x", ""))


def unknown(line):
    sys.exit(f"a call that the model does not know: {line[:200]}")


class Recorder:
    """Turns calls, line by line, into changes below a root."""

    def __init__(self, root):
        self.root = str(root)
        self.changes, self.handles, self.files = [], {}, itertools.count()

    def below(self, path):
        if path == self.root:
            return ""
        return path[len(self.root) + 1:] if path.startswith(self.root + "/") else None

    def note(self, kind, name="", to="", file=None, data=b""):
        named = kind == "create" or kind in NAMES
        folders = {os.path.dirname(n) for n in (name, to) if n} if named else set()
        self.changes.append(Change(kind, name, to, file, data, folders))

    def opened(self, line, flags, path, handle):
        self.handles[handle] = (None, None)
        if path is None:
            return
        made = next(self.files) if "O_CREAT" in flags else None
        if "O_TRUNC" in flags or ("O_CREAT" in flags and "O_EXCL" not in flags):
            unknown(line)
        self.handles[handle] = (path, made)
        if made is not None:
            self.note("create", path, file=made)

    def through(self, name, handle, strings):
        """A write or a flush."""
        path, file = self.handles.get(handle, (None, None))
        if name == "write" and handle == 1:
            self.note("told", data=strings[0])
        elif path is not None and name == "write":
            self.note("write", file=file, data=strings[0])
        elif path is not None:
            self.note("flush", "" if file is not None else path, file=file)

    def read(self, line):
        call = CALL.match(line)
        if not call or int(call[3]) < 0:
            return
        name, given, result = call[1], call[2].split(", "), int(call[3])
        strings = [text(g) for g in given if g.startswith('"')] if name not in ("read", "execve") else []
        paths = [self.below(s.decode()) for s in strings] if not name.startswith(("write", "read")) else []
        if name in ("openat", "open"):
            self.opened(line, call[2], paths[0], result)
        elif name == "close":
            self.handles.pop(int(given[0]), None)
        elif name in ("write", "fsync", "fdatasync"):
            self.through(name, int(given[0]), strings)
        elif name in NAMES and any(p is not None for p in paths):
            self.note(name, *paths)
        elif name in BY_HANDLE and self.handles.get(int(given[0]), (None, None))[1] is not None:
            unknown(line)
        elif name in BY_NAME and any(paths):
            unknown(line)


def record(play, root, folder, first, last):
    """The changes below the root of a game in the folder, in their order."""
    log = root.parent / "calls"
    subprocess.run(["strace", "-qq", "-xx", "-s", "1000000", "-e", "trace=%file," + CHANGING, "-o", log,
                    play, folder, str(first), str(last)], check=True, stdout=subprocess.DEVNULL)
    recorder = Recorder(root)
    for line in log.read_text().splitlines():
        recorder.read(line)
    return recorder.changes
