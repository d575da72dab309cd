// SPDX-License-Identifier: MIT
// Single steps on the road of a byte, for finding out where time goes.
#include "bench/generated_log.h"
#include "model/log_recompute.h"
#include "model/records/classify.h"
#include "model/records/decode_text.h"
#include "model/records/line_builder.h"
#include "model/records/line_enumeration.h"
#include "platform/notification_center.h"
#include "platform/user_defaults.h"
#include "ui/layout/log_text_layout.h"
#include "ui/layout/metrics_cache.h"
#include "ui/layout/severity_marks.h"
#include "ui/log_text/log_text_view.h"
#include "ui/theme/theme.h"

#include <QApplication>
#include <QTemporaryDir>

#include <array>
#include <benchmark/benchmark.h>
#include <cstdlib>

namespace {

using namespace quillon;

constexpr qsizetype kLogBytes = 2'097'152;

const QByteArray& log()
{
    static const QByteArray bytes = bench::generatedLog(kLogBytes);
    return bytes;
}

void decode(benchmark::State& state)
{
    for (auto _ : state) {
        benchmark::DoNotOptimize(decodeText(log()));
    }
}
BENCHMARK(decode)->Unit(benchmark::kMicrosecond);

void enumerateLines(benchmark::State& state)
{
    const QString text = decodeText(log());
    for (auto _ : state) {
        LineEnumeration lines(text);
        while (const auto line = lines.next()) {
            benchmark::DoNotOptimize(line);
        }
    }
}
BENCHMARK(enumerateLines)->Unit(benchmark::kMicrosecond);

void classifyLines(benchmark::State& state)
{
    const QString text = decodeText(log());
    for (auto _ : state) {
        LineEnumeration lines(text);
        while (const auto line = lines.next()) {
            benchmark::DoNotOptimize(classify(*line));
        }
    }
}
BENCHMARK(classifyLines)->Unit(benchmark::kMicrosecond);

void buildRecords(benchmark::State& state)
{
    for (auto _ : state) {
        LogLines lines;
        appendParsedBytes(log(), 0, lines);
        benchmark::DoNotOptimize(lines.size());
    }
}
BENCHMARK(buildRecords)->Unit(benchmark::kMicrosecond);

struct Styled {
    QTemporaryDir folder;
    NotificationCenter center;
    UserDefaults defaults{center, folder.filePath(QStringLiteral("settings.conf"))};
    LogLines lines;

