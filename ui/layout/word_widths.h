// SPDX-License-Identifier: MIT
#pragma once

#include "ui/layout/text_units.h"

#include <QChar>
#include <QFont>
#include <QString>
#include <QStringView>

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

class QTextLayout;

namespace quillon {

// A part of a word that no line break can fall into.
struct WordPart {
    Fixed advance = 0;
    // How far the ink of its last character reaches past the advance: a line must have room for it.
    Fixed ink = 0;
};

// A word as a text layout measures it.
struct MeasuredWord {
    std::vector<WordPart> parts; // none where it cannot be measured by itself
    // The script that characters of no script of their own, such as spaces and digits, take on
    // behind the word, and so the advance of a space there: their font may be another one.
    QChar::Script script = QChar::Script_Common;
    Fixed space = 0;
};

// The widths of words whose characters need shaping, in one font. Each is measured once, by a text
// layout, and then kept, since the words of a log are always the same ones: that takes a hundredth
// of the time of laying out the rows that they stand in.
class WordWidths {
public:
    explicit WordWidths(const QFont& font);
    ~WordWidths();
    WordWidths(const WordWidths&) = delete;
    WordWidths& operator=(const WordWidths&) = delete;

    // The measure of a word, which has no space in it, behind text of that script, which a text
    // asked about before began in or a word measured before ended in. The reference
    // holds until 16,384 other words have been asked for.
    const MeasuredWord& measure(QStringView word, QChar::Script script);

    // The script that a text begins in: that of its first character that has one of its own; Common
    // where there is none.
    QChar::Script scriptAtStart(QStringView text);

    // The advance of a space within text of that script, as measure() has it.
    [[nodiscard]] Fixed spaceIn(QChar::Script script);

private:
    struct Hash {
        using is_transparent = void;
        std::size_t operator()(std::u16string_view text) const
        {
            return std::hash<std::u16string_view>()(text);
        }
    };
    using Words = std::unordered_map<std::u16string, MeasuredWord, Hash, std::equal_to<>>;

    [[nodiscard]] MeasuredWord findMeasure(QStringView word, QChar::Script script);
    [[nodiscard]] Fixed advanceOf(const QString& text);

    std::unique_ptr<QTextLayout> m_layout;          // one for all
    std::vector<Words> m_words{QChar::ScriptCount}; // by script
    std::size_t m_count = 0;
    // Of each script met with, a letter to begin a text in it with, and the advance of a space.
    std::map<QChar::Script, QString> m_letters;
    std::map<QChar::Script, Fixed> m_spaces;
};

} // namespace quillon
