// SPDX-License-Identifier: MIT
#include "tests/model/view_model_fixture.h"
#include "tests/support/log_lines.h"

namespace quillon {
namespace {

class RecomputeSearch : public ViewModelTest {
protected:
    QStringList found(const QString& query, const QStringList& texts)
    {
        model().query.set(query);
        model().lines.set(logLines(texts));
        model().recompute();
        EXPECT_TRUE(finishPass());
        return shown();
    }
};

TEST_F(RecomputeSearch, AQueryWithSlashesShowsTheSameAsOneWithout)
{
    const QStringList texts{QStringLiteral("a Foo"), QStringLiteral("bar"), QStringLiteral("FOOD")};
    const QStringList expected{QStringLiteral("a Foo"), QStringLiteral("FOOD")};
    EXPECT_EQ(found(QStringLiteral("/FOO/"), texts), expected);
    EXPECT_EQ(found(QStringLiteral("foo"), texts), expected);
}

TEST_F(RecomputeSearch, ASlashAloneShowsLinesWithASlash)
{
    EXPECT_EQ(found(QStringLiteral("/"), {QStringLiteral("a/b"), QStringLiteral("ab")}),
              QStringList{QStringLiteral("a/b")});
}

TEST_F(RecomputeSearch, AQueryWithOneSlashKeepsIt)
{
    EXPECT_EQ(found(QStringLiteral("/abc"), {QStringLiteral("x/ABC"), QStringLiteral("abc")}),
              QStringList{QStringLiteral("x/ABC")});
}

TEST_F(RecomputeSearch, TwoSlashesAloneAreSearchedForAsTheyAre)
{
    EXPECT_EQ(found(QStringLiteral("//"), {QStringLiteral("a//b"), QStringLiteral("a/b")}),
              QStringList{QStringLiteral("a//b")});
}

TEST_F(RecomputeSearch, ASpaceShowsOnlyLinesWithASpace)
{
    EXPECT_EQ(found(QStringLiteral(" "), {QStringLiteral("a b"), QStringLiteral("ab")}),
              QStringList{QStringLiteral("a b")});
}

TEST_F(RecomputeSearch, AnInvalidExpressionShowsTheLinesThatHoldIt)
{
    EXPECT_EQ(found(QStringLiteral("["), {QStringLiteral("a[0]"), QStringLiteral("a")}),
              QStringList{QStringLiteral("a[0]")});
}

TEST_F(RecomputeSearch, ALineNumberAloneShowsNoLine)
{
    const QStringList texts(50, QStringLiteral("text"));
    EXPECT_TRUE(found(QStringLiteral("42"), texts).isEmpty());
    EXPECT_EQ(status(), QStringLiteral("Lignes: 50 • Affichées: 0 (filtrées)"));
}

TEST_F(RecomputeSearch, ADotMatchesAnyCharacter)
{
    EXPECT_EQ(found(QStringLiteral("a.c"), {QStringLiteral("abc"), QStringLiteral("ac")}),
              QStringList{QStringLiteral("abc")});
}

TEST_F(RecomputeSearch, ALineThatCostsTooMuchIsLeftOutAndNoOther)
{
    const QString costly = QString(60, u'a') + u'b';
    const QString literal = QStringLiteral("see (A+)+$ here");
    const QString match = QStringLiteral("a match: a");
    EXPECT_EQ(found(QStringLiteral("(a+)+$"), {match, costly, literal, costly, match}),
              (QStringList{match, match}));
    EXPECT_EQ(status(), QStringLiteral("Lignes: 5 • Affichées: 2"));
}

TEST_F(RecomputeSearch, ALineThatCostsTooMuchIsLeftOutOfNewLinesToo)
{
    found(QStringLiteral("(a+)+$"), {QStringLiteral("a")});
    const AttributedString before = model().attributedOutput.get();
    const LogLines added = logLines({QStringLiteral("(a+)+$ and a"), QString(60, u'a') + u'b',
                                     QStringLiteral("see (a+)+$ here")},
                                    1);
    model().lines.mutate([&added](LogLines& all) { all.append(added); });
    model().recompute(added);
    EXPECT_EQ(shown(), (QStringList{QStringLiteral("a"), QStringLiteral("(a+)+$ and a")}));
    EXPECT_TRUE(model().attributedOutput.get().isExtensionOf(before));
}

TEST_F(RecomputeSearch, HowManyLinesCostTooMuchChangesNoOther)
{
    QStringList texts(50, QString(60, u'a') + u'b');
    texts.append(QStringLiteral("a"));
    EXPECT_EQ(found(QStringLiteral("(a+)+$"), texts), QStringList{QStringLiteral("a")});
}

TEST_F(RecomputeSearch, WildcardsMayStandBeforeAnExpressionInALongLog)
{
    QStringList texts(20'000, QStringLiteral("[05-Mar-2024 10:15:42 UTC] PHP Warning:  Undefined "
                                             "variable $x in /srv/wp-content/a.php on line 17"));
    texts[7'000] = QStringLiteral("fatal in /srv/cart.php, by array");
    for (const char16_t* query : {u".*cart\\.php", u".*(cart|hook)\\.php", u".*cart|checkout",
                                  u"(.*)fatal(.*)", u"(?=.*fatal)(?=.*array)"}) {
        EXPECT_EQ(found(QString::fromUtf16(query), texts), QStringList{texts[7'000]});
    }
}

TEST_F(RecomputeSearch, ANewQueryShowsAfterAWhile)
{
    open("foo\nbar\n");
    model().query.set(QStringLiteral("bar"));
    EXPECT_TRUE(spinUntil([this] { return shown() == QStringList{QStringLiteral("bar")}; }));
    EXPECT_EQ(status(), QStringLiteral("Lignes: 2 • Affichées: 1"));
}

} // namespace
} // namespace quillon
