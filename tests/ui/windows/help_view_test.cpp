// SPDX-License-Identifier: MIT
#include "tests/support/printing.h"
#include "tests/support/spin_until.h"
#include "ui/controls/divider.h"
#include "ui/controls/link_button.h"
#include "ui/controls/style.h"
#include "ui/controls/symbol_label.h"
#include "ui/theme/theme.h"
#include "ui/windows/help_view.h"

#include <QApplication>
#include <QLabel>
#include <QLayout>
#include <QScrollBar>
#include <QTest>

#include <algorithm>
#include <gtest/gtest.h>
#include <memory>

namespace quillon {
namespace {

const Vendor kVendor{.name = QStringLiteral("Ada & Cie"),
                     .supportAddress = QStringLiteral("https://help.example/quillon")};

// A view in a year of choice whose link leads into a list.
struct ViewUnderTest {
    QList<QUrl> opened;
    std::unique_ptr<HelpView> view;

    explicit ViewUnderTest(int year = 2031, const Vendor& vendor = kVendor)
        : view(std::make_unique<HelpView>(
              HelpView::Services{.vendor = vendor,
                                 .today = [year] { return QDate(year, 6, 15); },
                                 .openUrl =
                                     [this](const QUrl& url) {
                                         opened.append(url);
                                     }}))
    {
    }

    [[nodiscard]] QStringList texts() const
    {
        QList<QLabel*> labels = view->findChildren<QLabel*>();
        view->widget()->layout()->activate();
        view->show();
        std::sort(labels.begin(), labels.end(), [this](const QLabel* a, const QLabel* b) {
            return a->mapTo(view->widget(), QPoint()).y() < b->mapTo(view->widget(), QPoint()).y();
        });
        QStringList texts;
        for (const QLabel* const label : labels) {
            texts.append(label->text());
        }
        return texts;
    }

