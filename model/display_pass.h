// SPDX-License-Identifier: MIT
#pragma once

#include "model/records/log_line.h"
#include "render/attributed_string.h"
#include "render/line_filter.h"

#include <functional>
#include <memory>

namespace quillon {

class LogRowStyler;
class UserDefaults;

// What decides which lines are shown and how, as the view model has it when a pass begins.
struct DisplayOptions {
    LineFilter filter;
    BaseAttributes baseAttributes;
};

// What a pass comes to.
struct DisplayedLog {
    AttributedString output;
    QString statusLine;
    // Rows that the pass has appended.
    qsizetype newRows = 0;
    // Lines among those of the pass that are not shown because finding out whether they match costs
    // too much.
    qint64 undecidedLines = 0;
};

// One pass over lines, filtering and styling them: over all lines anew, or over new ones behind
// those that are shown. It can be carried out bit by bit; what it comes to is the same. Colours are
// read when it begins. Costs no more for a long log than for a short one where few lines are new.
class DisplayPass {
public:
    enum class Kind : std::uint8_t { Rebuild, Extension };

    // Over all lines.
    static DisplayPass rebuild(const LogLines& lines, const DisplayOptions& options,
                               const UserDefaults& defaults);
    // Over new lines, whose rows go behind those of `output`.
    static DisplayPass extension(const AttributedString& output, const LogLines& newLines,
                                 const DisplayOptions& options, const UserDefaults& defaults);

    [[nodiscard]] Kind kind() const { return m_kind; }

    // Takes lines that were appended to those of the pass, and that `allLines` ends with.
    void join(const LogLines& newLines, const LogLines& allLines);

    // Goes on until all lines have been looked at, or until `isEnough` says so after some of them.
    // False in the latter case.
    bool goOn(const std::function<bool()>& isEnough);

    // What it comes to, once all lines have been looked at. `lineCount` is the number of all lines.
    [[nodiscard]] DisplayedLog result(qint64 lineCount) const;

private:
    DisplayPass(Kind kind, AttributedString output, LogLines lines, const DisplayOptions& options,
                const UserDefaults& defaults);

    // None where that takes longer.
    std::optional<Verdict> decideSome(const LogLine& line);
    void take(const LogLine& line, Verdict verdict);

    Kind m_kind;
    AttributedString m_output;
    LogLines m_lines;
    LineFilter m_filter;
    std::shared_ptr<const LogRowStyler> m_styler;
    qsizetype m_next = 0;
    DecisionPoint m_point; // in the next line
    qsizetype m_newRows = 0;
    qint64 m_undecided = 0;
};

} // namespace quillon
