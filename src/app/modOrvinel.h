#pragma once

#include "app/Desktop.h"
#include "app/PlayerFiles.h"
#include "app/ProgramState.h"
#include "app/WindowPlacement.h"
#include "layers/modZonesView.h"
#include "ui/dialogs/Dialog.h"
#include "ui/dialogs/frmLegenda.h"
#include "ui/map/frmMap.h"
#include "ui/panel/frmMenu.h"

#include <functional>
#include <memory>
#include <optional>

namespace orvinel {

// The whole program: its state, its windows, and what connects them.
class Program : public QObject {
    Q_OBJECT
  public:
    // `endProcess` is called once, with the exit code, when the program is to end; nothing is called after
    // it. `appPath`: the program's folder, ending in '/'. All references outlive the program.
    Program(QString appPath, Disk& disk, Desktop& desktop, std::function<void(int)> endProcess);
    ~Program() override;

    // The start-up sequence; False when the program has ended already.
    bool Main();

    void QuitProgram();
    void ToggleMapMaximised();
    void OpenWithShell(const QString& target);
    void ShowHistory();
    void RunUpdater();

    ProgramState& state() { return state_; }
    frmMenu& panel() { return *panel_; }
    frmMap& map() { return *map_; }

  private:
    bool start();
    bool refuseUnknownCampaign();
    void makeWindows();
    void makeLayers();
    void wirePanel();
    void wireMap();
    DialogContext dialogContext() { return {state_, files_, desktop_, panel_->MenuAlwaysOnTop}; }
    // Modal over the map, or beside the panel.
    void openCapture(int skill, bool fromMap);
    void showWindows();
    void RestoreWindowPlacement();
    void place(const WindowPair& pair);
    void attachMap();
    bool saveOptions();
    void copyPlaces();

    ProgramState state_;
    PlayerFiles files_;
    Desktop& desktop_;
    std::function<void(int)> endProcess_;
    bool ended_ = false;
    bool MapMaximised_ = false;
    // Where the windows were put at start; while they stand there, the remembered values are written back
    // unchanged.
    std::optional<WindowPair> restored_;

    struct Layers;
    std::unique_ptr<frmMenu> panel_; // owns the map window, which owns the legend
    frmMap* map_ = nullptr;
    frmLegenda* legend_ = nullptr;
    std::unique_ptr<Layers> layers_;
};

} // namespace orvinel
