// SPDX-License-Identifier: MIT
#include "bench/ratio_table.h"

#include <cstdio>

namespace quillon::bench {

namespace {

void printColumns(const QString& name, const QString& ours, const QString& reference,
                  const QString& ratio, const QString& goal, const QString& verdict)
{
    std::printf("%-52s %12s %12s %12s %12s  %s\n", qPrintable(name), qPrintable(ours),
                qPrintable(reference), qPrintable(ratio), qPrintable(goal), qPrintable(verdict));
    std::fflush(stdout);
}

QString milliseconds(double time)
{
    return QString::number(time, 'f', time < 10 ? 3 : 1) + QStringLiteral(" ms");
}

} // namespace

RatioTable::RatioTable()
{
    printColumns(QStringLiteral("work"), QStringLiteral("ours"), QStringLiteral("reference"),
                 QStringLiteral("ratio"), QStringLiteral("goal"), QStringLiteral("met"));
}

void RatioTable::add(const QString& name, const PairedTiming& timing, double goal)
{
    print(name, milliseconds(timing.ours), milliseconds(timing.reference),
          QString::number(timing.ratio, 'f', 3) + QStringLiteral(" x"),
          QStringLiteral("<= %1 x").arg(goal), timing.ratio <= goal);
}

void RatioTable::addForComparison(const QString& name, const PairedTiming& timing)
{
    printColumns(name, milliseconds(timing.ours), milliseconds(timing.reference),
                 QString::number(timing.ratio, 'f', 3) + QStringLiteral(" x"), QStringLiteral("-"),
                 QStringLiteral("-"));
}

void RatioTable::addSpeedUp(const QString& name, const PairedTiming& timing, double timesFaster)
{
    print(name, milliseconds(timing.ours), milliseconds(timing.reference),
          QStringLiteral("1/%1").arg(1 / timing.ratio, 0, 'f', 1),
          QStringLiteral("<= 1/%1").arg(timesFaster), 1 / timing.ratio >= timesFaster);
}

void RatioTable::addQuantity(const QString& name, double value, const QString& unit, double goal)
{
    print(name, QString::number(value, 'f', 2) + u' ' + unit, QStringLiteral("-"),
          QStringLiteral("-"), QStringLiteral("<= %1 %2").arg(goal).arg(unit), value <= goal);
}

void RatioTable::addMissing(const QString& name, const QString& reason)
{
    printColumns(name, QStringLiteral("-"), QStringLiteral("-"), QStringLiteral("-"),
                 QStringLiteral("-"), reason);
}

void RatioTable::print(const QString& name, const QString& ours, const QString& reference,
                       const QString& ratio, const QString& goal, bool isMet)
{
    m_missed += isMet ? 0 : 1;
    printColumns(name, ours, reference, ratio, goal,
                 isMet ? QStringLiteral("yes") : QStringLiteral("NO"));
}

} // namespace quillon::bench
