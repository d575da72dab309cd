// SPDX-License-Identifier: MIT
#include "ui/windows/error_marks.h"

#include "ui/controls/marked_scroll_bar.h"
#include "ui/layout/severity_marks.h"
#include "ui/log_text/log_text_colors.h"
#include "ui/log_text/log_text_view.h"
#include "ui/theme/contrast.h"
#include "ui/theme/theme.h"

#include <memory>
#include <vector>

namespace quillon {

namespace {

// What the guidelines ask of what is no text.
constexpr double kVisibleContrast = 3.0;

QColor markColor(const AttributedRow& row, const QPalette& palette)
{
    const QColor track = resolvedColor(Color::system(SystemColor::TextBackground), palette);
    return withContrast(backgroundColorOn(row.severityColor(), palette), track, kVisibleContrast);
}

} // namespace

void showErrorMarks(LogTextView& view)
{
    const auto rows = std::make_shared<SevereRows>();
    auto* const bar = new MarkedScrollBar([&view, rows](int trackLength) {
        std::vector<ScrollBarMark> marks;
        for (const SeverityMark& mark : marksOnTrack(*rows, view.textLayout(), trackLength)) {
            const AttributedRow& row = view.attributedText().rows()[mark.row];
            marks.push_back({mark.pixel, markColor(row, view.palette())});
        }
        return marks;
    });
    view.setVerticalScrollBar(bar);
    QObject::connect(&view, &LogTextView::laidOut, bar, [&view, rows, bar] {
        rows->follow(view.attributedText());
        bar->forgetMarks();
    });
}

} // namespace quillon
