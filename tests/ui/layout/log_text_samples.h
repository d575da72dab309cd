// SPDX-License-Identifier: MIT
#pragma once

#include "model/records/log_severity.h"
#include "render/attributed_string.h"
#include "render/highlight_preferences.h"
#include "tests/support/random_text.h"
#include "ui/layout/log_text_layout.h"
#include "ui/theme/theme.h"

#include <QStringList>

#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace quillon {

// Gives every row the runs that a function makes of it; one plain run where there is no function.
class SampleStyler final : public RowStyler {
public:
    using Runs = std::function<std::vector<AttributeRun>(const AttributedRow&)>;

    explicit SampleStyler(Runs runs = {}) : m_runs(std::move(runs)) {}

    [[nodiscard]] const BaseAttributes& baseAttributes() const override { return m_base; }
    [[nodiscard]] Color severityColor(LogSeverity severity) const override
    {
        return preferenceOf(roleOf(severity)).fallback;
    }
    [[nodiscard]] std::vector<AttributeRun> runsOf(const AttributedRow& row) const override
    {
        return m_runs ? m_runs(row)
                      : std::vector<AttributeRun>{AttributeRun{0, row.length(), RunAttributes{}}};
    }

private:
    BaseAttributes m_base;
    Runs m_runs;
};

inline AttributedRow sampleRow(const QString& text, qint64 number = 1,
                               const SampleStyler::Runs& runs = {})
{
    return AttributedRow(number, text, LogSeverity::Unknown,
                         std::make_shared<const SampleStyler>(runs));
}

// Adds rows of these texts, numbered on from those that are there.
inline void appendRows(AttributedString& text, const QStringList& lines,
                       const SampleStyler::Runs& runs = {})
{
    const auto styler = std::make_shared<const SampleStyler>(runs);
    for (const QString& line : lines) {
        text.append(AttributedRow(text.rows().size() + 1, line, LogSeverity::Unknown, styler));
    }
}

inline AttributedString sampleText(const QStringList& lines, const SampleStyler::Runs& runs = {})
{
    AttributedString text;
    appendRows(text, lines, runs);
    return text;
}

inline std::shared_ptr<const MonospaceMetrics> sampleMetrics(double fontSize = 13.0)
{
    return std::make_shared<const MonospaceMetrics>(
        monospacedSystemFont(fontSize, FontWeight::Regular),
        monospacedSystemFont(fontSize, FontWeight::Bold));
}

// The width that the view breaks lines at: whole columns and half a one.
inline Fixed widthOfColumns(qsizetype columns, const MonospaceMetrics& metrics)
{
    return columns * metrics.columnAdvance() + metrics.columnAdvance() / 2;
}

// Rows whose characters stand side by side, of every kind that arithmetic must get right.
QStringList randomPlainLines(RandomText& random, int count);

// Rows with characters whose place depends on their neighbours.
QStringList unusualLines();

// The lines of the excerpts that come with the tests.
QStringList excerptLines();

} // namespace quillon
