// SPDX-License-Identifier: MIT
#include "ui/controls/text_label.h"

#include <QApplication>
#include <QEvent>

namespace quillon {

TextLabel::TextLabel(const QString& text, TextStyle style, FontWeight weight, QWidget* parent)
    : QLabel(text, parent), m_style(style), m_weight(weight)
{
    setTextFormat(Qt::PlainText);
    setFont(fontFor(style, weight));
}

bool TextLabel::event(QEvent* event)
{
    if (event->type() == QEvent::ApplicationFontChange) {
        setFont(fontFor(m_style, m_weight));
    }
    return QLabel::event(event);
}

void TextLabel::setEmphasis(TextEmphasis emphasis)
{
    m_emphasis = emphasis;
    applyEmphasis();
}

void TextLabel::changeEvent(QEvent* event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::EnabledChange) {
        applyEmphasis();
    }
}

void TextLabel::applyEmphasis()
{
    if (m_emphasis == TextEmphasis::Primary) {
        return;
    }
    const QPalette applied = QApplication::palette(this);
    const QColor secondary = resolvedColor(Color::system(SystemColor::SecondaryLabel), applied);
    if (palette().color(QPalette::Active, QPalette::WindowText) == secondary) {
        return;
    }
    QPalette own;
    own.setColor(QPalette::Active, QPalette::WindowText, secondary);
    own.setColor(QPalette::Inactive, QPalette::WindowText, secondary);
    setPalette(own);
}

} // namespace quillon
