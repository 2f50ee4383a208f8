#include "ui/platform/ItemCombo.h"

#include <QAbstractItemView>
#include <QSignalBlocker>
#include <QWheelEvent>

#include <algorithm>

namespace orvinel {

namespace {

constexpr int usualRows = 20;

} // namespace

ItemCombo::ItemCombo(const QString& name, QWidget* parent) : QComboBox(parent) {
    setObjectName(name);
    setDropRows(usualRows);
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(1);
    connect(this, &QComboBox::activated, this, &ItemCombo::picked);
}

void ItemCombo::setEntries(const std::vector<ListEntry>& entries) {
    const QSignalBlocker quiet(this);
    clear();
    for (const ListEntry& entry : entries)
        addItem(entry.text, entry.data);
    setCurrentIndex(-1);
}

void ItemCombo::select(int index) {
    {
        const QSignalBlocker quiet(this);
        setCurrentIndex(index >= 0 && index < count() ? index : -1);
    }
    emit picked();
}

int ItemCombo::data(int none) const {
    return currentIndex() < 0 ? none : currentData().toInt();
}

void ItemCombo::setDropRows(int rows) {
    setMaxVisibleItems(std::max(1, rows < 0 ? count() : rows));
}

void ItemCombo::showPopup() {
    view()->setAccessibleName(accessibleName());
    connect(view()->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &ItemCombo::pickWhatIsSelected, Qt::ConnectionType(Qt::QueuedConnection | Qt::UniqueConnection));
    QComboBox::showPopup();
}

// A screen reader selects a row without making it the current one, as mouse and keys do.
void ItemCombo::pickWhatIsSelected() {
    const QModelIndexList selected = view()->selectionModel()->selectedIndexes();
    if (!view()->isVisible() || selected.isEmpty() || selected.front() == view()->currentIndex())
        return;
    hidePopup();
    select(selected.front().row());
}

void ItemCombo::wheelEvent(QWheelEvent* event) {
    // Scrolling past must not change the selection: the wheel works on the focused list only.
    if (hasFocus())
        QComboBox::wheelEvent(event);
    else
        event->ignore();
}

} // namespace orvinel
