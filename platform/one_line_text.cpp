// SPDX-License-Identifier: MIT
#include "platform/one_line_text.h"

#include "platform/displayed_character.h"

#include <algorithm>

namespace quillon {

namespace {

constexpr char16_t kTabPicture = 0x2409;
constexpr char16_t kLineSeparator = 0x2028;
constexpr char16_t kParagraphSeparator = 0x2029;

QChar harmless(QChar character)
{
    const char16_t unit = character.unicode();
    if (unit == u'\t') {
        return QChar(kTabPicture);
    }
    const bool isReplaced =
        unit == kLineSeparator || unit == kParagraphSeparator || isDirectionControl(unit);
    return isReplaced ? QChar(QChar::ReplacementCharacter) : QChar(displayedCharacter(unit));
}

} // namespace

QString oneLineText(QStringView text)
{
    QString shown(text.size(), Qt::Uninitialized);
    std::transform(text.begin(), text.end(), shown.begin(), harmless);
    return shown;
}

} // namespace quillon
