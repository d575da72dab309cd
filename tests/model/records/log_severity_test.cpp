// SPDX-License-Identifier: MIT
#include "model/records/log_severity.h"
#include "tests/support/printing.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

TEST(LogSeverity, ListsEveryCaseInOrderOfSeriousness)
{
    QStringList names;
    for (const LogSeverity severity : kAllSeverities) {
        names.append(rawValue(severity));
    }
    EXPECT_EQ(names.join(u' '),
              QStringLiteral("fatal error warning notice deprecated info debug unknown"));
}

TEST(LogSeverity, IsFoundByItsRawValue)
{
    for (const LogSeverity severity : kAllSeverities) {
        EXPECT_EQ(severityFromRawValue(QString(rawValue(severity))), severity);
    }
}

TEST(LogSeverity, HasNoCaseForAnyOtherText)
{
    for (const char16_t* text : {u"", u"Fatal", u"fatal ", u"warn", u"php fatal"}) {
        EXPECT_EQ(severityFromRawValue(text), std::nullopt);
    }
}

} // namespace
} // namespace quillon
