// SPDX-License-Identifier: MIT
#include "render/highlight_preferences.h"
#include "tests/ui/windows/content_view_fixture.h"
#include "ui/controls/marked_scroll_bar.h"
#include "ui/controls/style.h"
#include "ui/log_text/log_text_view.h"
#include "ui/theme/contrast.h"

#include <QApplication>
#include <QScrollBar>

namespace quillon {
namespace {

// A hundred rows, enough to scroll, between two others.
QByteArray amid(const QByteArray& first, const QByteArray& last)
{
    return first + QByteArray("an ordinary line\n").repeated(100) + last;
}

class ErrorMarks : public ContentViewFixture {
protected:
    ErrorMarks()
    {
        applyAppearance(*qApp, Appearance::Light);
        view.show();
    }
    ~ErrorMarks() override { applyAppearance(*qApp, Appearance::Light); }

    void open(const QByteArray& bytes)
    {
        openLog(bytes);
        const qsizetype rows = bytes.count('\n');
        ASSERT_TRUE(
            spinUntil([&] { return view.logView().attributedText().rows().size() == rows; }));
    }
    [[nodiscard]] MarkedScrollBar& bar() const
    {
        return *qobject_cast<MarkedScrollBar*>(view.logView().verticalScrollBar());
    }
    // Pixels of the bar with exactly that colour.
    [[nodiscard]] int pixelsOf(const QColor& color)
    {
        const QImage picture = bar().grab().toImage();
        int count = 0;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                count += picture.pixelColor(x, y) == color ? 1 : 0;
            }
        }
        return count;
    }
};

TEST_F(ErrorMarks, FatalAndErrorRowsHaveTheirColoursOnTheTrack)
{
    temporary.defaults.setObject(QStringLiteral("#0000C8"), preference_keys::kColorFatal);
    temporary.defaults.setObject(QStringLiteral("#007800"), preference_keys::kColorError);
    open(amid("PHP Fatal error:  a\n", "PHP Parse error:  b\n"));
    ASSERT_EQ(bar().marks().size(), 2U);
    EXPECT_GT(pixelsOf(QColor(0, 0, 0xC8)), 3);
    EXPECT_GT(pixelsOf(QColor(0, 0x78, 0)), 3);
}

TEST_F(ErrorMarks, RowsThatAreNotShownHaveNone)
{
    open(amid("PHP Fatal error:  a\n", "PHP Fatal error:  b\n"));
    EXPECT_EQ(bar().marks().size(), 2U);
    viewModel.query.set(QStringLiteral("ordinary|b$"));
    ASSERT_TRUE(spinUntil([this] { return view.logView().attributedText().rows().size() == 101; }));
    EXPECT_EQ(bar().marks().size(), 1U);
}

TEST_F(ErrorMarks, RowsThatAreWrittenToTheLogGetTheirsAsTheyCome)
{
    viewModel.followTail.set(true);
    open(amid("PHP Fatal error:  a\n", "PHP Warning:  b\n"));
    EXPECT_EQ(bar().marks().size(), 1U);
    temporary.folder.append(kLogName, "PHP Fatal error:  c\n");
    viewModel.pollTail();
    EXPECT_TRUE(spinUntil([this] { return bar().marks().size() == 2; }));
}

TEST_F(ErrorMarks, TheyKeepToTheirRowsWhenLinesAreBrokenElsewhere)
{
    open(amid(QByteArray("long ").repeated(4000) + "\n", "PHP Fatal error:  a\n") +
         QByteArray("an ordinary line\n").repeated(100));
    const int wrapped = bar().marks().front().pixel;
    wrap().click();
    EXPECT_TRUE(spinUntil([&] { return bar().marks().front().pixel < wrapped - 20; }));
}

TEST_F(ErrorMarks, CanBeToldFromTheTrackWhateverTheColourAndTheAppearance)
{
    for (const char* const color : {"#FFF4B0", "#101010", "#FF3B30", "#FFFFFF20"}) {
        temporary.defaults.setObject(QString::fromLatin1(color), preference_keys::kColorFatal);
        open(amid("PHP Fatal error:  a\n", ""));
        for (const Appearance appearance : {Appearance::Light, Appearance::Dark}) {
            applyAppearance(*qApp, appearance);
            QCoreApplication::processEvents();
            ASSERT_EQ(bar().marks().size(), 1U);
            const QColor track = bar().grab().toImage().pixelColor(0, 100);
            EXPECT_GE(contrastRatio(bar().marks().front().color, track), 2.99) << color;
        }
        applyAppearance(*qApp, Appearance::Light);
    }
}

} // namespace
} // namespace quillon
