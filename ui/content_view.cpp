// SPDX-License-Identifier: MIT
#include "ui/content_view.h"

#include "model/log_view_model.h"
#include "model/notification_names.h"
#include "platform/notification_center.h"
#include "ui/help_view.h"
#include "ui/log_text_view.h"
#include "ui/status_overlay.h"
#include "ui/text_area.h"
#include "ui/toolbar_row.h"
#include "ui/toolbar_search_field.h"

#include <QDialog>
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

// Calls back when the field has become another value, not for the one that it has now.
template <typename T>
Subscription onChange(const Published<T>& field, std::function<void()> changed)
{
    return field.subscribe([last = field.get(), changed](const T& value) mutable {
        if (last != value) {
            last = value;
            changed();
        }
    });
}

} // namespace

ContentView::ContentView(LogViewModel& viewModel, NotificationCenter& notifications,
                         QWidget* parent)
    : QWidget(parent), m_viewModel(viewModel), m_notifications(notifications),
      m_toolbar(new ToolbarRow(viewModel, this)),
      m_logView(new LogTextView(logTextContent(viewModel))), m_overlay(new StatusOverlay(viewModel))
{
    setMinimumSize(kMinimumSize);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(kSpacing);
    layout->addWidget(m_toolbar);
    layout->addWidget(new TextArea(m_logView, m_overlay), 1);
    connect(m_toolbar, &ToolbarRow::openRequested, this, &ContentView::presentOpenPanel);
    m_logView->setAccessibleName(tr("Contenu du log"));
    m_logView->setFocus();
    observeViewModel();
}

// Every change that shows anywhere in the view brings the log back to its newest lines, not only
// the changes of its text. An error that is merely reported again is no change: it would take the
// log out of the user's hands twice a second.
void ContentView::observeViewModel()
{
    const auto changed = [this] {
        scheduleLogUpdate();
    };
    m_subscriptions.push_back(onChange(m_viewModel.wrapLines, changed));
    m_subscriptions.push_back(onChange(m_viewModel.fontSize, changed));
    m_subscriptions.push_back(onChange(m_viewModel.query, changed));
    m_subscriptions.push_back(onChange(m_viewModel.followTail, changed));
    m_subscriptions.push_back(onChange(m_viewModel.showDeprecated, changed));
    m_subscriptions.push_back(onChange(m_viewModel.showWarning, changed));
    m_subscriptions.push_back(onChange(m_viewModel.showNotice, changed));
    m_subscriptions.push_back(onChange(m_viewModel.onlyErrors, changed));
    m_subscriptions.push_back(onChange(m_viewModel.statusLine, changed));
    m_subscriptions.push_back(onChange(m_viewModel.path, changed));
    m_subscriptions.push_back(m_viewModel.attributedOutput.subscribe(
        [changed](const AttributedString& /*output*/) { changed(); }));
}

// Opening a file changes half a dozen fields at once; the log is shown once for all of them.
void ContentView::scheduleLogUpdate()
{
    if (!m_isLogUpdateScheduled) {
        m_isLogUpdateScheduled = true;
        QMetaObject::invokeMethod(
            this, [this] { updateLog(); }, Qt::QueuedConnection);
    }
}

void ContentView::updateLog()
{
    m_isLogUpdateScheduled = false;
    m_logView->update(logTextContent(m_viewModel));
}

void ContentView::presentOpenPanel()
{
    if (!m_isOpenPanelPresented) {
        const QScopedValueRollback presented(m_isOpenPanelPresented, true);
        m_viewModel.presentOpenPanel();
    }
}

void ContentView::focusSearchField()
{
    m_toolbar->searchField().focusAndSelect();
}

void ContentView::copy()
{
    if (QLineEdit& search = m_toolbar->searchField().edit(); search.hasFocus()) {
        search.copy();
    } else {
        m_logView->copy();
    }
}

void ContentView::selectAll()
{
    if (QLineEdit& search = m_toolbar->searchField().edit(); search.hasFocus()) {
        search.selectAll();
    } else {
        m_logView->selectAll();
    }
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
