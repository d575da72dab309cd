// SPDX-License-Identifier: MIT
#include "app/desktop/credits_panel.h"
#include "ui/theme/theme.h"

#include <QFontMetrics>
#include <QLabel>

#include <gtest/gtest.h>

namespace quillon {
namespace {

Vendor vendorWithSite(const QString& supportAddress)
{
    return {.name = QStringLiteral("Ada & Cie"), .supportAddress = supportAddress};
}

TEST(Credits, AreFourLinesThatEndInTheSupportAddress)
{
    EXPECT_EQ(creditsText(vendorWithSite(QStringLiteral("https://help.example"))),
              QStringLiteral("Développé par Ada & Cie\n\nQuillon – Lecteur de logs WordPress\n"
                             "https://help.example"));
}

TEST(Credits, SayNothingOfASupportSiteThatThereIsNot)
{
    const QString expected =
        QStringLiteral("Développé par Ada & Cie\n\nQuillon – Lecteur de logs WordPress");
    EXPECT_EQ(creditsText(vendorWithSite(QString())), expected);
    EXPECT_EQ(creditsText(vendorWithSite(QStringLiteral("no address"))), expected);
}

TEST(CreditsPanel, ShowsTheCreditsCentredAnd13PointsHigh)
{
    CreditsPanel panel;
    panel.present(CreditsPanel::Content::WithCredits);
    EXPECT_TRUE(panel.creditsLabel().isVisible());
    EXPECT_EQ(panel.creditsLabel().text(), creditsText(vendorOfThisBuild()));
    EXPECT_EQ(panel.creditsLabel().alignment() & Qt::AlignHorizontal_Mask, Qt::AlignHCenter);
    EXPECT_EQ(panel.creditsLabel().font().pixelSize(), 13);
}

TEST(CreditsPanel, ShowsNoCreditsWhenItIsThePlainAboutPanel)
{
    CreditsPanel panel;
    panel.present(CreditsPanel::Content::WithCredits);
    panel.present(CreditsPanel::Content::Plain);
    EXPECT_TRUE(panel.isVisible());
    EXPECT_FALSE(panel.creditsLabel().isVisible());
}

TEST(CreditsPanel, HasRoomForItsTitleAlsoWithoutTheCredits)
{
    CreditsPanel panel;
    panel.present(CreditsPanel::Content::Plain);
    const int title = QFontMetrics(fontFor(TextStyle::Body, FontWeight::Bold))
                          .horizontalAdvance(panel.windowTitle());
    // As many pixels again for the icon and buttons beside it.
    EXPECT_GT(panel.width(), title + 150);
}

} // namespace
} // namespace quillon
