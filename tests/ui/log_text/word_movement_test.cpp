// SPDX-License-Identifier: MIT
#include "tests/support/printing.h"
#include "tests/ui/layout/log_text_samples.h"
#include "ui/log_text/word_movement.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

// All places that a caret stops at from one end of the text to the other.
std::vector<TextPosition> stopsForwards(const AttributedString& text)
{
    std::vector<TextPosition> stops;
    TextPosition at;
    for (TextPosition next = wordStartAfter(text, at); !(next == at);
         next = wordStartAfter(text, at)) {
        stops.push_back(next);
        at = next;
    }
    return stops;
}

std::vector<TextPosition> stopsBackwards(const AttributedString& text)
{
    std::vector<TextPosition> stops;
    TextPosition at{text.rows().size(), 0};
    for (TextPosition next = wordStartBefore(text, at); !(next == at);
         next = wordStartBefore(text, at)) {
        stops.insert(stops.begin(), next);
        at = next;
    }
    return stops;
}

struct Case {
    const char* name;
    const char16_t* line;
    // Offsets in the row, whose first two characters are its number and a tab.
    std::vector<qsizetype> starts;
};

class WordMovement : public ::testing::TestWithParam<Case> {};

TEST_P(WordMovement, StopsWhereWordsBeginAndWhereTheRowEndsInBothDirections)
{
    const AttributedString text = sampleText({QString::fromUtf16(GetParam().line)});
    const qsizetype rowEnd = text.rows()[0].length() - 1;
    std::vector<TextPosition> inside;
    for (const qsizetype start : GetParam().starts) {
        inside.push_back(TextPosition{0, start});
    }
    inside.push_back(TextPosition{0, rowEnd});
    std::vector<TextPosition> forwards = inside;
    forwards.push_back(TextPosition{1, 0});
    EXPECT_TRUE(stopsForwards(text) == forwards);
    std::vector<TextPosition> backwards = inside;
    backwards.insert(backwards.begin(), TextPosition{});
    EXPECT_TRUE(stopsBackwards(text) == backwards);
}

INSTANTIATE_TEST_SUITE_P(
    Lines, WordMovement,
    ::testing::Values(Case{"Spaces", u"PHP  Fatal error", {2, 7, 13}},
                      Case{"SpacesAtBothEnds", u"  a  ", {4}},
                      Case{"PunctuationInOneRun", u"error: ===> boom", {2, 7, 9, 14}},
                      Case{"APath", u"/var/www", {2, 3, 6, 7}},
                      Case{"UnderlinesAreLetters", u"$a->__b_c", {2, 3, 4, 6}},
                      Case{"AVersionIsOneWord", u"v 2.1.0", {2, 4}},
                      Case{"Marks", u"e\u0301a b", {2, 6}},
                      Case{"Emoji", u"a 🙂🙂 b", {2, 4, 6, 9}}),
    [](const auto& line) { return std::string(line.param.name); });

TEST(WordMovementAcrossRows, GoesFromTheEndOfARowToTheNextOne)
{
    const AttributedString text = sampleText({QStringLiteral("a"), QStringLiteral("b")});
    EXPECT_TRUE(wordStartAfter(text, TextPosition{0, 3}) == (TextPosition{1, 0}));
    EXPECT_TRUE(wordStartBefore(text, TextPosition{1, 0}) == (TextPosition{0, 3}));
}

TEST(WordMovementAcrossRows, InAnEmptyTextGoesNowhere)
{
    EXPECT_TRUE(wordStartAfter(AttributedString(), TextPosition()) == TextPosition());
    EXPECT_TRUE(wordStartBefore(AttributedString(), TextPosition()) == TextPosition());
}

// A key must not read two million characters; it may not stop within one of them either.
TEST(WordMovementAcrossRows, GoesThroughAnEndlessWordInStepsOfWholeCharacters)
{
    const AttributedString text = sampleText({QStringLiteral("e\u0301\u0302").repeated(3000)});
    const qsizetype rowEnd = text.rows()[0].length() - 1;
    const auto forwards = stopsForwards(text);
    const auto backwards = stopsBackwards(text);
    EXPECT_GT(forwards.size(), 4U);
    EXPECT_GT(backwards.size(), 4U);
    for (const auto& stops : {forwards, backwards}) {
        for (const TextPosition stop : stops) {
            EXPECT_TRUE(stop == TextPosition() || stop.row == 1 || stop.offset % 3 == 2)
                << stop.offset;
        }
    }
    EXPECT_TRUE(forwards[forwards.size() - 2] == (TextPosition{0, rowEnd}));
}

} // namespace
} // namespace quillon
