#pragma once

#include "base/Listing.h"

#include <QComboBox>

#include <vector>

namespace orvinel {

// A drop-down list whose entries carry item data. Choosing an entry, by the player or with select(), emits
// picked() exactly once, also when it was selected before.
class ItemCombo : public QComboBox {
    Q_OBJECT
  public:
    ItemCombo(const QString& name, QWidget* parent);

    // Nothing is selected afterwards; no picked() is emitted.
    void setEntries(const std::vector<ListEntry>& entries);
    // Out of range: nothing is selected.
    void select(int index);
    // Of the selected entry; `none` without a selection.
    int data(int none = 0) const;
    // How many rows the drop-down list shows; -1: all.
    void setDropRows(int rows);
    void showPopup() override;

  signals:
    void picked();

  protected:
    void wheelEvent(QWheelEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void pickWhatIsSelected();
    void widenPopup();
};

} // namespace orvinel
