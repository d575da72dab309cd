// SPDX-License-Identifier: MIT
#include "platform/matching_budget.h"

#include <algorithm>

namespace quillon {

namespace {

using namespace std::chrono_literals;

constexpr int kReportsPerPass = 50'000'000 / MatchingBudget::kStepsPerReport;
constexpr auto kTimePerPass = 2s;
// Fifty times what a usual expression takes, so that no length of a log is too much for one.
constexpr auto kTimePerUnit = 250ns;

constexpr qsizetype kStepsPerUnit = 100;
constexpr qsizetype kFewestReports = 2;
constexpr qsizetype kMostReports = 500;
constexpr auto kTimePerText = 250ms;

} // namespace

MatchingBudget MatchingBudget::forPass()
{
    return MatchingBudget(kReportsPerPass, kTimePerPass);
}

MatchingBudget MatchingBudget::forText(qsizetype length)
{
    const qsizetype reports = kFewestReports + length / (kStepsPerReport / kStepsPerUnit);
    return MatchingBudget(static_cast<int>(std::min(reports, kMostReports)), kTimePerText);
}

void MatchingBudget::beginSearch(qsizetype length)
{
    m_time += length * kTimePerUnit;
    m_isTiming = false;
}

bool MatchingBudget::takeReport()
{
    return --m_reports >= 0 && takeTime();
}

bool MatchingBudget::takeTime()
{
    const Clock::time_point now = Clock::now();
    if (m_isTiming) {
        m_time -= now - m_lastLook;
    }
    m_isTiming = true;
    m_lastLook = now;
    return m_time >= Clock::duration::zero();
}

} // namespace quillon
