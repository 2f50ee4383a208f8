"""Looks at a screen and acts on it as a player does: by mouse, keys and pixels. Waits by looking again, never by the clock."""

import os
import re
import subprocess
import time

LIMIT = 10  # seconds until something that does not come counts as missing
CALM = 0.5  # seconds that what is to stay is looked at
ACTING = {"mousemove", "mousedown", "mouseup", "click", "key", "type"}  # what a player's hands do


def run(*command, **how):
    """Asks and acts. In a nested session ORVINEL_NESTED_DISPLAY knows the windows, the display around it has mouse and keys."""
    environment = os.environ
    if "ORVINEL_NESTED_DISPLAY" in environment and not ACTING & set(command[1:2]):
        environment = {**environment, "DISPLAY": environment["ORVINEL_NESTED_DISPLAY"]}
    return subprocess.run(command, **{"check": True, **how}, capture_output=True, text=True, env=environment).stdout


def until(what, look, limit=None):
    """The first result of look() that is true; fails with `what` when there is none in time."""
    end = time.monotonic() + (limit or LIMIT)
    while True:
        found = look()
        if found:
            return found
        if time.monotonic() > end:
            raise AssertionError(f"never seen: {what}")
        time.sleep(0.02)


def steady(what, holds):
    """It comes true and stays so while whatever was set going comes to its end."""
    seen = []

    def look():
        seen[:] = seen + [time.monotonic()] if holds() else []
        return seen and seen[-1] - seen[0] > CALM
    until(what, look)


def pixels(x, y, width=1, height=1):
    """The bytes of an area of the screen, three per pixel: red, green, blue."""
    command = ["import", "-silent", "-window", "root", "-crop", f"{width}x{height}+{x}+{y}", "-depth", "8", "rgb:-"]
    return subprocess.run(command, check=True, capture_output=True).stdout


def colour(x, y):
    return tuple(pixels(x, y))


def near(seen, wanted, tolerance=12):
    return len(seen) == len(wanted) and all(abs(a - b) <= tolerance for a, b in zip(seen, wanted))


def see(what, x, y, wanted):
    """Waits until the pixel has about the wanted colour."""
    try:
        until(what, lambda: near(colour(x, y), wanted))
    except AssertionError as error:
        raise AssertionError(f"{error}: {colour(x, y)} instead of {wanted} at {x}, {y}") from None


def click(x, y, button=1, times=1):
    command = ["xdotool", "mousemove", str(x), str(y), "click"]
    if times > 1:
        command += ["--repeat", str(times), "--delay", "40"]
    run(*command, str(button))


def hover(x, y):
    # Twice: a window that has just appeared under the mouse hears of it only when it moves.
    run("xdotool", "mousemove", str(x - 1), str(y), "mousemove", str(x), str(y))


def drag(start, end):
    middle = ((start[0] + end[0]) // 2, (start[1] + end[1]) // 2)
    steps = ["mousemove", *start, "mousedown", 1, "mousemove", *middle, "mousemove", *end, "mouseup", 1]
    run("xdotool", *map(str, steps))


def keys(*names):
    run("xdotool", "key", *names)


def type_text(text):
    run("xdotool", "type", "--delay", "4", text)


class Window:
    def __init__(self, number, title, place):
        self.number = number
        self.title = title
        self.x, self.y, self.width, self.height = place

    def click(self, x, y, button=1, times=1):
        click(self.x + x, self.y + y, button, times)


def windows(pid):
    """The program's windows on the screen."""
    found = []
    for number in run("xdotool", "search", "--all", "--onlyvisible", "--pid", str(pid), "--name", "", check=False).split():
        try:
            info = run("xwininfo", "-id", number)
        except subprocess.CalledProcessError:
            continue  # gone meanwhile
        def value(name):
            return int(re.search(rf"{name}:\s+(-?\d+)", info).group(1))
        title = re.search(r'Window id: \S+ (?:"(.*)"|\(has no name\))', info).group(1) or ""
        place = [value("Absolute upper-left X"), value("Absolute upper-left Y"), value("Width"), value("Height")]
        found.append(Window(int(number), title, place))
    return found


def has_focus(window):
    return run("xdotool", "getwindowfocus", "-f", check=False).strip() == str(window.number)


class Running:
    """The program, started from its folder."""

    program = "orvinel"  # its file
    launcher = []  # what starts it where the system cannot

    def __init__(self, folder, **how):
        environment = {**os.environ, "LC_ALL": "C.UTF-8", "XDG_RUNTIME_DIR": str(folder)}
        self.main = set()  # the windows that stay
        self.process = subprocess.Popen([*self.launcher, folder / self.program], env=environment, stdout=subprocess.DEVNULL,
                                        stderr=subprocess.DEVNULL, **how)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        if self.process.poll() is None:
            self.process.kill()
            self.process.wait()

    def window(self, what, fits):
        def look():
            if self.process.poll() is not None:
                raise AssertionError(f"the program ended instead of showing {what}")
            return next((w for w in windows(self.process.pid) if fits(w)), None)
        return until(what, look)

    def dialog(self, title):
        """The titled window, once it has the keyboard."""
        found = self.window(f"the window {title}", lambda w: w.title == title and w.number not in self.main)
        until(f"the keyboard in {title}", lambda: has_focus(found))
        return found

    def gone(self, window):
        until(f"the end of {window.title or 'a popup'}",
              lambda: all(w.number != window.number for w in windows(self.process.pid)))

    def popup(self, open_it):
        """What appears when open_it() is done."""
        before = {w.number for w in windows(self.process.pid)}
        open_it()
        return self.window("a popup", lambda w: w.number not in before and w.width > 1)

    def end(self):
        return self.process.wait(timeout=LIMIT)
