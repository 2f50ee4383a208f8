#pragma once

#include "base/Desktop.h"

#include <QStringList>

#include <functional>

namespace orvinel {

// A desktop that writes down what it is asked and answers as told.
class RecordingDesktop : public Desktop {
  public:
    QStringList log;    // "message Critical title|text", "ask ...", "open target", "wait 1000", ...
    bool answer = true; // to questions
    bool shellWorks = true;
    QRect work{0, 0, 1280, 1000};
    QSize screens{1280, 1024};
    QDate now{2026, 3, 7};
    QString language;
    std::function<void()> pending = [] {}; // what waits to be processed
    QString dateFormat = QStringLiteral("dd/MM/yyyy");

    void message(MessageIcon icon, const QString& title, const QString& text) override;
    bool ask(MessageIcon icon, const QString& title, const QString& text) override;
    void warnWithCancel(const QString& title, const QString& text) override;
    bool openWithShell(const QString& target) override;
    QRect workArea() const override { return work; }
    QSize allScreens() const override { return screens; }
    bool reachable(const QRect& window) const override;
    QDate today() const override { return now; }
    QString shortDate(const QDate& date) const override { return date.toString(dateFormat); }
    void wait(int milliseconds) override;
    void processPendingEvents() override { pending(); }
    void setHourglass(bool on) override;
    void setLanguage(const QString& code) override { language = code; }
};

} // namespace orvinel
