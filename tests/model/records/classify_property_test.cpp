// SPDX-License-Identifier: MIT
#include "model/records/classify.h"
#include "model/records/decode_text.h"
#include "model/records/line_enumeration.h"
#include "tests/support/printing.h"
#include "tests/support/random_text.h"
#include "tests/support/test_data.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

// The rule as it is told: ten tests on the lower-cased text, the first that holds decides.
LogSeverity plainClassify(const QString& text)
{
    static const std::vector<std::pair<QString, LogSeverity>> kTests{
        {QStringLiteral("fatal error"), LogSeverity::Fatal},
        {QStringLiteral("php fatal"), LogSeverity::Fatal},
        {QStringLiteral("error"), LogSeverity::Error},
        {QStringLiteral("php warning"), LogSeverity::Warning},
        {QStringLiteral("warning"), LogSeverity::Warning},
        {QStringLiteral("notice"), LogSeverity::Notice},
        {QStringLiteral("deprecated"), LogSeverity::Deprecated},
        {QStringLiteral("info"), LogSeverity::Info},
        {QStringLiteral("debug"), LogSeverity::Debug},
    };
    const QString lowered = text.toLower();
    for (const auto& [literal, severity] : kTests) {
        if (lowered.contains(literal)) {
            return severity;
        }
    }
    return LogSeverity::Unknown;
}

TEST(ClassifyProperty, AgreesWithThePlainRuleOnRandomTexts)
{
    const QStringList pieces{
        QStringLiteral("fatal error"),
        QStringLiteral("PHP "),
        QStringLiteral("fatal"),
        QStringLiteral("fat"),
        QStringLiteral("al"),
        QStringLiteral(" "),
        QStringLiteral("err"),
        QStringLiteral("or"),
        QStringLiteral("ERROR"),
        QStringLiteral("warn"),
        QStringLiteral("ing"),
        QStringLiteral("Warning"),
        QStringLiteral("not"),
        QStringLiteral("ice"),
        QStringLiteral("depre"),
        QStringLiteral("cated"),
        QStringLiteral("in"),
        QStringLiteral("fo"),
        QStringLiteral("de"),
        QStringLiteral("bug"),
        QStringLiteral("e"),
        QStringLiteral("d"),
        QStringLiteral("\u0130"),
        QStringLiteral("\u0131"),
        QStringLiteral("\u017F"),
        QStringLiteral("\u212A"),
        QStringLiteral("É"),
        QStringLiteral("🌞"),
        QString(),
    };
    RandomText random(11);
    for (int i = 0; i < 100'000; ++i) {
        const QString text = random.join(pieces, 9);
        ASSERT_EQ(classify(text), plainClassify(text)) << qPrintable(text);
    }
}

TEST(ClassifyProperty, AgreesWithThePlainRuleOnEveryCharacterInsideAWord)
{
    const QString word = QStringLiteral("information");
    for (int unit = 0; unit <= 0xFFFF; ++unit) {
        for (qsizetype at = 0; at < 4; ++at) {
            QString text = word;
            text[at] = QChar(unit);
            ASSERT_EQ(classify(text), plainClassify(text)) << unit << ' ' << at;
        }
    }
}

TEST(ClassifyProperty, AgreesWithThePlainRuleOnGenuineLogs)
{
    for (const QString& name : testDataNames()) {
        const QString text = decodeText(testData(name));
        LineEnumeration enumeration(text);
        while (const auto line = enumeration.next()) {
            ASSERT_EQ(classify(*line), plainClassify(line->toString()))
                << qPrintable(line->toString());
        }
    }
}

} // namespace
} // namespace quillon
