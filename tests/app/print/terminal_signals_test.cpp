// SPDX-License-Identifier: MIT
#include "app/print/terminal_signals.h"

#include <csignal>
#include <cstdlib>
#include <gtest/gtest.h>

namespace quillon {
namespace {

// Each in a process of its own, as signals are the whole process's.
TEST(TerminalSignalsDeathTest, TheFirstOneEndsNothing)
{
    EXPECT_EXIT(
        {
            const TerminalSignals signals([](int) {});
            std::raise(SIGINT);
            std::_Exit(TerminalSignals::haveArrived() ? 7 : 8);
        },
        testing::ExitedWithCode(7), "");
}

TEST(TerminalSignalsDeathTest, TheSameOneAgainEndsAtOnce)
{
    EXPECT_EXIT(
        {
            const TerminalSignals signals([](int) {});
            std::raise(SIGINT);
            std::raise(SIGINT);
            std::_Exit(7);
        },
        testing::KilledBySignal(SIGINT), "");
}

TEST(TerminalSignalsDeathTest, TheOtherOneEndsAtOnceToo)
{
    EXPECT_EXIT(
        {
            const TerminalSignals signals([](int) {});
            std::raise(SIGINT);
            std::raise(SIGTERM);
            std::_Exit(7);
        },
        testing::KilledBySignal(SIGTERM), "");
}

} // namespace
} // namespace quillon
