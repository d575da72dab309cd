// SPDX-License-Identifier: MIT
#include "model/records/decode_text.h"
#include "model/records/line_enumeration.h"
#include "tests/support/printing.h"
#include "tests/support/random_text.h"
#include "tests/support/test_data.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace quillon {
namespace {

QStringList linesOf(QStringView text)
{
    QStringList lines;
    LineEnumeration enumeration(text);
    while (const auto line = enumeration.next()) {
        lines.append(line->toString());
    }
    return lines;
}

// Character by character, as one would first write it.
QStringList plainLinesOf(const QString& text)
{
    QStringList lines;
    QString line;
    bool isOpen = false;
    if (QStringList{QStringLiteral("\n"), QStringLiteral("\r"), QStringLiteral("\r\n"),
                    QStringLiteral("\u0085"), QStringLiteral("\u2028"), QStringLiteral("\u2029")}
            .contains(text)) {
        return lines;
    }
    for (qsizetype i = 0; i < text.size(); ++i) {
        const char16_t unit = text[i].unicode();
        const bool isEnd =
            unit == u'\n' || unit == u'\r' || unit == 0x85 || unit == 0x2028 || unit == 0x2029;
        isOpen = !isEnd;
        if (!isEnd) {
            line += text[i];
            continue;
        }
        if (unit == u'\r' && i + 1 < text.size() && text[i + 1] == u'\n') {
            ++i;
        }
        lines.append(line);
        line.clear();
    }
    if (isOpen) {
        lines.append(line);
    }
    return lines;
}

struct Case {
    const char* reason;
    QString text;
    QStringList lines;
};

TEST(LineEnumeration, SplitsAtEachOfTheSixTerminators)
{
    const QStringList ab{QStringLiteral("a"), QStringLiteral("b")};
    const std::vector<Case> cases{
        {"line feed", QStringLiteral("a\nb"), ab},
        {"carriage return", QStringLiteral("a\rb"), ab},
        {"pair", QStringLiteral("a\r\nb"), ab},
        {"next line", QStringLiteral("a\u0085b"), ab},
        {"line separator", QStringLiteral("a\u2028b"), ab},
        {"paragraph separator", QStringLiteral("a\u2029b"), ab},
    };
    for (const Case& row : cases) {
        EXPECT_EQ(linesOf(row.text), row.lines) << row.reason;
    }
}

TEST(LineEnumeration, DoesNotSplitAtOtherControlCharacters)
{
    const QString text = QStringLiteral("a\vb\fc\td\x1b") + QChar(u'\0') + u'e';
    EXPECT_EQ(linesOf(text), QStringList{text});
}

TEST(LineEnumeration, GivesNoLineOfNoText)
{
    EXPECT_TRUE(linesOf(QStringView()).isEmpty());
    EXPECT_TRUE(linesOf(u"").isEmpty());
}

TEST(LineEnumeration, GivesEmptyLinesBetweenTerminators)
{
    EXPECT_EQ(linesOf(u"\n\na\r\r\n"),
              (QStringList{QString(), QString(), QStringLiteral("a"), QString()}));
}

TEST(LineEnumeration, ATerminatorAtTheEndStartsNoFurtherLine)
{
    for (const char16_t* text : {u"a\n", u"a\r", u"a\r\n", u"a\u0085", u"a\u2028", u"a\u2029"}) {
        EXPECT_EQ(linesOf(text), QStringList{QStringLiteral("a")});
    }
}

TEST(LineEnumeration, ATextThatIsOneTerminatorHasNoLine)
{
    for (const char16_t* text : {u"\n", u"\r", u"\r\n", u"\u0085", u"\u2028", u"\u2029"}) {
        EXPECT_TRUE(linesOf(text).isEmpty());
    }
}

TEST(LineEnumeration, ATextOfTwoTerminatorsHasTwoEmptyLines)
{
    EXPECT_EQ(linesOf(u"\n\n"), (QStringList{QString(), QString()}));
    EXPECT_EQ(linesOf(u"\n\r"), (QStringList{QString(), QString()}));
}

TEST(LineEnumeration, AnEmptyFirstLineIsGiven)
{
    EXPECT_EQ(linesOf(u"\na"), (QStringList{QString(), QStringLiteral("a")}));
}

TEST(LineEnumeration, GivesALastLineWithoutTerminator)
{
    EXPECT_EQ(linesOf(u"a\nb").last(), QStringLiteral("b"));
}

TEST(LineEnumeration, ALineFeedBeforeACarriageReturnIsNoPair)
{
    EXPECT_EQ(linesOf(u"a\n\rb"),
              (QStringList{QStringLiteral("a"), QString(), QStringLiteral("b")}));
}

TEST(LineEnumeration, TwoCarriageReturnsBeforeALineFeedEndTwoLines)
{
    EXPECT_EQ(linesOf(u"a\r\r\nb"),
              (QStringList{QStringLiteral("a"), QString(), QStringLiteral("b")}));
}

TEST(LineEnumeration, GivesNothingOnceItIsThrough)
{
    LineEnumeration enumeration(u"a");
    EXPECT_TRUE(enumeration.next());
    EXPECT_FALSE(enumeration.next());
    EXPECT_FALSE(enumeration.next());
}

TEST(LineEnumeration, GivesViewsIntoTheTextItself)
{
    const QString text = QStringLiteral("ab\ncd");
    LineEnumeration enumeration(text);
    static_cast<void>(enumeration.next());
    EXPECT_EQ(enumeration.next()->data(), text.constData() + 3);
}

TEST(LineEnumerationProperty, AgreesWithAPlainSplitterOnRandomMixes)
{
    const QStringList pieces{
        QStringLiteral("\n"),
        QStringLiteral("\r"),
        QStringLiteral("\r\n"),
        QStringLiteral("\u0085"),
        QStringLiteral("\u2028"),
        QStringLiteral("\u2029"),
        QStringLiteral("a"),
        QStringLiteral("bc"),
        QStringLiteral("🌞"),
        QStringLiteral("\v\f"),
        QString(),
    };
    RandomText random(12);
    for (int i = 0; i < 50'000; ++i) {
        const QString text = random.join(pieces, 14);
        ASSERT_EQ(linesOf(text), plainLinesOf(text)) << qPrintable(text);
    }
}

TEST(LineEnumerationProperty, AgreesWithAPlainSplitterOnGenuineLogs)
{
    for (const QString& name : testDataNames()) {
        const QString text = decodeText(testData(name));
        EXPECT_EQ(linesOf(text), plainLinesOf(text));
        EXPECT_GT(linesOf(text).size(), 100);
    }
}

} // namespace
} // namespace quillon
