// SPDX-License-Identifier: MIT
#include "app/print/terminal_signals.h"

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace quillon {

namespace {

// A signal handler is given nothing but a number and may do little more than write(2), hence a pipe
// that it finds here, as the one thing that reaches the event loop from it.
std::array<int, 2> signalPipe{-1, -1};
volatile std::sig_atomic_t arrivedSignal = 0;

extern "C" void rememberSignal(int number)
{
    // Whoever sends a second one, be it the other of the two, does not want to wait.
    if (arrivedSignal != 0) {
        std::signal(number, SIG_DFL);
        std::raise(number);
        return;
    }
    const int formerError = errno;
    arrivedSignal = number;
    const auto byte = static_cast<unsigned char>(number);
    // A full pipe has already woken the event loop.
    [[maybe_unused]] const ssize_t written = ::write(signalPipe[1], &byte, 1);
    errno = formerError;
}

struct sigaction handlerAction()
{
    struct sigaction action {};
    action.sa_handler = rememberSignal;
    sigemptyset(&action.sa_mask);
    // No SA_RESTART: a write that nobody reads from would wait for ever.
    action.sa_flags = 0;
    return action;
}

} // namespace

TerminalSignals::TerminalSignals(std::function<void(int)> terminated)
{
    arrivedSignal = 0;
    if (::pipe(signalPipe.data()) != 0) {
        // Without descriptors to spare the signals keep their usual meaning: the end.
        signalPipe = {-1, -1};
        return;
    }
    for (const int descriptor : signalPipe) {
        ::fcntl(descriptor, F_SETFD, FD_CLOEXEC);
        ::fcntl(descriptor, F_SETFL, O_NONBLOCK);
    }
    m_notifier = std::make_unique<QSocketNotifier>(signalPipe[0], QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(),
                     [terminated = std::move(terminated)] {
                         unsigned char byte = 0;
                         if (::read(signalPipe[0], &byte, 1) == 1) {
                             terminated(byte);
                         }
                     });
    const struct sigaction action = handlerAction();
    ::sigaction(SIGINT, &action, &m_formerInterrupt);
    ::sigaction(SIGTERM, &action, &m_formerTerminate);
}

TerminalSignals::~TerminalSignals()
{
    if (!m_notifier) {
        return;
    }
    ::sigaction(SIGINT, &m_formerInterrupt, nullptr);
    ::sigaction(SIGTERM, &m_formerTerminate, nullptr);
    m_notifier.reset();
    for (int& descriptor : signalPipe) {
        ::close(descriptor);
        descriptor = -1;
    }
}

bool TerminalSignals::haveArrived()
{
    return arrivedSignal != 0;
}

} // namespace quillon