    explicit Styled(const QByteArray& bytes = log()) { appendParsedBytes(bytes, 0, lines); }
    AttributedString text(const QString& query = QString()) const
    {
        DisplayOptions options;
        options.filter.search = SearchExpression::make(query);
        return rebuildDisplay(lines, options, defaults).output;
    }
};

void rebuild(benchmark::State& state)
{
    const Styled styled;
    for (auto _ : state) {
        benchmark::DoNotOptimize(styled.text(QStringLiteral("e")).length());
    }
}
BENCHMARK(rebuild)->Unit(benchmark::kMicrosecond);

void workOutRuns(benchmark::State& state)
{
    const AttributedString text = Styled().text();
    for (auto _ : state) {
        for (const AttributedRow& row : text.rows()) {
            benchmark::DoNotOptimize(row.runs());
        }
    }
}
BENCHMARK(workOutRuns)->Unit(benchmark::kMicrosecond);

std::shared_ptr<const MonospaceMetrics> usualMetrics()
{
    return std::make_shared<const MonospaceMetrics>(monospacedSystemFont(13, FontWeight::Regular),
                                                    monospacedSystemFont(13, FontWeight::Bold));
}

void layOutAnew(benchmark::State& state, bench::Prose prose)
{
    const AttributedString text = Styled(bench::generatedLog(kLogBytes, prose)).text();
    const auto metrics = usualMetrics();
    LogTextLayout layout;
    for (auto _ : state) {
        layout.layOut(AttributedString(), metrics, std::nullopt);
        layout.layOut(text, metrics, 120 * metrics->columnAdvance());
    }
}
BENCHMARK_CAPTURE(layOutAnew, WordPress, bench::Prose::WordPress)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(layOutAnew, French, bench::Prose::French)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(layOutAnew, Chinese, bench::Prose::Chinese)->Unit(benchmark::kMicrosecond);

// A log that is a single line.
void layOutOneLine(benchmark::State& state)
{
    QByteArray bytes = log();
    const AttributedString text = Styled(bytes.replace('\n', ' ')).text();
    const auto metrics = usualMetrics();
    LogTextLayout layout;
    for (auto _ : state) {
        layout.layOut(AttributedString(), metrics, std::nullopt);
        layout.layOut(text, metrics, 120 * metrics->columnAdvance());
    }
}
BENCHMARK(layOutOneLine)->Unit(benchmark::kMicrosecond);

void layOut(benchmark::State& state)
{
    const AttributedString text = Styled().text();
    const auto metrics = usualMetrics();
    const Fixed column = metrics->columnAdvance();
    Fixed columns = 100;
    LogTextLayout layout;
    for (auto _ : state) {
        columns = columns == 100 ? 110 : 100;
        layout.layOut(text, metrics, columns * column + column / 2);
    }
}
BENCHMARK(layOut)->Unit(benchmark::kMicrosecond);

// The usual log with a phrase at the end of every line that needs shaping.
QByteArray logWithPhrase(const char* phrase)
{
    QByteArray bytes;
    const QList<QByteArray> lines = log().split('\n');
    for (const QByteArray& line : lines) {
        bytes += line + ' ' + phrase + '\n';
    }
    return bytes.left(kLogBytes);
}

// Right to left and joining; accents of their own, as in file names from macOS; an emoji.
constexpr const char* kArabic = "خطأ في قاعدة البيانات";
constexpr const char* kAccent = "de\u0301ja\u0300 vu";
constexpr const char* kEmoji = "\U0001F642 ok";

void openShaped(benchmark::State& state, const char* phrase)
{
    const AttributedString text = Styled(logWithPhrase(phrase)).text();
    const auto metrics = usualMetrics();
    const Fixed column = metrics->columnAdvance();
    for (auto _ : state) {
        LogTextLayout layout;
        layout.layOut(text, metrics, 120 * column + column / 2);
    }
}
BENCHMARK_CAPTURE(openShaped, Arabic, kArabic)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(openShaped, accent, kAccent)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(openShaped, emoji, kEmoji)->Unit(benchmark::kMillisecond);

// A window's edge dragged to and fro, a column at a time: one step of it.
void dragShaped(benchmark::State& state, const char* phrase)
{
    const AttributedString text = Styled(logWithPhrase(phrase)).text();
    const auto metrics = usualMetrics();
    const Fixed column = metrics->columnAdvance();
    LogTextLayout layout;
    int step = 0;
    for (auto _ : state) {
        const int columns = 100 + std::abs(step++ % 40 - 20);
        layout.layOut(text, metrics, columns * column + column / 2);
    }
}
BENCHMARK_CAPTURE(dragShaped, Arabic, kArabic)->Unit(benchmark::kMillisecond)->Iterations(80);
BENCHMARK_CAPTURE(dragShaped, accent, kAccent)->Unit(benchmark::kMillisecond)->Iterations(80);
BENCHMARK_CAPTURE(dragShaped, emoji, kEmoji)->Unit(benchmark::kMillisecond)->Iterations(80);

// Another text size, there and back.
void resizeShaped(benchmark::State& state, const char* phrase)
{
    const AttributedString text = Styled(logWithPhrase(phrase)).text();
    MetricsCache sizes;
    LogTextLayout layout;
    double size = 13;
    for (auto _ : state) {
        size = size == 13 ? 15 : 13;
        const auto metrics = sizes.atSize(size);
        const Fixed column = metrics->columnAdvance();
        layout.layOut(text, metrics, 120 * column + column / 2);
    }
}
BENCHMARK_CAPTURE(resizeShaped, Arabic, kArabic)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(resizeShaped, emoji, kEmoji)->Unit(benchmark::kMillisecond);

// Which rows of a text that replaces another are severe.
void gatherSevereRows(benchmark::State& state)
{
    const Styled styled;
    const std::array texts{styled.text(), styled.text()};
    SevereRows rows;
    std::size_t next = 0;
    for (auto _ : state) {
        rows.follow(texts[next++ % texts.size()]);
        benchmark::DoNotOptimize(rows.bySeverity().front().size());
    }
}
BENCHMARK(gatherSevereRows)->Unit(benchmark::kMicrosecond);

// The same for a batch of a hundred rows behind it.
void gatherNewSevereRows(benchmark::State& state)
{
    AttributedString text = Styled().text();
    SevereRows rows;
    rows.follow(text);
    qsizetype next = 0;
    for (auto _ : state) {
        for (int i = 0; i < 100; ++i) {
            text.append(text.rows()[next++ % 10'000]);
        }
        rows.follow(text);
    }
}
BENCHMARK(gatherNewSevereRows)->Unit(benchmark::kMicrosecond)->Iterations(2'000);

// Where their marks stand on a track of a large screen's height; at worst each row is one.
void placeMarks(benchmark::State& state, const QString& query)
{
    const AttributedString text = Styled().text(query);
    const auto metrics = usualMetrics();
    LogTextLayout layout;
    layout.layOut(text, metrics, 120 * metrics->columnAdvance());
    SevereRows rows;
    rows.follow(text);
    for (auto _ : state) {
        benchmark::DoNotOptimize(marksOnTrack(rows, layout, 1'200).size());
    }
}
BENCHMARK_CAPTURE(placeMarks, usual, QString())->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(placeMarks, errorsOnly, QStringLiteral("fatal"))->Unit(benchmark::kMicrosecond);

void resizeView(benchmark::State& state)
{
    LogTextView view{LogTextContent{Styled().text(), true, 13}};
    view.show();
    QCoreApplication::processEvents();
    int width = 760;
    for (auto _ : state) {
        width = width == 760 ? 900 : 760;
        view.resize(width, 700);
    }
}
BENCHMARK(resizeView)->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
