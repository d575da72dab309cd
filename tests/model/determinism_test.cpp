// SPDX-License-Identifier: MIT
// What a search says of a line depends on that line alone.
#include "model/log_recompute.h"
#include "tests/model/view_model_fixture.h"
#include "tests/support/log_lines.h"
#include "tests/support/random_text.h"
#include "tests/support/test_data.h"

#include <vector>

namespace quillon {
namespace {

// What a pass came to.
struct Outcome {
    QString rows;
    qint64 undecided = 0;
    bool operator==(const Outcome&) const = default;

    void add(const DisplayedLog& display)
    {
        rows = display.output.string();
        undecided += display.undecidedLines;
    }
};

class Determinism : public ViewModelTest {
protected:
    // A log, and what is searched for in it.
    struct Case {
        LogLines lines;
        const char16_t* query;
    };
    static std::vector<Case> cases(qsizetype lineCount)
    {
        const QStringList texts =
            QString::fromUtf8(testData(testDataNames().front())).split(u'\n').mid(0, lineCount);
        std::vector<Case> cases;
        for (const char16_t* query :
             {u"([a-z]+/?)+\\.php", u"(\"[^\"]*\"|[^\"])*id", u"(\\w+\\s?)+:$",
              u".*Fatal|(\\w+\\s*)+;", u"(warning", u"a"}) {
            cases.push_back({logLines(texts), query});
        }
        // A line that is decided in spans, with a match in the last.
        const QString text = QStringLiteral("word/12 \"a\" ").repeated(6'000) + QStringLiteral("z");
        for (const char16_t* query : {u"(?>[^z]*)z", u"\\w+z", u".*12z|(.*)\" z|line \\d+"}) {
            cases.push_back({logLines({texts[0], text, texts[1]}), query});
        }
        return cases;
    }
    static DisplayOptions optionsFor(const char16_t* query)
    {
        DisplayOptions options;
        options.filter.search = SearchExpression::make(QString::fromUtf16(query));
        return options;
    }
    Outcome atOneGo(const LogLines& lines, const DisplayOptions& options)
    {
        Outcome outcome;
        outcome.add(rebuildDisplay(lines, options, defaults()));
        return outcome;
    }
    static LogLines part(const LogLines& lines, qsizetype start, qsizetype count)
    {
        LogLines some;
        for (qsizetype at = start; at < std::min(start + count, lines.size()); ++at) {
            some.append(lines[at]);
        }
        return some;
    }
};

TEST_F(Determinism, AnyCutIntoBatchesComesToTheSame)
{
    RandomText random(61);
    for (const auto& [lines, query] : cases(80)) {
        const DisplayOptions options = optionsFor(query);
        const Outcome expected = atOneGo(lines, options);
        for (const quint32 longest : {1U, 7U, 90U}) {
            Outcome outcome;
            AttributedString output;
            for (qsizetype at = 0; at < lines.size();) {
                const auto count = qsizetype(1 + random.below(longest));
                const DisplayedLog display =
                    extendDisplay(output, part(lines, at, count), at, options, defaults());
                output = display.output;
                outcome.add(display);
                at += count;
            }
            EXPECT_EQ(outcome, expected) << qPrintable(QString::fromUtf16(query));
        }
    }
}

TEST_F(Determinism, APassThatIsInterruptedAnywhereComesToTheSame)
{
    for (const auto& [lines, query] : cases(16)) {
        const DisplayOptions options = optionsFor(query);
        const Outcome expected = atOneGo(lines, options);
        bool isInterrupted = true;
        for (int place = 0; isInterrupted; ++place) {
            isInterrupted = false;
            int looks = 0;
            DisplayPass pass = DisplayPass::rebuild(lines, options, defaults());
            while (!pass.goOn([&] { return looks++ == place; })) {
                isInterrupted = true;
                // What other texts are asked in between has no say either.
                static_cast<void>(options.filter.search->matches(QStringLiteral("a/b.php:")));
            }
            Outcome outcome;
            outcome.add(pass.result(lines.size()));
            ASSERT_EQ(outcome, expected)
                << qPrintable(QString::fromUtf16(query)) << " interrupted at " << place;
        }
    }
}

TEST_F(Determinism, APassThatLinesJoinAnywhereComesToTheSame)
{
    for (const auto& [lines, query] : cases(30)) {
        const DisplayOptions options = optionsFor(query);
        const Outcome expected = atOneGo(lines, options);
        for (const qsizetype known : {qsizetype{1}, lines.size() / 2, lines.size() - 1}) {
            LogLines all = part(lines, 0, known);
            const LogLines later = part(lines, known, lines.size());
            DisplayPass pass = DisplayPass::rebuild(all, options, defaults());
            bool isJoined = false;
            while (!pass.goOn([] { return true; }) || !isJoined) {
                if (!std::exchange(isJoined, true)) {
                    all.append(later);
                    pass.join(later, all);
                }
            }
            Outcome outcome;
            outcome.add(pass.result(lines.size()));
            EXPECT_EQ(outcome, expected) << qPrintable(QString::fromUtf16(query));
        }
    }
}

} // namespace
} // namespace quillon
