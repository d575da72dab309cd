// SPDX-License-Identifier: MIT
#include "model/records/decode_text.h"
#include "model/records/line_enumeration.h"
#include "render/styled_line.h"
#include "tests/support/distinct_colors.h"
#include "tests/support/log_lines.h"
#include "tests/support/printing.h"
#include "tests/support/random_text.h"
#include "tests/support/test_data.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

std::unique_ptr<RegularExpression> expressionOf(const QString& pattern,
                                                CaseSensitivity caseSensitivity)
{
    return RegularExpression::compile(pattern, caseSensitivity);
}

// Paints a row character by character, one rule after the other.
class PlainPainter {
public:
    PlainPainter(const LogLine& line, const QString& query)
        : m_row(QString::number(line.number()) + u'\t' + line.text() + u'\n'),
          m_units(std::size_t(m_row.size()))
    {
        const HighlightColors colors = distinctColors();
        setForeground({0, m_row.size()}, colors[roleOf(line.severity())]);
        paintTimestamp(colors[HighlightRole::Date]);
        setForeground({0, m_row.indexOf(u'\t')}, Color::system(SystemColor::SecondaryLabel));
        static const auto dump =
            expressionOf(QStringLiteral(R"((?:\bArray\b\s*\(|\bprint_r\s*\(|\bvar_dump\s*\())"),
                         CaseSensitivity::Insensitive);
        if (dump->hasMatch(m_row)) {
            setForeground({0, m_row.size()}, colors[HighlightRole::ArrayDump]);
        }
        for (const TextRange& match : matchesOf(query)) {
            for (qsizetype at = match.start; at < std::min(match.end(), m_row.size()); ++at) {
                m_units[std::size_t(at)].foreground = Color::system(SystemColor::Text);
                m_units[std::size_t(at)].background =
                    Color::system(SystemColor::SelectedTextBackground, 0.35);
            }
        }
    }

    // One run per span of equal units.
    [[nodiscard]] std::vector<AttributeRun> runs() const
    {
        std::vector<AttributeRun> runs;
        for (std::size_t at = 0; at < m_units.size(); ++at) {
            if (runs.empty() || !(runs.back().attributes == m_units[at])) {
                runs.push_back({qsizetype(at), 0, m_units[at]});
            }
            ++runs.back().length;
        }
        return runs;
    }

private:
    void setForeground(const TextRange& range, const Color& color)
    {
        for (qsizetype at = range.start; at < range.end(); ++at) {
            m_units[std::size_t(at)].foreground = color;
        }
    }

    void paintTimestamp(const Color& date)
    {
        static const auto timestamp =
            expressionOf(QStringLiteral(R"(\[\d{2}-[A-Za-z]{3}-\d{4} (\d{2}:\d{2}:\d{2}) UTC\])"),
                         CaseSensitivity::Sensitive);
        static const auto time =
            expressionOf(QStringLiteral(R"(\d{2}:\d{2}:\d{2})"), CaseSensitivity::Sensitive);
        const auto found = timestamp->firstMatch(m_row);
        if (!found) {
            return;
        }
        setForeground(*found, date);
        const TextRange bold = time->firstMatch(m_row).value();
        for (qsizetype at = bold.start; at < bold.end(); ++at) {
            m_units[std::size_t(at)].weight = FontWeight::Bold;
        }
    }

    [[nodiscard]] std::vector<TextRange> matchesOf(const QString& query) const
    {
        if (query.isEmpty()) {
            return {};
        }
        const bool isDelimited = query.size() >= 2 && query.front() == u'/' && query.back() == u'/';
        const QString pattern = isDelimited ? query.mid(1, query.size() - 2) : query;
        if (const auto expression = expressionOf(pattern, CaseSensitivity::Insensitive)) {
            return expression->allMatches(m_row);
        }
        std::vector<TextRange> matches;
        const QString lowered = m_row.toLower();
        const QString wanted = query.toLower();
        for (qsizetype at = lowered.indexOf(wanted); at >= 0;
             at = lowered.indexOf(wanted, at + wanted.size())) {
            matches.push_back({at, wanted.size()});
        }
        return matches;
    }

    QString m_row;
    std::vector<RunAttributes> m_units;
};

void expectLikeThePainter(const LogLine& line, const QString& query)
{
    const auto styler = std::make_shared<LogRowStyler>(BaseAttributes(), distinctColors(),
                                                       SearchExpression::make(query));
    ASSERT_EQ(styledLine(line, styler).runs(), PlainPainter(line, query).runs())
        << qPrintable(line.text()) << " searched for " << qPrintable(query);
}

