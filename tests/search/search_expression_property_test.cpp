// SPDX-License-Identifier: MIT
#include "search/case_folding.h"
#include "tests/support/random_text.h"
#include "tests/support/search_comparison.h"
#include "tests/support/test_data.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

// Checks what a search says of a text against the regular expression engine alone.
void expectLikeTheEngine(SearchComparer& search, const QString& pattern, const QString& text)
{
    // Some patterns, such as "$*?^", keep ICU 72 going round for ever.
    const SearchComparison comparison = search.compare(text);
    ASSERT_EQ(comparison.difference, nullptr)
        << comparison.difference << ": " << qPrintable(pattern) << " in " << qPrintable(text);
}

void expectLikeTheEngine(const QString& pattern, const QString& text)
{
    SearchComparer search(pattern);
    expectLikeTheEngine(search, pattern, text);
}

const QStringList& unusualPieces()
{
    static const QStringList pieces{
        QStringLiteral("s"),      QStringLiteral("S"),      QStringLiteral("ss"),
        QStringLiteral("k"),      QStringLiteral("i"),      QStringLiteral("f"),
        QStringLiteral("fi"),     QStringLiteral("st"),     QStringLiteral("n"),
        QStringLiteral("'"),      QStringLiteral("a"),      QStringLiteral("h"),
        QStringLiteral("j"),      QStringLiteral("ß"),      QStringLiteral("\u1E9E"),
        QStringLiteral("ſ"),      QStringLiteral("\u212A"), QStringLiteral("\u0130"),
        QStringLiteral("ı"),      QStringLiteral("ﬁ"),      QStringLiteral("ﬃ"),
        QStringLiteral("ﬆ"),      QStringLiteral("\u0149"), QStringLiteral("\u01F0"),
        QStringLiteral("\u1E96"), QStringLiteral("\u1E9A"), QStringLiteral("\u0307"),
        QStringLiteral("é"),      QStringLiteral("日"),     QStringLiteral("🌞"),
        QStringLiteral(" "),      QStringLiteral("\u02BE"), QString(),
    };
    return pieces;
}

TEST(SearchExpressionProperty, APlainWordFindsWhatTheEngineFindsInUnusualTexts)
{
    const QStringList words{
        QStringLiteral("s"),  QStringLiteral("ss"),  QStringLiteral("S"),  QStringLiteral("k"),
        QStringLiteral("i"),  QStringLiteral("fi"),  QStringLiteral("ff"), QStringLiteral("ffi"),
        QStringLiteral("st"), QStringLiteral("ns"),  QStringLiteral("a"),  QStringLiteral("h"),
        QStringLiteral("j"),  QStringLiteral("sk"),  QStringLiteral("is"), QStringLiteral("sss"),
        QStringLiteral(" "),  QStringLiteral("s s"), QStringLiteral("'n"), QStringLiteral("hi"),
    };
    RandomText random(31);
    for (int i = 0; i < 30'000 && !testing::Test::HasFailure(); ++i) {
        expectLikeTheEngine(words[random.below(std::uint32_t(words.size()))],
                            random.join(unusualPieces(), 12));
    }
}

TEST(SearchExpressionProperty, EveryPlainCharacterFindsWhatTheEngineFindsInEveryCharacter)
{
    // Those that fold to ASCII one by one: a text that holds one is left to the engine.
    QString everything;
    QStringList foldingToAscii;
    for (int unit = 1; unit <= 0xFFFF; ++unit) {
        if (hasCharacterFoldingToAscii(QString(QChar(unit)))) {
            foldingToAscii.append(QString(QChar(unit)));
        } else {
            everything += QChar(unit);
        }
    }
    ASSERT_FALSE(hasCharacterFoldingToAscii(everything));
    QString ascii = everything.left(0x7F);
    static const QString kMeta = QStringLiteral("\\^$.|?*+()[]{}");
    for (char16_t character = 0x20; character < 0x7F; ++character) {
        if (!kMeta.contains(QChar(character))) {
            expectLikeTheEngine(QString(QChar(character)), everything);
            expectLikeTheEngine(QString(QChar(character)), ascii);
            for (const QString& folding : foldingToAscii) {
                expectLikeTheEngine(QString(QChar(character)), folding);
            }
        }
    }
}

