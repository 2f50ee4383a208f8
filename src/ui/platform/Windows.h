#pragma once

#include <QCursor>
#include <QPoint>
#include <QPointer>
#include <QWidget>

class QApplication;
class QLocale;

namespace orvinel {

// The program's own mouse pointers, by the numbers of their resources.
enum class Pointer {
    Usual = 101,
    OpenHand = 102, // over the map and over links
    Fist = 103      // while dragging
};
QCursor programCursor(Pointer pointer);

// To be called before the application object is made: windows can be placed and kept on top under X11 only,
// so it is preferred to Wayland.
void chooseWindowSystem();

// False: there is no display, and nobody asked to run without one. To be asked when the application object is
// made.
bool displayFound();

// False: the system decides where windows are (Wayland, and a window manager that is known for it). Other
// window managers that place windows as they like are known only by what they do.
bool windowsCanBePlaced();

// Light colours and the same widgets on every desktop, texts of the boxes in the system's language;
// the program icon a moment later, since decoding its pictures takes longer than the windows' first paint.
void applyAppearance(QApplication& application);

// The texts of boxes and of the menus of fields, in place of those before; English where there are none.
void translateControls(const QLocale& language);

// Whether the system can be asked to move or resize a window with the mouse. Not under X11: a button that is
// let go before the window manager has taken hold would leave the window hanging on the pointer.
bool systemDrags();

// Moves a window without a title bar while the left button is held on its background: by the system where it
// can, else by following the mouse. A part of another window takes that one along. One per window; it calls
// for nothing but the window's mouse events.
class WindowDrag {
  public:
    explicit WindowDrag(QWidget& window) : window_(window) {}

    // From the window's handlers, with the mouse position on the screen. True while the window follows by
    // itself.
    void press(QPoint global);
    void move(QPoint global);
    void release() { following_ = false; }

  private:
    QWidget& window_;
    bool following_ = false;
    QPoint grip_;
};

// Where a window is on the screen, pixels; where it is to appear while it is not there yet. A window manager
// may have put it elsewhere than where QWidget::pos() says.
QRect shownPlace(const QWidget& window);
// The same as the display knows it: some window managers do not tell a window where
// they put it.
QRect placeOnServer(const QWidget& window);
// Moves it there, also when it believes to be there already.
void moveShown(QWidget& window, QPoint to);

// Keeps a window off the task bar; to be called at each show. Nothing happens where the desktop cannot do it,
// or while it is a part of another window.
void keepOffTaskBar(QWidget& window);

// Keeps the window that the widget is or lies in above all others, or no longer, without moving, hiding or
// activating it.
void setAlwaysOnTop(QWidget& widget, bool on);

// The window's button on the task bar is to be calm: some desktops have it flash for a window that appears
// without becoming active.
void wantNoAttention(const QWidget& window);

// The window manager has made the window, which is minimised, an icon; True also where nobody can be asked.
bool isIconic(const QWidget& window);

// Takes a window off the screen and brings it back without hiding it, which would count as an answer to a
// dialog. Some window managers refuse to minimise dialogs; some move one that was taken off, so the caller
// keeps the place, that of its frame.
void takeOffScreen(QWidget& window);
void bringToScreen(QWidget& window, QPoint place);

// What makes a window one without a title bar.
Qt::WindowFlags frameless();

// What a window without a title bar needs besides for its button on the task bar to minimise it.
Qt::WindowFlags minimisable();

} // namespace orvinel
