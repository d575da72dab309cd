// SPDX-License-Identifier: MIT
#include "render/required_word.h"

#include <QLatin1StringView>

#include <algorithm>
#include <optional>
#include <vector>

namespace quillon {

namespace {

// Shorter words are in nearly every line, so that looking for them saves nothing.
constexpr qsizetype kShortestWord = 3;

bool isPrintableAscii(QChar character)
{
    return character.unicode() >= 0x20 && character.unicode() < 0x7F;
}

bool isAlphanumeric(QChar character)
{
    const auto unit = character.unicode();
    return (unit >= u'0' && unit <= u'9') || (unit >= u'A' && unit <= u'Z') ||
           (unit >= u'a' && unit <= u'z');
}

class Reader {
public:
    explicit Reader(const QString& pattern) : m_pattern(pattern) {}

    // None where the pattern holds anything that this does not know.
    std::optional<QString> read()
    {
        while (m_at < m_pattern.size()) {
            if (!readPiece(m_pattern[m_at++])) {
                return std::nullopt;
            }
        }
        endRun();
        return m_longest;
    }

private:
    struct Group {
        QString longestBefore;
        bool hasAlternatives = false;
    };

    bool readPiece(QChar character)
    {
        switch (character.unicode()) {
        case u'\\':
            return readEscape();
        case u'(':
            return openGroup();
        case u')':
            return closeGroup();
        case u'|':
            return beginAlternative();
        case u'[':
            return skipSet();
        case u'*':
        case u'?':
        case u'{':
            m_run.chop(1); // it may be missing
            endRun();
            return skipQuantifier(character);
        case u'+':
            endRun();
            return skipQuantifier(character);
        case u'.':
        case u'^':
        case u'$':
            endRun();
            return true;
        case u']':
        case u'}':
            return false;
        default:
            m_run += character;
            return isPrintableAscii(character);
        }
    }

    // A mark by itself, or a kind of character or place.
    bool readEscape()
    {
        if (m_at == m_pattern.size()) {
            return false;
        }
        const QChar escaped = m_pattern[m_at++];
        if (!isAlphanumeric(escaped)) {
            m_run += escaped;
            return isPrintableAscii(escaped);
        }
        endRun();
        return QLatin1StringView("bBdDsSwW").contains(escaped);
    }

    bool openGroup()
    {
        endRun();
        m_groups.push_back(Group{m_longest});
        if (!next(u'?')) {
            return true;
        }
        ++m_at;
        // What only follows, or gives nothing back, has to be there all the same.
        return next(u':') || next(u'=') || next(u'>') ? (++m_at, true) : false;
    }

    bool closeGroup()
    {
        endRun();
        if (m_groups.empty()) {
            return false;
        }
        const bool mayBeMissing = next(u'*') || next(u'?') || next(u'{');
        if (m_groups.back().hasAlternatives || mayBeMissing) {
            m_longest = m_groups.back().longestBefore;
        }
        m_groups.pop_back();
        return true;
    }

    bool beginAlternative()
    {
        endRun();
        if (m_groups.empty()) {
            return false;
        }
        m_groups.back().hasAlternatives = true;
        return true;
    }

    // Sets of sets, and those with escapes, are nothing that one has to look into.
    bool skipSet()
    {
        endRun();
        if (next(u'^')) {
            ++m_at;
        }
        const qsizetype first = m_at;
        while (m_at < m_pattern.size() && !next(u']')) {
            if (QLatin1StringView("[\\&").contains(m_pattern[m_at++])) {
                return false;
            }
        }
        return m_at > first && m_at++ < m_pattern.size();
    }

    bool skipQuantifier(QChar character)
    {
        if (character == u'{') {
            m_at = m_pattern.indexOf(u'}', m_at) + 1;
            if (m_at == 0) {
                return false;
            }
        }
        if (next(u'?') || next(u'+')) {
            ++m_at;
        }
        return true;
    }

    [[nodiscard]] bool next(char16_t character) const
    {
        return m_at < m_pattern.size() && m_pattern[m_at] == character;
    }

    void endRun()
    {
        if (m_run.size() > m_longest.size()) {
            m_longest = m_run;
        }
        m_run.clear();
    }

    const QString& m_pattern;
    qsizetype m_at = 0;
    QString m_run;
    QString m_longest;
    std::vector<Group> m_groups;
};

} // namespace

QString requiredWordOf(const QString& pattern)
{
    const auto word = Reader(pattern).read();
    return word && word->size() >= kShortestWord ? *word : QString();
}

} // namespace quillon
