// SPDX-License-Identifier: MIT
#pragma once

#include "tests/ui/layout/log_text_samples.h"
#include "ui/log_text/log_text_view.h"

#include <QCoreApplication>
#include <QScrollBar>

#include <gtest/gtest.h>
#include <memory>

namespace quillon {

// A log view with a size of its own, which no layout or window manager changes.
class LogTextViewFixture : public ::testing::Test {
protected:
    static LogTextContent wrapped(const AttributedString& text)
    {
        return LogTextContent{.attributedText = text};
    }
    static LogTextContent unwrapped(const AttributedString& text)
    {
        return LogTextContent{.attributedText = text, .isWrapped = false};
    }

    // Rows enough to scroll through.
    static QStringList manyLines(int count = 200)
    {
        QStringList lines;
        for (int i = 0; i < count; ++i) {
            lines.append(QStringLiteral("PHP Warning:  something in /var/www/file.php on line ") +
                         QString::number(i));
        }
        return lines;
    }

    // Shows a view of that content and lets it come to rest.
    LogTextView& show(const LogTextContent& content, QSize size = QSize(480, 200))
    {
        view = std::make_unique<LogTextView>(content);
        prepare(*view);
        view->resize(size);
        view->show();
        settle();
        return *view;
    }
    // What else is done with a view before it is shown.
    virtual void prepare(LogTextView& /*created*/) {}
    void update(const LogTextContent& content)
    {
        view->update(content);
        settle();
    }
    // One turn of the event loop for what is queued, and one for what that brings about.
    static void settle()
    {
        QCoreApplication::processEvents();
        QCoreApplication::processEvents();
    }

    [[nodiscard]] QScrollBar& vertical() const { return *view->verticalScrollBar(); }
    [[nodiscard]] QScrollBar& horizontal() const { return *view->horizontalScrollBar(); }
    [[nodiscard]] bool isAtEnd() const { return vertical().value() == vertical().maximum(); }
    [[nodiscard]] QPoint centerOf(TextPosition position) const
    {
        return view->boxOfPosition(position).center();
    }

    std::unique_ptr<LogTextView> view;
};

} // namespace quillon
