#pragma once

#include <QDate>
#include <QRect>
#include <QString>

namespace orvinel {

enum class MessageIcon { None, Question, Critical };

// What the program asks of the desktop it runs on.
class Desktop {
  public:
    virtual ~Desktop() = default;

    // Modal over the active window; returns when the player has closed it.
    virtual void message(MessageIcon icon, const QString& title, const QString& text) = 0;
    // As message, with Yes and No; True for Yes.
    virtual bool ask(MessageIcon icon, const QString& title, const QString& text) = 0;
    // As message, with OK and Cancel, whose answer does not matter.
    virtual void warnWithCancel(const QString& title, const QString& text) = 0;

    // Opens a document, program or address with its default verb, in the program's folder. False when the
    // target is a file that does not exist or the shell refused.
    virtual bool openWithShell(const QString& target) = 0;

    // Pixels: the primary screen without its task bars, and the width and height of all screens together.
    virtual QRect workArea() const = 0;
    virtual QSize allScreens() const = 0;
    // True when at least 40 x 40 pixels of `window` (pixels) lie on some screen.
    virtual bool reachable(const QRect& window) const = 0;

    virtual QDate today() const = 0;
    // The player's short date format, with ASCII digits.
    virtual QString shortDate(const QDate& date) const = 0;

    virtual void wait(int milliseconds) = 0;
    // Paints, timers and posted events, never the player's input; does nothing when already running.
    virtual void processPendingEvents() = 0;
    virtual void setHourglass(bool on) = 0;
    // Of the texts that are not the program's own: buttons of boxes, menus of fields. As in "de"; empty
    // leaves the system's language.
    virtual void setLanguage(const QString& code) = 0;
};

// Twips of one screen pixel, the same on both axes: windows are measured in logical pixels of 1/96 inch.
inline constexpr int twipsPerPixel = 15;

} // namespace orvinel
