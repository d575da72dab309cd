// SPDX-License-Identifier: MIT
#include "app/print/print_output.h"

#include <cerrno>
#include <poll.h>
#include <unistd.h>

namespace quillon {

namespace {

// Large enough that a whole log takes a dozen writes, small enough to stay in the cache.
constexpr qsizetype kFullBytes = qsizetype{192} * 1024;
constexpr qsizetype kCapacityBytes = qsizetype{256} * 1024;

void waitUntilWritable(int descriptor)
{
    pollfd request{descriptor, POLLOUT, 0};
    ::poll(&request, 1, -1);
}

} // namespace

PrintOutput::PrintOutput(int descriptor, std::function<bool()> isInterrupted)
    : m_descriptor(descriptor), m_isInterrupted(std::move(isInterrupted))
{
    m_buffer.reserve(kCapacityBytes);
}

void PrintOutput::flushWhenFull()
{
    if (m_buffer.size() >= kFullBytes) {
        flush();
    }
}

void PrintOutput::flush()
{
    qsizetype written = 0;
    while (m_state == State::Good && written < m_buffer.size()) {
        const ssize_t count = ::write(m_descriptor, m_buffer.constData() + written,
                                      static_cast<std::size_t>(m_buffer.size() - written));
        if (count < 0) {
            handleFailure(errno);
        } else {
            written += count;
            if (written < m_buffer.size()) {
                // A signal cuts a write short rather than failing it once some bytes are through.
                noticeInterruption();
            }
        }
    }
    m_buffer.resize(0);
    m_buffer.reserve(kCapacityBytes);
}

void PrintOutput::handleFailure(int number)
{
    switch (number) {
    case EINTR:
        noticeInterruption();
        break;
    case EAGAIN:
        // Whoever shares the terminal or pipe with us may have set it not to block.
        waitUntilWritable(m_descriptor);
        noticeInterruption();
        break;
    case EPIPE:
        m_state = State::ReaderGone;
        break;
    default:
        m_state = State::Failed;
        m_error = SystemError{number};
        break;
    }
}

void PrintOutput::noticeInterruption()
{
    if (m_isInterrupted && m_isInterrupted()) {
        m_state = State::Interrupted;
    }
}

} // namespace quillon
