// SPDX-License-Identifier: MIT
#pragma once

#include "render/attributed_string.h"
#include "ui/layout/log_text_layout.h"
#include "ui/layout/metrics_cache.h"
#include "ui/layout/text_geometry.h"
#include "ui/log_text/log_text_clip.h"
#include "ui/log_text/log_text_input.h"
#include "ui/log_text/needed_scroll_bars.h"

#include <QAbstractScrollArea>

#include <memory>

namespace quillon {

// What a LogTextView is to show.
struct LogTextContent {
    AttributedString attributedText;
    bool isWrapped = true;
    double fontSize = 13.0; // points
};

// The styled log in a scrollable view that can be read, selected and copied, never edited. Each
// update replaces the text and shows its end, whatever has changed. The view owns no log data; its
// cost for an update that appends rows is that of the rows, and painting costs what is on screen.
//
// The scroll area's viewport shows a clip of the text's frame, which geometry() describes.
class LogTextView : public QAbstractScrollArea {
    Q_OBJECT

public:
    explicit LogTextView(const LogTextContent& content, QWidget* parent = nullptr);
    ~LogTextView() override;

    // Shows other content. Wrapping applies to the geometry at once; the text is replaced, laid
    // out and scrolled to its end one turn of the event loop later. Of several updates in one turn
    // the last one counts.
    void update(const LogTextContent& content);

    // Whether other content is being prepared, which screen readers are told.
    [[nodiscard]] bool isBusy() const { return m_isBusy; }
    void setBusy(bool isBusy);

    [[nodiscard]] const TextGeometry& geometry() const { return m_geometry; }
    [[nodiscard]] const LogTextLayout& textLayout() const { return m_layout; }
    [[nodiscard]] const AttributedString& attributedText() const { return m_layout.text(); }
    [[nodiscard]] bool isWrapped() const { return m_content.isWrapped; }

    [[nodiscard]] const LogTextSelection& textSelection() const { return m_input.selection(); }
    [[nodiscard]] bool hasSelection() const { return !textSelection().isEmpty(); }
    // As it is shown: line numbers and tabs included, rows ending in line feeds.
    [[nodiscard]] QString selectedText() const;
    void setTextSelection(TextPosition start, TextPosition end);

    // Brings a place of the text into view with as little scrolling as possible.
    void scrollToPosition(TextPosition position) { m_clip.scrollTo(position); }
    void scrollToEndOfDocument() { m_clip.scrollToEnd(); }

    // The place nearest to a point of the viewport, the place before the character that holds it or
    // is nearest to it, and the box of a character there.
    [[nodiscard]] TextPosition positionAtPoint(QPoint point) const
    {
        return m_clip.positionAt(point);
    }
    [[nodiscard]] TextPosition characterAtPoint(QPoint point) const
    {
        return m_clip.characterAt(point);
    }
    [[nodiscard]] QRect boxOfPosition(TextPosition position) const
    {
        return m_clip.boxOf(position);
    }

    // The keys that the view answers with copyWithoutNumbers(), for a menu to name them too.
    [[nodiscard]] static QKeySequence copyWithoutNumbersKeys();

public Q_SLOTS:
    // Neither touches the clipboard where nothing is selected.
    void copy();
    // Copies the lines of the file of which anything is selected, whole and as they stand there:
    // without their numbers, a line feed after each.
    void copyWithoutNumbers();
    void selectAll();

Q_SIGNALS:
    // Another text is shown, or the same one again with more rows; `former` is what was before.
    void textReplaced(const quillon::AttributedString& former);
    // Rows stand elsewhere now, or others stand there.
    void laidOut();
    // The selection or the caret, or both, have moved.
    void selectionChanged();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool event(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void scheduleReplacement();
    void replaceText();
    void fitToArea();
    // Lays out a text and decides which scroll bars stand beside it. Whether anything has changed.
    bool layOutText(const AttributedString& text);
    bool layOutIn(QSizeF clip, const AttributedString& text);
    void updateMetrics();
    void updateScrollBars(QSizeF clip);
    [[nodiscard]] ScrollRoom scrollRoom() const;
    // Points that so many lines take, with the room above and below them.
    [[nodiscard]] double heightOf(qint64 lines) const;

    LogTextContent m_content;
    bool m_isReplacementDue = false;
    QSize m_area; // that the text has been laid out for, scroll bars included
    bool m_isBusy = false;
    TextGeometry m_geometry;
    MetricsCache m_metricsCache;
    std::shared_ptr<const MonospaceMetrics> m_metrics;
    LogTextLayout m_layout;
    LogTextClip m_clip{*this, m_layout};
    LogTextInput m_input{*this, m_layout, m_clip};
};

} // namespace quillon
