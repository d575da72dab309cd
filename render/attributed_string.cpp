// SPDX-License-Identifier: MIT
#include "render/attributed_string.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace quillon {

namespace {

std::uint8_t prefixLengthOf(qint64 number)
{
    std::uint8_t length = number < 0 ? 3 : 2; // one digit, the tab and the sign
    for (quint64 rest = number < 0 ? quint64{0} - static_cast<quint64>(number)
                                   : static_cast<quint64>(number);
         rest >= 10; rest /= 10) {
        ++length;
    }
    return length;
}

// UTF-16 units whose runs are worked out at a time where all are wanted one after the other.
constexpr qsizetype kPartLength = 65'536;

} // namespace

std::unique_ptr<RowStyle> RowStyler::styleOf(const AttributedRow& row) const
{
    return std::make_unique<SettledStyle>(runsOf(row));
}

AttributedRow::AttributedRow(qint64 number, QString text, LogSeverity severity,
                             std::shared_ptr<const RowStyler> styler)
    : m_number(number), m_text(std::move(text)), m_styler(std::move(styler)), m_severity(severity),
      m_prefixLength(prefixLengthOf(number))
{
}

QString AttributedRow::string() const
{
    QString row = QString::number(m_number);
    row.reserve(length());
    row += u'\t';
    row += m_text;
    row += u'\n';
    return row;
}

void AttributedRow::forEachRun(const std::function<void(const AttributeRun&)>& take) const
{
    if (length() <= kPartLength) {
        for (const AttributeRun& run : runs()) {
            take(run);
        }
        return;
    }
    const std::unique_ptr<RowStyle> style = this->style();
    std::optional<AttributeRun> last; // which may go on in the next part
    for (qsizetype start = 0; start < length(); start += kPartLength) {
        const TextRange part{start, std::min(kPartLength, length() - start)};
        while (!style->advance(part.end())) {
        }
        for (const AttributeRun& run : style->runsIn(part)) {
            if (last && last->attributes == run.attributes) {
                last->length += run.length;
                continue;
            }
            if (last) {
                take(*last);
            }
            last = run;
        }
    }
    take(*last);
}

qsizetype AttributedRow::lineFeedCount() const
{
    qsizetype count = m_text.endsWith(u'\r') ? 0 : 1;
    for (qsizetype at = m_text.indexOf(u'\n'); at >= 0; at = m_text.indexOf(u'\n', at + 1)) {
        if (at == 0 || m_text[at - 1] != u'\r') {
            ++count;
        }
    }
    return count;
}

QString AttributedString::string() const
{
    QString text;
    text.reserve(m_length);
    for (const AttributedRow& row : m_rows) {
        text += row.string();
    }
    return text;
}

void AttributedString::append(AttributedRow row)
{
    m_length += row.length();
    m_lineFeedCount += row.lineFeedCount();
    m_rows.append(std::move(row));
}

} // namespace quillon
