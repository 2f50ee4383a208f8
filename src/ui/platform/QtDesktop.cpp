#include "ui/platform/QtDesktop.h"

#include "ui/platform/DialogPlace.h"
#include "ui/platform/SpokenRole.h"
#include "ui/platform/Windows.h"
#include "ui/platform/WorkArea.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QMessageBox>
#include <QProcess>
#include <QScopeGuard>
#include <QScreen>
#include <QThread>
#include <QUrl>
#include <QWindow>

#include <algorithm>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

// Its size is known only when it appears.
class Box : public QMessageBox {
  public:
    using QMessageBox::QMessageBox;

  protected:
    void showEvent(QShowEvent* event) override {
        QMessageBox::showEvent(event);
        moveFromPanel();
    }

  private:
    // Over its owner, but beside the panel, near what has the keyboard there.
    void moveFromPanel() {
        const QWidget* owner = parentWidget();
        if (!owner || owner->parentWidget())
            return moveOver(*this);
        const QWidget* focus = owner->focusWidget();
        moveBeside(*this, placeOnDesktop(focus ? *focus : *owner));
    }
};

int runBox(QMessageBox::Icon icon, const QString& title, const QString& text,
           QMessageBox::StandardButtons buttons) {
    Box box(icon, title, text, buttons, QApplication::activeWindow());
    // The system's theme has pictures for some buttons only.
    for (QAbstractButton* button : box.buttons())
        button->setIcon({});
    setSpokenRole(box, QAccessible::AlertMessage);
    box.setTextFormat(Qt::PlainText);
    QWidget* owner = QApplication::activeWindow();
    if (owner && owner->windowHandle())
        box.setWindowFlag(Qt::WindowStaysOnTopHint,
                          owner->windowHandle()->flags().testFlag(Qt::WindowStaysOnTopHint));
    // The hourglass of a start stays behind the box.
    const bool waiting = QApplication::overrideCursor() != nullptr;
    if (waiting)
        QApplication::setOverrideCursor(Qt::ArrowCursor);
    const int answer = box.exec();
    if (waiting)
        QApplication::restoreOverrideCursor();
    if (owner)
        owner->activateWindow();
    return answer;
}

QMessageBox::Icon boxIcon(MessageIcon icon) {
    return icon == MessageIcon::Critical   ? QMessageBox::Critical
           : icon == MessageIcon::Question ? QMessageBox::Question
                                           : QMessageBox::NoIcon;
}

QString asciiDigits(QString text) {
    for (QChar& c : text)
        if (c.isDigit())
            c = QChar(u'0' + c.digitValue());
    return text;
}

} // namespace

void QtDesktop::message(MessageIcon icon, const QString& title, const QString& text) {
    runBox(boxIcon(icon), title, text, QMessageBox::Ok);
}

bool QtDesktop::ask(MessageIcon icon, const QString& title, const QString& text) {
    return runBox(boxIcon(icon), title, text, QMessageBox::Yes | QMessageBox::No) == QMessageBox::Yes;
}

void QtDesktop::warnWithCancel(const QString& title, const QString& text) {
    runBox(QMessageBox::Critical, title, text, QMessageBox::Ok | QMessageBox::Cancel);
}

bool QtDesktop::openWithShell(const QString& target) {
    QDir::setCurrent(folder_); // what is started begins there
    const bool address = target.startsWith(u"http"_s) || target.startsWith(u"mailto:"_s);
    if (address)
        return QDesktopServices::openUrl(QUrl(target));
    const QFileInfo file(target);
    if (!file.isFile())
        return false;
    // On some disks every file may be executed: a document is to be shown all the same.
    if (file.isExecutable() && file.suffix().compare(u"exe"_s, Qt::CaseInsensitive) == 0)
        return QProcess::startDetached(file.filePath(), {});
    return QDesktopServices::openUrl(QUrl::fromLocalFile(target));
}

QRect QtDesktop::workArea() const {
    return workAreaOf(*QGuiApplication::primaryScreen());
}

QSize QtDesktop::allScreens() const {
    return QGuiApplication::primaryScreen()->virtualSize();
}

bool QtDesktop::reachable(const QRect& window) const {
    const auto screens = QGuiApplication::screens();
    return std::any_of(screens.begin(), screens.end(), [&](const QScreen* screen) {
        const QRect seen = window.intersected(screen->geometry());
        return seen.width() >= 40 && seen.height() >= 40;
    });
}

QDate QtDesktop::today() const {
    return QDate::currentDate();
}

QString QtDesktop::shortDate(const QDate& date) const {
    return asciiDigits(QLocale::system().toString(date, QLocale::ShortFormat));
}

void QtDesktop::wait(int milliseconds) {
    QThread::msleep(static_cast<unsigned long>(milliseconds));
}

void QtDesktop::processPendingEvents() {
    // Handlers that run from here may call here again; nesting would let stale results overwrite fresh ones.
    if (processing_)
        return;
    processing_ = true;
    const auto done = qScopeGuard([this] { processing_ = false; });
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void QtDesktop::setHourglass(bool on) {
    if (on)
        QApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QApplication::restoreOverrideCursor();
}

void QtDesktop::setLanguage(const QString& code) {
    if (!code.isEmpty())
        translateControls(QLocale(code));
}

} // namespace orvinel
