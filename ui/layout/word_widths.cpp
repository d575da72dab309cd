// SPDX-License-Identifier: MIT
#include "ui/layout/word_widths.h"

#include "platform/ascii.h"
#include "ui/layout/character_range.h"

#include <QTextLayout>
#include <QTextOption>

#include <algorithm>

namespace quillon {

namespace {

constexpr QChar kFirstBeyondAscii(0x80);
constexpr std::size_t kMaximumWords = 16'384;
// UTF-16 units. Longer words hardly repeat, and there may be one of two million.
constexpr qsizetype kLongestWord = 64;

char32_t characterAt(QStringView text, qsizetype at)
{
    const bool isPair =
        at + 1 < text.size() && text[at].isHighSurrogate() && text[at + 1].isLowSurrogate();
    return isPair ? QChar::surrogateToUcs4(text[at], text[at + 1]) : text[at].unicode();
}

// What breaks a line by itself, is shown as another character, or takes room only at a line's end.
bool isApart(QChar character)
{
    return character.isSpace() || character.category() == QChar::Other_Control ||
           character == kSoftHyphen;
}

bool hasScript(char32_t character)
{
    return QChar::script(character) > QChar::Script_Common;
}

} // namespace

WordWidths::WordWidths(const QFont& font) : m_layout(std::make_unique<QTextLayout>())
{
    QTextOption option(Qt::AlignLeft);
    option.setTextDirection(Qt::LeftToRight);
    option.setWrapMode(QTextOption::WordWrap);
    m_layout->setFont(font);
    m_layout->setTextOption(option);
    for (const QChar::Script script : {QChar::Script_Common, QChar::Script_Latin}) {
        m_letters[script] = QStringLiteral("x");
    }
}

WordWidths::~WordWidths() = default;

QChar::Script WordWidths::scriptAtStart(QStringView text)
{
    for (qsizetype at = 0; at < text.size(); ++at) {
        if (isAsciiLetter(text[at])) {
            return QChar::Script_Latin;
        }
        if (text[at] < kFirstBeyondAscii) {
            continue;
        }
        if (const char32_t character = characterAt(text, at); hasScript(character)) {
            const QChar::Script script = QChar::script(character);
            if (!m_letters.contains(script)) {
                m_letters.emplace(script, QString::fromUcs4(&character, 1));
            }
            return script;
        }
    }
    return QChar::Script_Common;
}

const MeasuredWord& WordWidths::measure(QStringView word, QChar::Script script)
{
    Words& words = m_words[static_cast<std::size_t>(script)];
    const std::u16string_view key(word.utf16(), static_cast<std::size_t>(word.size()));
    if (const auto known = words.find(key); known != words.end()) {
        return known->second;
    }
    if (++m_count > kMaximumWords) {
        for (Words& each : m_words) {
            each.clear();
        }
        m_count = 1;
    }
    return words.emplace(key, findMeasure(word, script)).first->second;
}

// Lines that have room for nothing are broken wherever they may be, so each one is a part. Before
// the word stands a letter of the script, on a line of its own.
MeasuredWord WordWidths::findMeasure(QStringView word, QChar::Script script)
{
    MeasuredWord measure;
    measure.script = script;
    QString letter;
    for (qsizetype at = 0; at < word.size(); ++at) {
        const char32_t character = characterAt(word, at);
        if (hasScript(character) && !QChar::isMark(character)) {
            measure.script = QChar::script(character);
            letter = QString::fromUcs4(&character, 1);
        }
    }
    if (!letter.isEmpty()) {
        m_letters.emplace(measure.script, letter);
    }
    const auto before = m_letters.find(script);
    if (word.size() > kLongestWord || before == m_letters.end() ||
        std::any_of(word.begin(), word.end(), isApart)) {
        return measure;
    }
    const QString lead = before->second + u' ';
    m_layout->setText(lead + word.toString());
    m_layout->beginLayout();
    for (QTextLine line = m_layout->createLine(); line.isValid(); line = m_layout->createLine()) {
        line.setLineWidth(toPoints(1));
        if (line.textStart() >= lead.size()) {
            const Fixed advance = toFixed(line.horizontalAdvance());
            measure.parts.push_back({advance, toFixed(line.naturalTextWidth()) - advance});
        }
    }
    m_layout->endLayout();
    measure.space = spaceIn(measure.script);
    return measure;
}

Fixed WordWidths::spaceIn(QChar::Script script)
{
    const auto known = m_spaces.find(script);
    if (known != m_spaces.end()) {
        return known->second;
    }
    const QString letter = m_letters[script];
    const Fixed space = advanceOf(letter + u' ' + letter) - 2 * advanceOf(letter);
    return m_spaces[script] = space;
}

Fixed WordWidths::advanceOf(const QString& text)
{
    m_layout->setText(text);
    m_layout->beginLayout();
    const QTextLine line = m_layout->createLine();
    m_layout->endLayout();
    return toFixed(line.horizontalAdvance());
}

} // namespace quillon
