// SPDX-License-Identifier: MIT
#include "ui/layout/design_advances.h"

#include <QRawFont>

#include <gtest/gtest.h>

namespace quillon {
namespace {

QRawFont unhinted(const QString& family)
{
    QFont font(family);
    font.setPixelSize(1000);
    font.setHintingPreference(QFont::PreferNoHinting);
    return QRawFont::fromFont(font);
}

class DesignAdvancesOf : public ::testing::TestWithParam<const char*> {};

// A large size without hinting is fitted to nothing.
TEST_P(DesignAdvancesOf, AreThoseThatTheFontHasAtALargeSize)
{
    const QRawFont font = unhinted(QString::fromLatin1(GetParam()));
    const DesignAdvances advances(font);
    for (char16_t character = u' '; character <= u'\u00FF'; ++character) {
        const QList<quint32> glyphs = font.glyphIndexesForString(QString(QChar(character)));
        const double expected =
            font.advancesForGlyphIndexes(glyphs, QRawFont::SeparateAdvances).front().x();
        ASSERT_TRUE(advances.of(glyphs.front()).has_value());
        EXPECT_NEAR(*advances.of(glyphs.front()) * font.pixelSize() / font.unitsPerEm(), expected,
                    0.5)
            << static_cast<int>(character);
    }
}

INSTANTIATE_TEST_SUITE_P(Fonts, DesignAdvancesOf,
                         ::testing::Values("DejaVu Sans", "DejaVu Sans Mono"));

// Many fonts keep one entry for all the glyphs at their end.
TEST(DesignAdvances, AGlyphBehindTheLastEntryHasTheLastOnes)
{
    const QRawFont font = unhinted(QStringLiteral("DejaVu Sans Mono"));
    const DesignAdvances advances(font);
    EXPECT_EQ(advances.of(0xFFFF), advances.of(0));
}

TEST(DesignAdvances, AreNotKnownOfAFontWithoutAFile)
{
    EXPECT_EQ(DesignAdvances(QRawFont()).of(1), std::nullopt);
}

} // namespace
} // namespace quillon
