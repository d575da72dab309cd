// SPDX-License-Identifier: MIT
#include "model/notification_names.h"
#include "render/color_codec.h"
#include "render/preference_keys.h"
#include "tests/model/view_model_fixture.h"

#include <QElapsedTimer>

#include <chrono>

namespace quillon {
namespace {

using namespace std::chrono_literals;

// Longer than both quiet periods together.
constexpr auto kLongEnough = 250ms;

// Counts the passes over the lines, from after the first one on.
class DisplayTriggers : public ViewModelTest {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(
            spinUntil([this] { return status() == QStringLiteral("Lignes: 0 • Affichées: 0"); }));
        m_subscription = model().attributedOutput.observeWillChange([this] { ++m_passes; });
    }

    // The passes made once things have had the time to calm down.
    int passes()
    {
        spinFor(kLongEnough);
        return m_passes;
    }
    int passesSoFar() const { return m_passes; }

private:
    int m_passes = 0;
    Subscription m_subscription;
};

TEST_F(DisplayTriggers, TheFirstPassComesByItself)
{
    EXPECT_EQ(status(), QStringLiteral("Lignes: 0 • Affichées: 0"));
    EXPECT_EQ(passes(), 0);
}

TEST_F(DisplayTriggers, TypingAQueryOfFiveCharactersMakesOnePass)
{
    for (qsizetype length = 1; length <= 5; ++length) {
        model().query.set(QStringLiteral("query").left(length));
    }
    EXPECT_EQ(passesSoFar(), 0);
    EXPECT_EQ(passes(), 1);
}

// A pass may be late on a busy machine, but never early. In whole milliseconds, rounded down.
TEST_F(DisplayTriggers, APassComesSixtyMillisecondsAfterTheLastKey)
{
    QElapsedTimer sinceKey;
    sinceKey.start();
    model().query.set(QStringLiteral("q"));
    ASSERT_TRUE(spinUntil([this] { return passesSoFar() == 1; }));
    EXPECT_GE(sinceKey.elapsed(), 59);
}

TEST_F(DisplayTriggers, APassComesLaterAfterAChangeOfTheUserDefaults)
{
    QElapsedTimer sinceChange;
    sinceChange.start();
    defaults().setObject(QStringLiteral("#111111"), preference_keys::kColorInfo);
    ASSERT_TRUE(spinUntil([this] { return passesSoFar() == 1; }));
    EXPECT_GE(sinceChange.elapsed(), 119);
}

TEST_F(DisplayTriggers, HidingWarningsAndShowingThemAgainMakesOnePass)
{
    model().showWarning.set(false);
    model().showWarning.set(true);
    EXPECT_EQ(passes(), 1);
}

TEST_F(DisplayTriggers, EveryDisplayOptionMakesAPass)
{
    const std::vector<std::function<void()>> changes{
        [this] { model().wrapLines.set(false); },   [this] { model().fontSize.set(14); },
        [this] { model().query.set(kFile); },       [this] { model().showDeprecated.set(false); },
        [this] { model().showWarning.set(false); }, [this] { model().showNotice.set(false); },
        [this] { model().onlyErrors.set(true); },
    };
    int expected = 0;
    for (const auto& change : changes) {
        change();
        ++expected;
        EXPECT_TRUE(spinUntil([&] { return passesSoFar() == expected; }));
    }
    EXPECT_EQ(passes(), expected);
}

TEST_F(DisplayTriggers, SettingAnOptionToWhatItIsMakesNoPass)
{
    model().showWarning.set(true);
    model().query.set(QString());
    model().fontSize.set(13.0);
    EXPECT_EQ(passes(), 0);
}

TEST_F(DisplayTriggers, TogglingFollowNeverMakesAPass)
{
    model().followTail.set(true);
    model().followTail.set(false);
    EXPECT_EQ(passes(), 0);
}

TEST_F(DisplayTriggers, TheResultsMakeNoPass)
{
    model().statusLine.set(QStringLiteral("text"));
    model().path.set(QStringLiteral("/path"));
    model().lines.set(LogLines());
    EXPECT_EQ(passes(), 0);
}

TEST_F(DisplayTriggers, ManyChangesOfTheUserDefaultsMakeOnePass)
{
    defaults().setObject(QStringLiteral("#111111"), preference_keys::kColorInfo);
    defaults().setObject(QStringLiteral("#222222"), preference_keys::kColorInfo);
    defaults().setObject(QStringLiteral("#333333"), preference_keys::kColorDebug);
    EXPECT_EQ(passesSoFar(), 0);
    EXPECT_EQ(passes(), 1);
}

TEST_F(DisplayTriggers, AChangedColorShowsWithoutOpeningTheFileAgain)
{
    open("[info] x\n");
    defaults().setObject(QStringLiteral("#123456"), preference_keys::kColorInfo);
    const auto textColor = [this] {
        return model().attributedOutput.get().rows()[0].runs().back().attributes.foreground;
    };
    EXPECT_TRUE(
        spinUntil([&] { return textColor() == colorFromHex(QStringLiteral("#123456")).value(); }));
}

TEST_F(DisplayTriggers, ChangedDefaultsDoNotTouchWrappingAndSizeBeforeThePreferencesClose)
{
    defaults().setObject(false, preference_keys::kWrapDefault);
    defaults().setObject(20.0, preference_keys::kFontDefault);
    EXPECT_EQ(passes(), 1);
    EXPECT_TRUE(model().wrapLines.get());
    EXPECT_EQ(model().fontSize.get(), 13.0);
}

TEST_F(DisplayTriggers, ClosingThePreferencesWithNothingChangedMakesOnePass)
{
    center().post(kPrefsDidClose);
    EXPECT_EQ(passesSoFar(), 1);
    EXPECT_EQ(passes(), 1);
}

TEST_F(DisplayTriggers, ClosingThePreferencesWithAnotherSizeMakesASecondPassLater)
{
    model().fontSize.set(20);
    ASSERT_EQ(passes(), 1);
    center().post(kPrefsDidClose);
    EXPECT_EQ(passesSoFar(), 2);
    EXPECT_EQ(passes(), 3);
}

TEST_F(DisplayTriggers, ANewSizeShowsInEveryRow)
{
    open("a\nb\n");
    model().fontSize.set(20);
    ASSERT_EQ(passes(), 3); // the opening's own two among them
    for (const AttributedRow& row : model().attributedOutput.get().rows()) {
        EXPECT_EQ(row.baseAttributes().fontSize, 20);
    }
}

TEST(DisplayTriggersTeardown, NothingHappensOnceTheModelIsGone)
{
    TemporaryDefaults temporary;
    auto model = std::make_unique<LogViewModel>(temporary.defaults, temporary.center);
    model->query.set(QStringLiteral("a"));
    temporary.defaults.setObject(1, preference_keys::kFontDefault);
    model->startTail();
    model.reset();
    temporary.center.post(kPrefsDidClose);
    temporary.defaults.setObject(2, preference_keys::kFontDefault);
    EXPECT_NO_FATAL_FAILURE(spinFor(kLongEnough));
}

} // namespace
} // namespace quillon
