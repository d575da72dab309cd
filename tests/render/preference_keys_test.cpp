// SPDX-License-Identifier: MIT
#include "render/preference_keys.h"
#include "tests/support/printing.h"
#include "tests/support/temporary_defaults.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

TEST(DefaultPreferences, HoldEveryKeyInOrderWithItsDefault)
{
    const std::vector<std::pair<const char*, QVariant>> expected{
        {"prefs.color.fatal", QStringLiteral("#FF3B30")},
        {"prefs.color.error", QStringLiteral("#FF3B30")},
        {"prefs.color.warning", QStringLiteral("#FF9500")},
        {"prefs.color.notice", QStringLiteral("#FFD60A")},
        {"prefs.color.deprecated", QStringLiteral("#F4C361")},
        {"prefs.color.info", QStringLiteral("#0A84FF")},
        {"prefs.color.debug", QStringLiteral("#8E8E93")},
        {"prefs.color.date", QStringLiteral("#0A84FF")},
        {"prefs.color.arraydump", QStringLiteral("#BF5AF2")},
        {"prefs.wrap.default", true},
        {"prefs.font.default", 13.0},
        {"prefs.default.folder", QStringLiteral("")},
    };
    const UserDefaults::Table& table = defaultPreferences();
    ASSERT_EQ(table.size(), qsizetype(expected.size()));
    for (std::size_t i = 0; i < expected.size(); ++i) {
        const auto& [key, value] = table[qsizetype(i)];
        EXPECT_EQ(key, QLatin1StringView(expected[i].first));
        EXPECT_EQ(value, expected[i].second) << expected[i].first;
        EXPECT_EQ(value.typeId(), expected[i].second.typeId()) << expected[i].first;
    }
}

TEST(DefaultPreferences, AreMadeOnce)
{
    EXPECT_EQ(&defaultPreferences(), &defaultPreferences());
}

TEST(DefaultPreferences, ReadAsTheirKindsOnceRegistered)
{
    TemporaryDefaults temporary;
    temporary.defaults.registerDefaults(defaultPreferences());
    EXPECT_TRUE(temporary.defaults.boolForKey(preference_keys::kWrapDefault));
    EXPECT_EQ(temporary.defaults.doubleForKey(preference_keys::kFontDefault), 13.0);
    EXPECT_EQ(temporary.defaults.stringForKey(preference_keys::kDefaultFolder), QString());
    EXPECT_EQ(temporary.defaults.stringForKey(preference_keys::kColorWarning),
              QStringLiteral("#FF9500"));
}

} // namespace
} // namespace quillon