    [[nodiscard]] LinkButton& link() const { return *view->findChild<LinkButton*>(); }
};

TEST(HelpView, HoldsItsTextsFromTopToBottom)
{
    const ViewUnderTest help;
    const QStringList expected{
        QStringLiteral("Aide — Quillon"),
        QStringLiteral("Quillon est un lecteur de logs WordPress (et PHP) :\n"
                       "• Ouvrez un fichier de log avec ⌘O (ou le bouton dossier).\n"
                       "• Activez “Suivre (tail)” pour voir les nouvelles lignes en direct.\n"
                       "• Utilisez la recherche (regex possible : /pattern/).\n"
                       "• Les icônes de la barre permettent de masquer Deprecated, Warning, "
                       "Notice ou d’afficher uniquement les erreurs.\n"
                       "• Ajustez la taille et le retour à la ligne dans la barre, ou définissez "
                       "des préférences dans ⌘,.\n"
                       "\n"
                       "Couleurs :\n"
                       "• Les couleurs par niveau (Fatal, Warning, Notice, Deprecated, Dump, "
                       "Horodatage…) sont personnalisables dans Préférences."),
        QStringLiteral("Développé par"),
        QStringLiteral("Ada & Cie"),
        QStringLiteral("© 2031 Ada & Cie. Logiciel libre, sous licence MIT."),
    };
    EXPECT_EQ(help.texts(), expected);
}

TEST(HelpView, TheRightsNoticeShowsTheYearOfConstructionWithoutAGroupingSeparator)
{
    QLocale::setDefault(QLocale(QLocale::French, QLocale::France));
    EXPECT_TRUE(ViewUnderTest(2031).texts().last().contains(QStringLiteral(" 2031 ")));
    EXPECT_TRUE(ViewUnderTest(1999).texts().last().contains(QStringLiteral(" 1999 ")));
    QLocale::setDefault(QLocale::c());
}

TEST(HelpView, TheRightsNoticeShowsThisYearByDefault)
{
    const HelpView view;
    const QString year = QString::number(QDate::currentDate().year());
    const auto labels = view.findChildren<QLabel*>();
    EXPECT_TRUE(std::any_of(labels.begin(), labels.end(), [&year](const QLabel* label) {
        return label->text().startsWith(QStringLiteral("© ") + year);
    }));
}

TEST(HelpView, TheHeadingIsALargeBoldTextBesideTheLifebuoy)
{
    const ViewUnderTest help;
    const auto* const heading = help.view->findChild<QLabel*>();
    EXPECT_EQ(heading->text(), QStringLiteral("Aide — Quillon"));
    EXPECT_EQ(heading->font().pixelSize(), fontFor(TextStyle::Title2).pixelSize());
    EXPECT_TRUE(heading->font().bold());
    EXPECT_NE(help.view->findChild<SymbolLabel*>(), nullptr);
}

TEST(HelpView, TheLinkLeadsToTheSupportSite)
{
    ViewUnderTest help;
    EXPECT_EQ(help.link().text(), QStringLiteral("Site de support"));
    help.link().click();
    EXPECT_EQ(help.opened, QList<QUrl>{kVendor.supportUrl()});
}

TEST(HelpView, TheLinkIsOpenedByReturnAndBySpace)
{
    ViewUnderTest help;
    QTest::keyClick(&help.link(), Qt::Key_Return);
    QTest::keyClick(&help.link(), Qt::Key_Space);
    EXPECT_EQ(help.opened.size(), 2);
}

TEST(HelpView, TheLinkIsReachedByTab)
{
    ViewUnderTest help;
    help.view->show();
    help.view->activateWindow();
    ASSERT_TRUE(spinUntil([&help] { return help.view->isActiveWindow(); }));
    help.view->setFocus();
    QTest::keyClick(help.view.get(), Qt::Key_Tab);
    EXPECT_TRUE(help.link().hasFocus());
}

TEST(HelpView, ScrollsVerticallyWhenTheTextIsTallerThanTheView)
{
    const ViewUnderTest help;
    help.view->resize(560, 200);
    help.view->show();
    QApplication::processEvents();
    EXPECT_GT(help.view->verticalScrollBar()->maximum(), 0);
    EXPECT_TRUE(help.view->verticalScrollBar()->isVisible());
}

TEST(HelpView, NeverScrollsSideways)
{
    const ViewUnderTest help;
    help.view->resize(520, 420);
    help.view->show();
    QApplication::processEvents();
    EXPECT_EQ(help.view->widget()->width(), help.view->viewport()->width());
    EXPECT_LE(help.view->widget()->minimumSizeHint().width(), 520);
}

TEST(HelpView, TheGuideIsPlainTextAndNotMarkup)
{
    const ViewUnderTest help;
    const auto labels = help.view->findChildren<QLabel*>();
    EXPECT_TRUE(std::all_of(labels.begin(), labels.end(), [](const QLabel* label) {
        return label->textFormat() == Qt::PlainText;
    }));
}

TEST(HelpView, TheRightsNoticeStaysDimmedWhenTheAppearanceChanges)
{
    applyAppearance(*qApp, Appearance::Light);
    const ViewUnderTest help;
    const QLabel* const notice = help.view->findChildren<QLabel*>().last();
    applyAppearance(*qApp, Appearance::Dark);
    const QColor dimmed =
        resolvedColor(Color::system(SystemColor::SecondaryLabel), QApplication::palette());
    EXPECT_TRUE(spinUntil([notice, &dimmed] {
        return notice->palette().color(QPalette::WindowText).rgb() == dimmed.rgb();
    }));
    applyAppearance(*qApp, Appearance::Light);
}

TEST(HelpView, TheLinkIsDisabledWhereThereIsNoSupportSite)
{
    ViewUnderTest help(2031, {.name = kVendor.name, .supportAddress = QString()});
    EXPECT_FALSE(help.link().isEnabled());
    EXPECT_EQ(help.link().text(), QStringLiteral("Site de support"));
    help.link().click();
    EXPECT_EQ(help.opened, QList<QUrl>());
}

} // namespace
} // namespace quillon