const QStringList& queries()
{
    static const QStringList list{
        QString(),
        QStringLiteral("a"),
        QStringLiteral("1"),
        QStringLiteral("/\\d+/"),
        QStringLiteral("x*"),
        QStringLiteral("."),
        QStringLiteral("\\s"),
        QStringLiteral("["),
        QStringLiteral("("),
        QStringLiteral("//"),
        QStringLiteral("utc]"),
        QStringLiteral("^\\d+\\t"),
        QStringLiteral("é"),
        QStringLiteral("ss"),
        QStringLiteral("a("),
        QStringLiteral("$"),
        QStringLiteral("\\n"),
        QStringLiteral("(?=a)"),
        QStringLiteral("error"),
        QStringLiteral("10:15:"),
        QStringLiteral("/[/"),
    };
    return list;
}

TEST(StyledLineProperty, AgreesWithAPlainPainterOnRandomLines)
{
    const QStringList pieces{
        QStringLiteral("[05-Mar-2024 10:15:42 UTC]"),
        QStringLiteral("12:00:00"),
        QStringLiteral("Array ("),
        QStringLiteral("print_r("),
        QStringLiteral("PHP Fatal error: "),
        QStringLiteral("warning"),
        QStringLiteral("notice "),
        QStringLiteral("a"),
        QStringLiteral("é"),
        QStringLiteral("ß"),
        QStringLiteral("\u0130"),
        QStringLiteral("🌞"),
        QStringLiteral("["),
        QStringLiteral("]"),
        QStringLiteral("("),
        QStringLiteral("//"),
        QStringLiteral("\t"),
        QStringLiteral("\f"),
        QStringLiteral("1"),
        QStringLiteral(" "),
        QString(),
    };
    RandomText random(41);
    for (int i = 0; i < 30'000 && !testing::Test::HasFailure(); ++i) {
        const qint64 number = qint64{random.below(200'000)} * (1 + random.below(100'000));
        expectLikeThePainter(logLine(random.join(pieces, 8), number),
                             queries()[random.below(std::uint32_t(queries().size()))]);
    }
}

TEST(StyledLineProperty, AgreesWithAPlainPainterOnGenuineLogs)
{
    for (const QString& name : testDataNames()) {
        LogLines lines;
        appendParsedText(decodeText(testData(name)), 0, lines);
        for (const LogLine& line : lines) {
            const QString& query = queries()[line.number() % queries().size()];
            expectLikeThePainter(line, query);
        }
    }
}

// Checks parts of a row's style, asked for in any order, against all of its runs.
void expectPartsOfTheWhole(const AttributedRow& row, RandomText& random)
{
    const std::vector<AttributeRun> whole = row.runs();
    const auto style = row.style();
    for (int i = 0; i < 5; ++i) {
        const auto start = qsizetype(random.below(quint32(row.length())));
        const TextRange part{start, 1 + qsizetype(random.below(quint32(row.length() - start)))};
        while (!style->advance(part.end())) {
        }
        ASSERT_EQ(style->runsIn(part), SettledStyle(whole).runsIn(part))
            << qPrintable(row.text()) << " from " << part.start << " to " << part.end();
    }
    std::vector<AttributeRun> oneByOne;
    row.forEachRun([&oneByOne](const AttributeRun& run) { oneByOne.push_back(run); });
    ASSERT_EQ(oneByOne, whole) << qPrintable(row.text().left(4'000));
}

AttributedRow rowOf(const QString& text, const QString& query)
{
    return styledLine(logLine(text, 17),
                      std::make_shared<LogRowStyler>(BaseAttributes(), distinctColors(),
                                                     SearchExpression::make(query)));
}

TEST(StyledLineProperty, PartsOfARandomRowHaveTheRunsOfTheWhole)
{
    const QStringList pieces{QStringLiteral("[05-Mar-2024 10:15:42 UTC]"),
                             QStringLiteral("10:15:42"),
                             QStringLiteral("Array ("),
                             QStringLiteral("error"),
                             QStringLiteral("a"),
                             QStringLiteral(" "),
                             QStringLiteral("//"),
                             QStringLiteral("ß"),
                             QStringLiteral("1"),
                             QString()};
    RandomText random(42);
    for (int i = 0; i < 4'000 && !testing::Test::HasFailure(); ++i) {
        expectPartsOfTheWhole(rowOf(random.join(pieces, 12),
                                    queries()[random.below(std::uint32_t(queries().size()))]),
                              random);
    }
}

TEST(StyledLineProperty, PartsOfALongRowHaveTheRunsOfTheWhole)
{
    const QString text =
        QStringLiteral("[05-Mar-2024 10:15:42 UTC] an error, 12 of them; ss a( é ").repeated(3'000);
    RandomText random(43);
    for (const QString& query : queries()) {
        expectPartsOfTheWhole(rowOf(text, query), random);
    }
}

} // namespace
} // namespace quillon
