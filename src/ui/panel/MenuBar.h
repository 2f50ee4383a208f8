#pragma once

#include "app/ProgramState.h"
#include "ui/panel/MenuCaption.h"

#include <QWidget>

#include <array>

namespace orvinel {

// The panel's three menu words on their light blue ground.
class MenuBar : public QWidget {
    Q_OBJECT
  public:
    explicit MenuBar(QWidget* panel);

    std::array<MenuCaption*, 3> lblMenu{};

    void applyCaptions(const ProgramState& state);
    // Marks a word as the open menu's: blue and framed.
    void markOpen(int index);
    void markClosed();

  signals:
    void menuWanted(int index);
    // The same by a key: an entry of the menu is to be highlighted at once.
    void menuWantedByKey(int index);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    void frame(const Label& word);
    bool keyOnWord(int index, int key);

    QRect frame_; // shaMenuSel; empty: hidden
    int open_ = -1;
};

} // namespace orvinel
