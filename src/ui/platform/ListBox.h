#pragma once

#include "base/Listing.h"

#include <QListView>

#include <vector>

namespace orvinel {

class ListModel;

// A list of texts with item data. Selecting an entry, by the player or by code, emits picked(); so does a
// click on the entry that is selected already. Only whole rows are shown, whatever the list's height; where a
// text is cut off and cannot be scrolled sideways, resting the mouse on it shows it whole.
class ListBox : public QListView {
    Q_OBJECT
  public:
    ListBox(const QString& name, QWidget* parent);

    static constexpr int rowHeight = 14; // pixels
    static constexpr int frame = 2;      // pixels on each side
    // The largest height that shows whole lines only and is at most `height`.
    static constexpr int wholeLines(int height) {
        return (height - 2 * frame) / rowHeight * rowHeight + 2 * frame;
    }

    // Nothing is selected afterwards; no picked() is emitted.
    void setEntries(std::vector<ListEntry> entries);
    void clear() { setEntries({}); }
    int count() const;
    // The data of all entries, in order; valid until the entries change.
    ListedItems items() const;
    // Grows by one whenever the entries change: what depends on them can tell that it is stale.
    int revision() const { return revision_; }

    // -1: none.
    int selectedIndex() const;
    // The text and data of the selected entry; only with a selection.
    const ListEntry& selectedEntry() const;
    bool hasSelection() const { return selectedIndex() >= 0; }
    const ListEntry& entry(int index) const;

    // Selects (and scrolls to) an entry and emits picked(), or clears the selection with -1.
    void select(int index);
    // Selects the first entry with that data, if there is one.
    void selectData(int wanted);

    // Gives each entry a check box, which the player toggles by a click on it or by Space. One state for each
    // entry; none at all takes the boxes away, as new entries do.
    void setChecks(std::vector<bool> checked);
    // False without check boxes.
    bool isChecked(int index) const;

    // Pixels that can be scrolled into view sideways; 0: as wide as the list.
    void setHorizontalExtent(int pixels);
    // Lets the widest text be scrolled into view.
    void extendToTexts();

    // Nothing while the list is not to be seen: so a screen reader does not hear its rows as shown.
    QRect visualRect(const QModelIndex& index) const override;
    void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;

  signals:
    void picked();
    // Double click, or Enter on the selected entry. While nobody listens, Enter is left to the window.
    void activatedEntry();
    // By the player only.
    void checkToggled(int index, bool on);
    void menuKeyPressed();

  protected:
    bool event(QEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void updateGeometries() override;
    void keyPressEvent(QKeyEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* event) const override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

  private:
    void tellToggled(int index, bool on);
    bool isCut(const QModelIndex& index) const;
    void pickWhatIsSelected();

    ListModel* model_;
    int revision_ = 0;
    int belowRows_ = 0; // pixels between the last whole row and the frame
    bool silent_ = false;
    bool scrolling_ = false;
    bool pickedByPress_ = false;
};

} // namespace orvinel
