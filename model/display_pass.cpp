// SPDX-License-Identifier: MIT
#include "model/display_pass.h"

#include "render/highlight_colors.h"
#include "render/status_text.h"
#include "render/styled_line.h"

namespace quillon {

namespace {

// Lines after which the clock is worth asking. One line takes a few milliseconds at most, but for a
// long one, which is decided bit by bit.
constexpr qsizetype kLinesPerClockCheck = 4;

} // namespace

DisplayPass DisplayPass::rebuild(const LogLines& lines, const DisplayOptions& options,
                                 const UserDefaults& defaults)
{
    return DisplayPass(Kind::Rebuild, AttributedString(), lines, options, defaults);
}

DisplayPass DisplayPass::extension(const AttributedString& output, const LogLines& newLines,
                                   const DisplayOptions& options, const UserDefaults& defaults)
{
    return DisplayPass(Kind::Extension, output, newLines, options, defaults);
}

DisplayPass::DisplayPass(Kind kind, AttributedString output, LogLines lines,
                         const DisplayOptions& options, const UserDefaults& defaults)
    : m_kind(kind), m_output(std::move(output)), m_lines(std::move(lines)),
      m_filter(options.filter),
      m_styler(std::make_shared<const LogRowStyler>(
          options.baseAttributes, HighlightColors::read(defaults), options.filter.search))
{
}

void DisplayPass::join(const LogLines& newLines, const LogLines& allLines)
{
    // Where the lines of the pass are all that there were, a copy would be made to append to them.
    if (allLines.isExtensionOf(m_lines)) {
        m_lines = allLines;
    } else {
        m_lines.append(newLines);
    }
}

bool DisplayPass::goOn(const std::function<bool()>& isEnough)
{
    while (m_next < m_lines.size()) {
        const LogLine& line = m_lines[m_next];
        const auto verdict = decideSome(line);
        if (verdict) {
            take(line, *verdict);
            m_point = DecisionPoint();
            ++m_next;
        }
        const bool isTimeToAsk = !verdict || m_next % kLinesPerClockCheck == 0;
        if (isTimeToAsk && m_next < m_lines.size() && isEnough()) {
            return false;
        }
    }
    return true;
}

std::optional<Verdict> DisplayPass::decideSome(const LogLine& line)
{
    if (!m_filter.allows(line.severity())) {
        return Verdict::NoMatch;
    }
    return m_filter.search ? m_filter.search->decideSome(line.text(), m_point)
                           : std::optional(Verdict::Match);
}

void DisplayPass::take(const LogLine& line, Verdict verdict)
{
    if (verdict == Verdict::Match) {
        m_output.append(styledLine(line, m_styler));
        ++m_newRows;
    } else if (verdict == Verdict::Undecided) {
        ++m_undecided;
    }
}

DisplayedLog DisplayPass::result(qint64 lineCount) const
{
    QString status = countsStatus(lineCount, m_output.rows().size());
    if (m_kind == Kind::Extension) {
        status = countsStatus(lineCount, m_output.lineFeedCount());
    } else if (lineCount > 0 && m_output.isEmpty()) {
        status = allFilteredStatus(lineCount);
    }
    return DisplayedLog{m_output, std::move(status), m_newRows, m_undecided};
}

} // namespace quillon
