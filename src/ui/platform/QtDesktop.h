#pragma once

#include "base/Desktop.h"

namespace orvinel {

// The real desktop.
class QtDesktop : public Desktop {
  public:
    // `folder`: the program's folder, which the shell starts documents and programs in.
    explicit QtDesktop(QString folder) : folder_(std::move(folder)) {}

    void message(MessageIcon icon, const QString& title, const QString& text) override;
    bool ask(MessageIcon icon, const QString& title, const QString& text) override;
    void warnWithCancel(const QString& title, const QString& text) override;
    bool openWithShell(const QString& target) override;
    QRect workArea() const override;
    QSize allScreens() const override;
    bool reachable(const QRect& window) const override;
    QDate today() const override;
    QString shortDate(const QDate& date) const override;
    void wait(int milliseconds) override;
    void processPendingEvents() override;
    void setHourglass(bool on) override;
    void setLanguage(const QString& code) override;

  private:
    QString folder_;
    bool processing_ = false;
};

} // namespace orvinel
