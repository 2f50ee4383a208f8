#include "ui/dialogs/frmInformation.h"

#include "app/Opening.h"
#include "base/About.h"
#include "ui/platform/Fonts.h"
#include "ui/platform/Palette.h"
#include "ui/platform/SpokenRole.h"
#include "ui/platform/Windows.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPushButton>

#include <algorithm>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

// Pixels; places inside picOntainer unless said otherwise.
constexpr QSize outerSize(612, 463);
constexpr QRect clientPlace(3, 3, 606, 457); // of the window: inside its frame
constexpr QRect containerPlace(0, 0, 607, 457);
constexpr QRect scenePlace(116, 14, 518, 443);
constexpr QRect logoPlace(2, 2, 177, 45);
constexpr std::array<QRect, frmInformation::figures> figurePlaces = {
    QRect(250, 142, 57, 167), QRect(162, 218, 63, 141), QRect(408, 162, 47, 147), QRect(484, 180, 55, 179)};
constexpr QSize captionSize(120, 44);
constexpr int captionGap = 4; // below the figure
constexpr int captionTextLeft = 26;
constexpr std::array<int, 3> captionTextTops = {5, 17, 28};
constexpr QRect dedicationPlace(QPoint(22, 88), QPoint(130, 304));
constexpr QRect headingPlace(QPoint(14, 58), QPoint(138, 72));
constexpr QRect webPlace(QPoint(22, 360), QPoint(130, 373));
constexpr QRect mailPlace(QPoint(22, 409), QPoint(130, 422));

constexpr Colour grey = 0x808080;
constexpr Colour lightGrey = 0xE0E0E0;
constexpr Colour silver = 0xC0C0C0;
constexpr Colour lightOrange = 0x77DDFF;
constexpr Colour darkBrown = 0x122550;

struct CaptionText {
    const char* name;
    const char* words;
    const char* tag;
};
constexpr std::array<CaptionText, frmInformation::figures> captionTexts = {{
    {"Maruvel", "\"Mind the arch.\"", "[LaWa]"},
    {"Fen", "\"Left, not right!\"", "[LaWa]"},
    {"Ilvane", "\"I kept a light on.\"", "[LaWa]"},
    {"Dunmarrow", "\"Who took my map?\"", "[LaWa]"},
}};

QString dedication() {
    return u"Orvinel is free software, written by %1 of the %2.\r\n\r\n"
           "For Ilvane, who always left a light on.\r\n\r\n"
           "For all who measured these lands on foot.\r\n\r\n"
           "And for you, who still walk them."_s.arg(authorName(), guildName());
}

QString mailText(const frmInformation::Addresses& addresses) {
    return addresses.mail.isEmpty() ? authorName() : u"Mail to "_s + authorName();
}

QFont FontCrea(int height, bool underline, bool bold) {
    QFont font = arial(height, bold);
    font.setUnderline(underline);
    return font;
}

void drawCentred(Drawing& drawing, const QRect& place, Colour colour, const QString& text) {
    drawing.painter().setPen(toQColor(colour));
    drawing.painter().drawText(place, Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, text);
}

// A link's text is drawn with the rest and the mouse is looked after there; this is where the keyboard and
// the screen reader find it.
class LinkSpot : public QPushButton {
  public:
    using QPushButton::QPushButton;

  protected:
    void paintEvent(QPaintEvent*) override {
        if (!hasFocus())
            return;
        QPainter painter(this);
        painter.setPen(QPen(Qt::white, 1, Qt::DotLine));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
    void keyPressEvent(QKeyEvent* event) override {
        if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
            click();
        else
            QPushButton::keyPressEvent(event);
    }
};

} // namespace

frmInformation::frmInformation(DialogContext dialogContext, QWidget* owner)
    : frmInformation(dialogContext, owner, {homePage(), mailAddress()}) {
}

frmInformation::frmInformation(DialogContext dialogContext, QWidget* owner, Addresses addresses)
    : Dialog(u"frmInformation"_s, outerSize, dialogContext, owner), addresses_(std::move(addresses)) {
    setWindowFlags(Qt::Dialog | frameless());
    setWindowTitle(u"Orvinel - Informations"_s);
    ArrangeInformation(new QWidget(this));
    for (int i = 0; i < figures; ++i)
        addFigure(i);
    for (int i = 0; i < figures; ++i)
        addCaption(i);
    addLink(u"lnkWebPage"_s, WebPage, guildName());
    if (addresses_.mail.isEmpty())
        picOntainer->tell(mailPlace, mailText(addresses_));
    else
        addLink(u"lnkMail"_s, Mail, mailText(addresses_));
    picOntainer->setFocus();
}

