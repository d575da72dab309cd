// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <chrono>

namespace quillon {

// What matching a regular expression may still cost. Steps are the engine's: it counts one wherever
// it notes where to come back to. Scanning without such a note, as in an atomic group or a
// lookahead, is seen only as time, which is the net below the steps: generous enough for them to
// decide wherever they can, as they are the same on every machine.
class MatchingBudget {
public:
    // The engine reports in once per this many steps.
    static constexpr int kStepsPerReport = 10'000;

    // For all searches in a pass over a log: one to three seconds of backtracking.
    static MatchingBudget forPass();
    // For all matches in one text of so many UTF-16 units: a quarter of a second at most. Its
    // steps are fixed by the text alone, so that the same is found however often and in whatever
    // order texts come.
    static MatchingBudget forText(qsizetype length);

    // A search in a text of so many UTF-16 units begins; what went before it is not counted.
    void beginSearch(qsizetype length);
    // The engine has taken another kStepsPerReport steps. False once there are none left.
    [[nodiscard]] bool takeReport();
    // The engine tries another place. False once there is no time left.
    [[nodiscard]] bool takeAttempt();

private:
    using Clock = std::chrono::steady_clock;

    MatchingBudget(int reports, Clock::duration time) : m_reports(reports), m_time(time) {}
    [[nodiscard]] bool takeTime();

    int m_reports;
    Clock::duration m_time;
    unsigned m_attempts = 0;
    bool m_isTiming = false;
    Clock::time_point m_lastLook;
};

// Here, as the engine calls it for each character of a line.
inline bool MatchingBudget::takeAttempt()
{
    constexpr unsigned kAttemptsPerLook = 64;
    return ++m_attempts % kAttemptsPerLook != 0 || takeTime();
}

} // namespace quillon
