// SPDX-License-Identifier: MIT
#pragma once

#include "platform/system_error.h"

#include <QByteArray>

#include <cstdint>
#include <functional>

namespace quillon {

// Where printed rows go: a file descriptor behind a large buffer. Rows are appended to buffer();
// they are written by flush(), and by flushWhenFull() once there are 192 KiB of them. After a write
// that failed nothing is written any more, and the state tells why. The descriptor is not closed.
class PrintOutput {
public:
    enum class State : std::uint8_t {
        Good,
        ReaderGone,  // nobody reads the pipe any more, which is no error
        Interrupted, // a signal asked for the end during a write
        Failed,      // see error()
    };

    // `isInterrupted` is asked when a signal has cut a write short; without it, or when it says no,
    // writing goes on.
    explicit PrintOutput(int descriptor, std::function<bool()> isInterrupted = nullptr);

    [[nodiscard]] QByteArray& buffer() { return m_buffer; }
    void flushWhenFull();
    void flush();

    [[nodiscard]] State state() const { return m_state; }
    // Why the state is Failed.
    [[nodiscard]] SystemError error() const { return m_error; }

private:
    void handleFailure(int number);
    void noticeInterruption();

    const int m_descriptor;
    const std::function<bool()> m_isInterrupted;
    QByteArray m_buffer;
    State m_state = State::Good;
    SystemError m_error;
};

} // namespace quillon
