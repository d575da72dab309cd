// SPDX-License-Identifier: MIT
#include "tests/support/printing.h"
#include "tests/ui/layout/log_text_samples.h"
#include "ui/layout/break_opportunities.h"
#include "ui/layout/monospace_metrics.h"
#include "ui/layout/piece_shaper.h"
#include "ui/layout/word_line_breaking.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

class WordLineBreaking : public ::testing::Test {
protected:
    [[nodiscard]] std::optional<Fixed> widthOf(qsizetype columns) const
    {
        return columns > 0 ? std::optional(widthOfColumns(columns, *metrics)) : std::nullopt;
    }
    // By words; none where these do not tell.
    [[nodiscard]] std::optional<WordLines> measure(const QString& text, qsizetype columns) const
    {
        return WordLineBreaker(*metrics, opportunities, widthOf(columns))
            .measure(text, metrics->tabDistance());
    }

    // The text on as many lines, and as wide, as a text layout of the whole makes it.
    void expectAsLaidOut(const QString& text, qsizetype columns)
    {
        ++asked;
        const auto lines = measure(text, columns);
        if (!lines) {
            return;
        }
        ++told;
        const PieceShaper shaper(*metrics, widthOf(columns));
        const ShapedMeasure expected = shaper.measure(text, ShapedPiece{0, text.size(), 1});
        ASSERT_EQ(lines->count, expected.lineCount)
            << columns << ' ' << ::testing::PrintToString(text);
        if (columns == 0) {
            ASSERT_EQ(lines->oneLine, expected.widestLine) << ::testing::PrintToString(text);
        } else if (!text.endsWith(u' ')) { // a text layout counts it where there is room
            const PieceShaper narrower(*metrics, lines->widest);
            ASSERT_EQ(narrower.measure(text, ShapedPiece{0, text.size(), 1}).lineCount,
                      lines->count)
                << columns << ' ' << lines->widest << ' ' << ::testing::PrintToString(text);
            if (lines->count == 2) {
                const PieceShaper wider(*metrics, lines->oneLine - metrics->columnAdvance());
                ASSERT_EQ(wider.measure(text, ShapedPiece{0, text.size(), 1}).lineCount, 2)
                    << columns << ' ' << lines->oneLine << ' ' << ::testing::PrintToString(text);
            }
        }
    }

    std::shared_ptr<const MonospaceMetrics> metrics = sampleMetrics();
    BreakOpportunities opportunities;
    int asked = 0;
    int told = 0;
};

// What logs have in their lines, around the phrases of a language.
QStringList logPieces()
{
    return {
        QStringLiteral("[21-Nov-2026 10:11:12 UTC] "),
        QStringLiteral("PHP Warning:  "),
        QStringLiteral("in /var/www/html/wp-content/plugins/a-b/class_c.php "),
        QStringLiteral("on line 42 "),
        QStringLiteral("3.8.0 "),
        QStringLiteral("(12) "),
        QStringLiteral("- "),
        QStringLiteral("100% "),
        QStringLiteral("id=7, "),
        QStringLiteral("\"x\": "),
        QStringLiteral("   "),
        QStringLiteral("déjà… "),
    };
}

struct Script {
    const char* name;
    QStringList pieces;
};

class WordLineBreakingInScript : public WordLineBreaking,
                                 public ::testing::WithParamInterface<Script> {};

TEST_P(WordLineBreakingInScript, GivesTheLinesAndWidthsOfATextLayout)
{
    RandomText random(71);
    const QStringList pieces = logPieces() + GetParam().pieces + GetParam().pieces;
    for (int i = 0; i < 250; ++i) {
        const QString text = random.join(pieces, 16) + GetParam().pieces.front();
        for (const qsizetype columns : {0, 14, 23, 47, 80, 121}) {
            expectAsLaidOut(i % 2 == 0 ? text : text.trimmed(), columns);
        }
    }
    EXPECT_GT(told, asked * 3 / 4) << "of " << asked;
}

TEST_P(WordLineBreakingInScript, GivesThemForATextThatBeginsWithSpaces)
{
    for (const qsizetype spaces : {1, 2, 5}) {
        for (const QString& piece : GetParam().pieces) {
            const QString text = QString(spaces, u' ') + piece + QStringLiteral("on line 42");
            for (const qsizetype columns : {0, 23, 47, 80}) {
                expectAsLaidOut(text, columns);
            }
        }
    }
    EXPECT_GT(told, asked * 3 / 4) << "of " << asked;
}

INSTANTIATE_TEST_SUITE_P(
    Scripts, WordLineBreakingInScript,
    ::testing::Values(
        Script{"Emoji",
               {QStringLiteral("🙂 "), QStringLiteral("👩‍👩‍👧 "),
                QStringLiteral("🇫🇷🇩🇪 "), QStringLiteral("done✅ "), QStringLiteral("1️⃣ ")}},
        Script{"Marks",
               {QStringLiteral("cafe\u0301 "), QStringLiteral("a\u0308\u0304-e\u0301/x "),
                QStringLiteral("l’e\u0301te\u0301, ")}},
        Script{"Arabic",
               {QStringLiteral("خطأ في قاعدة البيانات "), QStringLiteral("الاستثناءات، "),
                QStringLiteral("٣٤ "), QStringLiteral("(خطأ): "), QStringLiteral("لا-شيء ")}},
        Script{"Hebrew",
               {QStringLiteral("שגיאה במסד הנתונים. "), QStringLiteral("במסד-abc "),
                QStringLiteral("\"כן\", ")}},
        Script{
            "Devanagari",
            {QStringLiteral("त्रुटि संदेश क्षेत्र "), QStringLiteral("डेटाबेस: "), QStringLiteral("१२। ")}},
        Script{"Thai", {QStringLiteral("ข้อผิดพลาดในฐานข้อมูล "), QStringLiteral("ก็ ")}},
        Script{"Mixed",
               {QStringLiteral("오류 메시지 "), QStringLiteral("错误日志，e\u0301 "),
                QStringLiteral("Ошибка "), QStringLiteral("خطأ/error: "), QStringLiteral("🙂 "),
                QStringLiteral("त्रुटि ")}}),
    [](const auto& script) { return std::string(script.param.name); });

TEST_F(WordLineBreaking, DoesNotTellWhatTakesATextLayout)
{
    for (const QString& text :
         {QStringLiteral("🙂 soft\u00ADhyphen e\u0301\u00ADe"),
          QStringLiteral("🙂 a\te\u0301\tb"), QStringLiteral("e\u0301\u3000wide"),
          QStringLiteral("e\u0301\u0007bell"), QStringLiteral("e\u0301\u2028line"),
          QStringLiteral("e\u0301").repeated(40) + QStringLiteral(" long")}) {
        EXPECT_FALSE(measure(text, 20)) << ::testing::PrintToString(text);
    }
    EXPECT_FALSE(measure(QStringLiteral("e\u0301 "), 0)) << "a space at an unbroken end";
}

TEST_F(WordLineBreaking, KeepsManyMoreWordsThanItHasRoomFor)
{
    for (int i = 0; i < 40'000; ++i) {
        static_cast<void>(measure(QString::number(i) + QStringLiteral("e\u0301 x"), 20));
    }
    expectAsLaidOut(QStringLiteral("7e\u0301 x 39999e\u0301 x"), 10);
    EXPECT_EQ(told, 1);
}

} // namespace
} // namespace quillon
