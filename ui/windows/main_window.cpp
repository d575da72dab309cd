// SPDX-License-Identifier: MIT
#include "ui/windows/main_window.h"

#include "model/log_view_model.h"
#include "ui/windows/content_view.h"
#include "ui/windows/open_panel.h"
#include "ui/windows/window_state_file.h"

#include <QApplication>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileInfo>
#include <QFontMetrics>
#include <QMimeData>
#include <QScreen>

#include <algorithm>

namespace quillon {

namespace {

// Roomy enough for a log's usual line at the default text size.
constexpr QSize kInitialSize(1080, 720);
// What a menu bar takes beside its texts.
constexpr int kMenuBarPadding = 8;

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

// The toolkit takes a place for a mark of changes out of a title, unless it is there twice.
QString titleName(const QString& path)
{
    const QString mark = QStringLiteral("[*]");
    return QFileInfo(path).fileName().replace(mark, mark + mark);
}

} // namespace

MainWindow::MainWindow(LogViewModel& viewModel, NotificationCenter& notifications,
                       const QString& stateFile)
    : m_viewModel(viewModel), m_content(new ContentView(viewModel, notifications, this)),
      m_stateFile(stateFile)
{
    setCentralWidget(m_content);
    setAcceptDrops(true);
    restorePlacement();
    viewModel.openPanel = openPanelOver(*this);
    m_title = viewModel.path.subscribe([this](const std::optional<QString>& path) {
        setWindowTitle(path ? tr("%1 — Quillon").arg(titleName(*path)) : tr("Quillon"));
    });
}

MainWindow::~MainWindow()
{
    m_viewModel.openPanel = nullptr;
}

void MainWindow::restorePlacement()
{
    const WindowPlacement former =
        readWindowState(m_stateFile).value_or(WindowPlacement{std::nullopt, kInitialSize, false});
    // The screen that the middle of the title bar was on.
    const QPoint title = former.position.value_or(QPoint()) + QPoint(former.size.width() / 2, 1);
    const QScreen* const formerScreen =
        former.position ? QGuiApplication::screenAt(title) : nullptr;
    const QScreen* const target = formerScreen != nullptr ? formerScreen : screen();
    const QRect usable = target->availableGeometry();
    m_normal = fittedTo(former, usable);
    // A content that the screen has no room for would be cut off by its edge.
    const int menuBarHeight = QFontMetrics(QApplication::font()).height() + kMenuBarPadding;
    const QSize room = roomFor(usable.size()) - QSize(0, menuBarHeight);
    m_content->setMinimumSize(
        m_content->minimumSize().boundedTo(room.expandedTo(m_content->minimumSizeHint())));
    resize(m_normal.size);
    if (m_normal.position) {
        move(*m_normal.position);
    }
    if (former.isMaximised) {
        setWindowState(Qt::WindowMaximized);
    }
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    WindowPlacement placement = m_normal;
    placement.isMaximised = isMaximized();
    if (windowState() == Qt::WindowNoState) {
        placement = {pos(), size(), false};
    }
    if (QGuiApplication::platformName().startsWith(QLatin1StringView("wayland"))) {
        placement.position.reset();
    }
    if (!m_stateFile.isEmpty()) {
        writeWindowState(m_stateFile, placement);
    }
    QMainWindow::closeEvent(event);
}

void MainWindow::moveEvent(QMoveEvent* event)
{
    QMainWindow::moveEvent(event);
    noteNormalPlacement();
}

void MainWindow::resizeEvent(QResizeEvent* event)
{
    QMainWindow::resizeEvent(event);
    noteNormalPlacement();
}

// Some window systems tell of the new size first and of being maximised afterwards.
void MainWindow::noteNormalPlacement()
{
    const WindowPlacement candidate{pos(), size(), false};
    QMetaObject::invokeMethod(
        this,
        [this, candidate] {
            if (windowState() == Qt::WindowNoState && isVisible()) {
                m_normal = candidate;
            }
        },
        Qt::QueuedConnection);
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event)
{
    if (!localFiles(event->mimeData()).isEmpty()) {
        event->acceptProposedAction();
        m_content->setDropOffered(true);
    }
}

void MainWindow::dragLeaveEvent(QDragLeaveEvent* /*event*/)
{
    m_content->setDropOffered(false);
}

void MainWindow::dropEvent(QDropEvent* event)
{
    m_content->setDropOffered(false);
    const QList<QUrl> files = localFiles(event->mimeData());
    if (!files.isEmpty()) {
        event->acceptProposedAction();
        Q_EMIT filesDropped(files);
    }
}

} // namespace quillon
