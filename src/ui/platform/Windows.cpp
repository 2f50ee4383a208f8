#include "ui/platform/Windows.h"

#include "ui/platform/Fonts.h"
#include "ui/platform/WindowManager.h"

#include <QApplication>
#include <QIcon>
#include <QLibraryInfo>
#include <QLocale>
#include <QPalette>
#include <QPixmap>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QStyleOption>
#include <QTimer>
#include <QToolTip>
#include <QTranslator>
#include <QWindow>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

// The same option for a widget that shows its focus, even before the first key of the player.
template <typename Option>
Option withFocusShown(const QStyleOption& option) {
    Option shown(static_cast<const Option&>(option));
    shown.state |= QStyle::State_KeyboardFocusChange;
    return shown;
}

// Drop-down lists as high as told instead of as high as the screen; everything else as Fusion does it.
class ProgramStyle : public QProxyStyle {
  public:
    ProgramStyle() : QProxyStyle(QStyleFactory::create(u"Fusion"_s)) {}

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* more) const override {
        return hint == SH_ComboBox_Popup ? 0 : QProxyStyle::styleHint(hint, option, widget, more);
    }
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override {
        const auto draw = [&](const QStyleOption& shown) {
            QProxyStyle::drawPrimitive(element, &shown, painter, widget);
        };
        if (element == PE_FrameFocusRect)
            return draw(withFocusShown<QStyleOptionFocusRect>(*option));
        if (element == PE_PanelButtonCommand)
            return draw(withFocusShown<QStyleOptionButton>(*option));
        draw(*option);
    }
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override {
        if (control == CC_ScrollBar)
            return drawScrollBar(*option, painter, widget);
        if (control != CC_ComboBox)
            return QProxyStyle::drawComplexControl(control, option, painter, widget);
        const auto shown = withFocusShown<QStyleOptionComboBox>(*option);
        QProxyStyle::drawComplexControl(control, &shown, painter, widget);
    }
    // Fusion's groove looks like the handle in it.
    void drawScrollBar(const QStyleOptionComplex& option, QPainter* painter, const QWidget* widget) const {
        auto part = static_cast<const QStyleOptionSlider&>(option);
        part.subControls = SC_ScrollBarGroove;
        part.palette.setColor(QPalette::Button, part.palette.color(QPalette::Button).darker(109));
        QProxyStyle::drawComplexControl(CC_ScrollBar, &part, painter, widget);
        part.palette = option.palette;
        part.subControls = option.subControls & ~SC_ScrollBarGroove;
        QProxyStyle::drawComplexControl(CC_ScrollBar, &part, painter, widget);
    }
    // The narrow drop-down lists of the panel would cut off the end of "<<< Tutti >>>" otherwise.
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                         const QWidget* widget) const override {
        QRect place = QProxyStyle::subControlRect(control, option, part, widget);
        if (control != CC_ComboBox || option->direction != Qt::LeftToRight)
            return place;
        if (part == SC_ComboBoxEditField)
            place.adjust(-2, 0, 10, 0);
        if (part == SC_ComboBoxArrow)
            place.adjust(6, 0, 0, 0);
        return place;
    }
    // An option or a check box is clicked anywhere in its place, and read out as being that large.
    QRect subElementRect(SubElement element, const QStyleOption* option,
                         const QWidget* widget) const override {
        if (element == SE_RadioButtonClickRect || element == SE_CheckBoxClickRect)
            return option->rect;
        return QProxyStyle::subElementRect(element, option, widget);
    }
    // The boxes and buttons that stand alone are 13 pixels wide; one more would be cut off.
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override {
        switch (metric) {
        case PM_IndicatorWidth:
        case PM_IndicatorHeight:
        case PM_ExclusiveIndicatorWidth:
        case PM_ExclusiveIndicatorHeight:
            return 13;
        default:
            return QProxyStyle::pixelMetric(metric, option, widget);
        }
    }
};

// Decoding the icon's pictures takes longer than the windows' first paint, which goes first.
constexpr int iconDelayMs = 150;

// In this order. The last one shows nothing, but does not end the program with a message for developers.
constexpr char windowSystems[] = "xcb;wayland;offscreen";

void setProgramIcon() {
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64, 128})
        icon.addFile(u":/icon/orvinel-%1.png"_s.arg(size), {size, size});
    QApplication::setWindowIcon(icon);
}

