"""What the window manager says of the program's windows, a bar and a second monitor that it has to reckon with."""

import ctypes

import journeys
from journeys import Player
from screen import Running, keys, run, steady, until, windows

MONITOR = 1280  # pixels wide; there are two of them
BAR = 40  # pixels high


def state(number):
    said = run("xprop", "-id", str(number), "_NET_WM_STATE")
    return {word.strip(" ,\n") for word in said.partition("=")[2].split("_NET_WM_STATE_")}


def all_have(player, wanted, unwanted=()):
    def look():
        states = [state(number) for number in player.shown()]
        return states and all(wanted <= s and not s & set(unwanted) for s in states)
    until(f"windows with {wanted} and without {unwanted}", look)


def is_iconic(window):
    return "Iconic" in run("xprop", "-id", str(window.number), "WM_STATE")


def close(window):
    """As the window manager's own shortcut does it, which is another program's on some desktops."""
    run("wmctrl", "-i", "-c", str(window.number))


def places(player):
    found = sorted((w for w in windows(player.process.pid) if w.width > 1), key=lambda w: w.width)
    return [(w.x, w.y, w.width, w.height) for w in found]


class Desktop(Player):
    """The program with the window behind its task bar button."""

    def __enter__(self):
        super().__enter__()
        self.button = self.window("the task bar's window", lambda w: w.width == 1)
        return self

    def shown(self):
        """The numbers of panel and map as they are on the screen now."""
        wide = sorted((w for w in windows(self.process.pid) if w.width > 1), key=lambda w: w.width)
        return [w.number for w in wide]

    def options(self, *way):
        self.panel.number = self.shown()[0]
        run("xdotool", "windowactivate", "--sync", str(self.panel.number))
        menu = self.popup(lambda: keys("Alt_L"))  # xfwm4 4.20 keeps F10 for itself with newer keyboard tables
        keys("Right", *way, "Return")
        self.gone(menu)


class OneWindow(Running):
    """The program where panel and map are parts of one window."""

    def __enter__(self):
        def look():
            found = self.shown()
            return len(found) == 1 and found[0].width > journeys.PANEL_WIDTH and found
        steady("one window for panel and map", look)
        self.whole, = self.shown()
        return self

    def shown(self):
        return [w for w in windows(self.process.pid) if w.title == "Orvinel"]

    def place(self):
        return [(w.number, w.x, w.y, w.width, w.height) for w in self.shown()]

    def view(self, point):
        """A place of the map's view on the screen."""
        return self.whole.x + journeys.PANEL_WIDTH + 2 + point[0], self.whole.y + 2 + point[1]

    def press_button(self, from_right):
        self.whole.click(self.whole.width - from_right, 10)


class Bar:
    """A bar along the upper edge of the left monitor, as a desktop's own."""

    def __enter__(self):
        x = self.x = ctypes.CDLL("libX11.so.6")
        x.XOpenDisplay.restype = x.XDefaultRootWindow.restype = x.XInternAtom.restype = ctypes.c_ulong
        x.XCreateSimpleWindow.restype = ctypes.c_ulong
        display = self.display = ctypes.c_void_p(x.XOpenDisplay(None))
        root = ctypes.c_ulong(x.XDefaultRootWindow(display))
        window = ctypes.c_ulong(x.XCreateSimpleWindow(display, root, 0, 0, MONITOR, BAR, 0, 0, 0x404040))

        def atom(name):
            return ctypes.c_ulong(x.XInternAtom(display, name.encode(), 0))

        def have(name, kind, *values):
            data = (ctypes.c_ulong * len(values))(*values)
            x.XChangeProperty(display, window, atom(name), atom(kind), 32, 0, data, len(values))
        have("_NET_WM_WINDOW_TYPE", "ATOM", atom("_NET_WM_WINDOW_TYPE_DOCK").value)
        have("_NET_WM_STRUT", "CARDINAL", 0, 0, BAR, 0)
        have("_NET_WM_STRUT_PARTIAL", "CARDINAL", 0, 0, BAR, 0, 0, 0, 0, 0, 0, MONITOR - 1, 0, 0)
        x.XMapWindow(display, window)
        x.XMoveWindow(display, window, 0, 0)
        x.XFlush(display)
        until("the room below the bar", lambda: f", {BAR}, " in run("xprop", "-root", "_NET_WORKAREA") or
              f", {BAR}, " in run("xprop", "-root", "_GTK_WORKAREAS_D0"))
        return self

    def __exit__(self, *_):
        self.x.XCloseDisplay(self.display)


def two_monitors():
    if " left " in run("xrandr", "--listmonitors"):
        return
    for name, left, output in (("left", 0, "screen"), ("right", MONITOR, "none")):
        run("xrandr", "--setmonitor", name, f"{MONITOR}/300x900/200+{left}+0", output)
