// SPDX-License-Identifier: MIT
#include "model/log_view_model.h"
#include "model/notification_names.h"
#include "render/preference_keys.h"
#include "tests/model/view_model_fixture.h"

namespace quillon {
namespace {

class LogViewModelTest : public ViewModelTest {};

TEST_F(LogViewModelTest, StartsWithNoFileOpen)
{
    EXPECT_EQ(status(), QStringLiteral("Aucun fichier ouvert"));
    EXPECT_EQ(model().path.get(), std::nullopt);
    EXPECT_EQ(model().fileURL, std::nullopt);
    EXPECT_FALSE(model().readHandle);
    EXPECT_EQ(model().pollTimer, nullptr);
    EXPECT_EQ(model().lastFileSize, 0U);
    EXPECT_TRUE(model().lines.get().isEmpty());
    EXPECT_TRUE(model().attributedOutput.get().isEmpty());
}

TEST_F(LogViewModelTest, StartsShowingEverythingWrappedAtThirteenPoints)
{
    EXPECT_TRUE(model().wrapLines.get());
    EXPECT_EQ(model().fontSize.get(), 13.0);
    EXPECT_EQ(model().query.get(), QString());
    EXPECT_FALSE(model().followTail.get());
    EXPECT_TRUE(model().showDeprecated.get());
    EXPECT_TRUE(model().showWarning.get());
    EXPECT_TRUE(model().showNotice.get());
    EXPECT_FALSE(model().onlyErrors.get());
}

TEST(LogViewModelConstruction, RegistersTheDefaultPreferences)
{
    TemporaryDefaults temporary;
    const LogViewModel model(temporary.defaults, temporary.center);
    for (const auto& [key, value] : defaultPreferences()) {
        EXPECT_EQ(temporary.defaults.objectForKey(key), value) << qPrintable(key);
    }
}

TEST(LogViewModelConstruction, TakesTheTextSizeFromTheDefaults)
{
    TemporaryDefaults temporary;
    temporary.defaults.setObject(16.5, preference_keys::kFontDefault);
    const LogViewModel model(temporary.defaults, temporary.center);
    EXPECT_EQ(model.fontSize.get(), 16.5);
}

TEST(LogViewModelConstruction, KeepsThirteenPointsForASizeOfZero)
{
    TemporaryDefaults temporary;
    temporary.defaults.setObject(0, preference_keys::kFontDefault);
    const LogViewModel model(temporary.defaults, temporary.center);
    EXPECT_EQ(model.fontSize.get(), 13.0);
}

TEST(LogViewModelConstruction, KeepsThirteenPointsForASizeThatIsNone)
{
    for (const QVariant& size : {QVariant(-4.0), QVariant(QStringLiteral("large"))}) {
        TemporaryDefaults temporary;
        temporary.defaults.setObject(size, preference_keys::kFontDefault);
        const LogViewModel model(temporary.defaults, temporary.center);
        EXPECT_EQ(model.fontSize.get(), 13.0);
    }
}

TEST(LogViewModelConstruction, TakesWrappingFromTheDefaults)
{
    TemporaryDefaults temporary;
    temporary.defaults.setObject(false, preference_keys::kWrapDefault);
    const LogViewModel model(temporary.defaults, temporary.center);
    EXPECT_FALSE(model.wrapLines.get());
}

TEST_F(LogViewModelTest, ClearingEmptiesTheDisplay)
{
    open("a\nb\n");
    model().clearContent();
    EXPECT_TRUE(model().lines.get().isEmpty());
    EXPECT_EQ(output(), QString());
    EXPECT_EQ(status(), QStringLiteral("Vide"));
    EXPECT_EQ(model().fileURL, url());
}

TEST_F(LogViewModelTest, ClosingThePreferencesTakesTheDisplayDefaultsOverAgain)
{
    model().wrapLines.set(false);
    model().fontSize.set(20);
    center().post(kPrefsDidClose);
    EXPECT_TRUE(model().wrapLines.get());
    EXPECT_EQ(model().fontSize.get(), 13.0);
}

TEST_F(LogViewModelTest, ClosingThePreferencesWithASizeOfZeroKeepsTheTextSize)
{
    model().fontSize.set(20);
    defaults().setObject(0, preference_keys::kFontDefault);
    center().post(kPrefsDidClose);
    EXPECT_EQ(model().fontSize.get(), 20.0);
}

TEST_F(LogViewModelTest, ClosingThePreferencesRebuildsTheDisplayAtOnce)
{
    open("a\n");
    ASSERT_EQ(status(), QStringLiteral("Lignes: 1"));
    center().post(kPrefsDidClose);
    EXPECT_EQ(status(), QStringLiteral("Lignes: 1 • Affichées: 1"));
}

TEST_F(LogViewModelTest, AsksForALogFileAndOpensTheChoice)
{
    folder().write(kFile, "a\n");
    OpenPanelRequest asked;
    model().openPanel = [&](const OpenPanelRequest& request) {
        asked = request;
        return std::optional(url());
    };
    model().presentOpenPanel();
    EXPECT_EQ(asked.title, QStringLiteral("Ouvrir un fichier de log"));
    EXPECT_TRUE(asked.canChooseFiles);
    EXPECT_FALSE(asked.canChooseDirectories);
    EXPECT_FALSE(asked.allowsMultipleSelection);
    EXPECT_EQ(asked.contentTypes.size(), 2);
    EXPECT_EQ(texts(), QStringList{QStringLiteral("a")});
}

TEST_F(LogViewModelTest, ACancelledOpenDialogChangesNothing)
{
    open("a\n");
    model().openPanel = [](const OpenPanelRequest&) {
        return std::optional<QUrl>();
    };
    model().presentOpenPanel();
    EXPECT_EQ(status(), QStringLiteral("Lignes: 1"));
    EXPECT_EQ(texts(), QStringList{QStringLiteral("a")});
}

TEST_F(LogViewModelTest, WithoutAWayToAskNothingIsOpened)
{
    model().presentOpenPanel();
    EXPECT_EQ(status(), QStringLiteral("Aucun fichier ouvert"));
}

} // namespace
} // namespace quillon
