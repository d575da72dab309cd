// SPDX-License-Identifier: MIT
#include "app/print/terminal_row.h"
#include "render/styled_line.h"
#include "tests/support/distinct_colors.h"
#include "tests/support/log_lines.h"
#include "tests/support/printing.h"
#include "tests/support/random_text.h"

#include <QRegularExpression>

#include <gtest/gtest.h>

namespace quillon {
namespace {

AttributedRow styledRow(const QString& text, const QString& query,
                        const HighlightColors& colors = distinctColors())
{
    const auto styler =
        std::make_shared<LogRowStyler>(BaseAttributes(), colors, SearchExpression::make(query));
    return styledLine(logLine(text, 17), styler);
}

QByteArray written(TerminalRowFormat& format, const AttributedRow& row)
{
    QByteArray out;
    format.append(row, out);
    return out;
}

// Character by character, with an escape sequence wherever the style becomes another one.
QByteArray writtenPlainly(const AttributedRow& row, ColorDepth depth)
{
    const QList<uint> characters = row.string().toUcs4();
    const std::vector<AttributeRun> runs = row.runs();
    QByteArray out;
    QByteArray style;
    qsizetype at = 0;
    for (const uint character : characters) {
        const auto run =
            std::find_if(runs.begin(), runs.end(),
                         [at](const AttributeRun& candidate) { return candidate.end() > at; });
        const QByteArray wanted = character == u'\n' && at == row.length() - 1
                                      ? QByteArray()
                                      : graphicRendition(run->attributes, depth);
        if (wanted != style) {
            out += wanted.isEmpty()  ? QByteArray("\x1B[0m")
                   : style.isEmpty() ? "\x1B[" + wanted + 'm'
                                     : "\x1B[0;" + wanted + 'm';
            style = wanted;
        }
        appendText(QString::fromUcs4(reinterpret_cast<const char32_t*>(&character), 1),
                   ControlCharacters::AsPictures, out);
        at += character > 0xFFFF ? 2 : 1;
    }
    return out;
}

TEST(TerminalRow, EndsPlain)
{
    TerminalRowFormat format(ColorDepth::TrueColor, ControlCharacters::AsPictures,
                             RowNumber::Shown);
    EXPECT_TRUE(written(format, styledRow(QStringLiteral("a warning"), {})).endsWith("\x1B[0m\n"));
}

TEST(TerminalRow, KeepsACharacterWholeThatASearchCutsInTwo)
{
    // The lower-case form of U+0130 is one unit longer, and moves what is found behind it.
    TerminalRowFormat format(ColorDepth::TrueColor, ControlCharacters::AsPictures,
                             RowNumber::Shown);
    const QByteArray row =
        written(format, styledRow(QStringLiteral("\u0130 [\U0001F600]"), QStringLiteral("[")));
    EXPECT_TRUE(row.contains("\U0001F600")) << row.constData();
    EXPECT_FALSE(row.contains("\uFFFD")) << row.constData();
}

TEST(TerminalRowProperty, SaysWhatAPlainWriterSays)
{
    const QStringList pieces{
        QStringLiteral("[05-Mar-2024 10:15:42 UTC]"),
        QStringLiteral("PHP Warning: "),
        QStringLiteral("Array ("),
        QStringLiteral("a"),
        QStringLiteral("é"),
        QStringLiteral("\u0130"),
        QStringLiteral("\U0001F600"),
        QStringLiteral("["),
        QStringLiteral("("),
        QStringLiteral("\x1B"),
        QStringLiteral("\t"),
        QStringLiteral(" "),
    };
    const QStringList queries{QString(),           QStringLiteral("a"), QStringLiteral("["),
                              QStringLiteral("("), QStringLiteral("."), QStringLiteral("17")};
    RandomText random(81);
    for (const ColorDepth depth :
         {ColorDepth::Ansi16, ColorDepth::Indexed256, ColorDepth::TrueColor}) {
        TerminalRowFormat format(depth, ControlCharacters::AsPictures, RowNumber::Shown);
        for (int i = 0; i < 5'000 && !testing::Test::HasFailure(); ++i) {
            // More styles than are kept, in the end.
            HighlightColors colors = distinctColors();
            colors.ofRole[std::size_t(HighlightRole::Date)] =
                Color::rgb(0.01 * random.below(100), 0, 0);
            const AttributedRow row =
                styledRow(random.join(pieces, 8),
                          queries[random.below(std::uint32_t(queries.size()))], colors);
            QByteArray out = written(format, row);
            ASSERT_EQ(out, writtenPlainly(row, depth)) << qPrintable(row.string());
            QByteArray plain;
            appendPlainRow(row, ControlCharacters::AsPictures, RowNumber::Shown, plain);
            ASSERT_EQ(QString::fromUtf8(out).remove(
                          QRegularExpression(QStringLiteral("\x1B\\[[0-9;]*m"))),
                      QString::fromUtf8(plain));
        }
    }
}

} // namespace
} // namespace quillon
