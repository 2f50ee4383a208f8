#pragma once

#include "app/ProgramState.h"
#include "base/Desktop.h"
#include "layers/modGreenies.h"
#include "layers/modNotes.h"
#include "ui/panel/CollectorsPage.h"
#include "ui/panel/ElitePage.h"
#include "ui/panel/MenuBar.h"
#include "ui/panel/OtherPages.h"
#include "ui/panel/SelectionArea.h"
#include "ui/panel/TabStrip.h"
#include "ui/platform/ListedLayer.h"
#include "ui/platform/Windows.h"

#include <QAbstractButton>
#include <QWidget>

#include <functional>
#include <vector>

namespace orvinel {

// The first of the listed layers, by name: those that the panel filters without the others.
enum class Filter { Elites, Collectors, Greens, Notes };

// What the panel calls; wired by the program.
struct PanelHooks {
    // In the order in which a change filters them, those of Filter first; they outlive the panel's use.
    std::vector<ListedLayer*> layers;
    // Shows a region on the map; an empty path and -1, -1 show none.
    std::function<void(const QString& picture, int campaign, int region)> showRegion;
    std::function<void()> updateMap; // UpdateMapWithNewEliteSkills
    std::function<void()> drawMap;   // DrawEverythingOnMap
    std::function<void(Tab tab, bool on)> switchFlashing;
    std::function<void(int menu)> openMenu;
    std::function<void()> quit;
    std::function<bool()> maximised; // the pair of windows fills the screen
};

// The control panel.
class frmMenu : public QWidget {
    Q_OBJECT
  public:
    frmMenu(const ProgramState& state, Desktop& desktop);

    // The load sequence: captions, lists, the remembered selection, colours, first tab. Once, after setHooks.
    void Form_Load();
    void setHooks(PanelHooks hooks) { hooks_ = std::move(hooks); }

    int MenuRightClickNeeded = 1; // information-window mode 0, 1 or 2
    int MenuLegendShown = 0;
    int MenuAlwaysOnTop = 0;
    bool MenuReady = false; // off: no filter does anything

    SelectionArea& selection() { return *selection_; }
    TabStrip& tabs() { return *tabs_; }
    MenuBar& menuBar() { return *menuBar_; }
    ElitePage& elitePage() { return *elitePage_; }
    CollectorsPage& collectorsPage() { return *collectorsPage_; }
    GreensPage& greensPage() { return *greensPage_; }
    NotesPage& notesPage() { return *notesPage_; }
    VariousPage& variousPage() { return *variousPage_; }

    // The only readers of the controls for the filters.
    EliteChoice eliteChoice() const;
    CollectorChoice collectorChoice() const;
    GreenChoice greenChoice() const;
    NoteChoice noteChoice() const;
    // True when the layer's check box has the value 1.
    bool layerShown(Tab tab) const { return tabs_->chkShowObject[indexOf(tab)]->value() == 1; }

    // The protocol of every layer filter. `caption`: the text that stands before ": count".
    struct Refill {
        ListBox& list;
        Label& label;
        Caption caption;
        std::function<std::vector<ListEntry>()> entries;
    };
    void runFilter(const Refill& refill, bool updateMap);

    // Has the map show the region; the lists are filled once, for the region chosen in the end.
    void chooseRegion(int campaign, int region);
    // Fills cmbCharacter anew after the characters changed; the first entry is selected.
    void FillCharacterList();
    // The selection and options as they stand, into those that are saved.
    void readOptions(Options& options) const;

  signals:
    // The panel was moved, or its background pressed: the map is to be attached again.
    void attachMap();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

  private:
    void ApplyPanelCaptions();
    void ApplyTabColours();
    void RefillPanel();
    void ApplyOptionsToPanel();
    void connectSelection();
    void connectElitePage();
    void connectCollectorsPage();
    void connectOtherPages();
    void orderTabStops();
    // Run in order; the last one updates the map.
    void runFilters(size_t first, size_t last);
    void runFilters(Filter first, Filter last) { runFilters(size_t(first), size_t(last)); }
    void runAllFilters() { runFilters(0, hooks_.layers.size() - 1); }
    void campaignPicked();
    void regionPicked();
    void zonePicked();
    void professionPicked();
    void collectorTypePicked(int index);
    void layerSwitched(Tab tab);

    const ProgramState& state_;
    Desktop& desktop_;
    PanelHooks hooks_;
    WindowDrag drag_;
    QAbstractButton* cmdQuit_;
    MenuBar* menuBar_;
    SelectionArea* selection_;
    ElitePage* elitePage_;
    CollectorsPage* collectorsPage_;
    GreensPage* greensPage_;
    NotesPage* notesPage_;
    VariousPage* variousPage_;
    TabStrip* tabs_;
};

} // namespace orvinel
