#include "ui/panel/frmPopupMenu.h"

#include "app/ProgramState.h"
#include "base/Colour.h"
#include "ui/platform/Drawing.h"
#include "ui/platform/Fonts.h"
#include "ui/platform/Palette.h"
#include "ui/platform/SpokenRole.h"
#include "ui/platform/Windows.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScreen>

#include <algorithm>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

// Pixels.
constexpr int rowHeight = 19;
constexpr int margin = 6;
constexpr int indentStep = 20;
constexpr QSize boxSize(13, 14);
constexpr int boxGap = 4;
constexpr int highlightMargin = 3;
constexpr QPoint belowLabel(-1, 2);
constexpr int labelFrame = 8; // how much wider the frame of the open label is
constexpr int holeTop = -6;
constexpr int holeHeight = 14;

constexpr Colour highlightBlue = 0xFF4040;

constexpr const char* tag = "Tag";

QFrame* outline(const QString& name, Colour colour, QWidget* parent) {
    auto* frame = new QFrame(parent);
    frame->setObjectName(name);
    frame->setFrameStyle(QFrame::Box | QFrame::Plain);
    frame->setAttribute(Qt::WA_TransparentForMouseEvents);
    QPalette colours = frame->palette();
    colours.setColor(QPalette::WindowText, toQColor(colour));
    frame->setPalette(colours);
    return frame;
}

QWidget* patch(const QString& name, Colour colour, QWidget* parent) {
    auto* widget = new QWidget(parent);
    widget->setObjectName(name);
    widget->setAttribute(Qt::WA_TransparentForMouseEvents);
    widget->setAutoFillBackground(true);
    widget->setPalette(QPalette(toQColor(colour)));
    return widget;
}

// Exactly `count` elements; what is too much goes when its last event is over.
template <typename Control, typename Make>
void setCount(std::vector<Control*>& pool, int count, const Make& make) {
    while (static_cast<int>(pool.size()) < count)
        pool.push_back(make(static_cast<int>(pool.size())));
    for (; static_cast<int>(pool.size()) > count; pool.pop_back()) {
        pool.back()->hide();
        pool.back()->setObjectName(QString());
        pool.back()->deleteLater();
    }
}

} // namespace

frmPopupMenu::frmPopupMenu(const ProgramState& state, QWidget* panel)
    : QWidget(panel, Qt::Popup | Qt::FramelessWindowHint), Menus(popupMenus(state)),
      shaSelection(outline(u"shaSelection"_s, highlightBlue, this)),
      shaBorder(outline(u"shaBorder"_s, darkGrey, this)),
      lblFalseHole(patch(u"lblFalseHole"_s, barBlue, this)) {
    setObjectName(u"frmPopupMenu"_s);
    setCursor(programCursor(Pointer::Usual));
    setFont(arial(points8_25));
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    shaSelection->hide();
}

void frmPopupMenu::SetValue(int menu, int entryNumber, int value) {
    if (menu < 0 || menu >= static_cast<int>(Menus.size()))
        return;
    auto& entries = Menus[static_cast<size_t>(menu)].Entries;
    if (entryNumber >= 0 && entryNumber < static_cast<int>(entries.size()))
        entries[static_cast<size_t>(entryNumber)].Value = value;
}

void frmPopupMenu::OpenMenu(int menu, const Label& label) {
    if (menu < 0 || menu >= static_cast<int>(Menus.size()))
        return;
    hide();
    MenuInputReady = false;
    shaSelection->hide();
    HoverEntry = -1;
    OpenMenuId = menu;
    setAccessibleName(label.text());
    makePools();
    int widest = 0;
    for (int e = 0; e < shown().EntryCount; ++e)
        widest = std::max(widest, placeRow(e));
    // A row is chosen anywhere in its width, not just on its letters.
    for (MenuCaption* caption : lblEntry)
        caption->resize(widest - caption->x(), caption->height());
    placeFrames(widest, label.width());
    labelPlace_ = QRect(label.mapToGlobal(QPoint(0, 0)), label.size());
    const QRect screen = label.screen()->geometry();
    const QPoint wanted = labelPlace_.topLeft() + QPoint(0, label.height()) + belowLabel;
    move(std::max(std::min(wanted.x(), screen.right() + 1 - width()), screen.left()),
         std::max(std::min(wanted.y(), screen.bottom() + 1 - height()), screen.top()));
    emit opened(menu);
    show();
    setFocus();
    MenuInputReady = true;
}

