#include "ui/platform/ItemCombo.h"

#include <QAbstractItemView>
#include <QScreen>
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
    widenPopup();
    QComboBox::showPopup();
}

// As wide as its texts, but not wider than the screen, over whose edge it does not hang.
void ItemCombo::widenPopup() {
    const QRect free = screen()->availableGeometry();
    const bool scrolls = count() > maxVisibleItems();
    const int bar = scrolls ? style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this) : 0;
    const int frame = 2 * view()->frameWidth();
    const int texts = view()->sizeHintForColumn(0) + bar + frame;
    view()->setMinimumWidth(texts > width() ? std::min(texts, free.width()) : 0);
    QWidget* popup = view()->window();
    popup->installEventFilter(this);
}

bool ItemCombo::eventFilter(QObject* watched, QEvent* event) {
    auto* popup = qobject_cast<QWidget*>(watched);
    if (popup == view()->window() && event->type() == QEvent::Show) {
        const QRect free = screen()->availableGeometry();
        popup->move(std::max(free.left(), std::min(popup->x(), free.right() + 1 - popup->width())),
                    popup->y());
    }
    return QComboBox::eventFilter(watched, event);
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
