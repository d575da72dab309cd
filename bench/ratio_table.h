// SPDX-License-Identifier: MIT
#pragma once

#include "bench/paired_timing.h"

#include <QString>

namespace quillon::bench {

// Prints the table of comparisons as they are made, a line each, and keeps count of the goals.
class RatioTable {
public:
    RatioTable();

    // A goal on the ratio of our time to the reference's: at most `goal`.
    void add(const QString& name, const PairedTiming& timing, double goal);
    // No goal: a figure to read the others by.
    void addForComparison(const QString& name, const PairedTiming& timing);
    // The first again, said as so many times faster than the reference.
    void addSpeedUp(const QString& name, const PairedTiming& timing, double timesFaster);
    // A quantity that is no time: at most `goal`.
    void addQuantity(const QString& name, double value, const QString& unit, double goal);
    // A comparison that cannot be made here, and why.
    void addMissing(const QString& name, const QString& reason);

    [[nodiscard]] int missedGoals() const { return m_missed; }

private:
    void print(const QString& name, const QString& ours, const QString& reference,
               const QString& ratio, const QString& goal, bool isMet);

    int m_missed = 0;
};

// The comparisons, by what they need.
void runModelRatios(RatioTable& table);
void runViewRatios(RatioTable& table);
void runScriptRatios(RatioTable& table);
void runTypingGaps(RatioTable& table);
void runProcessRatios(RatioTable& table);
void runPipeRatios(RatioTable& table);

} // namespace quillon::bench
