// SPDX-License-Identifier: MIT
#include "ui/windows/auxiliary_window.h"

#include "ui/controls/slim_scroll_bar.h"
#include "ui/windows/window_behavior.h"
#include "ui/windows/window_placement.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QEvent>
#include <QScreen>
#include <QScrollArea>
#include <QVBoxLayout>

#include <algorithm>

namespace quillon {

namespace {

QAccessibleInterface* makeWindowInterface(const QString& /*className*/, QObject* object)
{
    auto* const window = qobject_cast<AuxiliaryWindow*>(object);
    return window != nullptr ? new QAccessibleWidget(window, QAccessible::Window) : nullptr;
}

} // namespace

AuxiliaryWindow::AuxiliaryWindow(const QString& title, QScrollArea* content, QSize minimum)
    : m_content(content), m_minimum(minimum)
{
    QAccessible::installFactory(makeWindowInterface);
    setWindowTitle(title);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(content);
    addCloseShortcuts(*this);
    fitToText();
}

QSize AuxiliaryWindow::room() const
{
    return roomFor(screen()->availableSize());
}

bool AuxiliaryWindow::event(QEvent* event)
{
    // Controls know what they need once they have been shown for the first time.
    if (event->type() == QEvent::ApplicationFontChange || event->type() == QEvent::Show) {
        // Once the texts within have the font too.
        QMetaObject::invokeMethod(this, &AuxiliaryWindow::fitToText, Qt::QueuedConnection);
    }
    return QWidget::event(event);
}

void AuxiliaryWindow::fitToText()
{
    const int needed = m_content->widget()->minimumSizeHint().width() + kScrollBarThickness;
    const QSize wanted(std::max(m_minimum.width(), needed), m_minimum.height());
    m_content->setHorizontalScrollBarPolicy(
        wanted.width() > room().width() ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
    setMinimumSize(wanted.boundedTo(room()));
}

} // namespace quillon
