// SPDX-License-Identifier: MIT
#include "app/desktop/app_delegate.h"

#include "model/log_view_model.h"
#include "platform/file_path.h"
#include "platform/one_line_text.h"

#include <cstdio>
#include <utility>

namespace quillon {

namespace {

// Whoever reads along, a terminal or a pipe, is to see each line when it happens.
void report(const QString& line)
{
    std::fputs(line.toUtf8().append('\n').constData(), stdout);
    std::fflush(stdout);
}

// The name at the end of the path, also of a folder's path that ends in a slash.
QString lastPathComponent(const QUrl& url)
{
    const QString path =
        displayedPath(url.isLocalFile() ? pathOfFileUrl(url) : url.path(QUrl::FullyDecoded));
    const QString name = path.section(QLatin1Char('/'), -1, -1, QString::SectionSkipEmpty);
    return name.isEmpty() ? path : name;
}

} // namespace

AppDelegate::AppDelegate(LogViewModel& viewModel) : m_viewModel(&viewModel)
{
    m_nextTurn.setSingleShot(true);
    m_nextTurn.setInterval(0);
    connect(&m_nextTurn, &QTimer::timeout, this, &AppDelegate::openNext);
}

bool AppDelegate::openFile(const QString& path)
{
    report(tr("📂 Ouverture du fichier: %1").arg(displayedPath(path)));
    openLater(fileUrlOfPath(path));
    return true;
}

void AppDelegate::openURLs(const QList<QUrl>& urls)
{
    report(tr("📂 Ouverture de %1 fichier(s)").arg(urls.size()));
    for (const QUrl& url : urls) {
        report(tr("📂 Fichier: %1").arg(lastPathComponent(url)));
        openLater(url);
    }
}

void AppDelegate::openLater(const QUrl& url)
{
    m_waiting.enqueue(url);
    if (!std::exchange(m_isOpeningScheduled, true)) {
        QMetaObject::invokeMethod(this, &AppDelegate::openNext, Qt::QueuedConnection);
    }
}

void AppDelegate::openNext()
{
    m_isOpeningScheduled = false;
    if (m_waiting.isEmpty() || !m_viewModel) {
        return;
    }
    m_viewModel->openLog(m_waiting.dequeue());
    if (const auto error = m_viewModel->lastError()) {
        const QString file = m_viewModel->path.get().value_or(QString());
        std::fprintf(stderr, "quillon: %s: %s\n", qUtf8Printable(file),
                     qUtf8Printable(error->message()));
    }
    if (!m_waiting.isEmpty() && !std::exchange(m_isOpeningScheduled, true)) {
        // Not a queued call: one that a queued call makes is run before anything else comes in.
        m_nextTurn.start();
    }
}

} // namespace quillon
