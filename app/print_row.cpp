// SPDX-License-Identifier: MIT
#include "app/print_row.h"

#include "platform/utf16_block.h"
#include "render/attributed_string.h"

#include <QStringEncoder>

#include <algorithm>

namespace quillon {

namespace {

constexpr char16_t kDelete = 0x7F;
constexpr char16_t kControlPictures = 0x2400;
constexpr char16_t kDeletePicture = 0x2421;

// The control characters of ASCII but tab and line feed, and those of Latin-1, of which many
// terminals obey U+009B as they do ESC [.
bool drivesTerminal(QChar character)
{
    const char16_t unit = character.unicode();
    return unit < 0x20 ? unit != u'\t' && unit != u'\n' : unit >= kDelete && unit < 0xA0;
}

// Latin-1's controls have no pictures of their own.
QChar pictureOf(QChar control)
{
    if (control.unicode() < 0x20) {
        return QChar(static_cast<char16_t>(kControlPictures + control.unicode()));
    }
    return control.unicode() == kDelete ? QChar(kDeletePicture)
                                        : QChar(QChar::ReplacementCharacter);
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
    if (controls == ControlCharacters::AsTheyAre ||
        std::none_of(text.begin(), text.end(), drivesTerminal)) {
        appendUtf8(text, out);
        return;
    }
    QString shown = text.toString();
    std::transform(text.begin(), text.end(), shown.begin(), [](QChar character) {
        return drivesTerminal(character) ? pictureOf(character) : character;
    });
    appendUtf8(shown, out);
}

void appendPlainRow(const AttributedRow& row, ControlCharacters controls, QByteArray& out)
{
    out += QByteArray::number(row.number());
    out += '\t';
    appendText(row.text(), controls, out);
    out += '\n';
}

} // namespace quillon
