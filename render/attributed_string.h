// SPDX-License-Identifier: MIT
#pragma once

#include "model/records/log_severity.h"
#include "platform/append_only_list.h"
#include "render/row_style.h"
#include "render/text_attributes.h"

#include <QString>

#include <functional>
#include <memory>
#include <vector>

namespace quillon {

class AttributedRow;

// Gives the style of rows. Shared by the rows of a pass, and never changed once a row has it, so
// that the style of a row is settled when it is made, however late somebody asks.
class RowStyler {
public:
    virtual ~RowStyler() = default;
    [[nodiscard]] virtual const BaseAttributes& baseAttributes() const = 0;
    // What that severity is marked with where no row of it shows.
    [[nodiscard]] virtual Color severityColor(LogSeverity severity) const = 0;
    // The runs of `row`, in order, covering it without gaps; adjacent runs differ.
    [[nodiscard]] virtual std::vector<AttributeRun> runsOf(const AttributedRow& row) const = 0;
    // The same, to be asked for a part at a time. The style needs neither row nor styler to stay.
    [[nodiscard]] virtual std::unique_ptr<RowStyle> styleOf(const AttributedRow& row) const;
};

// One row of styled text: a line number, a tab, a line's text and a line feed. It shares the text
// with the log line instead of holding a copy, and its runs are worked out when they are asked for,
// which for most rows of a large log is never.
class AttributedRow {
public:
    AttributedRow(qint64 number, QString text, LogSeverity severity,
                  std::shared_ptr<const RowStyler> styler);

    [[nodiscard]] qint64 number() const { return m_number; }
    [[nodiscard]] const QString& text() const { return m_text; }
    [[nodiscard]] LogSeverity severity() const { return m_severity; }

    // UTF-16 units before the line's text: the number's digits (and sign) and the tab.
    [[nodiscard]] qsizetype prefixLength() const { return m_prefixLength; }
    // UTF-16 units of the whole row, line feed included.
    [[nodiscard]] qsizetype length() const { return m_prefixLength + m_text.size() + 1; }
    // The whole row, line feed included.
    [[nodiscard]] QString string() const;
    // Line feeds in the row. A carriage return before a line feed makes one character with it,
    // which is no line feed.
    [[nodiscard]] qsizetype lineFeedCount() const;

    [[nodiscard]] const BaseAttributes& baseAttributes() const
    {
        return m_styler->baseAttributes();
    }
    [[nodiscard]] Color severityColor() const { return m_styler->severityColor(m_severity); }
    // All runs at once: of a long row with many matches some hundred bytes for each.
    [[nodiscard]] std::vector<AttributeRun> runs() const { return m_styler->runsOf(*this); }
    // All runs one after the other, without having them all in memory.
    void forEachRun(const std::function<void(const AttributeRun&)>& take) const;
    [[nodiscard]] std::unique_ptr<RowStyle> style() const { return m_styler->styleOf(*this); }

private:
    qint64 m_number;
    QString m_text;
    std::shared_ptr<const RowStyler> m_styler;
    LogSeverity m_severity;
    std::uint8_t m_prefixLength;
};

// Styled text as a list of rows. A copy costs O(1), appending a row O(1); what copies have in
// common is shared and known to be the same.
class AttributedString {
public:
    [[nodiscard]] const AppendOnlyList<AttributedRow>& rows() const { return m_rows; }
    [[nodiscard]] bool isEmpty() const { return m_rows.isEmpty(); }
    // UTF-16 units of all rows.
    [[nodiscard]] qint64 length() const { return m_length; }
    // See AttributedRow::lineFeedCount; kept while appending, so asking costs nothing.
    [[nodiscard]] qint64 lineFeedCount() const { return m_lineFeedCount; }
    // The whole text in one piece. Costs as much as the text is long.
    [[nodiscard]] QString string() const;

    void append(AttributedRow row);

    // True when this text is `older` with nothing or more appended, known in O(1).
    [[nodiscard]] bool isExtensionOf(const AttributedString& older) const
    {
        return m_rows.isExtensionOf(older.m_rows);
    }

private:
    AppendOnlyList<AttributedRow> m_rows;
    qint64 m_length = 0;
    qint64 m_lineFeedCount = 0;
};

} // namespace quillon
