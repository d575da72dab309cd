// SPDX-License-Identifier: MIT
#include "ui/layout/displayed_text.h"

#include "render/attributed_string.h"

#include <unicode/uchar.h>
#include <unicode/uscript.h>

namespace quillon {

namespace {

// The copyright and trademark signs of Latin-1 count as pictures, but every text font has them.
constexpr UChar32 kFirstSymbol = 0x2000;

bool standsAlone(UScriptCode script)
{
    switch (script) {
    case USCRIPT_COMMON:
    case USCRIPT_LATIN:
    case USCRIPT_GREEK:
    case USCRIPT_CYRILLIC:
    case USCRIPT_HAN:
    case USCRIPT_HIRAGANA:
    case USCRIPT_KATAKANA:
    case USCRIPT_BOPOMOFO:
        return true;
    default: // Korean too: a text layout keeps its words together, where its pairs would break
        return false;
    }
}

bool runsLeftToRight(UCharDirection direction)
{
    switch (direction) {
    case U_LEFT_TO_RIGHT:
    case U_EUROPEAN_NUMBER:
    case U_EUROPEAN_NUMBER_SEPARATOR:
    case U_EUROPEAN_NUMBER_TERMINATOR:
    case U_COMMON_NUMBER_SEPARATOR:
    case U_OTHER_NEUTRAL:
    case U_WHITE_SPACE_NEUTRAL:
        return true;
    default:
        return false;
    }
}

bool isShapedCategory(int8_t category)
{
    return ((1U << static_cast<unsigned>(category)) &
            (U_GC_M_MASK | U_GC_C_MASK | U_GC_ZL_MASK | U_GC_ZP_MASK)) != 0;
}

} // namespace

QString displayedText(const AttributedRow& row)
{
    QString text = row.string();
    text.chop(1);
    for (QChar& character : text) {
        character = displayedCharacter(character.unicode());
    }
    return text;
}

bool needsShaping(char16_t character)
{
    const auto shown = static_cast<UChar32>(displayedCharacter(character));
    if (shown < 0x7F) {
        return false;
    }
    UErrorCode status = U_ZERO_ERROR;
    const bool isWideSpace = u_isUWhiteSpace(shown) && shown != 0xA0 && shown != 0x202F;
    return isWideSpace || isShapedCategory(u_charType(shown)) ||
           !runsLeftToRight(u_charDirection(shown)) ||
           !standsAlone(uscript_getScript(shown, &status)) ||
           u_hasBinaryProperty(shown, UCHAR_EMOJI_PRESENTATION) ||
           (shown >= kFirstSymbol && u_hasBinaryProperty(shown, UCHAR_EXTENDED_PICTOGRAPHIC));
}

} // namespace quillon
