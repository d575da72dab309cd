// SPDX-License-Identifier: MIT
#include "tests/support/printing.h"
#include "tests/ui/layout/log_text_samples.h"
#include "ui/log_text/log_text_changes.h"

#include <gtest/gtest.h>

namespace quillon {

void PrintTo(const LogTextChange& change, std::ostream* stream)
{
    *stream << (change.kind == LogTextChange::Kind::Removed ? "removed" : "inserted") << " at "
            << change.offset << ": " << ::testing::PrintToString(change.text.left(80));
}

namespace {

using Changes = std::vector<LogTextChange>;

LogTextChange went(qsizetype offset, const QString& text)
{
    return {LogTextChange::Kind::Removed, static_cast<int>(offset), text};
}

LogTextChange came(qsizetype offset, const QString& text)
{
    return {LogTextChange::Kind::Inserted, static_cast<int>(offset), text};
}

QStringList manyLines()
{
    QStringList lines;
    for (int i = 0; i < 3000; ++i) {
        lines.append(QStringLiteral("PHP Warning:  something on line ") + QString::number(i));
    }
    return lines;
}

TEST(LogTextChanges, AreTheWholeOfTheFirstText)
{
    EXPECT_EQ(changesOfLogText({}, sampleText({QStringLiteral("one"), QStringLiteral("two")})),
              (Changes{came(0, QStringLiteral("1\tone\n2\ttwo\n"))}));
}

TEST(LogTextChanges, AreTheRowsThatWereAppended)
{
    const AttributedString former = sampleText({QStringLiteral("one")});
    AttributedString current = former;
    appendRows(current, {QStringLiteral("two"), QStringLiteral("three")});
    EXPECT_EQ(changesOfLogText(former, current),
              (Changes{came(6, QStringLiteral("2\ttwo\n3\tthree\n"))}));
}

TEST(LogTextChanges, AreNoneWhereNothingWasAppended)
{
    const AttributedString text = sampleText({QStringLiteral("one")});
    EXPECT_EQ(changesOfLogText(text, text), Changes{});
    EXPECT_EQ(changesOfLogText({}, {}), Changes{});
}

TEST(LogTextChanges, AreWhatWentAndWhatCameInItsPlace)
{
    const AttributedString both = sampleText({QStringLiteral("one"), QStringLiteral("two")});
    const AttributedString one = sampleText({QStringLiteral("two")});
    const QString former = QStringLiteral("1\tone\n2\ttwo\n");
    EXPECT_EQ(changesOfLogText(both, one),
              (Changes{went(0, former), came(0, QStringLiteral("1\ttwo\n"))}));
    EXPECT_EQ(changesOfLogText(both, {}), (Changes{went(0, former)}));
}

TEST(LogTextChanges, AreNoneWhereTheSameTextWasMadeAnew)
{
    EXPECT_EQ(changesOfLogText(sampleText(manyLines()), sampleText(manyLines())), Changes{});
}

TEST(LogTextChanges, OfALongTextAreItsEnd)
{
    const AttributedString text = sampleText(manyLines());
    const AttributedString other = sampleText({QStringLiteral("one")});
    const QString end = text.string().last(kLongestLogTextChange);
    const qint64 start = text.length() - kLongestLogTextChange;
    const QString one = QStringLiteral("1\tone\n");
    EXPECT_EQ(changesOfLogText({}, text), (Changes{came(start, end)}));
    EXPECT_EQ(changesOfLogText(text, other), (Changes{went(start, end), came(0, one)}));
    AttributedString extended = other;
    appendRows(extended, manyLines());
    EXPECT_EQ(changesOfLogText(other, extended),
              (Changes{came(extended.length() - kLongestLogTextChange,
                            extended.string().last(kLongestLogTextChange))}));
}

TEST(LogTextChanges, DoNotBeginWithinACharacter)
{
    // The line feed makes the number of units from the end to any pair an odd one.
    const AttributedString text =
        sampleText({QStringLiteral("🙂").repeated(kLongestLogTextChange)});
    EXPECT_EQ(changesOfLogText({}, text),
              (Changes{came(text.length() - kLongestLogTextChange + 1,
                            text.string().last(kLongestLogTextChange - 1))}));
}

} // namespace
} // namespace quillon
