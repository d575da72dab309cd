// SPDX-License-Identifier: MIT
#include "search/required_word.h"

#include "platform/ascii.h"
#include "search/pattern_tokens.h"

#include <optional>

namespace quillon {

namespace {

using Kind = PatternToken::Kind;

class Reader {
public:
    explicit Reader(std::vector<PatternToken> tokens) : m_tokens(std::move(tokens)) {}

    // None where no word can be relied on.
    std::optional<QString> read()
    {
        for (; m_at < m_tokens.size(); ++m_at) {
            if (!take(m_tokens[m_at])) {
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

    bool take(const PatternToken& token)
    {
        switch (token.kind) {
        case Kind::Character:
            m_run += token.character();
            return isPrintableAscii(token.character());
        case Kind::Quantifier:
            if (token.allowsNone()) {
                m_run.chop(1);
            }
            endRun();
            return true;
        case Kind::GroupOpen:
        case Kind::Ahead: // what only follows has to be there all the same
            endRun();
            m_groups.push_back(Group{m_longest});
            return true;
        case Kind::GroupClose:
            return closeGroup();
        case Kind::Alternative:
            endRun();
            if (m_groups.empty()) {
                return false;
            }
            m_groups.back().hasAlternatives = true;
            return true;
        case Kind::Assertion:
            return false;
        default:
            endRun();
            return true;
        }
    }

    bool closeGroup()
    {
        endRun();
        if (m_groups.empty()) {
            return false;
        }
        const std::size_t next = m_at + 1;
        const bool mayBeMissing = next < m_tokens.size() &&
                                  m_tokens[next].kind == Kind::Quantifier &&
                                  m_tokens[next].allowsNone();
        if (m_groups.back().hasAlternatives || mayBeMissing) {
            m_longest = m_groups.back().longestBefore;
        }
        m_groups.pop_back();
        return true;
    }

    void endRun()
    {
        if (m_run.size() > m_longest.size()) {
            m_longest = m_run;
        }
        m_run.clear();
    }

    std::vector<PatternToken> m_tokens;
    std::size_t m_at = 0;
    QString m_run;
    QString m_longest;
    std::vector<Group> m_groups;
};

} // namespace

QString requiredWordOf(const QString& pattern)
{
    auto tokens = tokensOf(pattern);
    return tokens ? Reader(std::move(*tokens)).read().value_or(QString()) : QString();
}

} // namespace quillon