QPalette lightColours() {
    QPalette colours(QColor(0xF0, 0xF0, 0xF0));
    colours.setColor(QPalette::Window, QColor(0xF0, 0xF0, 0xF0));
    colours.setColor(QPalette::Button, QColor(0xF0, 0xF0, 0xF0));
    colours.setColor(QPalette::Base, Qt::white);
    colours.setColor(QPalette::AlternateBase, QColor(0xF7, 0xF7, 0xF7));
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        colours.setColor(role, Qt::black);
        colours.setColor(QPalette::Disabled, role, QColor(0x80, 0x80, 0x80));
    }
    colours.setColor(QPalette::Highlight, QColor(0x20, 0x5E, 0x9C));
    colours.setColor(QPalette::HighlightedText, Qt::white);
    colours.setColor(QPalette::Disabled, QPalette::Base, QColor(0xEC, 0xEC, 0xEC));
    colours.setColor(QPalette::ToolTipBase, QColor(0xFF, 0xFF, 0xDC));
    colours.setColor(QPalette::ToolTipText, Qt::black);
    colours.setColor(QPalette::PlaceholderText, QColor(0x80, 0x80, 0x80));
    return colours;
}

// The hands point with the tip of the middle finger: their palm would hide the marker that is meant. The
// closed hand keeps the same point, so that nothing jumps when it closes.
QPoint hotSpot(int number) {
    return number == 101 ? QPoint(1, 1) : QPoint(14, 3);
}

} // namespace

void chooseWindowSystem() {
#ifdef Q_OS_LINUX
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", windowSystems);
#elif defined(Q_OS_WIN)
    // The system would draw letters of other widths than those that the windows are laid out for.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "windows:fontengine=freetype");
#endif
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
}

bool displayFound() {
    return QGuiApplication::platformName() != u"offscreen"_s || qgetenv("QT_QPA_PLATFORM") != windowSystems;
}

bool windowsCanBePlaced() {
    return !QGuiApplication::platformName().startsWith(u"wayland"_s) && !placesWindowsItself(windowManager());
}

QCursor programCursor(Pointer pointer) {
    const int number = static_cast<int>(pointer);
    const QPoint at = hotSpot(number);
    // Under X11 a pointer's picture is shown as it is, at every scale factor.
    const qreal scale = QGuiApplication::platformName() == u"xcb"_s ? qGuiApp->devicePixelRatio() : 1;
    if (scale <= 1)
        return QCursor(QPixmap(u":/cursors/%1.png"_s.arg(number)), at.x(), at.y());
    const QPixmap large(u":/cursors/%1-large.png"_s.arg(number));
    const QSize size = (QSizeF(large.size()) / 2 * scale).toSize();
    const QPoint scaled = (QPointF(at) * scale).toPoint();
    return QCursor(large.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation), scaled.x(),
                   scaled.y());
}

void applyAppearance(QApplication& application) {
    QApplication::setStyle(new ProgramStyle);
    QApplication::setPalette(lightColours());
    QToolTip::setPalette(lightColours());
    bringFace(QCoreApplication::applicationDirPath() + u"/Fonts"_s);
    QApplication::setFont(arial(points8_25));
    QTimer::singleShot(iconDelayMs, &application, setProgramIcon);
    translateControls(QLocale());
}

void translateControls(const QLocale& language) {
    const QString name = u"controls"_s;
    delete qApp->findChild<QTranslator*>(name); // which takes it out of use
    auto* translator = new QTranslator(qApp);
    translator->setObjectName(name);
    if (translator->load(language, u"qtbase"_s, u"_"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(translator);
}

Qt::WindowFlags frameless() {
#ifdef Q_OS_WIN
    // Without a system menu it may pass for a pop-up, which stays above the dialogs.
    return Qt::FramelessWindowHint | Qt::WindowSystemMenuHint;
#else
    return Qt::FramelessWindowHint;
#endif
}

bool systemDrags() {
    return QGuiApplication::platformName() != u"xcb"_s;
}

QRect shownPlace(const QWidget& window) {
    const QWindow* handle = window.windowHandle();
    return handle && handle->isVisible() ? handle->geometry() : window.geometry();
}

void moveShown(QWidget& window, QPoint to) {
    window.move(to);
    if (QWindow* handle = window.windowHandle())
        handle->setPosition(to);
}

void WindowDrag::press(QPoint global) {
    QWindow* handle = window_.window()->windowHandle();
    const bool part = !window_.isWindow();
    const bool bySystem = part || systemDrags() || tremblesWhenDragged(windowManager());
    following_ = !(bySystem && handle && handle->startSystemMove()) && !part;
    grip_ = global - shownPlace(window_).topLeft();
}

void WindowDrag::move(QPoint global) {
    if (following_)
        window_.move(global - grip_);
}

void setAlwaysOnTop(QWidget& widget, bool on) {
    QWidget& window = *widget.window();
    // QWidget::setWindowFlag would hide and re-create the window.
    Qt::WindowFlags flags = window.windowFlags();
    flags.setFlag(Qt::WindowStaysOnTopHint, on);
    window.overrideWindowFlags(flags);
    if (QWindow* handle = window.windowHandle())
        handle->setFlag(Qt::WindowStaysOnTopHint, on);
}

} // namespace orvinel
