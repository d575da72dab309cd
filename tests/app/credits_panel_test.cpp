// SPDX-License-Identifier: MIT
#include "app/credits_panel.h"
#include "ui/maker.h"

#include <QLabel>

#include <gtest/gtest.h>

namespace quillon {
namespace {

TEST(Credits, AreFourLinesThatEndInTheSupportAddress)
{
    EXPECT_EQ(
        creditsText().split(QLatin1Char('\n')),
        QStringList({QStringLiteral("Développé par ") + makerName(), QString(),
                     QStringLiteral("Quillon – Lecteur de logs WordPress"), supportAddress()}));
}

TEST(CreditsPanel, ShowsTheCreditsCentredAnd13PointsHigh)
{
    CreditsPanel panel;
    panel.present(CreditsPanel::Content::WithCredits);
    EXPECT_TRUE(panel.creditsLabel().isVisible());
    EXPECT_EQ(panel.creditsLabel().text(), creditsText());
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

} // namespace
} // namespace quillon
