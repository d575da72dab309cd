// SPDX-License-Identifier: MIT
#include "ui/main_window.h"

#include "model/log_view_model.h"
#include "ui/content_view.h"
#include "ui/open_panel.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileInfo>
#include <QMimeData>

#include <algorithm>

namespace quillon {

namespace {

// Roomy enough for a log's usual line at the default text size, on the smallest usual screen.
constexpr QSize kInitialSize(1080, 720);

QList<QUrl> localFiles(const QMimeData* data)
{
    QList<QUrl> files;
    if (data != nullptr) {
        const QList<QUrl> urls = data->urls();
        std::copy_if(urls.cbegin(), urls.cend(), std::back_inserter(files),
                     [](const QUrl& url) { return url.isLocalFile(); });
    }
    return files;
}

} // namespace

MainWindow::MainWindow(LogViewModel& viewModel, NotificationCenter& notifications)
    : m_viewModel(viewModel), m_content(new ContentView(viewModel, notifications, this))
{
    setCentralWidget(m_content);
    setAcceptDrops(true);
    resize(kInitialSize);
    viewModel.openPanel = openPanelOver(*this);
    m_title = viewModel.path.subscribe([this](const std::optional<QString>& path) {
        setWindowTitle(path ? tr("%1 — Quillon").arg(QFileInfo(*path).fileName()) : tr("Quillon"));
    });
}

MainWindow::~MainWindow()
{
    m_viewModel.openPanel = nullptr;
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event)
{
    if (!localFiles(event->mimeData()).isEmpty()) {
        event->acceptProposedAction();
    }
}

void MainWindow::dropEvent(QDropEvent* event)
{
    const QList<QUrl> files = localFiles(event->mimeData());
    if (!files.isEmpty()) {
        event->acceptProposedAction();
        Q_EMIT filesDropped(files);
    }
}

} // namespace quillon
