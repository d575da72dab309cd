// SPDX-License-Identifier: MIT
#include "tests/ui/windows/content_view_fixture.h"
#include "ui/log_text/log_text_view.h"
#include "ui/windows/log_hint.h"

namespace quillon {
namespace {

class LogHintTest : public ContentViewFixture {
protected:
    LogHintTest() { view.show(); }

    // Whether the hint has left any pixel of its own on the view.
    [[nodiscard]] bool isPainted()
    {
        const QRect place(view.hint().mapTo(&view, QPoint()), view.hint().size());
        const QImage picture = view.grab(place).toImage();
        const QRgb background = picture.pixel(0, 0);
        const QPoint middle = picture.rect().center();
        for (int y = middle.y() - 60; y < middle.y() + 60; ++y) {
            for (int x = middle.x() - 100; x < middle.x() + 100; ++x) {
                if (picture.pixel(x, y) != background) {
                    return true;
                }
            }
        }
        return false;
    }
};

TEST_F(LogHintTest, WithoutAFileItSaysHowToOpenOne)
{
    EXPECT_EQ(view.hint().displayedText(),
              QStringLiteral("Ouvrez un log avec Ctrl+O\nou déposez un fichier ici"));
    EXPECT_TRUE(view.hint().isVisible());
    EXPECT_TRUE(isPainted());
}

TEST_F(LogHintTest, WithAFileItIsGone)
{
    openLog(QByteArray());
    EXPECT_FALSE(view.hint().isVisible());
    EXPECT_EQ(view.hint().displayedText(), QString());
    EXPECT_FALSE(isPainted());
}

TEST_F(LogHintTest, AfterClearingItStaysAwaySinceTheFileIsStillOpen)
{
    openLog();
    clear().click();
    EXPECT_FALSE(view.hint().isVisible());
}

TEST_F(LogHintTest, ItIsNoTextOfTheLog)
{
    view.logView().selectAll();
    EXPECT_FALSE(view.logView().hasSelection());
    EXPECT_TRUE(view.logView().attributedText().isEmpty());
}

TEST_F(LogHintTest, ScreenReadersGetItAsTheLogsDescriptionWhileNoFileIsOpen)
{
    EXPECT_EQ(view.logView().accessibleDescription(), LogHint::noFileText());
    openLog();
    EXPECT_EQ(view.logView().accessibleDescription(), QString());
}

TEST_F(LogHintTest, WhileAFileIsDraggedOverALogItSaysThatItCanBeDropped)
{
    openLog();
    view.setDropOffered(true);
    EXPECT_TRUE(view.hint().isVisible());
    EXPECT_EQ(view.hint().displayedText(), LogHint::dropText());
    EXPECT_TRUE(isPainted());
    view.setDropOffered(false);
    EXPECT_FALSE(view.hint().isVisible());
}

TEST_F(LogHintTest, AFileThatIsDraggedAwayAgainLeavesTheHintAsItWas)
{
    view.setDropOffered(true);
    EXPECT_EQ(view.hint().displayedText(), LogHint::dropText());
    view.setDropOffered(false);
    EXPECT_EQ(view.hint().displayedText(), LogHint::noFileText());
}

TEST_F(LogHintTest, TheMouseGoesThroughItToTheWholeLog)
{
    EXPECT_TRUE(view.hint().testAttribute(Qt::WA_TransparentForMouseEvents));
    EXPECT_EQ(view.hint().size(), view.logView().viewport()->size());
}

} // namespace
} // namespace quillon
