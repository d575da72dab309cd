// SPDX-License-Identifier: MIT
#include "ui/line_stretches.h"

#include <QGlyphRun>
#include <QTextLayout>

#include <algorithm>

namespace quillon {

std::vector<LineStretch> stretchesOf(const QTextLayout& layout, qsizetype start, qsizetype end)
{
    std::vector<LineStretch> stretches;
    const QTextLine line = layout.lineAt(0);
    // Of two cursor positions one cannot tell what is between them where the direction changes.
    const auto runs = line.glyphRuns(static_cast<int>(start), static_cast<int>(end - start));
    for (const QGlyphRun& run : runs) {
        const QRectF box = run.boundingRect();
        stretches.push_back(LineStretch{box.left(), box.right()});
    }
    // Tabs have no glyphs.
    const QString text = layout.text();
    for (qsizetype at = text.indexOf(u'\t', start); at >= 0 && at < end;
         at = text.indexOf(u'\t', at + 1)) {
        const double before = line.cursorToX(static_cast<int>(at));
        const double after = line.cursorToX(static_cast<int>(at + 1));
        stretches.push_back(LineStretch{std::min(before, after), std::max(before, after)});
    }
    return stretches;
}

} // namespace quillon
