#pragma once

#include "app/ProgramDialogs.h"
#include "app/ProgramKeys.h"
#include "app/ProgramLayers.h"
#include "app/ProgramMenus.h"
#include "app/ProgramState.h"
#include "app/WindowPlaces.h"
#include "base/Desktop.h"
#include "base/PlayerFiles.h"
#include "ui/dialogs/frmFAKE.h"
#include "ui/dialogs/frmLegenda.h"
#include "ui/map/Flashing.h"
#include "ui/map/MapMenus.h"
#include "ui/map/frmMap.h"
#include "ui/panel/frmMenu.h"
#include "ui/panel/frmPopupMenu.h"
#include "ui/platform/OneWindow.h"

#include <functional>
#include <memory>

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
    // Writes the options when nobody is there to be asked: what cannot be written stays as it was.
    void saveUnasked();
    // Ends as QuitProgram does, but asks nothing: the system wants it.
    void endUnasked();
    void OpenWithShell(const QString& target);
    void ShowHistory();
    // The guide, and the page about what lies beside the program (guide, progress, atlas, backup): both come
    // with it (Opening.h).
    void showGuide();
    void showStartPage();
    void RunUpdater();

    ProgramState& state() { return state_; }
    frmMenu& panel() { return *panel_; }
    frmMap& map() { return *map_; }
    WindowPlaces& places() { return *places_; }
    // Makes panel and map one window, where the desktop does not let them be placed; for good.
    void joinWindows();
    OneWindow* joined() { return joined_.get(); } // nullptr: they are two

  private:
    bool start();
    bool refuseUnknownCampaign();
    void makeWindows();
    void makeLayers();
    void wirePanel();
    void wireMap();
    ProgramMenus::Actions menuActions();
    void showWindows();
    void gatherOptions();
    bool saveOptions();

    ProgramState state_;
    PlayerFiles files_;
    Desktop& desktop_;
    std::function<void(int)> endProcess_;
    bool ended_ = false;
    std::unique_ptr<frmMenu> panel_; // owns the map window, which owns the legend
    frmMap* map_ = nullptr;
    frmLegenda* legend_ = nullptr;
    frmPopupMenu* popupMenu_ = nullptr;
    std::unique_ptr<WindowPlaces> places_;
    std::unique_ptr<frmFAKE> taskBar_; // while panel and map are two windows
    std::unique_ptr<ProgramLayers> layers_;
    std::unique_ptr<MapMenus> mapMenus_;
    std::unique_ptr<Flashing> flashing_;
    std::unique_ptr<ProgramDialogs> dialogs_;
    std::unique_ptr<ProgramMenus> menus_;
    std::unique_ptr<ProgramKeys> keys_;
    std::unique_ptr<OneWindow> joined_; // gives panel and map back when it ends
};

} // namespace orvinel
