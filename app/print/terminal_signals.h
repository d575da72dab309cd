// SPDX-License-Identifier: MIT
#pragma once

#include <QSocketNotifier>

#include <csignal>
#include <functional>
#include <memory>

namespace quillon {

// Catches SIGINT and SIGTERM while it lives and reports the first of them on the event loop, so
// that the program can end in order. The second one ends it at once, should it hang. At most one
// object may exist at a time, since signals belong to the whole process.
class TerminalSignals {
public:
    // `terminated` is called with the signal's number.
    explicit TerminalSignals(std::function<void(int)> terminated);
    TerminalSignals(const TerminalSignals&) = delete;
    TerminalSignals& operator=(const TerminalSignals&) = delete;
    ~TerminalSignals();

    // Whether one of them has arrived, known before the event loop has its turn.
    static bool haveArrived();

private:
    struct sigaction m_formerInterrupt {};
    struct sigaction m_formerTerminate {};
    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace quillon
