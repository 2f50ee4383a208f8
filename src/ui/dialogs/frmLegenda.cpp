#include "ui/dialogs/frmLegenda.h"

#include "ui/platform/Fonts.h"
#include "ui/platform/Palette.h"
#include "ui/platform/PictureButton.h"
#include "ui/platform/SpokenRole.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QStringList>

#include <array>
#include <utility>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

// Pixels of the window.
constexpr int clientWidth = 221;
constexpr int bandHeight = 16;
constexpr QRect closePlace(206, 1, 15, 15);
constexpr QPoint picturePlace(2, 21);
constexpr int pictureWidth = 217;
constexpr int bottomMargin = 2;

// Pixels of picLegenda.
constexpr int pitch = 14;
constexpr int firstColumn = 2;
constexpr int professionsTop = 2;
constexpr int rowsTop = 6;
constexpr int boxSize = 10;
constexpr int textIndent = 15;
constexpr int codeLeft = 4;
constexpr int greenTextShift = 14;

constexpr Caption legendCaption = Caption::Legend;
constexpr Caption closeCaption = Caption::CloseWindow;
constexpr Colour lightGrey = 0xF0F0F0;

enum class Symbol { Code, NoBoss, Green, Picture };

struct LegendRow {
    const char* Code;
    Caption text;
    int OffsetY;
    Symbol symbol;
    Sprite sprite;
    int spriteShift; // pixels to the right of the column
};

constexpr std::array<LegendRow, 12> legendRows = {{
    {"?", Caption::PlaceUncertain, 0, Symbol::Code, Sprite::Count, 0},
    {"1", Caption::AppearsOnce, 0, Symbol::Code, Sprite::Count, 0},
    {"a", Caption::OneOfSeveralPlaces, 0, Symbol::Code, Sprite::Count, 0},
    {"P", Caption::WalksPatrol, 0, Symbol::Code, Sprite::Count, 0},
    {"C", Caption::InChallenge, 0, Symbol::Code, Sprite::Count, 0},
    {"D", Caption::InDungeon, 0, Symbol::Code, Sprite::Count, 0},
    {"noBoss", Caption::BossWithoutSkill, 0, Symbol::NoBoss, Sprite::Count, 0},
    {"Green", Caption::BossWithGreenItem, 3, Symbol::Green, Sprite::GreenMarker, 11},
    {"Coll1", Caption::WeaponsAndTools, 6, Symbol::Picture, Sprite::CollArmi, 1},
    {"Coll2", Caption::Armour, 6, Symbol::Picture, Sprite::CollArmature, 1},
    {"Notes", Caption::YourNote, 9, Symbol::Picture, Sprite::Note, -1},
    {"Treas", Caption::Treasures, 12, Symbol::Picture, Sprite::Treasure, -1},
}};

// The professions of the second column; the first has as many or one less.
int longerColumn(int professions) {
    return professions - professions / 2;
}

// What a marker of the kind shows; empty: no text.
QString codeOf(const LegendRow& row) {
    return row.symbol == Symbol::Code ? QString::fromLatin1(row.Code) : QString();
}

void drawSymbol(Drawing& drawing, const MarkerArt& art, const LegendRow& row, int y) {
    const int x = firstColumn;
    if (row.symbol == Symbol::NoBoss) {
        drawing.setFill(noBossGrey);
        drawing.box(x + 1, y, x + 1 + boxSize, y + boxSize);
    }
    if (row.symbol == Symbol::Green) {
        drawing.setFill(greenItemGreen);
        drawing.box(x + 1, y + 7, x + 1 + boxSize, y + boxSize);
    }
    if (row.symbol == Symbol::Code) {
        drawing.setFill(lightGrey);
        drawing.box(x + 1, y, x + 1 + boxSize, y + boxSize);
        drawing.setBold(true);
        drawing.print(codeLeft, y, codeOf(row));
        drawing.setBold(false);
    }
    if (row.sprite != Sprite::Count)
        drawing.painter().drawImage(x + row.spriteShift, y, art.picture(row.sprite));
}

// What the pictures and boxes say, for those who have it read out.
QString spokenLegend(const ProgramState& state) {
    QStringList lines;
    for (int i = 1; i <= state.Professions.highest(); ++i)
        lines << state.Professions[i].Name;
    for (const LegendRow& row : legendRows) {
        const QString code = codeOf(row);
        lines << (code.isEmpty() ? QString() : code + u": "_s) + state.text(row.text);
    }
    return lines.join(u'\n');
}

} // namespace