void frmPopupMenu::makePools() {
    const MenuDefinition& menu = shown();
    setCount(lblEntry, menu.EntryCount, [this](int i) {
        auto* label = new MenuCaption(u"lblEntry(%1)"_s.arg(i), this);
        connect(label, &Label::clicked, this, [this, label] { choose(label->property(tag).toInt()); });
        watch(*label);
        return label;
    });
    const auto makeBox = [this](QAbstractButton* box, const QString& name) {
        box->setObjectName(name);
        const auto chooseRow = [this, box] { choose(box->property(tag).toInt()); };
        connect(box, &QAbstractButton::clicked, this, chooseRow);
        // Screen readers toggle the box without a click. An option that goes out has not been chosen.
        connect(box, &QAbstractButton::toggled, this, [box, chooseRow](bool on) {
            if (on || !box->autoExclusive())
                chooseRow();
        });
        watch(*box);
    };
    setCount(chkEntry, menu.CheckCount, [&](int i) {
        auto* box = new QCheckBox(this);
        makeBox(box, u"chkEntry(%1)"_s.arg(i));
        return box;
    });
    setCount(optEntry, menu.OptionCount, [&](int i) {
        auto* box = new QRadioButton(this);
        makeBox(box, u"optEntry(%1)"_s.arg(i));
        return box;
    });
    setCount(linEntry, menu.LineCount, [this](int i) {
        QWidget* line = patch(u"linEntry(%1)"_s.arg(i), darkGrey, this);
        setSpokenRole(*line, QAccessible::Separator);
        return line;
    });
}

void frmPopupMenu::watch(QWidget& control) {
    control.setMouseTracking(true);
    control.installEventFilter(this);
}

// Returns where the row's text ends.
int frmPopupMenu::placeRow(int e) {
    const MenuEntry& row = entry(e);
    MenuCaption& label = *lblEntry[static_cast<size_t>(e)];
    const auto kindIndex = static_cast<size_t>(row.KindIndex);
    const int middle = rowHeight * (e + 1);
    label.setVisible(row.Kind != MenuKind::Separator);
    label.setCommand(row.Kind == MenuKind::Command && row.Enabled);
    if (row.Kind == MenuKind::Separator) {
        linEntry[kindIndex]->setGeometry(margin, middle, 0, 1);
        return 0;
    }
    label.setProperty(tag, QString::number(e));
    label.setCaption(row.Caption);
    label.raise();
    const int left = margin + indentStep * row.Indent;
    if (row.Kind == MenuKind::Command) {
        label.move(left, middle - label.height() / 2);
        return label.x() + label.width();
    }
    QAbstractButton& box = row.Kind == MenuKind::Check ? static_cast<QAbstractButton&>(*chkEntry[kindIndex])
                                                       : *optEntry[kindIndex];
    box.setGeometry(QRect(QPoint(left, middle - boxSize.height() / 2), boxSize));
    placeBox(box, row, e);
    label.move(left + boxSize.width() + boxGap, box.y());
    return label.x() + label.width();
}

void frmPopupMenu::placeBox(QAbstractButton& box, const MenuEntry& row, int e) {
    box.setProperty(tag, QString::number(e));
    box.setAccessibleName(row.Caption);
    // An option button that excludes the others could not be switched off.
    box.setAutoExclusive(false);
    box.setChecked(row.Value == 1);
    box.setAutoExclusive(row.Kind == MenuKind::Option);
    box.raise();
    box.show();
}

void frmPopupMenu::placeFrames(int widest, int labelWidth) {
    for (QWidget* line : linEntry) {
        line->resize(widest - margin, 1);
        line->show();
    }
    setFixedSize(widest + margin, (shown().EntryCount + 1) * rowHeight);
    shaBorder->setGeometry(rect());
    shaSelection->resize(width(), rowHeight);
    lblFalseHole->setGeometry(1, holeTop, labelWidth + labelFrame - 2, holeHeight);
    lblFalseHole->raise();
}

QWidget* frmPopupMenu::row(int e) const {
    const auto kindIndex = static_cast<size_t>(entry(e).KindIndex);
    switch (entry(e).Kind) {
    case MenuKind::Check:
        return chkEntry[kindIndex];
    case MenuKind::Option:
        return optEntry[kindIndex];
    case MenuKind::Separator:
        return linEntry[kindIndex];
    default:
        return lblEntry[static_cast<size_t>(e)];
    }
}

