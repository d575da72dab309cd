// SPDX-License-Identifier: MIT
#include "ui/windows/status_overlay.h"

#include "model/log_view_model.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QPainter>

#include <algorithm>
#include <chrono>

namespace quillon {

namespace {

constexpr int kStatusPadding = 6;
constexpr int kStatusSpacing = 12;
// A search that is typed changes the status with each key.
constexpr std::chrono::milliseconds kAnnouncementDelay{400};

QAccessibleInterface* makeOverlayInterface(const QString& /*className*/, QObject* object)
{
    auto* const overlay = qobject_cast<StatusOverlay*>(object);
    return overlay != nullptr ? new QAccessibleWidget(overlay, QAccessible::StatusBar) : nullptr;
}

} // namespace

ElidedLabel::ElidedLabel(Qt::TextElideMode elideMode, QWidget* parent)
    : TextLabel(QString(), TextStyle::Caption, FontWeight::Regular, parent), m_elideMode(elideMode)
{
    setEmphasis(TextEmphasis::Secondary);
}

QString ElidedLabel::displayedText() const
{
    return fontMetrics().elidedText(text(), m_elideMode, width(), Qt::TextSingleLine);
}

QSize ElidedLabel::sizeHint() const
{
    const QFontMetrics metrics = fontMetrics();
    // The advance may be cut to a whole number; one pixel more keeps a text that fits from eliding.
    return {metrics.size(Qt::TextSingleLine, text()).width() + 1, metrics.height()};
}

QSize ElidedLabel::minimumSizeHint() const
{
    return {0, fontMetrics().height()};
}

void ElidedLabel::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    // Not the foreground role: over the log's background that is the colour of the log's own texts.
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(rect(), Qt::AlignLeading | Qt::AlignVCenter | Qt::TextSingleLine,
                     displayedText());
}

StatusOverlay::StatusOverlay(LogViewModel& viewModel, QWidget* parent)
    : QWidget(parent), m_status(new ElidedLabel(Qt::ElideRight, this)),
      m_path(new ElidedLabel(Qt::ElideLeft, this)),
      m_announcement(kAnnouncementDelay, [this] { announce(); })
{
    QAccessible::installFactory(makeOverlayInterface);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    m_bindings.push_back(viewModel.statusLine.subscribe([this](const QString& status) {
        m_status->setText(status);
        m_announcement.trigger();
        placeLabels();
    }));
    m_bindings.push_back(viewModel.isRecomputing.subscribe([this](bool isGoingOn) {
        m_isSearching = isGoingOn;
        m_announcement.trigger();
    }));
    m_bindings.push_back(viewModel.path.subscribe([this](const std::optional<QString>& path) {
        m_path->setText(path ? tr("• %1").arg(*path) : QString());
        m_path->setVisible(path.has_value());
        placeLabels();
    }));
}

void StatusOverlay::announce()
{
    const QString news = m_isSearching ? tr("Recherche en cours…") : m_status->text();
    // Tells of the change only where it is one.
    if (accessibleName() != news) {
        setAccessibleName(news);
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
        QAccessibleAnnouncementEvent announcement(this, news);
        QAccessible::updateAccessibility(&announcement);
#endif
    }
}

QSize StatusOverlay::sizeHint() const
{
    return {m_status->sizeHint().width() + kStatusSpacing + m_path->sizeHint().width() +
                2 * kStatusPadding,
            m_status->sizeHint().height() + 2 * kStatusPadding};
}

QSize StatusOverlay::minimumSizeHint() const
{
    return {0, sizeHint().height()};
}

void StatusOverlay::resizeEvent(QResizeEvent* /*event*/)
{
    placeLabels();
}

void StatusOverlay::placeLabels()
{
    const QRect room =
        rect().adjusted(kStatusPadding, kStatusPadding, -kStatusPadding, -kStatusPadding);
    const int statusWidth = std::clamp(m_status->sizeHint().width(), 0, std::max(0, room.width()));
    const int pathLeft = room.left() + statusWidth + kStatusSpacing;
    const int pathRoom = std::max(0, room.right() + 1 - pathLeft);
    const int pathWidth = std::min(m_path->sizeHint().width(), pathRoom);
    m_status->setGeometry(room.left(), room.top(), statusWidth, room.height());
    m_path->setGeometry(pathLeft, room.top(), pathWidth, room.height());
}

} // namespace quillon
