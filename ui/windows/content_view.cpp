// SPDX-License-Identifier: MIT
#include "ui/windows/content_view.h"

#include "model/log_view_model.h"
#include "model/notification_names.h"
#include "platform/notification_center.h"
#include "ui/log_text/log_text_accessible.h"
#include "ui/log_text/log_text_view.h"
#include "ui/windows/error_marks.h"
#include "ui/windows/help_view.h"
#include "ui/windows/log_hint.h"
#include "ui/windows/status_overlay.h"
#include "ui/windows/text_area.h"
#include "ui/windows/toolbar_row.h"
#include "ui/windows/toolbar_search_field.h"

#include <QApplication>
#include <QDialog>
#include <QGuiApplication>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QShowEvent>
#include <QVBoxLayout>

namespace quillon {

namespace {

constexpr QSize kMinimumSize(820, 520);
constexpr QSize kMinimumHelpSize(520, 420);
constexpr int kSpacing = 8;

LogTextContent logTextContent(const LogViewModel& viewModel)
{
    return {.attributedText = viewModel.attributedOutput.get(),
            .isWrapped = viewModel.wrapLines.get(),
            .fontSize = viewModel.fontSize.get()};
}

} // namespace

ContentView::ContentView(LogViewModel& viewModel, NotificationCenter& notifications,
                         QWidget* parent)
    : QWidget(parent), m_viewModel(viewModel), m_notifications(notifications),
      m_toolbar(new ToolbarRow(viewModel, this)),
      m_logView(new LogTextView(logTextContent(viewModel))),
      m_overlay(new StatusOverlay(viewModel)), m_hint(new LogHint(viewModel, this))
{
    setMinimumSize(kMinimumSize);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(kSpacing);
    layout->addWidget(m_toolbar);
    layout->addWidget(new TextArea(m_logView, m_overlay, m_hint), 1);
    // Later, since the dialog returns only when the user has decided: a screen reader that has
    // pressed the button is not to wait for that.
    connect(m_toolbar, &ToolbarRow::openRequested, this, &ContentView::presentOpenPanel,
            Qt::QueuedConnection);
    showErrorMarks(*m_logView);
    makeAccessible(*m_logView);
    m_logView->setAccessibleName(tr("Contenu du log"));
    m_logView->setFocus();
    observeViewModel();
    observeCopyTarget();
}

ContentView::~ContentView()
{
    setBusy(false);
}

// Every change that shows anywhere in the view brings the log back to its newest lines, not only
// the changes of its text. An error that is merely reported again is no change: it would take the
// log out of the user's hands twice a second. Opening a file changes half a dozen fields at once;
// of all updates in a turn the view makes one.
void ContentView::observeViewModel()
{
    const auto changed = [this](const auto& /*value*/) {
        m_logView->update(logTextContent(m_viewModel));
    };
    m_subscriptions.push_back(m_viewModel.wrapLines.subscribeDistinct(changed));
    m_subscriptions.push_back(m_viewModel.fontSize.subscribeDistinct(changed));
    m_subscriptions.push_back(m_viewModel.query.subscribeDistinct(changed));
    m_subscriptions.push_back(m_viewModel.followTail.subscribeDistinct(changed));
    m_subscriptions.push_back(m_viewModel.showDeprecated.subscribeDistinct(changed));
    m_subscriptions.push_back(m_viewModel.showWarning.subscribeDistinct(changed));
    m_subscriptions.push_back(m_viewModel.showNotice.subscribeDistinct(changed));
    m_subscriptions.push_back(m_viewModel.onlyErrors.subscribeDistinct(changed));
    m_subscriptions.push_back(m_viewModel.statusLine.subscribeDistinct(changed));
    m_subscriptions.push_back(m_viewModel.path.subscribeDistinct(changed));
    m_subscriptions.push_back(m_viewModel.attributedOutput.subscribe(changed));
    m_subscriptions.push_back(
        m_viewModel.isRecomputing.subscribe([this](bool isGoingOn) { setBusy(isGoingOn); }));
    m_subscriptions.push_back(
        m_viewModel.path.subscribe([this](const std::optional<QString>& path) {
            m_logView->setAccessibleDescription(path ? QString() : LogHint::noFileText());
        }));
}

// A menu that has the keyboard while it is open changes nothing: what it does is done in the
// window.
void ContentView::observeCopyTarget()
{
    QLineEdit& search = m_toolbar->searchField().edit();
    connect(m_logView, &LogTextView::selectionChanged, this, &ContentView::copyTargetChanged);
    connect(&search, &QLineEdit::selectionChanged, this, &ContentView::copyTargetChanged);
    connect(qApp, &QApplication::focusChanged, this, [this, &search](QWidget*, QWidget* now) {
        if (now != nullptr && isAncestorOf(now)) {
            m_isSearchFocused = now == &search;
            Q_EMIT copyTargetChanged();
        }
    });
}

// While a pass goes on everything answers, but the log on screen is not yet what was asked for.
void ContentView::setBusy(bool isBusy)
{
    if (m_logView->isBusy() != isBusy) {
        m_logView->setBusy(isBusy);
        if (isBusy) {
            QGuiApplication::setOverrideCursor(Qt::BusyCursor);
        } else {
            QGuiApplication::restoreOverrideCursor();
        }
    }
}

void ContentView::presentOpenPanel()
{
    if (!m_isOpenPanelPresented) {
        const QScopedValueRollback presented(m_isOpenPanelPresented, true);
        m_viewModel.presentOpenPanel();
    }
}

void ContentView::showPending()
{
    // The log's view takes in what it was given in the event loop's next turn.
    QCoreApplication::sendPostedEvents(m_logView, QEvent::MetaCall);
}

void ContentView::focusSearchField()
{
    m_toolbar->searchField().focusAndSelect();
}

void ContentView::copy()
{
    if (m_isSearchFocused) {
        m_toolbar->searchField().edit().copy();
    } else {
        m_logView->copy();
    }
}

void ContentView::copyWithoutNumbers()
{
    m_logView->copyWithoutNumbers();
}

bool ContentView::canCopy() const
{
    return m_isSearchFocused ? m_toolbar->searchField().edit().hasSelectedText()
                             : m_logView->hasSelection();
}

bool ContentView::canCopyWithoutNumbers() const
{
    return m_logView->hasSelection();
}

void ContentView::selectAll()
{
    if (m_isSearchFocused) {
        m_toolbar->searchField().edit().selectAll();
    } else {
        m_logView->selectAll();
    }
}

void ContentView::setDropOffered(bool isOffered)
{
    m_hint->setDropOffered(isOffered);
}

bool ContentView::showHelp() const
{
    return !m_helpSheet.isNull();
}

void ContentView::setShowHelp(bool isShown)
{
    if (isShown == showHelp()) {
        return;
    }
    if (!isShown) {
        delete m_helpSheet.data();
        return;
    }
    m_helpSheet = new QDialog(this, Qt::Sheet);
    m_helpSheet->setAttribute(Qt::WA_DeleteOnClose);
    m_helpSheet->setWindowModality(Qt::WindowModal);
    m_helpSheet->setMinimumSize(kMinimumHelpSize);
    auto* const layout = new QVBoxLayout(m_helpSheet);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(new HelpView);
    m_helpSheet->show();
}

void ContentView::showEvent(QShowEvent* event)
{
    // A window that comes back from being minimised was shown all the time.
    if (!event->spontaneous()) {
        m_openCommand = m_notifications.observe(kCmdOpenLog, [this] { presentOpenPanel(); });
    }
    QWidget::showEvent(event);
}

void ContentView::hideEvent(QHideEvent* event)
{
    if (!event->spontaneous()) {
        m_openCommand.cancel();
        m_viewModel.invalidatePollTimer();
    }
    QWidget::hideEvent(event);
}

} // namespace quillon