frmLegenda::frmLegenda(const ProgramState& state, QWidget* owner)
    : QWidget(owner, Qt::Dialog | frameless()), state_(state), title_(state.text(legendCaption)),
      picLegenda_(new PictureBox(this)) {
    setSpokenRole(*this, QAccessible::Dialog);
    setObjectName(u"frmLegenda"_s);
    setWindowTitle(title_);
    setCursor(programCursor(Pointer::Usual));
    setFont(arial(points8_25));
    picLegenda_->setObjectName(u"picLegenda"_s);
    picLegenda_->setBackground(lightGrey);
    picLegenda_->setFocusPolicy(Qt::StrongFocus);
    picLegenda_->setAccessibleName(title_);
    picLegenda_->setAccessibleDescription(spokenLegend(state));
    setFocusProxy(picLegenda_);
    auto* cmdClose =
        new PictureButton(u"cmdClose"_s, u":/windows/close.png"_s, state.text(closeCaption), this);
    cmdClose->setGeometry(closePlace);
    connect(cmdClose, &QAbstractButton::clicked, this, &frmLegenda::dismiss);
    const int height =
        (longerColumn(state.Professions.highest()) + static_cast<int>(legendRows.size())) * pitch + 10 +
        legendRows.back().OffsetY;
    picLegenda_->setGeometry(QRect(picturePlace, QSize(pictureWidth, height)));
    setFixedSize(clientWidth, picturePlace.y() + height + bottomMargin);
}

void frmLegenda::DrawLegendTitle() {
    Drawing drawing(this);
    drawing.setFont(arial(points8_25, true));
    drawing.filledBox(0, 0, width(), bandHeight, titleBlue);
    drawing.setForeground(white);
    drawing.print((width() - drawing.textWidth(title_)) / 2, (bandHeight - drawing.lineHeight()) / 2, title_);
}

void frmLegenda::DrawLegend() {
    picLegenda_->clear();
    Drawing drawing(&picLegenda_->surface());
    int line = drawProfessions(drawing);
    drawing.setFont(arial(points7));
    for (const LegendRow& row : legendRows) {
        const int y = line++ * pitch + rowsTop + row.OffsetY;
        drawSymbol(drawing, art_, row, y);
        const int left = firstColumn + textIndent + (row.symbol == Symbol::Green ? greenTextShift : 0);
        drawing.print(left, y, state_.text(row.text));
        picLegenda_->tell({left, y, pictureWidth - left, pitch}, state_.text(row.text), codeOf(row));
    }
}

// Returns the number of lines that the columns take.
int frmLegenda::drawProfessions(Drawing& drawing) {
    const int professions = state_.Professions.highest();
    const int half = professions / 2;
    drawing.setFont(arial(points6_75));
    for (int i = 1; i <= professions; ++i) {
        const bool second = i > half;
        const int x = second ? pictureWidth / 2 + 1 : firstColumn;
        const int y = (second ? i - 1 - half : i - 1) * pitch + professionsTop;
        drawing.setFill(state_.Professions[i].Color);
        drawing.box(x + 1, y, x + 1 + boxSize, y + boxSize);
        drawing.print(x + textIndent, y, state_.Professions[i].Name);
        picLegenda_->tell({x + textIndent, y, pictureWidth / 2 - textIndent, pitch},
                          state_.Professions[i].Name);
    }
    return longerColumn(professions);
}

void frmLegenda::dismiss() {
    hide();
    emit closed();
}

void frmLegenda::paintEvent(QPaintEvent*) {
    DrawLegendTitle();
}

void frmLegenda::showEvent(QShowEvent* event) {
    if (!std::exchange(drawn_, true))
        DrawLegend();
    keepOffTaskBar(*this);
    QWidget::showEvent(event);
}

void frmLegenda::closeEvent(QCloseEvent* event) {
    event->ignore();
    dismiss();
}

void frmLegenda::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape)
        dismiss();
    else
        QWidget::keyPressEvent(event);
}

void frmLegenda::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        drag_.press(event->globalPosition().toPoint());
}

void frmLegenda::mouseMoveEvent(QMouseEvent* event) {
    drag_.move(event->globalPosition().toPoint());
}

void frmLegenda::mouseReleaseEvent(QMouseEvent*) {
    drag_.release();
}

} // namespace orvinel
