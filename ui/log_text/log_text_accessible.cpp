// SPDX-License-Identifier: MIT
#include "ui/log_text/log_text_accessible.h"

#include "ui/log_text/log_text_changes.h"
#include "ui/log_text/log_text_colors.h"
#include "ui/log_text/log_text_view.h"

#include <QAccessible>
#include <QAccessibleTextInterface>
#include <QAccessibleWidget>

#include <algorithm>
#include <limits>
#include <utility>
#include <vector>

namespace quillon {

namespace {

// In the words of IAccessible2, which Qt passes on or translates on every platform; of the severity
// they know nothing, so it goes by its own name.
QString attributesOf(const RunAttributes& run, LogSeverity severity, const QPalette& palette)
{
    const auto rgb = [](const QColor& color) {
        return QStringLiteral("rgb(%1,%2,%3);")
            .arg(color.red())
            .arg(color.green())
            .arg(color.blue());
    };
    QString attributes = QStringLiteral("color:") + rgb(textColorOn(run.foreground, palette));
    if (run.background) {
        attributes +=
            QStringLiteral("background-color:") + rgb(backgroundColorOn(*run.background, palette));
    }
    if (run.weight == FontWeight::Bold) {
        attributes += QStringLiteral("font-weight:bold;");
    }
    return attributes + QStringLiteral("severity:%1;").arg(rawValue(severity));
}

// Offsets count UTF-16 units from the start of the whole text. The rows' places among them are
// worked out when somebody first asks, and from then on only for rows that are new.
class LogTextAccessible final : public QAccessibleWidget, public QAccessibleTextInterface {
public:
    explicit LogTextAccessible(LogTextView* view)
        : QAccessibleWidget(view, QAccessible::Document), m_view(view)
    {
    }

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::TextInterface) {
            return static_cast<QAccessibleTextInterface*>(this);
        }
        return QAccessibleWidget::interface_cast(type);
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.readOnly = true;
        state.multiLine = true;
        state.selectableText = true;
        state.busy = m_view->isBusy();
        return state;
    }

    void selection(int index, int* start, int* end) const override
    {
        const bool exists = index == 0 && m_view->hasSelection();
        *start = exists ? offsetOf(m_view->textSelection().start()) : 0;
        *end = exists ? offsetOf(m_view->textSelection().end()) : 0;
    }
    int selectionCount() const override { return m_view->hasSelection() ? 1 : 0; }
    void addSelection(int start, int end) override
    {
        m_view->setTextSelection(positionOf(start), positionOf(end));
    }
    void removeSelection(int index) override
    {
        if (index == 0) {
            m_view->setTextSelection(TextPosition(), TextPosition());
        }
    }
    void setSelection(int index, int start, int end) override
    {
        if (index == 0) {
            addSelection(start, end);
        }
    }

    int cursorPosition() const override { return offsetOf(m_view->textSelection().caret()); }
    void setCursorPosition(int position) override
    {
        m_view->setTextSelection(positionOf(position), positionOf(position));
        m_view->scrollToPosition(positionOf(position));
    }

    // The widget's own texts, such as its name, stay what they are.
    using QAccessibleWidget::text;
    QString text(int start, int end) const override
    {
        LogTextSelection range;
        range.select(positionOf(start), positionOf(end));
        return range.textIn(m_view->attributedText());
    }
    int characterCount() const override { return static_cast<int>(offsets().back()); }

    QRect characterRect(int offset) const override
    {
        const QRect box = m_view->boxOfPosition(positionOf(offset));
        return {m_view->viewport()->mapToGlobal(box.topLeft()), box.size()};
    }
    int offsetAtPoint(const QPoint& point) const override
    {
        return offsetOf(m_view->characterAtPoint(m_view->viewport()->mapFromGlobal(point)));
    }
    void scrollToSubstring(int start, int /*end*/) override
    {
        m_view->scrollToPosition(positionOf(start));
    }

    QString attributes(int offset, int* start, int* end) const override
    {
        const TextPosition position = positionOf(offset);
        const auto& rows = m_view->attributedText().rows();
        *start = *end = offset;
        if (position.row >= rows.size()) {
            return QString();
        }
        const int rowStart = offsetOf(TextPosition{position.row, 0});
        // What is on screen has been worked out, and for the rest nobody is kept waiting.
        const auto& runs =
            m_view->textLayout()
                .runsIn(position.row, TextRange{position.offset, 1}, [] { return true; })
                .runs;
        const auto run =
            std::partition_point(runs.begin(), runs.end(), [&position](const AttributeRun& each) {
                return each.end() <= position.offset;
            });
        if (run == runs.end()) {
            return QString();
        }
        *start = rowStart + static_cast<int>(run->start);
        *end = rowStart + static_cast<int>(run->end());
        return attributesOf(run->attributes, rows[position.row].severity(), m_view->palette());
    }