void frmInformation::ArrangeInformation(QWidget* client) {
    client->setGeometry(clientPlace);
    picOntainer = new PictureBox(client);
    picOntainer->setObjectName(u"picOntainer"_s);
    picOntainer->setGeometry(containerPlace);
    picOntainer->setBackground(0);
    picOntainer->setFont(arial(points8_25));
    picOntainer->setFocusPolicy(Qt::ClickFocus);
    picOntainer->setAccessibleName(u"Informations"_s);
    picOntainer->setAccessibleDescription(dedication());
    picOntainer->tell(headingPlace, u"Informations"_s);
    picOntainer->tell(dedicationPlace, dedication());
    auto* imgScene = new QLabel(picOntainer);
    imgScene->setObjectName(u"imgScene"_s);
    imgScene->setGeometry(scenePlace);
    setSpokenRole(*imgScene, QAccessible::Graphic);
    imgScene->setAccessibleName(u"Four companions at a camp fire below a ruined arch"_s);
    auto* imgLogo = new QLabel(picOntainer);
    imgLogo->setObjectName(u"imgLogo"_s);
    imgLogo->setGeometry(logoPlace);
    imgLogo->setPixmap(QPixmap(u":/windows/imgLogo.png"_s));
    imgLogo->setAccessibleName(u"Orvinel"_s);
    for (QWidget* area : {static_cast<QWidget*>(picOntainer), static_cast<QWidget*>(imgScene),
                          static_cast<QWidget*>(imgLogo)}) {
        area->setMouseTracking(true);
        area->installEventFilter(this);
    }
}

void frmInformation::addFigure(int index) {
    const CaptionText& text = captionTexts[static_cast<size_t>(index)];
    auto* figure = new QLabel(picOntainer);
    figure->setObjectName(u"lblCharPos(%1)"_s.arg(index));
    figure->setGeometry(figurePlaces[static_cast<size_t>(index)]);
    figure->setMouseTracking(true);
    figure->setFocusPolicy(Qt::TabFocus);
    setSpokenRole(*figure, QAccessible::Graphic);
    figure->setAccessibleName(QString::fromLatin1(text.name));
    figure->setAccessibleDescription(QString::fromLatin1(text.words) + u' ' + QString::fromLatin1(text.tag));
    figure->installEventFilter(this);
    lblCharPos[static_cast<size_t>(index)] = figure;
}

void frmInformation::addCaption(int index) {
    const QRect& figure = figurePlaces[static_cast<size_t>(index)];
    const CaptionText& text = captionTexts[static_cast<size_t>(index)];
    const QPoint place(std::clamp(figure.center().x() - captionSize.width() / 2,
                                  dedicationPlace.right() + captionGap,
                                  clientPlace.width() - captionSize.width() - captionGap),
                       figure.bottom() + 1 + captionGap);
    auto* strip = new QLabel(picOntainer);
    strip->setObjectName(u"imgChar(%1)"_s.arg(index));
    strip->setGeometry(QRect(place, captionSize));
    strip->setPixmap(QPixmap(u":/windows/imgChar%1.png"_s.arg(index)));
    strip->hide();
    const auto line = [&](const QString& name, size_t row, Colour colour, const char* words) {
        auto* label = new Label(name.arg(index), picOntainer);
        label->setFont(arial(row == 0 ? points8_25 : points7, row == 0));
        label->setColour(colour);
        label->setCaption(QString::fromLatin1(words));
        label->move(place + QPoint(captionTextLeft, captionTextTops[row]));
        label->setAttribute(Qt::WA_TransparentForMouseEvents);
        label->hide();
        return label;
    };
    captions_[static_cast<size_t>(index)] = {strip, line(u"lblCharName(%1)"_s, 0, lightOrange, text.name),
                                             line(u"lblCharWords(%1)"_s, 1, lightGrey, text.words),
                                             line(u"lblZbq(%1)"_s, 2, silver, text.tag)};
}

void frmInformation::addLink(const QString& name, Link link, const QString& text) {
    auto* spot = new LinkSpot(text, picOntainer);
    spot->setObjectName(name);
    spot->setGeometry((link == WebPage ? webPlace : mailPlace).adjusted(0, 0, 1, 1));
    spot->setAutoDefault(false);
    spot->setAttribute(Qt::WA_TransparentForMouseEvents);
    connect(spot, &QPushButton::clicked, this, [this, link] { openLink(link); });
}

