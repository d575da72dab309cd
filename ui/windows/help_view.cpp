// SPDX-License-Identifier: MIT
#include "ui/windows/help_view.h"

#include "ui/controls/divider.h"
#include "ui/controls/link_button.h"
#include "ui/controls/symbol_label.h"
#include "ui/controls/text_label.h"

#include <QCalendar>
#include <QDesktopServices>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace quillon {

HelpView::Services HelpView::Services::ofDesktop()
{
    return {.vendor = vendorOfThisBuild(),
            .today = [] { return QDate::currentDate(); },
            .openUrl =
                [](const QUrl& url) {
                    QDesktopServices::openUrl(url);
                }};
}

HelpView::HelpView(QWidget* parent) : HelpView(Services::ofDesktop(), parent) {}

HelpView::HelpView(const Services& services, QWidget* parent) : QScrollArea(parent)
{
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);

    auto* const content = new QWidget;
    auto* const column = new QVBoxLayout(content);
    column->setContentsMargins(20, 20, 20, 20);
    column->setSpacing(16);
    addTitle(*column);
    addGuide(*column);
    addDivider(*column);
    addCredits(*column, services);
    addRightsNotice(*column, services);
    column->addStretch(1);
    setWidget(content);
}

void HelpView::addTitle(QVBoxLayout& column)
{
    auto* const row = new QHBoxLayout;
    row->setSpacing(8);
    row->addWidget(new SymbolLabel(Symbol::Help, 24));
    row->addWidget(new TextLabel(tr("Aide — Quillon"), TextStyle::Title2, FontWeight::Bold));
    row->addStretch(1);
    column.addLayout(row);
}

void HelpView::addGuide(QVBoxLayout& column)
{
    auto* const guide = new TextLabel(
        tr("Quillon est un lecteur de logs WordPress (et PHP) :\n"
           "• Ouvrez un fichier de log avec ⌘O (ou le bouton dossier).\n"
           "• Activez “Suivre (tail)” pour voir les nouvelles lignes en direct.\n"
           "• Utilisez la recherche (regex possible : /pattern/).\n"
           "• Les icônes de la barre permettent de masquer Deprecated, Warning, Notice ou "
           "d’afficher uniquement les erreurs.\n"
           "• Ajustez la taille et le retour à la ligne dans la barre, ou définissez des "
           "préférences dans ⌘,.\n"
           "\n"
           "Couleurs :\n"
           "• Les couleurs par niveau (Fatal, Warning, Notice, Deprecated, Dump, Horodatage…) "
           "sont personnalisables dans Préférences."),
        TextStyle::Body);
    guide->setWordWrap(true);
    column.addWidget(guide);
}

void HelpView::addDivider(QVBoxLayout& column)
{
    auto* const padded = new QVBoxLayout;
    padded->setContentsMargins(0, 6, 0, 6);
    padded->addWidget(new Divider(Qt::Horizontal));
    column.addLayout(padded);
}

void HelpView::addCredits(QVBoxLayout& column, const Services& services)
{
    auto* const credits = new QVBoxLayout;
    credits->setSpacing(6);
    credits->addWidget(new TextLabel(tr("Développé par"), TextStyle::Headline));
    credits->addWidget(new TextLabel(services.vendor.name, TextStyle::Body));
    auto* const link = new LinkButton(tr("Site de support"), services.vendor.supportUrl());
    connect(link, &LinkButton::linkActivated, this, services.openUrl);
    credits->addWidget(link, 0, Qt::AlignLeft);
    column.addLayout(credits);
}

void HelpView::addRightsNotice(QVBoxLayout& column, const Services& services)
{
    const QString year = QString::number(services.today().year(QCalendar()));
    auto* const notice = new TextLabel(
        tr("© %1 %2. Logiciel libre, sous licence MIT.").arg(year, services.vendor.name),
        TextStyle::Footnote);
    notice->setEmphasis(TextEmphasis::Secondary);
    column.addWidget(notice);
}

} // namespace quillon
