#pragma once

#include "app/ProgramState.h"
#include "base/Desktop.h"
#include "base/Disk.h"
#include "ui/map/InformationWindow.h"
#include "ui/map/MapLayer.h"
#include "ui/map/MapViewport.h"
#include "ui/map/MarkerArt.h"
#include "ui/map/RegionPictures.h"
#include "ui/map/SurfaceCache.h"

#include <QTimer>
#include <QWidget>

#include <functional>
#include <memory>
#include <vector>

namespace orvinel {

class PictureButton;

// The map window: one region picture in a viewport, the layers over it, the information windows, three
// buttons.
class frmMap : public QWidget {
    Q_OBJECT
  public:
    // What the map window works with. All outlive it.
    struct Surroundings {
        const ProgramState& state;
        const Disk& disk;
        Desktop& desktop;
        const int& informationMode; // the panel's MenuRightClickNeeded: 0, 1 or 2
    };
    // The layers in the order in which each chain asks them. None is owned.
    struct Chains {
        std::vector<MapLayer*> drawing;
        std::vector<MapLayer*> mouseOver;
        std::vector<MapLayer*> doubleClick;
    };

    frmMap(Surroundings with, QWidget* owner);
    ~frmMap() override;

    void setChains(Chains chains) { chains_ = std::move(chains); }
    // In the order in which HideInformationWindows hides them.
    void setInformationWindows(std::vector<InformationWindow*> windows) { windows_ = std::move(windows); }
    // Called after each composition.
    std::function<void()> startFlashing = [] {};

    // -1: none.
    int MapCampaign() const { return campaign_; }
    int MapRegion() const { return region_; }
    bool mapLoaded() const { return surface_ != nullptr; }
    bool dragging() const { return dragging_; }
    // For the layers' rules; `zoneIndex`: of the zone chosen in the panel, 0 none.
    MapShown shown(int zoneIndex) const;

    const MarkerArt& art() const { return art_; }
    MapViewport& picMap() { return *viewport_; }
    // Where the last button press on the viewport happened.
    ViewPoint lastPress() const { return last_; }
    MapPoint toMap(ViewPoint point) const { return viewport_->view().toMap(point); }

    // Shows a region's picture, without markers. A missing or broken picture, or region -1, gives the empty
    // map. The region already shown stays as it is.
    void InizializzaVariabili(const QString& picture, int campaign, int region);
    // A picture that is being decoded because it will be shown first.
    void expect(PictureAhead picture) { expected_ = std::move(picture); }
    // To be called when what is seen first has been painted: the rest of an expected picture follows.
    void beginRest();
    void CenterMapOn(int x, int y);
    void DrawEverythingOnMap();
    void UpdateMapWithNewEliteSkills();
    void UpdateMap() { viewport_->update(); }
    void HideInformationWindows();
    bool askMouseOverChain(ViewPoint at);
    // As if the mouse had stopped on the place or been double-clicked there; scrolls it into view.
    void lookAt(MapPoint place);
    void actAt(MapPoint place);

  signals:
    void quitWanted();
    void maximiseWanted();
    void minimiseWanted();
    // The right button was pressed on empty map; screen position.
    void regionMenuWanted(QPoint global);
    void menuKeyPressed();
    void lookKeyPressed();
    void actKeyPressed();
    void insertKeyPressed();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

  private:
    void buildButtons();
    void connectViewport();
    void press(Qt::MouseButton button, Qt::KeyboardModifiers keys, ViewPoint at);
    void moveTo(ViewPoint at, bool leftHeld);
    void endDrag();
    void release(Qt::MouseButton button);
    void doubleClick();
    void scrollBy(int dx, int dy);
    ViewPoint bringIntoView(MapPoint place);
    void sayWhatIsShown();
    void showEmptyMap();
    void prepareGround();
    void prepareNextStep();
    std::unique_ptr<MapSurface> loadRegion(const QString& picture, int campaign, int region);

    Surroundings with_;
    MarkerArt art_;
    SurfaceCache cache_;
    QTimer groundTimer_;
    PictureAhead expected_;
    Chains chains_;
    std::vector<InformationWindow*> windows_;
    MapViewport* viewport_;
    PictureButton* cmdMinimize_ = nullptr;
    PictureButton* cmdMaximize_ = nullptr;
    PictureButton* cmdClose_ = nullptr;

    std::unique_ptr<MapSurface> surface_; // of the region shown; none: the empty map
    QString surfacePath_;
    int campaign_ = 0;
    int region_ = 0;
    bool dragging_ = false;
    bool scrolls_ = false; // since the ground was prepared last
    ViewPoint drag_;       // mouse position minus scroll offset when the drag started
    ViewPoint last_;
    Qt::MouseButton lastButton_ = Qt::NoButton;
};

} // namespace orvinel
