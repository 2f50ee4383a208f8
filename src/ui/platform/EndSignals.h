#pragma once

#include <QObject>

#include <memory>

class QSocketNotifier;

namespace orvinel {

// Tells, from the event loop, that the system wants the program to end (a logout, a shutdown, the terminal
// that started it was closed). One object at a time. Where there are no such signals it never tells anything.
class EndSignals : public QObject {
    Q_OBJECT
  public:
    EndSignals();
    ~EndSignals() override;

  signals:
    void endWanted();

  private:
    std::unique_ptr<QSocketNotifier> notifier_;
};

} // namespace orvinel
