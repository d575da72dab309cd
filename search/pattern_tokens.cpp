// SPDX-License-Identifier: MIT
#include "search/pattern_tokens.h"

#include "platform/ascii.h"

#include <QLatin1StringView>

namespace quillon {

namespace {

using Kind = PatternToken::Kind;

bool isOneOf(QChar character, QLatin1StringView characters)
{
    return characters.contains(character);
}

bool isAsciiAlphanumeric(QChar character)
{
    return isAsciiDigit(character) || isAsciiLetter(character);
}

bool isAsciiMark(QChar character)
{
    return character.unicode() < 0x80 && !isAsciiAlphanumeric(character);
}

class Tokenizer {
public:
    explicit Tokenizer(QStringView pattern) : m_pattern(pattern) {}

    std::optional<std::vector<PatternToken>> read()
    {
        std::vector<PatternToken> tokens;
        while (m_at < m_pattern.size()) {
            const qsizetype start = m_at;
            const auto kind = readOne(m_pattern[m_at++]);
            if (!kind) {
                return std::nullopt;
            }
            tokens.push_back({*kind, m_pattern.sliced(start, m_at - start)});
        }
        return tokens;
    }

private:
    std::optional<Kind> readOne(QChar character)
    {
        switch (character.unicode()) {
        case u'\\':
            return readEscape();
        case u'(':
            return readGroupOpen();
        case u')':
            return Kind::GroupClose;
        case u'|':
            return Kind::Alternative;
        case u'[':
            return readSet();
        case u'{':
            return readCount() ? std::optional(readQuantifierMark()) : std::nullopt;
        case u'*':
        case u'+':
        case u'?':
            return readQuantifierMark();
        case u'.':
            return Kind::AnyCharacter;
        case u'^':
        case u'$':
            return Kind::Place;
        case u']':
        case u'}':
            return std::nullopt;
        default:
            return Kind::Character;
        }
    }

    // Escapes that are longer than two characters are left to ICU.
    std::optional<Kind> readEscape()
    {
        if (m_at == m_pattern.size()) {
            return std::nullopt;
        }
        const QChar escaped = m_pattern[m_at++];
        if (isAsciiMark(escaped)) {
            return Kind::Character;
        }
        if (isOneOf(escaped, QLatin1StringView("bBAZz"))) {
            return Kind::Place;
        }
        if (isOneOf(escaped, QLatin1StringView("dDsSwWhHvVRXaefnrt"))) {
            return Kind::CharacterClass;
        }
        return std::nullopt;
    }

    std::optional<Kind> readGroupOpen()
    {
        if (!skip(u"?")) {
            return Kind::GroupOpen;
        }
        if (skip(u":")) {
            return Kind::GroupOpen;
        }
        if (skip(u"=") || skip(u">")) {
            return Kind::Ahead;
        }
        if (skip(u"!") || skip(u"<=") || skip(u"<!")) {
            return Kind::Assertion;
        }
        return std::nullopt;
    }

    std::optional<Kind> readSet()
    {
        skip(u"^");
        if (m_at < m_pattern.size() && isOneOf(m_pattern[m_at], QLatin1StringView("]:"))) {
            return std::nullopt;
        }
        while (m_at < m_pattern.size()) {
            const QChar character = m_pattern[m_at++];
            if (character == u']') {
                return Kind::Set;
            }
            if (isOneOf(character, QLatin1StringView("[{")) ||
                (character == u'\\' && !skipEscapeInSet())) {
                return std::nullopt;
            }
        }
        return std::nullopt;
    }

    bool skipEscapeInSet()
    {
        if (m_at == m_pattern.size()) {
            return false;
        }
        const QChar escaped = m_pattern[m_at++];
        return isAsciiMark(escaped) || isOneOf(escaped, QLatin1StringView("dDsSwWfnrt"));
    }

    bool readCount()
    {
        if (!skipDigits()) {
            return false;
        }
        if (skip(u",")) {
            skipDigits();
        }
        return skip(u"}");
    }

    bool skipDigits()
    {
        const qsizetype start = m_at;
        while (m_at < m_pattern.size() && m_pattern[m_at] >= u'0' && m_pattern[m_at] <= u'9') {
            ++m_at;
        }
        return m_at > start;
    }

    Kind readQuantifierMark()
    {
        static_cast<void>(skip(u"?") || skip(u"+"));
        return Kind::Quantifier;
    }

    bool skip(QStringView wanted)
    {
        if (!m_pattern.sliced(m_at).startsWith(wanted)) {
            return false;
        }
        m_at += wanted.size();
        return true;
    }

    QStringView m_pattern;
    qsizetype m_at = 0;
};

} // namespace

std::optional<std::vector<PatternToken>> tokensOf(QStringView pattern)
{
    return Tokenizer(pattern).read();
}

} // namespace quillon