QList<QWidget*> frmPopupMenu::rows() const {
    QList<QWidget*> all;
    for (int e = 0; e < static_cast<int>(lblEntry.size()); ++e) // none before the first opening
        all << row(e);
    return all;
}

void frmPopupMenu::highlight(int e) {
    if (e == HoverEntry)
        return;
    HoverEntry = e;
    const bool visible = e >= 0 && entry(e).Enabled;
    shaSelection->setVisible(visible);
    if (!visible) {
        setFocus();
        return;
    }
    const MenuCaption& label = *lblEntry[static_cast<size_t>(e)];
    shaSelection->setGeometry(label.x() - highlightMargin, label.y() - highlightMargin,
                              label.width() + 2 * highlightMargin, rowHeight);
    shaSelection->lower();
    row(e)->setFocus();
}

void frmPopupMenu::highlightFirst() {
    step(-1, 1);
}

// To the next enabled entry after `from`, downwards (1) or upwards (-1), round the ends.
void frmPopupMenu::step(int from, int direction) {
    const int count = shown().EntryCount;
    int e = from;
    for (int tried = 0; tried < count; ++tried) {
        e = (e + direction + count) % count;
        if (entry(e).Enabled) {
            highlight(e);
            return;
        }
    }
}

void frmPopupMenu::jumpTo(const QString& typed) {
    const int count = shown().EntryCount;
    for (int ahead = 1; ahead <= count; ++ahead) {
        const int e = (HoverEntry + ahead) % count;
        if (entry(e).Enabled && entry(e).Caption.startsWith(typed, Qt::CaseInsensitive)) {
            highlight(e);
            return;
        }
    }
}

void frmPopupMenu::switchTo(int menu) {
    emit switchWanted(menu);
    if (isVisible())
        highlightFirst();
}

void frmPopupMenu::choose(int e) {
    if (!MenuInputReady || e < 0 || !entry(e).Enabled)
        return;
    hide();
    if (OnMenuEntryClick)
        OnMenuEntryClick(OpenMenuId, e);
}

bool frmPopupMenu::eventFilter(QObject* watched, QEvent* event) {
    // Neither goes on to the control: a move would reach the background, a key would move the focus.
    if (event->type() == QEvent::MouseMove) {
        highlight(watched->property(tag).toInt());
        return true;
    }
    if (event->type() == QEvent::KeyPress) {
        keyPressEvent(static_cast<QKeyEvent*>(event));
        return true;
    }
    return false;
}

void frmPopupMenu::keyPressEvent(QKeyEvent* event) {
    const int menus = static_cast<int>(Menus.size());
    switch (event->key()) {
    case Qt::Key_Down:
    case Qt::Key_Tab:
        return step(HoverEntry, 1);
    case Qt::Key_Up:
    case Qt::Key_Backtab:
        return step(std::max(HoverEntry, 0), -1);
    case Qt::Key_Home:
        return step(-1, 1);
    case Qt::Key_End:
        return step(0, -1);
    case Qt::Key_Left:
        return switchTo((OpenMenuId + menus - 1) % menus);
    case Qt::Key_Right:
        return switchTo((OpenMenuId + 1) % menus);
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        return choose(HoverEntry);
    case Qt::Key_Escape:
    case Qt::Key_F10:
    case Qt::Key_Alt:
        hide();
        return;
    default:
        if (!event->text().isEmpty() && event->text().front().isLetterOrNumber())
            jumpTo(event->text());
    }
}

void frmPopupMenu::mouseMoveEvent(QMouseEvent*) {
    highlight(-1);
}

void frmPopupMenu::mousePressEvent(QMouseEvent* event) {
    // A press on the open label closes the menu; handed on, it would open it again. On another one it opens
    // that menu at once: not every system hands on a press that closes a popup.
    const QPoint at = event->globalPosition().toPoint();
    const bool onLabel = labelPlace_.contains(at);
    auto* word = onLabel || frameGeometry().contains(at)
                     ? nullptr
                     : qobject_cast<MenuCaption*>(QApplication::widgetAt(at));
    setAttribute(Qt::WA_NoMouseReplay, onLabel || word);
    QWidget::mousePressEvent(event);
    if (word)
        emit word->clicked();
}

void frmPopupMenu::hideEvent(QHideEvent* event) {
    QWidget::hideEvent(event);
    if (!MenuInputReady)
        return;
    MenuInputReady = false;
    shaSelection->hide();
    HoverEntry = -1;
    emit closed(OpenMenuId);
}

} // namespace orvinel
