#include "ui/platform/ListBox.h"

#include <QAbstractListModel>
#include <QAccessible>
#include <QKeyEvent>
#include <QMetaMethod>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QTextDocument>
#include <QToolTip>

#include <algorithm>
#include <functional>
#include <utility>

namespace orvinel {

class ListModel : public QAbstractListModel {
  public:
    using QAbstractListModel::QAbstractListModel;

    std::vector<ListEntry> entries;
    std::vector<int> items;
    std::vector<bool> checks; // one for each entry, or none
    std::function<void(int index, bool on)> toggled;
    int extent = 0;

    void replace(std::vector<ListEntry> fresh) {
        beginResetModel();
        entries = std::move(fresh);
        items.clear();
        items.reserve(entries.size());
        for (const ListEntry& entry : entries)
            items.push_back(entry.data);
        checks.clear();
        endResetModel();
    }
    void setChecks(std::vector<bool> states) {
        checks = std::move(states);
        if (!entries.empty())
            emit dataChanged(index(0), index(rowCount() - 1), {Qt::CheckStateRole});
    }
    void setExtent(int pixels) {
        extent = pixels;
        emit layoutChanged();
    }
    int rowCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : static_cast<int>(entries.size());
    }
    QVariant data(const QModelIndex& index, int role) const override {
        if (role == Qt::SizeHintRole)
            return QSize(extent, ListBox::rowHeight);
        const ListEntry& entry = entries[static_cast<size_t>(index.row())];
        if (role == Qt::DisplayRole)
            return entry.text;
        if (role == Qt::CheckStateRole && !checks.empty())
            return checks[static_cast<size_t>(index.row())] ? Qt::Checked : Qt::Unchecked;
        return role == Qt::UserRole ? QVariant(entry.data) : QVariant();
    }
    Qt::ItemFlags flags(const QModelIndex& index) const override {
        const Qt::ItemFlags usual = QAbstractListModel::flags(index);
        return checks.empty() ? usual : usual | Qt::ItemIsUserCheckable;
    }
    // What the view does with a click on a check box and with Space.
    bool setData(const QModelIndex& index, const QVariant& value, int role) override {
        if (role != Qt::CheckStateRole || checks.empty())
            return false;
        const bool on = value.toInt() == Qt::Checked;
        checks[static_cast<size_t>(index.row())] = on;
        emit dataChanged(index, index, {Qt::CheckStateRole});
        toggled(index.row(), on);
        return true;
    }
};

ListBox::ListBox(const QString& name, QWidget* parent) : QListView(parent), model_(new ListModel(this)) {
    setObjectName(name);
    model_->toggled = [this](int index, bool on) { tellToggled(index, on); };
    setModel(model_);
    setUniformItemSizes(true);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setFrameShape(QFrame::Panel);
    setFrameShadow(QFrame::Sunken);
    setLineWidth(frame);
    setTextElideMode(Qt::ElideNone);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    setTabKeyNavigation(false);
}

void ListBox::setEntries(std::vector<ListEntry> entries) {
    silent_ = true;
    model_->replace(std::move(entries));
    setCurrentIndex({});
    silent_ = false;
    ++revision_;
    model_->extent = 0;
}

QRect ListBox::visualRect(const QModelIndex& index) const {
    return isVisible() || scrolling_ ? QListView::visualRect(index) : QRect();
}

void ListBox::scrollTo(const QModelIndex& index, ScrollHint hint) {
    scrolling_ = true;
    QListView::scrollTo(index, hint);
    scrolling_ = false;
}

int ListBox::count() const {
    return model_->rowCount();
}
ListedItems ListBox::items() const {
    return model_->items;
}
int ListBox::selectedIndex() const {
    return selectionModel()->hasSelection() ? currentIndex().row() : -1;
}
const ListEntry& ListBox::selectedEntry() const {
    return entry(selectedIndex());
}
const ListEntry& ListBox::entry(int index) const {
    return model_->entries[static_cast<size_t>(index)];
}

void ListBox::select(int index) {
    silent_ = true;
    setCurrentIndex(index >= 0 && index < count() ? model_->index(index) : QModelIndex());
    if (!currentIndex().isValid())
        clearSelection();
    silent_ = false;
    if (hasSelection())
        emit picked();
}

void ListBox::selectData(int wanted) {
    const auto found = std::find(model_->items.begin(), model_->items.end(), wanted);
    if (found != model_->items.end())
        select(static_cast<int>(found - model_->items.begin()));
}

void ListBox::setChecks(std::vector<bool> checked) {
    model_->setChecks(std::move(checked));
}

bool ListBox::isChecked(int index) const {
    return !model_->checks.empty() && model_->checks[static_cast<size_t>(index)];
}

void ListBox::tellToggled(int index, bool on) {
    QAccessible::State changed;
    changed.checked = true;
    QAccessibleStateChangeEvent told(this, changed);
    told.setChild(index);
    QAccessible::updateAccessibility(&told);
    emit checkToggled(index, on);
}

