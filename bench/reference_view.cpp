// SPDX-License-Identifier: MIT
#include "bench/reference_view.h"

#include "ui/theme/theme.h"

#include <QScrollBar>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextLayout>

namespace quillon::bench {

ReferenceView::~ReferenceView() = default;

ReferenceView::ReferenceView(QSize size) : m_image(size, QImage::Format_ARGB32_Premultiplied)
{
    m_edit.setReadOnly(true);
    m_edit.setUndoRedoEnabled(false);
    m_edit.setFont(monospacedSystemFont(13, FontWeight::Regular));
    m_edit.resize(size);
    m_edit.show();
}

void ReferenceView::show(const AttributedString& text, bool isWrapped)
{
    m_edit.setLineWrapMode(isWrapped ? QTextEdit::WidgetWidth : QTextEdit::NoWrap);
    auto document = std::make_unique<QTextDocument>();
    document->setDefaultFont(m_edit.font());
    document->setUndoRedoEnabled(false);
    document->setPlainText(text.string());
    // Formats set on the blocks' layouts cost less than character formats inserted one by one.
    QTextBlock block = document->begin();
    for (const AttributedRow& row : text.rows()) {
        QList<QTextLayout::FormatRange> formats;
        for (const AttributeRun& run : row.runs()) {
            QTextLayout::FormatRange range;
            range.start = static_cast<int>(run.start);
            range.length = static_cast<int>(run.length);
            range.format.setForeground(resolvedColor(run.attributes.foreground, m_edit.palette()));
            if (run.attributes.background) {
                range.format.setBackground(
                    resolvedColor(*run.attributes.background, m_edit.palette()));
            }
            if (run.attributes.weight == FontWeight::Bold) {
                range.format.setFontWeight(QFont::Bold);
            }
            formats.append(range);
        }
        block.layout()->setFormats(formats);
        block = block.next();
    }
    m_edit.setDocument(document.get());
    m_document = std::move(document);
    m_edit.verticalScrollBar()->setValue(m_edit.verticalScrollBar()->maximum());
    m_edit.moveCursor(QTextCursor::End);
    m_edit.render(&m_image);
}

} // namespace quillon::bench
