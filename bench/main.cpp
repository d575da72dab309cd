// SPDX-License-Identifier: MIT
// Prints how long the program takes for what users wait for, as ratios to references timed in the
// same run. Arguments: any of "model", "view", "script", "typing", "process", "pipe"; all
// of them without any.
#include "bench/ratio_table.h"

#include <QApplication>
#include <QLocale>

#include <cstdio>

int main(int argc, char** argv)
{
    using namespace quillon::bench;
    QApplication application(argc, argv);
    QLocale::setDefault(QLocale::c());
    const QStringList wanted = QApplication::arguments().sliced(1);
    const auto isWanted = [&wanted](const char* group) {
        return wanted.isEmpty() || wanted.contains(QLatin1StringView(group));
    };
    RatioTable table;
    if (isWanted("model")) {
        runModelRatios(table);
    }
    if (isWanted("view")) {
        runViewRatios(table);
    }
    if (isWanted("script")) {
        runScriptRatios(table);
    }
    if (isWanted("typing")) {
        runTypingGaps(table);
    }
    if (isWanted("process")) {
        runProcessRatios(table);
    }
    if (isWanted("pipe")) {
        runPipeRatios(table);
    }
    std::printf("goals missed: %d\n", table.missedGoals());
    return 0;
}
