// SPDX-License-Identifier: MIT
#include "bench/generated_log.h"
#include "bench/own_view.h"
#include "bench/ratio_table.h"
#include "bench/reference_view.h"

#include <QFile>

#include <functional>
#include <malloc.h>

namespace quillon::bench {

namespace {

void compareKeyPress(RatioTable& table)
{
    const Model model;
    const LogLines lines = linesOf(generatedLog(kLogBytes));
    OwnView view;
    ReferenceView reference(kViewSize);
    const QString query = QStringLiteral("e");
    const auto ours = [&] {
        return millisecondsOf([&] { view.show(model.styled(lines, query), true); });
    };
    const auto theirs = [&] {
        const AttributedString text = model.styled(lines, query);
        return millisecondsOf([&] { reference.show(text, true); });
    };
    table.addSpeedUp(QStringLiteral("key press: recompute, update, paint | QTextEdit"),
                     comparePairs(ours, theirs), 50);
}

// The resident memory that the work takes beyond what there is before it.
double peakBytesOf(const std::function<void()>& work)
{
    ::malloc_trim(0);
    const auto kibibytesOf = [](const char* field) {
        QFile status(QStringLiteral("/proc/self/status"));
        static_cast<void>(status.open(QIODevice::ReadOnly));
        const QByteArray text = status.readAll();
        const qsizetype at = text.indexOf(field) + qsizetype(qstrlen(field));
        return text.mid(at, text.indexOf(" kB", at) - at).trimmed().toDouble();
    };
    // From here on the kernel keeps the peak anew.
    QFile peak(QStringLiteral("/proc/self/clear_refs"));
    static_cast<void>(peak.open(QIODevice::WriteOnly));
    peak.write("5");
    peak.close();
    const double before = kibibytesOf("VmRSS:");
    work();
    return (kibibytesOf("VmHWM:") - before) * 1024;
}

// A key press that finds something at thousands of places of a log that is one line.
void compareKeyPressOnOneLine(RatioTable& table)
{
    const Model model;
    const QByteArray log = generatedLog(kLogBytes);
    QByteArray joined = log;
    joined.replace('\n', ' ');
    const LogLines lines = linesOf(log);
    const LogLines oneLine = linesOf(joined);
    OwnView view;
    OwnView reference;
    const QString query = QStringLiteral("e");
    const auto keyPress = [&](OwnView& shown, const LogLines& searched) {
        return millisecondsOf([&] { shown.show(model.styled(searched, query), true); });
    };
    table.add(QStringLiteral("key press on one line of 2 MiB | usual log"),
              comparePairs([&] { return keyPress(view, oneLine); },
                           [&] { return keyPress(reference, lines); }, 25),
              3);
    constexpr double kMebibyte = 1'048'576;
    table.addQuantity(QStringLiteral("the same: memory that it takes meanwhile"),
                      peakBytesOf([&] { keyPress(view, oneLine); }) / kMebibyte,
                      QStringLiteral("MiB"), 40);
}

void compareReplacing(RatioTable& table, bool isWrapped)
{
    const Model model;
    const LogLines lines = linesOf(generatedLog(kLogBytes));
    OwnView view;
    ReferenceView reference(kViewSize);
    const auto ours = [&] {
        const AttributedString text = model.styled(lines);
        return millisecondsOf([&] { view.show(text, isWrapped); });
    };
    const auto theirs = [&] {
        const AttributedString text = model.styled(lines);
        return millisecondsOf([&] { reference.show(text, isWrapped); });
    };
    table.addSpeedUp(isWrapped
                         ? QStringLiteral("replace, lay out, to end, paint, wrapped | QTextEdit")
                         : QStringLiteral("the same, unwrapped | QTextEdit"),
                     comparePairs(ours, theirs), 80);
}

void compareRewrapping(RatioTable& table)
{
    const Model model;
    const LogLines lines = linesOf(generatedLog(kLogBytes));
    OwnView view;
    const auto replace = [&] {
        const AttributedString text = model.styled(lines);
        view.show(model.styled(lines), true);
        return millisecondsOf([&] { view.replace(text, true); });
    };
    // Each is the first change after a new text, when least is known of its rows, there and back.
    const auto rewrap = [&](int from, int to) {
        view.resize(from);
        view.show(model.styled(lines), true);
        return millisecondsOf([&] { view.resize(to); });
    };
    table.add(QStringLiteral("re-wrap after a change of width | replace and lay out"),
              comparePairs([&] { return (rewrap(900, 760) + rewrap(760, 900)) / 2; }, replace, 25),
              0.5);
    const auto scale = [&](double from, double to) {
        const AttributedString text = model.styled(lines);
        view.replace(text, true, from);
        view.paint();
        return millisecondsOf([&] { view.replace(text, true, to); });
    };
    table.add(QStringLiteral("re-wrap after a change of size | replace and lay out"),
              comparePairs([&] { return (scale(13, 14) + scale(14, 13)) / 2; }, replace, 25), 0.5);
}

void compareTailBatches(RatioTable& table)
{
    const QByteArray batch = generatedLines(100);
    FollowedLog large(generatedLines(1'000'000), batch);
    FollowedLog small(generatedLines(17'000), batch);
    table.add(
        QStringLiteral("tail batch of 100 lines at 1,000,000 | at 17,000"),
        comparePairs([&] { return large.batchTime(); }, [&] { return small.batchTime(); }, 51),
        1.1);
}

} // namespace

void runViewRatios(RatioTable& table)
{
    compareKeyPress(table);
    compareKeyPressOnOneLine(table);
    compareReplacing(table, true);
    compareReplacing(table, false);
    compareRewrapping(table);
    compareTailBatches(table);
}

} // namespace quillon::bench