void ListBox::setHorizontalExtent(int pixels) {
    model_->setExtent(pixels);
}

void ListBox::extendToTexts() {
    constexpr int beyond = 4; // pixels
    int widest = 0;
    for (int row = 0; row < count(); ++row)
        widest = std::max(widest, fontMetrics().horizontalAdvance(entry(row).text));
    setHorizontalExtent(widest + beyond);
}

bool ListBox::isCut(const QModelIndex& index) const {
    const int margin = style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, this) + 1;
    const int box =
        model_->checks.empty() ? 0 : margin + style()->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, this);
    return model_->extent == 0 && index.isValid() &&
           fontMetrics().horizontalAdvance(entry(index.row()).text) + 2 * margin + box > viewport()->width();
}

bool ListBox::viewportEvent(QEvent* event) {
    if (event->type() != QEvent::ToolTip)
        return QListView::viewportEvent(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    const QModelIndex index = indexAt(help->pos());
    // As rich text, which breaks into lines; a plain text would be one line, however long, or be taken for
    // rich text where it holds a "<b>".
    if (isCut(index))
        QToolTip::showText(help->globalPos(), Qt::convertFromPlainText(entry(index.row()).text), viewport(),
                           visualRect(index));
    else
        QToolTip::hideText();
    return true;
}

// What is left below the last whole row belongs to the list's margin: it is not painted as a row and the keys
// scroll the next one into view.
void ListBox::updateGeometries() {
    const QScrollBar& sideways = *horizontalScrollBar();
    const int shown = height() - 2 * frame - (sideways.isVisibleTo(this) ? sideways.sizeHint().height() : 0);
    const int rest = std::max(0, shown) % rowHeight;
    if (rest != belowRows_) {
        belowRows_ = rest;
        setViewportMargins(0, 0, 0, rest);
    }
    QListView::updateGeometries();
}

// The frame, too, tells of the focus: a list without a selection shows it nowhere else.
bool ListBox::event(QEvent* event) {
    bool done = QListView::event(event);
    // Below the last row a press would go on to the panel, which could be dragged there.
    done = done || event->type() == QEvent::MouseButtonPress;
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)
        update();
    if (event->type() == QEvent::Paint) {
        const QRect rows = viewport()->geometry();
        QPainter painter(this);
        painter.fillRect(rows.left(), rows.bottom() + 1, rows.width(), belowRows_,
                         palette().color(viewport()->backgroundRole()));
        if (!hasFocus())
            return done;
        painter.setPen(palette().color(QPalette::Highlight));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
        painter.drawRect(rect().adjusted(1, 1, -2, -2));
    }
    return done;
}

void ListBox::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && hasSelection() && isSignalConnected(QMetaMethod::fromSignal(&ListBox::activatedEntry))) {
        emit activatedEntry();
        return;
    }
    if (event->key() == Qt::Key_Menu)
        emit menuKeyPressed();
    QListView::keyPressEvent(event);
}

void ListBox::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QListView::currentChanged(current, previous);
    if (silent_ || !current.isValid())
        return;
    // The view selects the entry only after telling of the change.
    silent_ = true;
    selectionModel()->select(current, QItemSelectionModel::ClearAndSelect);
    silent_ = false;
    pickedByPress_ = true;
    emit picked();
}

// A screen reader selects an entry without making it the current one. The other ways do both, in an order
// that differs: only afterwards can they be told apart.
void ListBox::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
    QListView::selectionChanged(selected, deselected);
    if (!silent_ && !selected.isEmpty())
        QMetaObject::invokeMethod(this, &ListBox::pickWhatIsSelected, Qt::QueuedConnection);
}

void ListBox::pickWhatIsSelected() {
    const QModelIndexList selected = selectionModel()->selectedIndexes();
    if (!selected.isEmpty() && selected.front() != currentIndex())
        select(selected.front().row());
}

// Ctrl or a click below the last entry would take the selection away: what is shown of it would stay alone.
QItemSelectionModel::SelectionFlags ListBox::selectionCommand(const QModelIndex& index,
                                                              const QEvent* event) const {
    const auto command = QListView::selectionCommand(index, event);
    return index.isValid() && !(command & QItemSelectionModel::Deselect) ? command
                                                                         : QItemSelectionModel::NoUpdate;
}

void ListBox::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton)
        return; // the view would select, and the map move away
    pickedByPress_ = false;
    const bool before = hasSelection();
    const QModelIndex pressed = indexAt(event->position().toPoint());
    QListView::mousePressEvent(event);
    // A press on a check box is not passed on: without this, Space would act on another entry than the click.
    if (pressed.isValid() && pressed != currentIndex())
        setCurrentIndex(pressed);
    if (!pickedByPress_ && pressed.isValid() && pressed == currentIndex()) {
        if (!before)
            selectionModel()->select(pressed, QItemSelectionModel::ClearAndSelect);
        emit picked();
    }
}

void ListBox::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && indexAt(event->position().toPoint()).isValid() && hasSelection())
        emit activatedEntry();
}

} // namespace orvinel
