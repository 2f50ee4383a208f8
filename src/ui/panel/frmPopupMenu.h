#pragma once

#include "ui/panel/MenuCaption.h"
#include "ui/panel/PopupMenus.h"

#include <QCheckBox>
#include <QFrame>
#include <QRadioButton>
#include <QWidget>

#include <functional>
#include <vector>

namespace orvinel {

// The panel's drop-down menus: one window that shows one of them at a time, below its label. It closes when
// an entry is chosen, at Escape and at a click anywhere else.
class frmPopupMenu : public QWidget {
    Q_OBJECT
  public:
    frmPopupMenu(const ProgramState& state, QWidget* panel);

    // What choosing an enabled entry does; the menu is hidden by then.
    std::function<void(int menu, int entry)> OnMenuEntryClick;

    // Builds menu 0..2 and shows it below `label`. Nothing happens with another number.
    void OpenMenu(int menu, const Label& label);
    // Shown at the next opening. Nothing happens with an entry that does not exist.
    void SetValue(int menu, int entry, int value);
    // Highlights the first entry that can be chosen: where the keyboard starts.
    void highlightFirst();

    // What stands for each entry to the keyboard and to screen readers: a box, a separator or the text.
    QList<QWidget*> rows() const;
    // -1: none.
    int hoverEntry() const { return HoverEntry; }
    const MenuTable& menus() const { return Menus; }

  signals:
    // Label `menu` is to be shown as open.
    void opened(int menu);
    // Label `menu` is to be shown as usual.
    void closed(int menu);
    // Left or Right was pressed: the panel is to open that menu, with fresh values.
    void switchWanted(int menu);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void hideEvent(QHideEvent* event) override;

  private:
    const MenuDefinition& shown() const { return Menus[static_cast<size_t>(OpenMenuId)]; }
    const MenuEntry& entry(int e) const { return shown().Entries[static_cast<size_t>(e)]; }
    void makePools();
    void watch(QWidget& control);
    int placeRow(int e);
    void placeBox(QAbstractButton& box, const MenuEntry& row, int e);
    void placeFrames(int widest, int labelWidth);
    QWidget* row(int e) const;
    void highlight(int e);
    void step(int from, int direction);
    void jumpTo(const QString& typed);
    void switchTo(int menu);
    void choose(int e);

    MenuTable Menus;
    int OpenMenuId = 0;
    int HoverEntry = -1;
    bool MenuInputReady = false;
    QRect labelPlace_; // of the label below which the menu is open, pixels of the screen

    std::vector<MenuCaption*> lblEntry;
    std::vector<QCheckBox*> chkEntry;
    std::vector<QRadioButton*> optEntry;
    std::vector<QWidget*> linEntry;
    QFrame* shaSelection;
    QFrame* shaBorder;
    QWidget* lblFalseHole;
};

} // namespace orvinel
