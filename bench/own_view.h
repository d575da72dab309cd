// SPDX-License-Identifier: MIT
#pragma once

#include "bench/paired_timing.h"
#include "model/log_recompute.h"
#include "model/log_view_model.h"
#include "model/records/line_builder.h"
#include "platform/notification_center.h"
#include "platform/user_defaults.h"
#include "ui/log_text/log_text_view.h"

#include <QCoreApplication>
#include <QFile>
#include <QImage>
#include <QScrollBar>
#include <QTemporaryDir>

namespace quillon::bench {

inline constexpr qsizetype kLogBytes = 2'097'152;
inline constexpr QSize kViewSize(1000, 700);

// The view as the window has it: queued work done, scrolled to the end, painted into an image.
class OwnView {
public:
    OwnView() : m_image(kViewSize, QImage::Format_ARGB32_Premultiplied)
    {
        m_view.resize(kViewSize);
        m_view.show();
        QCoreApplication::processEvents();
    }

    void show(const AttributedString& text, bool isWrapped)
    {
        replace(text, isWrapped);
        paint();
    }
    // Without painting, as the next two.
    void replace(const AttributedString& text, bool isWrapped, double fontSize = 13)
    {
        m_view.update(LogTextContent{text, isWrapped, fontSize});
        QCoreApplication::sendPostedEvents(&m_view, QEvent::MetaCall);
    }
    void resize(int width) { m_view.resize(width, kViewSize.height()); }
    void scrollToTopAndBack()
    {
        m_view.verticalScrollBar()->setValue(0);
        paint();
        m_view.scrollToEndOfDocument();
        paint();
    }
    void paint() { m_view.viewport()->render(&m_image); }

private:
    LogTextView m_view{LogTextContent{}};
    QImage m_image;
};

struct Model {
    QTemporaryDir folder;
    NotificationCenter center;
    UserDefaults defaults{center, folder.filePath(QStringLiteral("settings.conf"))};

    AttributedString styled(const LogLines& lines, const QString& query = QString()) const
    {
        DisplayOptions options;
        options.filter.search = SearchExpression::make(query);
        return rebuildDisplay(lines, options, defaults).output;
    }
};

inline LogLines linesOf(const QByteArray& bytes)
{
    LogLines lines;
    appendParsedBytes(bytes, 0, lines);
    return lines;
}

// One following view model with a view; each batch appends 100 lines to the file.
class FollowedLog {
public:
    FollowedLog(const QByteArray& start, QByteArray batch) : m_batch(std::move(batch))
    {
        m_file.setFileName(m_model.folder.filePath(QStringLiteral("debug.log")));
        static_cast<void>(m_file.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
        m_viewModel.followTail.set(true);
        m_viewModel.openLog(QUrl::fromLocalFile(m_file.fileName()));
        m_viewModel.invalidatePollTimer();
        m_file.write(start);
        // One poll takes a part of what is found.
        const auto count = start.count('\n');
        while (static_cast<qsizetype>(m_viewModel.lines.get().size()) < count) {
            m_viewModel.pollTail();
        }
        m_view.show(m_viewModel.attributedOutput.get(), true);
    }

    double batchTime()
    {
        m_file.write(m_batch);
        return millisecondsOf([&] {
            m_viewModel.pollTail();
            m_view.show(m_viewModel.attributedOutput.get(), true);
        });
    }

private:
    Model m_model;
    QByteArray m_batch;
    QFile m_file;
    LogViewModel m_viewModel{m_model.defaults, m_model.center};
    OwnView m_view;
};

} // namespace quillon::bench
