// SPDX-License-Identifier: MIT
#include "ui/controls/symbol_label.h"

#include <QPainter>

namespace quillon {

SymbolLabel::SymbolLabel(Symbol symbol, int edge, QWidget* parent)
    : QWidget(parent), m_icon(symbolIcon(symbol))
{
    setFixedSize(edge, edge);
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void SymbolLabel::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    m_icon.paint(&painter, rect(), Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled);
}

} // namespace quillon
