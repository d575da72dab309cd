// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>

namespace quillon {

// A span of work on one thread, measured in the processor time that it uses: a machine that is
// busy with other things, or asleep, uses none of it.
class TimeSlice {
public:
    // Begins now.
    explicit TimeSlice(std::chrono::nanoseconds length);

    // Cheap for as long as less time than that has passed on the clock.
    [[nodiscard]] bool isOver() const;

private:
    std::chrono::nanoseconds m_length;
    std::chrono::steady_clock::time_point m_start;
    std::chrono::nanoseconds m_processorStart;
};

} // namespace quillon
