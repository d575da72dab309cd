// SPDX-License-Identifier: MIT
#include "platform/time_slice.h"

#include <ctime>

namespace quillon {

namespace {

std::chrono::nanoseconds processorTimeOfThread()
{
    timespec time{};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
}

} // namespace

TimeSlice::TimeSlice(std::chrono::nanoseconds length)
    : m_length(length), m_start(std::chrono::steady_clock::now()),
      m_processorStart(processorTimeOfThread())
{
}

bool TimeSlice::isOver() const
{
    return std::chrono::steady_clock::now() - m_start >= m_length &&
           processorTimeOfThread() - m_processorStart >= m_length;
}

} // namespace quillon