TEST(SearchExpressionProperty, RandomWordsFindWhatTheEngineFindsInPlainTexts)
{
    const QStringList pieces{
        QStringLiteral("a"),  QStringLiteral("B"), QStringLiteral("ab"), QStringLiteral("-"),
        QStringLiteral("_"),  QStringLiteral(" "), QStringLiteral("#"),  QStringLiteral("&&"),
        QStringLiteral("~"),  QStringLiteral("@"), QStringLiteral("/x"), QStringLiteral("é"),
        QStringLiteral("日"),
    };
    RandomText random(32);
    for (int i = 0; i < 30'000 && !testing::Test::HasFailure(); ++i) {
        const QString word = random.join(pieces, 4);
        const bool isDelimited = word.startsWith(u'/') && word.endsWith(u'/');
        if (!word.isEmpty() && !isDelimited) {
            expectLikeTheEngine(word, random.join(pieces, 60));
        }
    }
}

TEST(SearchExpressionProperty, RandomExpressionsFindWhatTheEngineFinds)
{
    const QStringList parts{
        QStringLiteral("abc"), QStringLiteral("ab"),   QStringLiteral("sst"),
        QStringLiteral("c"),   QStringLiteral("."),    QStringLiteral(".*"),
        QStringLiteral("*"),   QStringLiteral("+"),    QStringLiteral("?"),
        QStringLiteral("*?"),  QStringLiteral("^"),    QStringLiteral("$"),
        QStringLiteral("|"),   QStringLiteral("(ab)"), QStringLiteral("[bc]"),
        QStringLiteral("\\b"), QStringLiteral("b{0}"), QStringLiteral(" "),
        QStringLiteral("("),   QStringLiteral(")"),    QStringLiteral("(?=.*"),
        QStringLiteral("(?:"), QStringLiteral(")?"),   QStringLiteral("\\."),
        QStringLiteral("(?>"), QStringLiteral("(.*)"), QStringLiteral("(?!"),
        QStringLiteral("\\1"), QStringLiteral("\\d"),  QStringLiteral("[^a]"),
        QStringLiteral(".+?"), QStringLiteral("){2}"), QStringLiteral("(.+)"),
    };
    const QStringList pieces{
        QStringLiteral("a"),  QStringLiteral("ab"), QStringLiteral("abc"), QStringLiteral("C"),
        QStringLiteral("ss"), QStringLiteral("ß"),  QStringLiteral("ﬆ"),   QStringLiteral("t"),
        QStringLiteral(" "),  QStringLiteral("é"),  QStringLiteral("."),   QStringLiteral("\n"),
        QStringLiteral("\r"), QStringLiteral("7"),
    };
    RandomText random(33);
    int compared = 0;
    while (compared < 8'000 && !testing::Test::HasFailure()) {
        const QString pattern = random.join(parts, 6);
        if (RegularExpression::compile(pattern, CaseSensitivity::Insensitive)) {
            expectLikeTheEngine(pattern, random.join(pieces, 12));
            ++compared;
        }
    }
}

TEST(SearchExpressionProperty, WordsFindWhatTheEngineFindsInGenuineLogs)
{
    QStringList lines;
    for (const QString& name : testDataNames()) {
        lines += QString::fromUtf8(testData(name)).split(u'\n');
    }
    for (const char16_t* word :
         {u"e", u"php", u"ERROR", u"array", u" in /var", u"12:", u"undefined .* key", u"warnings?:",
          u"^.*trace", u".*\\.php", u"(.*)stack(.*)", u"(?=.*error)(?=.*line)",
          u".*(wp-content|php)\\b", u".*?\\s#0", u"(.*)exhausted|line \\d+"}) {
        const QString pattern = QString::fromUtf16(word);
        SearchComparer search(pattern);
        for (const QString& line : lines) {
            expectLikeTheEngine(search, pattern, line);
        }
    }
}

} // namespace
} // namespace quillon
