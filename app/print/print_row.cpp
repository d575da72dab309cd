// SPDX-License-Identifier: MIT
#include "app/print/print_row.h"

#include "platform/displayed_character.h"
#include "platform/one_line_text.h"
#include "platform/utf16_block.h"
#include "render/attributed_string.h"

#include <QStringEncoder>

#include <algorithm>

namespace quillon {

namespace {

// A line feed can only be that of the whole row.
QChar shown(QChar character)
{
    const char16_t unit = character.unicode();
    if (isDirectionControl(unit)) {
        return QChar(QChar::ReplacementCharacter);
    }
    return unit == u'\n' ? character : QChar(displayedCharacter(unit));
}

} // namespace

void appendUtf8(QStringView text, QByteArray& out)
{
    const qsizetype before = out.size();
    if (isAscii(text.utf16(), text.size())) {
        out.resize(before + text.size());
        std::transform(text.utf16(), text.utf16() + text.size(), out.data() + before,
                       [](char16_t unit) { return static_cast<char>(unit); });
        return;
    }
    constexpr qsizetype kMostBytesPerUnit = 3;
    QStringEncoder encoder(QStringConverter::Utf8, QStringConverter::Flag::Stateless);
    out.resize(before + kMostBytesPerUnit * text.size());
    const char* const end = encoder.appendToBuffer(out.data() + before, text);
    out.resize(end - out.constData());
}

void appendText(QStringView text, ControlCharacters controls, QByteArray& out)
{
    const auto isShown = [](QChar character) {
        return shown(character) == character;
    };
    if (controls == ControlCharacters::AsTheyAre ||
        std::all_of(text.begin(), text.end(), isShown)) {
        appendUtf8(text, out);
        return;
    }
    QString pictured(text.size(), Qt::Uninitialized);
    std::transform(text.begin(), text.end(), pictured.begin(), shown);
    appendUtf8(pictured, out);
}

void appendPlainRow(const AttributedRow& row, ControlCharacters controls, RowNumber number,
                    QByteArray& out)
{
    if (number == RowNumber::Shown) {
        out += QByteArray::number(row.number());
        out += '\t';
    }
    appendText(row.text(), controls, out);
    out += '\n';
}

} // namespace quillon
