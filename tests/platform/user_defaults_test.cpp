// SPDX-License-Identifier: MIT
#include "platform/user_defaults.h"
#include "tests/support/printing.h"
#include "tests/support/temporary_defaults.h"

#include <gtest/gtest.h>
#include <limits>

namespace quillon {
namespace {

const QString kSomeKey = QStringLiteral("prefs.some.key");

struct BoolCase {
    QVariant value;
    bool expected;
};

struct NumberCase {
    QVariant value;
    double expected;
};

TEST(UserDefaults, AMissingKeyReadsAsNothing)
{
    const TemporaryDefaults temporary;
    EXPECT_FALSE(temporary.defaults.objectForKey(kSomeKey).isValid());
    EXPECT_EQ(temporary.defaults.stringForKey(kSomeKey), std::nullopt);
    EXPECT_FALSE(temporary.defaults.boolForKey(kSomeKey));
    EXPECT_EQ(temporary.defaults.doubleForKey(kSomeKey), 0.0);
}

TEST(UserDefaults, ARegisteredValueCountsWhereNothingIsStored)
{
    TemporaryDefaults temporary;
    temporary.defaults.registerDefaults({{kSomeKey, QStringLiteral("registered")}});
    EXPECT_EQ(temporary.defaults.stringForKey(kSomeKey), QStringLiteral("registered"));
}

TEST(UserDefaults, AStoredValueCountsBeforeARegisteredOne)
{
    TemporaryDefaults temporary;
    temporary.defaults.setObject(QStringLiteral("stored"), kSomeKey);
    temporary.defaults.registerDefaults({{kSomeKey, QStringLiteral("registered")}});
    EXPECT_EQ(temporary.defaults.stringForKey(kSomeKey), QStringLiteral("stored"));
}

TEST(UserDefaults, AnEmptyStoredTextCountsBeforeARegisteredOne)
{
    TemporaryDefaults temporary;
    temporary.defaults.registerDefaults({{kSomeKey, QStringLiteral("registered")}});
    temporary.defaults.setObject(QString(), kSomeKey);
    EXPECT_EQ(temporary.defaults.stringForKey(kSomeKey), QString());
}

TEST(UserDefaults, RemovingAStoredValueBringsTheRegisteredOneBack)
{
    TemporaryDefaults temporary;
    temporary.defaults.registerDefaults({{kSomeKey, QStringLiteral("registered")}});
    temporary.defaults.setObject(QStringLiteral("stored"), kSomeKey);
    temporary.defaults.removeObject(kSomeKey);
    EXPECT_EQ(temporary.defaults.stringForKey(kSomeKey), QStringLiteral("registered"));
}

TEST(UserDefaults, RegisteringTwiceIsHarmless)
{
    TemporaryDefaults temporary;
    const UserDefaults::Table table{{kSomeKey, true}};
    temporary.defaults.registerDefaults(table);
    temporary.defaults.registerDefaults(table);
    EXPECT_TRUE(temporary.defaults.boolForKey(kSomeKey));
}

TEST(UserDefaults, RegisteringAnotherTableKeepsTheOthersKeys)
{
    TemporaryDefaults temporary;
    temporary.defaults.registerDefaults({{kSomeKey, 1}});
    temporary.defaults.registerDefaults({{QStringLiteral("prefs.other"), 2}});
    EXPECT_EQ(temporary.defaults.doubleForKey(kSomeKey), 1.0);
}

TEST(UserDefaults, AnythingStoredReadsAsText)
{
    TemporaryDefaults temporary;
    const std::vector<std::pair<QVariant, QString>> cases{
        {QStringLiteral("é 日本"), QStringLiteral("é 日本")},
        {16.5, QStringLiteral("16.5")},
        {13.0, QStringLiteral("13")},
        {true, QStringLiteral("true")},
        {QStringList{QStringLiteral("a"), QStringLiteral("b")}, QStringLiteral("a, b")},
    };
    for (const auto& [value, expected] : cases) {
        temporary.defaults.setObject(value, kSomeKey);
        EXPECT_EQ(temporary.defaults.stringForKey(kSomeKey), expected);
    }
}

TEST(UserDefaults, WhatHasNoTextReadsAsNoText)
{
    TemporaryDefaults temporary;
    temporary.defaults.registerDefaults({{kSomeKey, QVariantMap()}});
    EXPECT_EQ(temporary.defaults.stringForKey(kSomeKey), std::nullopt);
    EXPECT_FALSE(temporary.defaults.boolForKey(kSomeKey));
    EXPECT_EQ(temporary.defaults.doubleForKey(kSomeKey), 0.0);
}

TEST(UserDefaults, TextsAndNumbersReadAsBooleans)
{
    TemporaryDefaults temporary;
    const std::vector<BoolCase> cases{
        {true, true},
        {false, false},
        {1, true},
        {0, false},
        {0.5, true},
        {QStringLiteral("true"), true},
        {QStringLiteral("TRUE"), true},
        {QStringLiteral(" Yes "), true},
        {QStringLiteral("1"), true},
        {QStringLiteral("-3 apples"), true},
        {QStringLiteral("0"), false},
        {QStringLiteral("0.0"), false},
        {QStringLiteral("no"), false},
        {QStringLiteral("false"), false},
        {QStringLiteral("truely"), false},
        {QString(), false},
    };
    for (const BoolCase& row : cases) {
        temporary.defaults.setObject(row.value, kSomeKey);
        EXPECT_EQ(temporary.defaults.boolForKey(kSomeKey), row.expected)
            << qPrintable(row.value.toString());
    }
}

TEST(UserDefaults, TextsAndBooleansReadAsNumbers)
{
    TemporaryDefaults temporary;
    const std::vector<NumberCase> cases{
        {16.5, 16.5},
        {16, 16.0},
        {true, 1.0},
        {QStringLiteral("16.5"), 16.5},
        {QStringLiteral("  +16.5 pt"), 16.5},
        {QStringLiteral("-2"), -2.0},
        {QStringLiteral("1e2"), 100.0},
        {QStringLiteral(".5"), 0.5},
        {QStringLiteral("5."), 5.0},
        {QStringLiteral("large"), 0.0},
        {QStringLiteral("1e999"), 0.0},
        {QString(), 0.0},
        {std::numeric_limits<double>::infinity(), 0.0},
        {std::numeric_limits<double>::quiet_NaN(), 0.0},
    };
    for (const NumberCase& row : cases) {
        temporary.defaults.setObject(row.value, kSomeKey);
        EXPECT_EQ(temporary.defaults.doubleForKey(kSomeKey), row.expected)
            << qPrintable(row.value.toString());
    }
}

TEST(UserDefaults, PostsAChangeWhenAValueIsStored)
{
    TemporaryDefaults temporary;
    QString seen;
    const Subscription subscription = temporary.center.observe(kUserDefaultsDidChange, [&] {
        seen = temporary.defaults.stringForKey(kSomeKey).value_or(QString());
    });
    temporary.defaults.setObject(QStringLiteral("stored"), kSomeKey);
    EXPECT_EQ(seen, QStringLiteral("stored"));
}

TEST(UserDefaults, PostsAChangeWhenAValueIsRemoved)
{
    TemporaryDefaults temporary;
    temporary.defaults.setObject(1, kSomeKey);
    int posts = 0;
    const Subscription subscription =
        temporary.center.observe(kUserDefaultsDidChange, [&posts] { ++posts; });
    temporary.defaults.removeObject(kSomeKey);
    EXPECT_EQ(posts, 1);
}

TEST(UserDefaults, PostsNoChangeWhenDefaultsAreRegistered)
{
    TemporaryDefaults temporary;
    int posts = 0;
    const Subscription subscription =
        temporary.center.observe(kUserDefaultsDidChange, [&posts] { ++posts; });
    temporary.defaults.registerDefaults({{kSomeKey, 1}});
    EXPECT_EQ(posts, 0);
}

} // namespace
} // namespace quillon
