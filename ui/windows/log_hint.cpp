// SPDX-License-Identifier: MIT
#include "ui/windows/log_hint.h"

#include "model/log_view_model.h"
#include "ui/theme/symbols.h"
#include "ui/theme/theme.h"

#include <QKeySequence>
#include <QPainter>

namespace quillon {

namespace {

constexpr int kHintSymbolSize = 40;
constexpr int kSymbolGap = 12;
constexpr int kFrameInset = 3; // around the status too
constexpr double kFrameWidth = 2.0;
constexpr double kCornerRadius = 8.0;
constexpr QMargins kPlatePadding(24, 20, 24, 20);

} // namespace

LogHint::LogHint(LogViewModel& viewModel, QWidget* parent) : QWidget(parent)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    m_path = viewModel.path.subscribe(
        [this](const std::optional<QString>& path) { show(path.has_value(), m_isDropOffered); });
}

QString LogHint::noFileText()
{
    const QString keys = QKeySequence(Qt::CTRL | Qt::Key_O).toString(QKeySequence::NativeText);
    return tr("Ouvrez un log avec %1\nou déposez un fichier ici").arg(keys);
}

QString LogHint::dropText()
{
    return tr("Déposez le fichier pour l’ouvrir");
}

void LogHint::setDropOffered(bool isOffered)
{
    show(m_hasFile, isOffered);
}

QString LogHint::displayedText() const
{
    if (m_isDropOffered) {
        return dropText();
    }
    return m_hasFile ? QString() : noFileText();
}

void LogHint::show(bool hasFile, bool isDropOffered)
{
    m_hasFile = hasFile;
    m_isDropOffered = isDropOffered;
    setVisible(!displayedText().isEmpty());
    update();
}

void LogHint::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (m_isDropOffered) {
        paintDropFrame(painter);
    }
    paintText(painter);
}

void LogHint::paintDropFrame(QPainter& painter) const
{
    constexpr float kTintStrength = 0.08F;
    const QColor accent = palette().color(QPalette::Link);
    QColor tint = accent;
    tint.setAlphaF(kTintStrength);
    painter.setPen(QPen(accent, kFrameWidth));
    painter.setBrush(tint);
    painter.drawRoundedRect(
        QRectF(rect()).adjusted(kFrameInset, kFrameInset, -kFrameInset, -kFrameInset),
        kCornerRadius, kCornerRadius);
}

void LogHint::paintText(QPainter& painter) const
{
    painter.setFont(fontFor(TextStyle::Body));
    const QString text = displayedText();
    QRect textBox = painter.boundingRect(rect(), Qt::AlignCenter, text);
    textBox.translate(0, (kHintSymbolSize + kSymbolGap) / 2);
    QRect symbolBox(0, 0, kHintSymbolSize, kHintSymbolSize);
    symbolBox.moveCenter(textBox.center());
    symbolBox.moveBottom(textBox.top() - kSymbolGap);
    if (m_isDropOffered) {
        // The rows of a log below it would run through the letters.
        painter.setPen(Qt::NoPen);
        painter.setBrush(palette().color(QPalette::Base));
        painter.drawRoundedRect(textBox.united(symbolBox).marginsAdded(kPlatePadding),
                                kCornerRadius, kCornerRadius);
    }
    symbolIcon(Symbol::OpenLog)
        .paint(&painter, symbolBox, Qt::AlignCenter, QIcon::Normal,
               m_isDropOffered ? QIcon::On : QIcon::Off);
    const auto ink = m_isDropOffered ? SystemColor::Label : SystemColor::SecondaryLabel;
    painter.setPen(resolvedColor(Color::system(ink), palette()));
    painter.drawText(textBox, Qt::AlignCenter, text);
}

} // namespace quillon
