// SPDX-License-Identifier: MIT
#include "ui/layout/piece_shaper.h"

#include "ui/layout/monospace_metrics.h"

#include <QTextLayout>
#include <QTextOption>

#include <algorithm>
#include <utility>

namespace quillon {

namespace {

// Rows of a large screen.
constexpr std::size_t kMaximumKept = 128;
// UTF-16 units; a text layout takes some hundred bytes for each.
constexpr qsizetype kMaximumKeptLength = 32'768;

} // namespace

PieceShaper::PieceShaper(const MonospaceMetrics& metrics, std::optional<Fixed> lineWidth)
    : m_metrics(metrics), m_lineWidth(lineWidth), m_scratch(makeLayout())
{
}

PieceShaper::~PieceShaper() = default;

std::shared_ptr<const QTextLayout> PieceShaper::layOut(const QString& row,
                                                       const ShapedPiece& piece) const
{
    const auto found = std::find_if(m_entries.begin(), m_entries.end(), [&](const Entry& entry) {
        return entry.row.constData() == row.constData() && entry.start == piece.start;
    });
    if (found != m_entries.end()) {
        m_entries.splice(m_entries.begin(), m_entries, found);
        return m_entries.front().layout;
    }
    const std::shared_ptr<QTextLayout> layout = makeLayout();
    layout->setCacheEnabled(true);
    fill(*layout, row, piece);
    keep(Entry{row, piece.start, piece.end - piece.start, layout});
    return layout;
}

void PieceShaper::keep(Entry entry) const
{
    m_keptLength += entry.length;
    m_entries.push_front(std::move(entry));
    while (m_entries.size() > 1 &&
           (m_entries.size() > kMaximumKept || m_keptLength > kMaximumKeptLength)) {
        m_keptLength -= m_entries.back().length;
        m_entries.pop_back();
    }
}

ShapedMeasure PieceShaper::measure(const QString& row, const ShapedPiece& piece) const
{
    fill(*m_scratch, row, piece);
    ShapedMeasure measure{.lineCount = m_scratch->lineCount(),
                          .oneLine = toFixed(m_scratch->maximumWidth())};
    for (int i = 0; i < measure.lineCount; ++i) {
        const QTextLine line = m_scratch->lineAt(i);
        const Fixed width = toFixed(line.naturalTextWidth());
        measure.widestLine = std::max(measure.widestLine, width);
        // What the ink of a line's last character adds to its width.
        measure.oneLine -= width - toFixed(line.horizontalAdvance());
    }
    return measure;
}

// The row's number stands on the left whatever its text, so the paragraph runs left to right.
std::unique_ptr<QTextLayout> PieceShaper::makeLayout() const
{
    QTextOption option(Qt::AlignLeft);
    option.setTextDirection(Qt::LeftToRight);
    option.setTabStopDistance(toPoints(m_metrics.tabDistance()));
    option.setWrapMode(m_lineWidth ? QTextOption::WrapAtWordBoundaryOrAnywhere
                                   : QTextOption::NoWrap);
    auto layout = std::make_unique<QTextLayout>();
    layout->setFont(m_metrics.font(FontWeight::Regular));
    layout->setTextOption(option);
    return layout;
}

void PieceShaper::fill(QTextLayout& layout, const QString& row, const ShapedPiece& piece) const
{
    QString text(piece.lead, u'\t');
    text += QStringView(row).sliced(piece.start, piece.end - piece.start);
    layout.setText(text);
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        if (!m_lineWidth) {
            break;
        }
        line.setLineWidth(toPoints(*m_lineWidth));
    }
    layout.endLayout();
}

} // namespace quillon
