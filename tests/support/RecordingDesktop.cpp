#include "support/RecordingDesktop.h"

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

QString iconName(MessageIcon icon) {
    return icon == MessageIcon::Critical   ? u"Critical"_s
           : icon == MessageIcon::Question ? u"Question"_s
                                           : u"None"_s;
}

} // namespace

void RecordingDesktop::message(MessageIcon icon, const QString& title, const QString& text) {
    log << u"message "_s + iconName(icon) + u' ' + title + u'|' + text;
}

bool RecordingDesktop::ask(MessageIcon icon, const QString& title, const QString& text) {
    log << u"ask "_s + iconName(icon) + u' ' + title + u'|' + text;
    return answer;
}

void RecordingDesktop::warnWithCancel(const QString& title, const QString& text) {
    log << u"warn "_s + title + u'|' + text;
}

bool RecordingDesktop::openWithShell(const QString& target) {
    log << u"open "_s + target;
    return shellWorks;
}

bool RecordingDesktop::reachable(const QRect& window) const {
    const QRect seen = window.intersected(QRect(QPoint(0, 0), screens));
    return seen.width() >= 40 && seen.height() >= 40;
}

void RecordingDesktop::wait(int milliseconds) {
    log << u"wait %1"_s.arg(milliseconds);
}
void RecordingDesktop::setHourglass(bool on) {
    log << u"hourglass %1"_s.arg(on);
}

} // namespace orvinel