    // A line is a row of the log, a sentence and a paragraph too. The base class would fetch the
    // whole text for each question.
    QString textAtOffset(int offset, QAccessible::TextBoundaryType boundary, int* start,
                         int* end) const override
    {
        const TextPosition position = positionOf(offset);
        const AttributedString& shown = m_view->attributedText();
        if (boundary == QAccessible::NoBoundary) {
            *start = 0;
            *end = characterCount();
            return shown.string();
        }
        if (position.row >= shown.rows().size()) {
            *start = *end = characterCount();
            return QString();
        }
        TextPosition first{position.row, 0};
        TextPosition last{position.row + 1, 0};
        if (boundary == QAccessible::CharBoundary) {
            last = positionAfter(shown, position);
            first = std::min(position, positionBefore(shown, last));
        } else if (boundary == QAccessible::WordBoundary &&
                   positionAfter(shown, position) == last) {
            first = position; // the line feed
        } else if (boundary == QAccessible::WordBoundary) {
            LogTextSelection word;
            word.begin(shown, position, SelectionGranularity::Word);
            first = word.start();
            last = word.end();
        }
        *start = offsetOf(first);
        *end = offsetOf(last);
        return text(*start, *end);
    }
    QString textBeforeOffset(int offset, QAccessible::TextBoundaryType boundary, int* start,
                             int* end) const override
    {
        textAtOffset(offset, boundary, start, end);
        if (*start == 0) {
            *end = 0;
            return QString();
        }
        return textAtOffset(*start - 1, boundary, start, end);
    }
    QString textAfterOffset(int offset, QAccessible::TextBoundaryType boundary, int* start,
                            int* end) const override
    {
        textAtOffset(offset, boundary, start, end);
        return textAtOffset(*end, boundary, start, end);
    }

    // On Linux one hears of text that comes and goes, of the selection and of the caret, each by
    // its own event, and of nothing else that concerns a text.
    void announceChangesSince(const AttributedString& former)
    {
        for (const LogTextChange& change : changesOfLogText(former, m_view->attributedText())) {
            if (change.kind == LogTextChange::Kind::Removed) {
                QAccessibleTextRemoveEvent event(m_view, change.offset, change.text);
                send(event);
            } else {
                QAccessibleTextInsertEvent event(m_view, change.offset, change.text);
                send(event);
            }
        }
        QAccessibleEvent changed(m_view, QAccessible::VisibleDataChanged);
        QAccessible::updateAccessibility(&changed);
    }

    void announceSelection()
    {
        const LogTextSelection& current = m_view->textSelection();
        const LogTextSelection former = std::exchange(m_announced, current);
        if (current.start() != former.start() || current.end() != former.end()) {
            QAccessibleTextSelectionEvent event(m_view, offsetOf(current.start()),
                                                offsetOf(current.end()));
            send(event);
        }
        if (current.caret() != former.caret()) {
            QAccessibleTextCursorEvent event(m_view, 0);
            send(event);
        }
    }

private:
    void send(QAccessibleTextCursorEvent& event) const
    {
        event.setCursorPosition(cursorPosition());
        QAccessible::updateAccessibility(&event);
    }

    // The offset at which each row begins, and the end of the text.
    const std::vector<qint64>& offsets() const
    {
        const AttributedString& text = m_view->attributedText();
        if (!text.isExtensionOf(m_text) || m_offsets.empty()) {
            m_offsets.assign(1, 0);
        }
        m_text = text;
        const auto& rows = text.rows();
        for (auto row = static_cast<qsizetype>(m_offsets.size()) - 1; row < rows.size(); ++row) {
            m_offsets.push_back(m_offsets.back() + rows[row].length());
        }
        return m_offsets;
    }
    int offsetOf(TextPosition position) const
    {
        // Where the caret is after a text has been replaced: nothing has to be worked out for it.
        const qint64 row =
            position.row == 0 ? 0 : offsets()[static_cast<std::size_t>(position.row)];
        const qint64 offset = row + position.offset;
        return static_cast<int>(std::min<qint64>(offset, std::numeric_limits<int>::max()));
    }
    TextPosition positionOf(int offset) const
    {
        const auto& starts = offsets();
        const qint64 clamped = std::clamp<qint64>(offset, 0, starts.back());
        const auto after = std::upper_bound(starts.begin(), starts.end(), clamped);
        const qsizetype row = after - starts.begin() - 1;
        return TextPosition{row, clamped - starts[static_cast<std::size_t>(row)]};
    }

    LogTextView* m_view;
    LogTextSelection m_announced;
    mutable AttributedString m_text;
    mutable std::vector<qint64> m_offsets;
};

QAccessibleInterface* makeInterface(const QString& /*className*/, QObject* object)
{
    auto* const view = qobject_cast<LogTextView*>(object);
    return view != nullptr ? new LogTextAccessible(view) : nullptr;
}

// What the view is to assistive programs; null where there are none.
LogTextAccessible* listenedTo(LogTextView& view)
{
    return QAccessible::isActive()
               ? dynamic_cast<LogTextAccessible*>(QAccessible::queryAccessibleInterface(&view))
               : nullptr;
}

} // namespace

void makeAccessible(LogTextView& view)
{
    QAccessible::installFactory(makeInterface);
    QObject::connect(&view, &LogTextView::selectionChanged, &view, [&view] {
        if (LogTextAccessible* const text = listenedTo(view)) {
            text->announceSelection();
        }
    });
    QObject::connect(&view, &LogTextView::textReplaced, &view,
                     [&view](const AttributedString& former) {
                         if (LogTextAccessible* const text = listenedTo(view)) {
                             text->announceChangesSince(former);
                         }
                     });
}

} // namespace quillon
