#pragma once

#include "app/ProgramState.h"
#include "ui/platform/Label.h"

#include <QWidget>

#include <array>

namespace orvinel {

// The panel's three menu words on their light blue ground.
class MenuBar : public QWidget {
    Q_OBJECT
  public:
    explicit MenuBar(QWidget* panel);

    std::array<Label*, 3> lblMenu{};

    void applyCaptions(const ProgramState& state);
    // Marks a word as the open menu's: blue and framed.
    void markOpen(int index);
    void markClosed();

  signals:
    void menuWanted(int index);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QRect frame_; // shaMenuSel; empty: hidden
    int open_ = -1;
};

} // namespace orvinel
