#include "ui/panel/MenuBar.h"

#include "ui/panel/Controls.h"
#include "ui/platform/Drawing.h"
#include "ui/platform/Fonts.h"
#include "ui/platform/Palette.h"

#include <QKeyEvent>

#include <algorithm>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QRect barPlace(0, 17, 221, 19);
constexpr QRect framePlace(40, 0, 53, 18);
constexpr std::array<QPoint, 3> wordPlaces = {QPoint(6, 1), QPoint(46, 1), QPoint(98, 1)};

} // namespace

MenuBar::MenuBar(QWidget* panel) : QWidget(panel) {
    setObjectName(u"Shape1"_s);
    setGeometry(barPlace);
    for (size_t i = 0; i < lblMenu.size(); ++i) {
        const int index = static_cast<int>(i);
        lblMenu[i] = new MenuCaption(arrayName(u"lblMenu"_s, index), this);
        lblMenu[i]->setFocusPolicy(Qt::TabFocus);
        lblMenu[i]->installEventFilter(this);
        lblMenu[i]->setFont(arial(points8_25));
        lblMenu[i]->move(wordPlaces[i]);
        connect(lblMenu[i], &Label::pressed, this, [this, i] { lblMenu[i]->setColour(titleBlue); });
        connect(lblMenu[i], &Label::released, this, [this, i, index] {
            if (open_ != index)
                lblMenu[i]->setColour(0);
        });
        connect(lblMenu[i], &Label::clicked, this, [this, index] { emit menuWanted(index); });
    }
}

void MenuBar::applyCaptions(const ProgramState& state) {
    for (size_t i = 0; i < lblMenu.size(); ++i)
        lblMenu[i]->setCaption(state.text(std::array{Caption::View, Caption::Options, Caption::Help}[i]));
}

void MenuBar::markOpen(int index) {
    markClosed();
    open_ = index;
    Label& word = *lblMenu[static_cast<size_t>(index)];
    word.setColour(titleBlue);
    frame(word);
}

void MenuBar::frame(const Label& word) {
    frame_ = QRect(word.x() - 4, framePlace.y(), word.width() + 8, framePlace.height());
    update();
}

bool MenuBar::eventFilter(QObject* watched, QEvent* event) {
    const auto word = std::find(lblMenu.begin(), lblMenu.end(), watched);
    if (word == lblMenu.end())
        return false;
    if (event->type() == QEvent::KeyPress)
        return keyOnWord(static_cast<int>(word - lblMenu.begin()), static_cast<QKeyEvent*>(event)->key());
    if (event->type() == QEvent::FocusIn) {
        frame(**word);
    } else if (event->type() == QEvent::FocusOut && open_ < 0) {
        frame_ = {};
        update();
    }
    return false;
}

bool MenuBar::keyOnWord(int index, int key) {
    const int count = static_cast<int>(lblMenu.size());
    switch (key) {
    case Qt::Key_Left:
    case Qt::Key_Right:
        lblMenu[size_t(index + (key == Qt::Key_Left ? count - 1 : 1)) % lblMenu.size()]->setFocus(
            Qt::TabFocusReason);
        return true;
    case Qt::Key_Down:
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        emit menuWantedByKey(index);
        return true;
    default:
        return false;
    }
}

void MenuBar::markClosed() {
    for (Label* word : lblMenu)
        word->setColour(0);
    open_ = -1;
    frame_ = {};
    update();
}

void MenuBar::paintEvent(QPaintEvent*) {
    Drawing drawing(this);
    drawing.filledBox(0, 0, width() - 1, height() - 1, barBlue);
    drawing.line(0, 17, 216, 17, darkGrey);
    if (!frame_.isEmpty())
        drawing.outline(frame_.left(), frame_.top(), frame_.right(), frame_.bottom(), darkGrey);
}

} // namespace orvinel
