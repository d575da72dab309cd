// SPDX-License-Identifier: MIT
#include "app/desktop/credits_panel.h"

#include "ui/controls/text_label.h"
#include "ui/windows/window_behavior.h"

#include <QApplication>
#include <QCoreApplication>
#include <QPainter>
#include <QStyle>
#include <QVBoxLayout>

namespace quillon {

namespace {

constexpr int kIconSize = 96;
constexpr int kPadding = 24;
constexpr int kMinimumWidth = 340;

class IconImage : public QWidget {
public:
    explicit IconImage(const QIcon& icon) : m_icon(icon) { setFixedSize(kIconSize, kIconSize); }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        m_icon.paint(&painter, rect());
    }

private:
    const QIcon m_icon;
};

QLabel* addText(QVBoxLayout& column, const QString& text, TextStyle style, FontWeight weight)
{
    auto* const label = new TextLabel(text, style, weight);
    label->setAlignment(Qt::AlignHCenter);
    column.addWidget(label);
    return label;
}

} // namespace

QString creditsText(const Vendor& vendor)
{
    QString text = QCoreApplication::translate(
                       "CreditsPanel", "Développé par %1\n\nQuillon – Lecteur de logs WordPress")
                       .arg(vendor.name);
    if (vendor.supportUrl().isValid()) {
        text += QLatin1Char('\n') + vendor.supportAddress;
    }
    return text;
}

CreditsPanel::CreditsPanel(QWidget* parent) : QDialog(parent)
{
    setWindowTitle(tr("À propos de Quillon"));
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(kPadding, kPadding, kPadding, kPadding);
    column->setSpacing(8);
    column->setSizeConstraint(QLayout::SetFixedSize);
    column->addWidget(new IconImage(QApplication::windowIcon()), 0, Qt::AlignHCenter);
    addText(*column, QCoreApplication::applicationName(), TextStyle::Title2, FontWeight::Bold);
    addText(*column, tr("Version %1").arg(QCoreApplication::applicationVersion()),
            TextStyle::Footnote, FontWeight::Regular);
    m_credits =
        addText(*column, creditsText(vendorOfThisBuild()), TextStyle::Body, FontWeight::Regular);
    m_credits->setContentsMargins(0, 8, 0, 0);
    // Wide enough for the window's title also without the credits.
    column->addSpacerItem(new QSpacerItem(kMinimumWidth, 0));
    addCloseShortcuts(*this);
}

void CreditsPanel::present(Content content)
{
    m_credits->setVisible(content == Content::WithCredits);
    bringToFront(*this);
}

} // namespace quillon
