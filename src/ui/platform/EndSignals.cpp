#include "ui/platform/EndSignals.h"

#include <QSocketNotifier>

#ifndef Q_OS_WIN
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>
#endif

namespace orvinel {

#ifdef Q_OS_WIN
EndSignals::EndSignals() = default;
EndSignals::~EndSignals() = default;
#else
namespace {

constexpr int endSignals[] = {SIGTERM, SIGHUP, SIGINT};

// A signal's handler is given nothing but the signal, and may do hardly more than write.
volatile std::sig_atomic_t pipeIn = -1; // -1: nobody listens

void passOn(int) {
    const int before = errno;
    const char word = 0;
    [[maybe_unused]] const auto written = ::write(pipeIn, &word, 1);
    errno = before;
}

void handle(void (*handler)(int)) {
    struct sigaction action {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    for (const int signal : endSignals)
        ::sigaction(signal, &action, nullptr);
}

} // namespace

EndSignals::EndSignals() {
    int ends[2];
    if (::pipe2(ends, O_CLOEXEC | O_NONBLOCK) != 0)
        return; // the signals end the program as they always do
    pipeIn = ends[1];
    notifier_ = std::make_unique<QSocketNotifier>(ends[0], QSocketNotifier::Read);
    connect(notifier_.get(), &QSocketNotifier::activated, this, [this, out = ends[0]] {
        char words[16];
        while (::read(out, words, sizeof words) > 0)
            continue;
        emit endWanted();
    });
    handle(passOn);
}

EndSignals::~EndSignals() {
    if (!notifier_)
        return;
    handle(SIG_DFL);
    ::close(pipeIn);
    pipeIn = -1;
    ::close(static_cast<int>(notifier_->socket()));
}
#endif

} // namespace orvinel
