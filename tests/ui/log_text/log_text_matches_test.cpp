// SPDX-License-Identifier: MIT
// Rows whose matches take long to find, or are many.
#include "render/highlight_colors.h"
#include "render/styled_line.h"
#include "tests/support/distinct_colors.h"
#include "tests/support/log_lines.h"
#include "tests/support/paint_watch.h"
#include "tests/support/spin_until.h"
#include "tests/ui/log_text/log_text_painting_fixture.h"

namespace quillon {
namespace {

// What a test and the styles of a text have in common.
struct Search {
    bool isOver = false;
    // The parts that were asked for.
    std::vector<TextRange> asked;
};

// Rows all red once the search is over, and plain until then.
class SlowStyle final : public RowStyle {
public:
    explicit SlowStyle(std::shared_ptr<Search> search) : m_search(std::move(search)) {}

    bool advance(qsizetype /*end*/) override { return m_search->isOver; }
    [[nodiscard]] std::vector<AttributeRun> runsIn(const TextRange& part) const override
    {
        m_search->asked.push_back(part);
        RunAttributes attributes;
        if (m_search->isOver) {
            attributes.foreground = kRed;
        }
        return {AttributeRun{part.start, part.length, attributes}};
    }

private:
    std::shared_ptr<Search> m_search;
};

class SlowStyler final : public RowStyler {
public:
    explicit SlowStyler(std::shared_ptr<Search> search) : m_search(std::move(search)) {}

    [[nodiscard]] const BaseAttributes& baseAttributes() const override { return m_base; }
    [[nodiscard]] Color severityColor(LogSeverity /*severity*/) const override
    {
        return Color::system(SystemColor::Text);
    }
    [[nodiscard]] std::vector<AttributeRun> runsOf(const AttributedRow& row) const override
    {
        return SlowStyle(m_search).runsIn(TextRange{0, row.length()});
    }
    [[nodiscard]] std::unique_ptr<RowStyle> styleOf(const AttributedRow& /*row*/) const override
    {
        return std::make_unique<SlowStyle>(m_search);
    }

private:
    BaseAttributes m_base;
    std::shared_ptr<Search> m_search;
};

class LogTextMatches : public LogTextPainting {
protected:
    std::shared_ptr<Search> search = std::make_shared<Search>();

    [[nodiscard]] AttributedString textOf(const QString& line) const
    {
        AttributedString text;
        text.append(AttributedRow(1, line, LogSeverity::Unknown,
                                  std::make_shared<const SlowStyler>(search)));
        return text;
    }
    [[nodiscard]] bool isMarked() const
    {
        const QImage image = painted();
        return count(image, image.rect(), isReddish) > 0;
    }
};

TEST_F(LogTextMatches, ARowIsPaintedBeforeItsMatchesAreFoundAndAgainAfterwards)
{
    show(wrapped(textOf(QStringLiteral("xxxxxxxx"))));
    const QImage before = painted();
    EXPECT_GT(inkIn(before, before.rect()), 20);
    EXPECT_FALSE(isMarked());
    PaintWatch watch(*view->viewport());
    static_cast<void>(watch.takePaintings());
    EXPECT_TRUE(spinUntil([&watch] { return watch.takePaintings() > 0; }));
    search->isOver = true;
    EXPECT_TRUE(isMarked());
}

TEST_F(LogTextMatches, ARowWhoseMatchesAreFoundIsPaintedOnce)
{
    search->isOver = true;
    show(wrapped(textOf(QStringLiteral("xxxxxxxx"))));
    ASSERT_TRUE(isMarked());
    settle();
    PaintWatch watch(*view->viewport());
    static_cast<void>(watch.takePaintings());
    settle();
    EXPECT_EQ(watch.takePaintings(), 0);
}

TEST_F(LogTextMatches, OfALongRowOnlyWhatIsOnScreenIsAskedFor)
{
    search->isOver = true;
    for (const bool isWrapped : {true, false}) {
        search->asked.clear();
        const AttributedString text = textOf(QStringLiteral("ab ").repeated(700'000));
        show(isWrapped ? wrapped(text) : unwrapped(text));
        static_cast<void>(painted());
        ASSERT_FALSE(search->asked.empty());
        for (const TextRange& part : search->asked) {
            EXPECT_LE(part.length, 65'536);
            EXPECT_EQ(part.end() > 2'000'000, isWrapped) << part.start;
        }
    }
}

TEST_F(LogTextMatches, AtTheEndOfALongRowAreThoseThatAShortOneHas)
{
    const auto styledText = [](const QString& line) {
        AttributedString text;
        text.append(styledLine(logLine(line), std::make_shared<LogRowStyler>(
                                                  BaseAttributes(), distinctColors(),
                                                  SearchExpression::make(QStringLiteral("boom")))));
        return text;
    };
    const QString end = QStringLiteral("a boom b");
    show(wrapped(styledText(QStringLiteral("word boom ").repeated(200'000) + end)));
    const qsizetype length = view->attributedText().rows()[0].length();
    const QImage image = painted();
    const auto isMatch = [&](qsizetype fromEnd) {
        const QRect box = boxOf(0, length - fromEnd, length - fromEnd + 1);
        return count(image, box, [&](QRgb pixel) { return pixel != background(); }) >
               box.width() * box.height() / 2;
    };
    EXPECT_TRUE(isMatch(6));
    EXPECT_TRUE(isMatch(5));
    EXPECT_FALSE(isMatch(2));
}

} // namespace
} // namespace quillon
