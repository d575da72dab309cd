// SPDX-License-Identifier: MIT
#include "ui/theme/symbols.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
#include <QSvgRenderer>

#include <algorithm>
#include <array>

namespace quillon {

namespace {

// In the order of Symbol.
constexpr std::array kNames{
    QLatin1StringView("open_log"),     QLatin1StringView("follow"),
    QLatin1StringView("wrap_lines"),   QLatin1StringView("text_smaller"),
    QLatin1StringView("text_larger"),  QLatin1StringView("show_deprecated"),
    QLatin1StringView("show_warning"), QLatin1StringView("show_notice"),
    QLatin1StringView("only_errors"),  QLatin1StringView("search"),
    QLatin1StringView("clear"),        QLatin1StringView("help"),
    QLatin1StringView("folder"),
};
static_assert(kNames.size() == static_cast<std::size_t>(Symbol::Folder) + 1);

QColor mixed(const QColor& over, const QColor& under, float strength)
{
    const auto channel = [strength](float above, float below) {
        return above * strength + below * (1.0F - strength);
    };
    return QColor::fromRgbF(channel(over.redF(), under.redF()),
                            channel(over.greenF(), under.greenF()),
                            channel(over.blueF(), under.blueF()));
}

QColor tint(QIcon::Mode mode, QIcon::State state)
{
    const QPalette palette = QGuiApplication::palette();
    if (mode == QIcon::Disabled) {
        return palette.color(QPalette::Disabled, QPalette::ButtonText);
    }
    if (mode == QIcon::Selected) {
        return palette.color(QPalette::Active, QPalette::HighlightedText);
    }
    const QColor text = palette.color(QPalette::Active, QPalette::ButtonText);
    if (state == QIcon::On) {
        constexpr float kAccentStrength = 0.72F;
        const QColor accent = palette.color(QPalette::Active, QPalette::Link);
        return mode == QIcon::Active ? mixed(accent, text, kAccentStrength) : accent;
    }
    // At rest the drawings stay a little behind the texts, so that the one under the pointer shows.
    constexpr float kRestStrength = 0.78F;
    const QColor background = palette.color(QPalette::Active, QPalette::Button);
    return mode == QIcon::Active ? text : mixed(text, background, kRestStrength);
}

QPixmap tintedDrawing(Symbol symbol, int edge, const QColor& color)
{
    const QString name = symbolName(symbol);
    const QString key = QStringLiteral("quillon/%1/%2/%3")
                            .arg(name, QString::number(edge), color.name(QColor::HexArgb));
    QPixmap drawing;
    if (QPixmapCache::find(key, &drawing)) {
        return drawing;
    }
    drawing = QPixmap(edge, edge);
    drawing.fill(Qt::transparent);
    QSvgRenderer renderer(QStringLiteral(":/symbols/%1.svg").arg(name));
    QPainter painter(&drawing);
    renderer.render(&painter);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(drawing.rect(), color);
    painter.end();
    QPixmapCache::insert(key, drawing);
    return drawing;
}

class SymbolEngine : public QIconEngine {
public:
    explicit SymbolEngine(Symbol symbol) : m_symbol(symbol) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override
    {
        const double scale = painter->device()->devicePixelRatioF();
        QPixmap drawing = pixmap(rect.size() * scale, mode, state);
        drawing.setDevicePixelRatio(scale);
        painter->drawPixmap(rect, drawing);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        const int edge = std::min(size.width(), size.height());
        if (edge <= 0) {
            return {};
        }
        QPixmap drawing = tintedDrawing(m_symbol, edge, tint(mode, state));
        if (size.width() == size.height()) {
            return drawing;
        }
        QPixmap centred(size);
        centred.fill(Qt::transparent);
        QPainter painter(&centred);
        painter.drawPixmap((size.width() - edge) / 2, (size.height() - edge) / 2, drawing);
        return centred;
    }

    QString iconName() override { return symbolName(m_symbol); }
    QString key() const override { return QStringLiteral("QuillonSymbol"); }
    QIconEngine* clone() const override { return new SymbolEngine(*this); }

private:
    Symbol m_symbol;
};

} // namespace

QIcon symbolIcon(Symbol symbol)
{
    return QIcon(new SymbolEngine(symbol));
}

QLatin1StringView symbolName(Symbol symbol)
{
    return kNames[static_cast<std::size_t>(symbol)];
}

} // namespace quillon
