// SPDX-License-Identifier: MIT
#include "platform/settings_value.h"

#include <algorithm>
#include <array>

namespace quillon {

namespace {

struct Escape {
    char letter;
    char16_t character;
};

constexpr std::array<Escape, 7> kEscapes{{{'a', u'\a'},
                                          {'b', u'\b'},
                                          {'f', u'\f'},
                                          {'n', u'\n'},
                                          {'r', u'\r'},
                                          {'t', u'\t'},
                                          {'v', u'\v'}}};

int digitOf(char character, int base)
{
    int digit = 16;
    if (character >= '0' && character <= '9') {
        digit = character - '0';
    } else if (character >= 'a' && character <= 'f') {
        digit = character - 'a' + 10;
    } else if (character >= 'A' && character <= 'F') {
        digit = character - 'A' + 10;
    }
    return digit < base ? digit : -1;
}

// Takes the digits at the front of `rest`, which may be none, for a UTF-16 unit.
char16_t takeUnit(QByteArrayView& rest, int base)
{
    int unit = 0;
    while (!rest.isEmpty() && digitOf(rest.front(), base) >= 0) {
        unit = (unit * base + digitOf(rest.front(), base)) & 0xFFFF;
        rest = rest.sliced(1);
    }
    return static_cast<char16_t>(unit);
}

// Takes what follows a backslash.
char16_t takeEscaped(QByteArrayView& rest)
{
    const char letter = rest.front();
    if (letter == 'x') {
        rest = rest.sliced(1);
        return takeUnit(rest, 16);
    }
    if (digitOf(letter, 8) >= 0) {
        return takeUnit(rest, 8);
    }
    rest = rest.sliced(1);
    const auto* const escape = std::find_if(kEscapes.begin(), kEscapes.end(),
                                            [&](const Escape& e) { return e.letter == letter; });
    return escape != kEscapes.end() ? escape->character : static_cast<uchar>(letter);
}

QString unquoted(QByteArrayView rest)
{
    QString text;
    while (!rest.isEmpty()) {
        const auto* const special = std::find_if(rest.begin(), rest.end(), [](char character) {
            return character == '"' || character == '\\';
        });
        const qsizetype plain = special - rest.begin();
        text.append(QString::fromUtf8(rest.first(plain)));
        rest = rest.sliced(plain);
        if (rest.isEmpty()) {
            break;
        }
        const bool isEscape = rest.front() == '\\';
        rest = rest.sliced(1);
        if (isEscape && !rest.isEmpty()) {
            text.append(QChar(takeEscaped(rest)));
        }
    }
    return text;
}

// Whether the character would mean something else if it followed an escape by digits.
bool isHexDigit(QChar character)
{
    return character.unicode() < 0x80 && digitOf(static_cast<char>(character.unicode()), 16) >= 0;
}

QByteArray escapedUnit(QChar unit)
{
    return "\\x" + QByteArray::number(unit.unicode(), 16);
}

} // namespace

std::optional<QString> settingsValue(QByteArrayView notation)
{
    QString text = unquoted(notation.trimmed());
    if (!text.startsWith(u'@')) {
        return text;
    }
    if (text.endsWith(u')') && text.contains(u'(')) {
        const QStringView type = QStringView(text).first(text.indexOf(u'('));
        if (type == u"@String" || type == u"@ByteArray") {
            return text.sliced(type.size() + 1).chopped(1);
        }
        if (!text.startsWith(u"@@")) {
            return std::nullopt;
        }
    }
    return text.startsWith(u"@@") ? text.sliced(1) : text;
}

QByteArray settingsNotation(const QString& text)
{
    QByteArray notation;
    bool afterDigits = false;
    const QString marked = text.startsWith(u'@') ? u'@' + text : text;
    for (qsizetype i = 0; i < marked.size(); ++i) {
        const QChar unit = marked[i];
        const auto* const escape =
            std::find_if(kEscapes.begin(), kEscapes.end(),
                         [&](const Escape& e) { return e.character == unit.unicode(); });
        const bool isPair =
            unit.isHighSurrogate() && i + 1 < marked.size() && marked[i + 1].isLowSurrogate();
        // Whoever decodes a text leaves out a byte order mark at its beginning.
        const bool isNoText = unit.unicode() < 0x20 || (unit.isSurrogate() && !isPair) ||
                              unit == QChar(QChar::ByteOrderMark);
        const bool isByDigits =
            escape == kEscapes.end() && (isNoText || (afterDigits && isHexDigit(unit)));
        if (isByDigits) {
            notation.append(escapedUnit(unit));
        } else if (escape != kEscapes.end()) {
            notation.append('\\').append(escape->letter);
        } else if (unit == u'"' || unit == u'\\') {
            notation.append('\\').append(static_cast<char>(unit.unicode()));
        } else if (isPair) {
            notation.append(QStringView(marked).sliced(i++, 2).toUtf8());
        } else {
            notation.append(QStringView(marked).sliced(i, 1).toUtf8());
        }
        afterDigits = isByDigits;
    }
    const bool needsQuotes = notation.startsWith(' ') || notation.endsWith(' ') ||
                             text.contains(u';') || text.contains(u',') || text.contains(u'=');
    return needsQuotes ? '"' + notation + '"' : notation;
}

} // namespace quillon
