#pragma once

#include <QString>

namespace orvinel {

// Who decides about the windows.
struct WindowManager {
    QString name;          // as it calls itself; empty: unknown
    bool xwayland = false; // X11 is served by a Wayland desktop
};

// The one that runs now. Not under X11: nothing is known.
WindowManager windowManager();

// It tells the place of the mouse from where it thinks that the window is, so that a window which follows the
// mouse by itself jumps back and forth: the window manager is to drag it.
bool tremblesWhenDragged(const WindowManager& manager);

// It leaves no window where the window wants to be, and some releases of it crash when one ends that lies
// outside of all screens.
bool placesWindowsItself(const WindowManager& manager);

} // namespace orvinel
