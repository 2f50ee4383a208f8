#pragma once

#include "app/ProgramState.h"
#include "ui/map/MarkerArt.h"
#include "ui/platform/PictureBox.h"
#include "ui/platform/Windows.h"

#include <QWidget>

namespace orvinel {

// The small window that explains the map's markers. Laid out for the professions as they are when it is
// made and drawn when it is first shown; shown, hidden and placed by its owner.
class frmLegenda : public QWidget {
    Q_OBJECT
  public:
    // `owner`: the window that the legend stays above. `state` outlives the legend.
    frmLegenda(const ProgramState& state, QWidget* owner);

  signals:
    // The player has closed the legend, which has hidden itself and keeps its place.
    void closed();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    void DrawLegendTitle();
    void DrawLegend();
    int drawProfessions(Drawing& drawing);
    void dismiss();

    const ProgramState& state_;
    QString title_;
    bool drawn_ = false;
    MarkerArt art_;
    PictureBox* picLegenda_;
    WindowDrag drag_{*this};
};

} // namespace orvinel
