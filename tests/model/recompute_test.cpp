// SPDX-License-Identifier: MIT
#include "tests/model/view_model_fixture.h"
#include "tests/support/log_lines.h"

namespace quillon {
namespace {

const QStringList kOneOfEach{QStringLiteral("PHP Fatal error: 0"),
                             QStringLiteral("error 1"),
                             QStringLiteral("warning 2"),
                             QStringLiteral("notice 3"),
                             QStringLiteral("deprecated 4"),
                             QStringLiteral("info 5"),
                             QStringLiteral("debug 6"),
                             QStringLiteral("other 7")};

class Recompute : public ViewModelTest {
protected:
    void rebuild(const QStringList& texts)
    {
        model().lines.set(logLines(texts));
        model().recompute();
    }
    // Appends the lines and extends the display by them, as the follower does.
    void extend(const QStringList& texts)
    {
        const LogLines added = logLines(texts, model().lines.get().size());
        model().lines.mutate([&added](LogLines& all) { all.append(added); });
        model().recompute(added);
    }
    // The last digits of the texts shown.
    QString shownDigits()
    {
        QString digits;
        for (const QString& text : shown()) {
            digits += text.back();
        }
        return digits;
    }
};

TEST_F(Recompute, AnEmptyLogGivesZeroCountsAndNoOutput)
{
    model().recompute();
    EXPECT_EQ(status(), QStringLiteral("Lignes: 0 • Affichées: 0"));
    EXPECT_EQ(output(), QString());
}

TEST_F(Recompute, AHundredAndTwentyHiddenWarningsAreSaidToBeFiltered)
{
    QLocale::setDefault(QLocale(QLocale::French, QLocale::France));
    model().showWarning.set(false);
    rebuild(QStringList(120, QStringLiteral("PHP Warning: x")));
    EXPECT_EQ(status(), QStringLiteral("Lignes: 120 • Affichées: 0 (filtrées)"));
    EXPECT_EQ(output(), QString());
}

TEST_F(Recompute, CountsAreGroupedAsTheUsersLocaleDoes)
{
    QLocale::setDefault(QLocale(QLocale::French, QLocale::France));
    rebuild(QStringList(1'234, QStringLiteral("x")));
    EXPECT_EQ(status(), QStringLiteral("Lignes: 1\u202F234 • Affichées: 1\u202F234"));
}

TEST_F(Recompute, OnlyErrorsHidesWarningsEvenWhenTheyAreToBeShown)
{
    model().onlyErrors.set(true);
    model().showWarning.set(true);
    rebuild(kOneOfEach);
    EXPECT_EQ(shownDigits(), QStringLiteral("01"));
    EXPECT_EQ(status(), QStringLiteral("Lignes: 8 • Affichées: 2"));
}

TEST_F(Recompute, WithEveryLevelHiddenTheOthersRemain)
{
    model().showWarning.set(false);
    model().showNotice.set(false);
    model().showDeprecated.set(false);
    rebuild(kOneOfEach);
    EXPECT_EQ(shownDigits(), QStringLiteral("01567"));
}

TEST_F(Recompute, ARebuildSetsTheStatusBeforeTheOutput)
{
    QString order;
    const Subscription status =
        model().statusLine.observeWillChange([&order] { order += QStringLiteral("status "); });
    const Subscription output = model().attributedOutput.observeWillChange(
        [&order] { order += QStringLiteral("output "); });
    model().recompute();
    EXPECT_EQ(order, QStringLiteral("status output "));
}

TEST_F(Recompute, AnExtensionSetsTheOutputBeforeTheStatus)
{
    rebuild({QStringLiteral("a")});
    QString order;
    const Subscription status =
        model().statusLine.observeWillChange([&order] { order += QStringLiteral("status "); });
    const Subscription output = model().attributedOutput.observeWillChange(
        [&order] { order += QStringLiteral("output "); });
    extend({QStringLiteral("b")});
    EXPECT_EQ(order, QStringLiteral("output status "));
}

TEST_F(Recompute, AnExtensionAppendsTheNewRows)
{
    rebuild({QStringLiteral("a")});
    extend({QStringLiteral("b"), QStringLiteral("c")});
    EXPECT_EQ(output(), QStringLiteral("1\ta\n2\tb\n3\tc\n"));
    EXPECT_EQ(status(), QStringLiteral("Lignes: 3 • Affichées: 3"));
}

TEST_F(Recompute, ABatchOfHiddenLinesChangesNeitherOutputNorStatus)
{
    model().showNotice.set(false);
    rebuild({QStringLiteral("a")});
    int changes = 0;
    const Subscription status = model().statusLine.observeWillChange([&changes] { ++changes; });
    const Subscription output =
        model().attributedOutput.observeWillChange([&changes] { ++changes; });
    extend({QStringLiteral("notice"), QStringLiteral("notice")});
    EXPECT_EQ(changes, 0);
    EXPECT_EQ(model().lines.get().size(), 3);
    EXPECT_EQ(this->status(), QStringLiteral("Lignes: 1 • Affichées: 1"));
}

TEST_F(Recompute, AnExtensionIsFilteredLikeTheRest)
{
    model().showNotice.set(false);
    rebuild({QStringLiteral("a"), QStringLiteral("notice")});
    extend({QStringLiteral("notice"), QStringLiteral("b")});
    EXPECT_EQ(output(), QStringLiteral("1\ta\n4\tb\n"));
    EXPECT_EQ(status(), QStringLiteral("Lignes: 4 • Affichées: 2"));
}

TEST_F(Recompute, AnExtensionKeepsTheFormerRowsAsTheyWereStyled)
{
    rebuild({QStringLiteral("a")});
    model().fontSize.set(20);
    extend({QStringLiteral("b")});
    const auto& rows = model().attributedOutput.get().rows();
    EXPECT_EQ(rows[0].baseAttributes().fontSize, 13);
    EXPECT_EQ(rows[1].baseAttributes().fontSize, 20);
}

TEST_F(Recompute, AnExtensionCountsLineFeedsButNotThoseAfterACarriageReturn)
{
    rebuild({QStringLiteral("a")});
    extend({QStringLiteral("b\r"), QStringLiteral("c")});
    EXPECT_EQ(model().attributedOutput.get().rows().size(), 3);
    EXPECT_EQ(status(), QStringLiteral("Lignes: 3 • Affichées: 2"));
}

TEST_F(Recompute, ARebuildCountsLinesWhateverTheyHold)
{
    rebuild({QStringLiteral("a"), QStringLiteral("b\r")});
    EXPECT_EQ(status(), QStringLiteral("Lignes: 2 • Affichées: 2"));
}

TEST_F(Recompute, WrappingSetsTheLineBreakModeOfTheRows)
{
    model().wrapLines.set(false);
    rebuild({QStringLiteral("a")});
    EXPECT_EQ(model().attributedOutput.get().rows()[0].baseAttributes().lineBreakMode,
              LineBreakMode::Clipping);
    model().wrapLines.set(true);
    model().recompute();
    EXPECT_EQ(model().attributedOutput.get().rows()[0].baseAttributes().lineBreakMode,
              LineBreakMode::WordWrapping);
}

TEST_F(Recompute, RowsHaveTheSystemsTextColorAsTheirBase)
{
    rebuild({QStringLiteral("a")});
    EXPECT_EQ(
        model().attributedOutput.get().rows()[0].baseAttributes(),
        (BaseAttributes{13.0, Color::system(SystemColor::Text), LineBreakMode::WordWrapping}));
}

} // namespace
} // namespace quillon
