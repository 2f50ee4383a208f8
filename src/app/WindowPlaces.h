#pragma once

#include "app/WindowPlacement.h"
#include "base/Desktop.h"

#include <QPoint>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <optional>

namespace orvinel {

// Where panel, map and legend stand: at the start, when the pair fills the work area, and when the player or
// the window manager moves one of them. Panel and map stand side by side, whatever a window manager makes of
// where they were put.
class WindowPlaces : public QObject {
  public:
    struct Windows {
        QWidget& panel;
        QWidget& map;
        QWidget& legend;
    };
    // All references outlive it.
    WindowPlaces(Options& options, Desktop& desktop, Windows windows);

    // The pair fills the whole work area.
    bool MapMaximised = false;

    // Called once when the window manager does not let panel and map be placed.
    std::function<void()> unplaceable = [] {};
    // Panel and map are placed by others from here on; what the options remember of them stays as it is.
    void leavePair();

    // At the start, before the windows are shown.
    void RestoreWindowPlacement();
    void restoreLegend();

    void ToggleMapMaximised();
    // Moves the map beside the panel, unless they fill the work area.
    void attachMap();
    // To be called when the windows have appeared: some window managers pull a window that appears wholly
    // onto the screen, but leave it where it is moved to afterwards.
    void attachShownMap();

    // Before the legend is shown, and before it is hidden or the program ends.
    void placeLegend();
    void rememberLegend();
    // Into the options: where panel and map stand, -1 when they fill the work area.
    void rememberPair();

  private:
    void place(const WindowPair& pair);
    void endAppearing();
    // Its own: a window manager that tiles makes the panel as wide as the screen.
    int panelWidth() const;
    WindowPair wanted() const;
    // Looks where the windows really are, and puts them side by side.
    void settle();
    // The window manager has not done what no other one refuses.
    bool refused(int panelShown);
    // The legend's place when none is remembered, or one that no screen shows any more: the map's lower left
    // corner.
    QPoint legendCorner() const;

    Options& options_;
    Desktop& desktop_;
    Windows windows_;
    QTimer settling_;
    // Where the panel is to stand while it appears; nothing once it is put elsewhere.
    std::optional<QPoint> appearing_;
    // What settling asked for last; a window manager that grants it no more than once is left alone.
    std::optional<QPoint> asked_;
    // What was seen at the last look, until they have stood side by side once: a window manager that has done
    // that places windows.
    std::optional<WindowPair> before_;
    bool wereBeside_ = false;
    int tiled_ = 0; // looks in a row at a panel of another width than its own
    int apart_ = 0; // looks in a row at windows that are not side by side
    bool left_ = false;
    // Where the windows were put at start instead of a remembered place that no screen shows; while they
    // stand there, that place is written back unchanged.
    std::optional<WindowPair> restored_;
    // Where the legend stands instead of such a place, which is written back while it stands there.
    std::optional<QPoint> legendInstead_;
};

} // namespace orvinel
