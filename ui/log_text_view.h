// SPDX-License-Identifier: MIT
#pragma once

#include "render/attributed_string.h"
#include "ui/log_text_layout.h"
#include "ui/log_text_selection.h"
#include "ui/metrics_cache.h"
#include "ui/text_geometry.h"

#include <QAbstractScrollArea>
#include <QBasicTimer>

#include <memory>
#include <optional>

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

    [[nodiscard]] const TextGeometry& geometry() const { return m_geometry; }
    [[nodiscard]] const LogTextLayout& textLayout() const { return *m_layout; }
    [[nodiscard]] const AttributedString& attributedText() const { return m_layout->text(); }
    [[nodiscard]] bool isWrapped() const { return m_content.isWrapped; }

    [[nodiscard]] const LogTextSelection& textSelection() const { return m_selection; }
    [[nodiscard]] bool hasSelection() const { return !m_selection.isEmpty(); }
    [[nodiscard]] QString selectedText() const;
    void setTextSelection(TextPosition start, TextPosition end);

    // Brings a place of the text into view with as little scrolling as possible.
    void scrollToPosition(TextPosition position);
    void scrollToEndOfDocument();

    // The place nearest to a point of the viewport, the place before the character that holds it or
    // is nearest to it, and the box of a character there.
    [[nodiscard]] TextPosition positionAtPoint(QPoint point) const;
    [[nodiscard]] TextPosition characterAtPoint(QPoint point) const;
    [[nodiscard]] QRect boxOfPosition(TextPosition position) const;

public Q_SLOTS:
    void copy();
    void selectAll();

Q_SIGNALS:
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
    void timerEvent(QTimerEvent* event) override;

private:
    // A press is one of a row of clicks: how many, where and when the last one was.
    struct Clicks {
        int count = 0;
        QPoint place;
        quint64 time = 0; // milliseconds
    };

    void applyWrapping(bool isWrapped);
    void fitToClip();
    void scheduleReplacement();
    void replaceText();
    void layOutText();
    void updateMetrics();
    void settleVerticalScrollBar();
    void updateScrollBars();
    bool scrollOnKey(const QKeyEvent& event);
    bool extendOnKey(const QKeyEvent& event);
    void beginSelection(const QMouseEvent& event);
    void finishDrag();
    void endDrag();
    void extendSelectionTo(TextPosition position);
    void publishSelection();
    [[nodiscard]] QPointF scrollOffset() const;

    LogTextContent m_content;
    bool m_isReplacementDue = false;
    TextGeometry m_geometry;
    MetricsCache m_metricsCache;
    std::shared_ptr<const MonospaceMetrics> m_metrics;
    std::unique_ptr<LogTextLayout> m_layout;
    LogTextSelection m_selection;
    std::optional<double> m_caretX; // see Caret::x
    Clicks m_clicks;
    bool m_isSelecting = false;
    QPoint m_pointer;
    QBasicTimer m_autoScroll;
};

} // namespace quillon
