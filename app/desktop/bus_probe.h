// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QDeadlineTimer>

#include <cstdint>

namespace quillon {

// Finds out whether a message bus answers, on a connection of its own that is closed with the
// object. The bus libraries wait 25 seconds for a bus that accepts a connection and then says
// nothing; with this one knows before asking them. It speaks just enough of the protocol to be
// answered: it introduces itself and asks one question.
class BusProbe {
public:
    enum class State : std::uint8_t { Waiting, Answered, Failed };

    // Begins at once, without waiting, with the socket that busSocketName() gives.
    explicit BusProbe(const QByteArray& socketName);
    BusProbe(const BusProbe&) = delete;
    BusProbe& operator=(const BusProbe&) = delete;
    ~BusProbe();

    // Takes what has arrived by now.
    State proceed();
    // Waits until it is decided, or until the deadline.
    State wait(QDeadlineTimer deadline);

    // Readable when proceed() may give something new. Negative where there is no connection.
    [[nodiscard]] int descriptor() const { return m_descriptor; }

private:
    void fail();
    void takeUnread();

    int m_descriptor = -1;
    State m_state = State::Waiting;
    QByteArray m_unread;
    bool m_isIntroduced = false;
    int m_answers = 0;
};

} // namespace quillon
