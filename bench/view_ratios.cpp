// SPDX-License-Identifier: MIT
#include "bench/generated_log.h"
#include "bench/own_view.h"
#include "bench/ratio_table.h"
#include "bench/reference_view.h"

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
    compareReplacing(table, true);
    compareReplacing(table, false);
    compareRewrapping(table);
    compareTailBatches(table);
}

} // namespace quillon::bench
