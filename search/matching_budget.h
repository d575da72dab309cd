// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

namespace quillon {

// What one expression may cost in one text, counted in what the engine itself does, never in time:
// the same text is decided alike on every machine, however busy, and however often it is asked for.
//
// Steps are the engine's own: it counts one wherever it notes a place to come back to, and reports
// in after each kStepsPerReport of them. Between two such notes it may read a text to its end, so
// in a long text the pieces that it reads are counted too. A long text is searched in spans of
// places where a match may begin, between which the program can see to other things. A span is
// over when it has used half of what one may, so that none takes long, and only a single place can
// be too much for it.
class MatchingBudget {
public:
    static constexpr int kStepsPerReport = 10'000;
    // Every text has as many.
    static constexpr int kFewestReports = 10;
    // UTF-16 units up to which a text is short: its pieces are not counted, and it is one span.
    static constexpr qsizetype kLongestShortText = 4'096;
    // Units that make a piece.
    static constexpr qsizetype kPieceLength = 64;
    // Places that make a span.
    static constexpr qsizetype kSpanLength = 65'536;

    // For a text of so many UTF-16 units.
    static MatchingBudget forText(qsizetype length);
    // For all marks in a row of so many units: dozens of rows are worked out for one picture.
    static MatchingBudget forMarks(qsizetype length);
    // For patterns of the program's own.
    static MatchingBudget unlimited();

    // Another span begins.
    void beginSpan();
    // The engine has taken another kStepsPerReport steps. False once there are none left.
    [[nodiscard]] bool takeReport();
    // The engine reads another piece. False once there are none left.
    [[nodiscard]] bool takePiece() { return --m_span.pieces >= 0 && --m_whole.pieces >= 0; }
    // Whether the span has cost so much that the next place is better left to another.
    [[nodiscard]] bool isSpanOver() const
    {
        return m_span.reports < m_perSpan.reports / 2 || m_span.pieces < m_perSpan.pieces / 2;
    }
    // Whether anything was asked for in vain.
    [[nodiscard]] bool isSpent() const { return m_whole.isSpent() || m_span.isSpent(); }

private:
    struct Amount {
        qint64 reports;
        qint64 pieces;

        [[nodiscard]] bool isSpent() const { return reports <= 0 || pieces < 0; }
    };

    MatchingBudget(Amount whole, Amount perSpan)
        : m_whole(whole), m_perSpan(perSpan), m_span(perSpan)
    {
    }

    Amount m_whole;
    Amount m_perSpan;
    Amount m_span;
};

} // namespace quillon
