// SPDX-License-Identifier: MIT
#pragma once

#include "render/attributed_string.h"
#include "ui/layout/break_opportunities.h"
#include "ui/layout/monospace_metrics.h"
#include "ui/layout/row_engine.h"
#include "ui/layout/text_position.h"

#include <QHash>
#include <QList>

#include <functional>
#include <list>
#include <memory>
#include <optional>
#include <vector>

namespace quillon {

// A visual line, counted from the top of the text, as a line of its row.
struct VisualLine {
    qsizetype row = 0;
    qsizetype lineInRow = 0;
};

// The layout of a whole text: on which visual line each row begins, exactly and for all rows, while
// only rows that somebody looks at are laid out in detail. All lines have the same height.
//
// A text that extends the one before is laid out from its first new row on; after a change of the
// line's width or the font only those rows are looked at again whose line count does not follow
// from what is known of them; after any other change every row is, except that rows which need
// shaping are remembered by their text. What is known of a row whose characters are of many widths
// holds for one font only.
class LogTextLayout {
public:
    LogTextLayout();
    ~LogTextLayout();
    LogTextLayout(const LogTextLayout&) = delete;
    LogTextLayout& operator=(const LogTextLayout&) = delete;

    // Lays the text out: with these metrics, and with lines broken at `lineWidth`, if any. Nothing
    // is done twice that these three leave as it was. Whether any of them is another than before.
    bool layOut(const AttributedString& text, std::shared_ptr<const MonospaceMetrics> metrics,
                std::optional<Fixed> lineWidth);

    [[nodiscard]] const AttributedString& text() const { return m_text; }
    [[nodiscard]] const MonospaceMetrics& metrics() const { return *m_metrics; }
    [[nodiscard]] const RowLayouter& layouter() const { return m_engine->layouter; }
    [[nodiscard]] const RowPlaces& places() const { return m_engine->places; }

    // Visual lines of all rows, and the empty one after the last row's line feed.
    [[nodiscard]] qint64 lineCount() const;
    // The width of the widest row where lines are not broken, else 0.
    [[nodiscard]] Fixed width() const { return m_width; }

    // The visual line on which a row begins; for the row after the last, the empty last line.
    [[nodiscard]] qint64 firstLineOf(qsizetype row) const;
    // The row that a visual line belongs to, 0 ≤ line < lineCount() − 1.
    [[nodiscard]] VisualLine visualLine(qint64 line) const;

    // A row in detail. The reference holds until 255 other rows have been asked for, or layOut() is
    // called.
    [[nodiscard]] const RowLayout& rowLayout(qsizetype row) const;

    // The style of a part of a row and of some of what is around it.
    struct PartRuns {
        const std::vector<AttributeRun>& runs; // holds until the next call
        // Whether the search had been carried so far when it was enough.
        bool isComplete;
    };
    // Works them out until `isEnough` says so; it is asked after each span of a search (see
    // MatchingBudget).
    [[nodiscard]] PartRuns runsIn(qsizetype row, const TextRange& part,
                                  const std::function<bool()>& isEnough) const;

private:
    struct KnownRow {
        QString text;           // kept so that its address stays its own
        qsizetype prefixLength; // the text begins farther right after a longer number
        RowMeasure measure;
    };
    // A long row as it was laid out in a text before this one, for one font.
    struct KnownLongRow {
        QString text; // kept so that its address stays its own
        qsizetype prefixLength;
        std::optional<Fixed> lineWidth;
        RowLayout layout;
    };
    struct CachedRow {
        qsizetype row;
        RowLayout layout;
        // What has been asked for of its style.
        std::unique_ptr<RowStyle> style;
        TextRange part;
        std::vector<AttributeRun> runs;
        bool isComplete = false;
    };

    void forgetFont();
    void keepShapedRows();
    void keepLongRow();
    [[nodiscard]] RowLayout layOutInDetail(const AttributedRow& row) const;
    void dropForeignRows();
    void measureRowsFrom(qsizetype firstRow);
    [[nodiscard]] RowMeasure initialMeasure(const AttributedRow& row);
    [[nodiscard]] RowExtent extentOf(qsizetype row, RowMeasure& measure);
    [[nodiscard]] CachedRow& cachedRow(qsizetype row) const;

    BreakOpportunities m_opportunities;
    AttributedString m_text;
    std::shared_ptr<const MonospaceMetrics> m_metrics;
    std::optional<Fixed> m_lineWidth;
    std::unique_ptr<RowEngine> m_engine;
    // For each row the number of visual lines up to its end. These two lists are as long as a log
    // that is followed becomes; a QList grows where it is, as far as the system can remap memory.
    QList<quint32> m_lineEnds;
    // For each row what has been found out about it, for as long as the text stays.
    QList<RowMeasure> m_measures;
    // The rows of range Any, in order: what is known of them holds for one font.
    std::vector<qsizetype> m_mixedRows;
    Fixed m_width = 0;
    // Rows of earlier texts that need shaping, by where their text stands in memory: a search
    // leaves rows out and lets them in again.
    QHash<const QChar*, KnownRow> m_knownRows;
    bool m_hasKnownRow = false;     // in the text at hand
    int m_textsWithoutKnownRow = 0; // one after the other
    // The same one at up to two widths, oldest first: a log that is a single line stays the same
    // for most keys in the search field, and each time it is tried without and with a scroll bar.
    mutable std::vector<KnownLongRow> m_longRows;
    // Most recently used first.
    mutable std::list<CachedRow> m_cachedRows;
};

} // namespace quillon
