// SPDX-License-Identifier: MIT
#include "model/log_recompute.h"
#include "tests/model/view_model_fixture.h"
#include "tests/support/log_lines.h"

namespace quillon {
namespace {

// A search that takes several slices of processor time.
class RecomputeSlices : public ViewModelTest {
protected:
    static constexpr int kCostlyLines = 300;

    // Each of the costly lines takes all the steps that a line may.
    static QStringList costlyTexts()
    {
        QStringList texts;
        for (int i = 0; i < kCostlyLines; ++i) {
            texts.append(QString(60, u'a') + u'b');
            texts.append(QStringLiteral("%1 a").arg(i));
        }
        return texts;
    }
    static QStringList expected()
    {
        QStringList texts;
        for (int i = 0; i < kCostlyLines; ++i) {
            texts.append(QStringLiteral("%1 a").arg(i));
        }
        return texts;
    }

    void beginCostlyPass()
    {
        model().query.set(QStringLiteral("(a+)+$"));
        model().lines.set(logLines(costlyTexts()));
        model().recompute();
    }
};

TEST_F(RecomputeSlices, APassThatTakesLongGoesOnInTheEventLoop)
{
    beginCostlyPass();
    EXPECT_TRUE(model().isRecomputing.get());
    EXPECT_TRUE(shown().isEmpty());
    ASSERT_TRUE(finishPass());
    EXPECT_EQ(shown(), expected());
    EXPECT_EQ(status(), QStringLiteral("Lignes: 600 • Affichées: 300"));
}

TEST_F(RecomputeSlices, APassThatTakesNoTimeIsOverAtOnce)
{
    model().query.set(QStringLiteral("a$"));
    model().lines.set(logLines(costlyTexts()));
    model().recompute();
    EXPECT_FALSE(model().isRecomputing.get());
    EXPECT_EQ(shown(), expected());
}

TEST_F(RecomputeSlices, CountsTheLinesThatAreUndecided)
{
    beginCostlyPass();
    ASSERT_TRUE(finishPass());
    EXPECT_EQ(model().undecidedLines.get(), kCostlyLines);
    model().query.set(QStringLiteral("a$"));
    model().recompute();
    EXPECT_EQ(model().undecidedLines.get(), 0);
}

TEST_F(RecomputeSlices, APassPublishesOnceAtItsEnd)
{
    beginCostlyPass();
    int published = -1; // the value that there is
    const Subscription output =
        model().attributedOutput.subscribe([&](const AttributedString&) { ++published; });
    ASSERT_TRUE(finishPass());
    EXPECT_EQ(published, 1);
}

TEST_F(RecomputeSlices, AnotherQueryAbandonsAPass)
{
    beginCostlyPass();
    model().query.set(QStringLiteral("^17 "));
    EXPECT_FALSE(model().isRecomputing.get());
    ASSERT_TRUE(spinUntil([this] { return !shown().isEmpty(); }));
    EXPECT_EQ(shown(), QStringList{QStringLiteral("17 a")});
    EXPECT_EQ(model().undecidedLines.get(), 0);
}

TEST_F(RecomputeSlices, ASwitchAbandonsAPass)
{
    beginCostlyPass();
    model().onlyErrors.set(true);
    EXPECT_FALSE(model().isRecomputing.get());
    ASSERT_TRUE(spinUntil(
        [this] { return status() == QStringLiteral("Lignes: 600 • Affichées: 0 (filtrées)"); }));
    EXPECT_TRUE(shown().isEmpty());
}

TEST_F(RecomputeSlices, AppendedLinesJoinAPass)
{
    beginCostlyPass();
    const LogLines added =
        logLines({QStringLiteral("new a"), QStringLiteral("new b")}, 2 * kCostlyLines);
    model().lines.mutate([&added](LogLines& all) { all.append(added); });
    model().recompute(added);
    EXPECT_TRUE(model().isRecomputing.get());
    ASSERT_TRUE(finishPass());
    EXPECT_EQ(shown(), expected() + QStringList{QStringLiteral("new a")});
    EXPECT_EQ(status(), QStringLiteral("Lignes: 602 • Affichées: 301"));
}

TEST_F(RecomputeSlices, AppendedLinesJoinAPassOverAppendedLines)
{
    model().query.set(QStringLiteral("(a+)+$"));
    model().recompute();
    const LogLines costly = logLines(costlyTexts());
    model().lines.set(costly);
    model().recompute(costly);
    ASSERT_TRUE(model().isRecomputing.get());
    const LogLines added = logLines({QStringLiteral("new a")}, 2 * kCostlyLines);
    model().lines.mutate([&added](LogLines& all) { all.append(added); });
    model().recompute(added);
    ASSERT_TRUE(finishPass());
    EXPECT_EQ(shown(), expected() + QStringList{QStringLiteral("new a")});
}

TEST_F(RecomputeSlices, OpeningSaysHowManyLinesThereAreAlsoWhenTheSearchGoesOn)
{
    model().query.set(QStringLiteral("(a+)+$"));
    ASSERT_TRUE(spinUntil([this] { return status().contains(QStringLiteral("Affichées")); }));
    open(costlyTexts().join(u'\n').toUtf8());
    EXPECT_TRUE(model().isRecomputing.get());
    EXPECT_EQ(status(), QStringLiteral("Lignes: 600"));
    ASSERT_TRUE(finishPass());
    EXPECT_EQ(shown(), expected());
    EXPECT_EQ(status(), QStringLiteral("Lignes: 600"));
}

TEST_F(RecomputeSlices, EmptyingTheDisplayAbandonsAPass)
{
    beginCostlyPass();
    model().clearContent();
    EXPECT_FALSE(model().isRecomputing.get());
    EXPECT_EQ(status(), QStringLiteral("Vide"));
    EXPECT_TRUE(shown().isEmpty());
}

TEST_F(RecomputeSlices, APassInSlicesComesToWhatItDoesAtOneGo)
{
    const LogLines lines = logLines(costlyTexts());
    DisplayOptions options;
    options.filter.search = SearchExpression::make(QStringLiteral("(a+)+$"));
    const DisplayedLog atOnce = rebuildDisplay(lines, options, defaults());
    DisplayPass pass = DisplayPass::rebuild(lines, options, defaults());
    int slices = 1;
    while (!pass.goOn([] { return true; })) {
        ++slices;
    }
    EXPECT_GT(slices, kCostlyLines / 4);
    const DisplayedLog inSlices = pass.result(lines.size());
    EXPECT_EQ(inSlices.output.string(), atOnce.output.string());
    EXPECT_EQ(inSlices.statusLine, atOnce.statusLine);
    EXPECT_EQ(inSlices.undecidedLines, atOnce.undecidedLines);
}

TEST_F(RecomputeSlices, ALongLineIsDecidedInSlices)
{
    const LogLines lines = logLines({QStringLiteral("ab cd ").repeated(50'000)});
    DisplayOptions options;
    options.filter.search = SearchExpression::make(QStringLiteral("\\w+ \\d"));
    DisplayPass pass = DisplayPass::rebuild(lines, options, defaults());
    EXPECT_FALSE(pass.goOn([] { return true; }));
    while (!pass.goOn([] { return true; })) {
    }
    EXPECT_EQ(pass.result(1).undecidedLines, 0);
    EXPECT_EQ(pass.result(1).newRows, 0);
}

TEST_F(RecomputeSlices, AnyCutIntoBatchesShowsTheSameRows)
{
    const QStringList texts = costlyTexts().mid(0, 60);
    DisplayOptions options;
    options.filter.search = SearchExpression::make(QStringLiteral("(a+)+$"));
    const QString whole = rebuildDisplay(logLines(texts), options, defaults()).output.string();
    for (const qsizetype size : {1, 7, 59}) {
        AttributedString output;
        qint64 undecided = 0;
        for (qsizetype at = 0; at < texts.size(); at += size) {
            const DisplayedLog extended =
                extendDisplay(output, logLines(texts.mid(at, size), at), at, options, defaults());
            output = extended.output;
            undecided += extended.undecidedLines;
        }
        EXPECT_EQ(output.string(), whole);
        EXPECT_EQ(undecided, 30);
    }
}

} // namespace
} // namespace quillon
