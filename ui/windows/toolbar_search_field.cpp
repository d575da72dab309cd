// SPDX-License-Identifier: MIT
#include "ui/windows/toolbar_search_field.h"

#include "ui/controls/flat_controls.h"
#include "ui/controls/symbol_label.h"
#include "ui/theme/theme.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>

namespace quillon {

namespace {

constexpr int kMinimumEditWidth = 220;
constexpr int kMaximumWidth = 420;
constexpr int kFieldPadding = 6;
constexpr int kFieldSpacing = 6;
constexpr int kGlassSize = 16;

} // namespace

ToolbarSearchField::ToolbarSearchField(QWidget* parent)
    : QWidget(parent), m_edit(new QLineEdit(this))
{
    m_edit->setFrame(false);
    m_edit->setPlaceholderText(tr("Recherche… (regex ok)"));
    m_edit->setAccessibleName(tr("Recherche"));
    m_edit->setMinimumWidth(kMinimumEditWidth);
    // The rounded background is the field's; the line of text adds none of its own.
    QPalette clear;
    clear.setColor(QPalette::Base, Qt::transparent);
    m_edit->setPalette(clear);
    m_edit->installEventFilter(this);

    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(kFieldPadding, kFieldPadding, kFieldPadding, kFieldPadding);
    layout->setSpacing(kFieldSpacing);
    layout->addWidget(new SymbolLabel(Symbol::Search, kGlassSize, this));
    layout->addWidget(m_edit, 1);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setMaximumWidth(kMaximumWidth);
    setCursor(Qt::IBeamCursor);
    // A click on the glass or beside the text means the text. The proxy alone takes no clicks, and
    // one that is set already would get this policy in place of its own.
    setFocusPolicy(Qt::ClickFocus);
    setFocusProxy(m_edit);
}

void ToolbarSearchField::focusAndSelect()
{
    m_edit->setFocus(Qt::ShortcutFocusReason);
    m_edit->selectAll();
}

void ToolbarSearchField::setNote(const QString& note)
{
    setToolTip(note);
    m_edit->setAccessibleDescription(note);
}

bool ToolbarSearchField::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::FocusIn:
    case QEvent::FocusOut:
        update();
        break;
    case QEvent::KeyPress:
        if (static_cast<QKeyEvent*>(event)->matches(QKeySequence::Cancel)) {
            m_edit->clear();
            return true;
        }
        break;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

void ToolbarSearchField::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor background =
        resolvedColor(Color::system(SystemColor::ControlBackground), palette());
    painter.setBrush(background);
    constexpr float kOutlineStrength = 0.18F;
    painter.setPen(outlineColor(palette(), kOutlineStrength));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), kControlRadius,
                            kControlRadius);
    if (m_edit->hasFocus()) {
        drawFocusRing(painter, rect(), palette());
    }
}

} // namespace quillon