void frmInformation::DrawInformationText() {
    picOntainer->clear();
    Drawing drawing(&picOntainer->surface());
    drawing.painter().drawImage(scenePlace.topLeft(), QImage(u":/windows/imgScene.png"_s));
    drawing.setFont(FontCrea(points8_25, false, false));
    drawCentred(drawing, dedicationPlace, grey, dedication());
    drawing.setFont(FontCrea(points8_25, true, true));
    drawCentred(drawing, webPlace, lightOrange, guildName());
    // Without an address a name stands there, which doesn't look like a link.
    if (addresses_.mail.isEmpty())
        drawing.setFont(FontCrea(points8_25, false, true));
    drawCentred(drawing, mailPlace, addresses_.mail.isEmpty() ? grey : lightOrange, mailText(addresses_));
    drawing.filledBox(14, 58, 139, 73, darkBrown);
    drawing.setFont(FontCrea(points8_25, false, true));
    drawCentred(drawing, headingPlace, lightGrey, u"Informations"_s);
    drawing.outline(10, 54, 143, 441, silver);
    drawing.outline(14, 58, 139, 437, grey);
    drawing.line(36, 344, 116, 344, darkGrey);
    drawing.line(36, 394, 116, 394, darkGrey);
    picOntainer->update();
}

void frmInformation::ShowCharacterCaption(int index, bool visible) {
    const Caption& caption = captions_[static_cast<size_t>(index)];
    for (QWidget* part : {caption.imgChar, static_cast<QWidget*>(caption.lblCharName),
                          static_cast<QWidget*>(caption.lblCharWords), static_cast<QWidget*>(caption.lblZbq)})
        part->setVisible(visible);
}

void frmInformation::HideCharacterCaption() {
    if (ShownCaption == -1)
        return;
    ShowCharacterCaption(ShownCaption, false);
    ShownCaption = -1;
}

void frmInformation::showOnly(int index) {
    if (index == ShownCaption)
        return;
    HideCharacterCaption();
    ShowCharacterCaption(index, true);
    ShownCaption = index;
}

void frmInformation::hover(QPoint inContainer) {
    HideCharacterCaption();
    const Link link = linkAt(inContainer);
    if (link == LinkHot)
        return;
    LinkHot = link;
    const bool opens = link == WebPage || (link == Mail && !addresses_.mail.isEmpty());
    picOntainer->setCursor(programCursor(opens ? Pointer::OpenHand : Pointer::Usual));
}

void frmInformation::click(QPoint inContainer) {
    const Link link = linkAt(inContainer);
    if (link == NoLink)
        close();
    else
        openLink(link);
}

// The corners belong to the link.
frmInformation::Link frmInformation::linkAt(QPoint inContainer) const {
    if (webPlace.adjusted(0, 0, 1, 1).contains(inContainer))
        return WebPage;
    return mailPlace.adjusted(0, 0, 1, 1).contains(inContainer) ? Mail : NoLink;
}

void frmInformation::openLink(Link link) {
    if (link == Mail && addresses_.mail.isEmpty())
        return;
    if (link == Mail)
        openAndTell(state(), desktop(), u"mailto:"_s + addresses_.mail);
    else if (addresses_.homePage.isEmpty())
        openAndTell(state(), desktop(), addressOf(Page::Start, state(), files().disk()));
    else
        openAndTell(state(), desktop(), addresses_.homePage);
}

bool frmInformation::eventFilter(QObject* watched, QEvent* event) {
    const auto figure = std::find(lblCharPos.begin(), lblCharPos.end(), watched);
    if (figure != lblCharPos.end())
        return figureEvent(static_cast<int>(figure - lblCharPos.begin()), event);
    const auto place = [&] {
        return static_cast<QWidget*>(watched)->mapTo(picOntainer,
                                                     static_cast<QMouseEvent*>(event)->position().toPoint());
    };
    if (event->type() == QEvent::MouseMove) {
        hover(place());
        return true;
    }
    if (event->type() == QEvent::MouseButtonRelease) {
        click(place());
        return true;
    }
    return event->type() == QEvent::MouseButtonPress;
}

bool frmInformation::figureEvent(int figure, QEvent* event) {
    switch (event->type()) {
    case QEvent::Enter:
    case QEvent::FocusIn:
        showOnly(figure);
        return false;
    case QEvent::Leave:
    case QEvent::FocusOut:
        HideCharacterCaption();
        return false;
    case QEvent::MouseMove:
        showOnly(figure);
        return true;
    case QEvent::MouseButtonRelease:
        close();
        return true;
    default:
        return event->type() == QEvent::MouseButtonPress;
    }
}

void frmInformation::paintEvent(QPaintEvent*) {
    Drawing drawing(this);
    drawing.filledBox(0, 0, width() - 1, height() - 1, silver);
    drawing.outline(0, 0, width() - 1, height() - 1, darkGrey);
}

void frmInformation::showEvent(QShowEvent* event) {
    DrawInformationText();
    Dialog::showEvent(event);
}

void frmInformation::mouseReleaseEvent(QMouseEvent*) {
    close();
}

} // namespace orvinel
