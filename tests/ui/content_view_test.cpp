// SPDX-License-Identifier: MIT
#include "model/notification_names.h"
#include "tests/ui/content_view_fixture.h"
#include "ui/log_text_view.h"

#include <QDialog>
#include <QTimer>

namespace quillon {
namespace {

class ContentViewTest : public ContentViewFixture {
protected:
    ContentViewTest()
    {
        viewModel.openPanel = [this](const OpenPanelRequest&) {
            ++panels;
            if (whilePanelIsOpen) {
                whilePanelIsOpen();
            }
            return std::optional<QUrl>();
        };
    }

    [[nodiscard]] bool logShows(const char* text) const
    {
        return view.logView().attributedText().string().contains(QString::fromUtf8(text));
    }

    int panels = 0;
    std::function<void()> whilePanelIsOpen;
};

TEST_F(ContentViewTest, ItCannotBeSmallerThan820By520)
{
    view.show();
    view.resize(100, 100);
    EXPECT_EQ(view.size(), QSize(820, 520));
}

TEST_F(ContentViewTest, TheLogShowsWhatTheViewModelPublishes)
{
    openLog();
    EXPECT_TRUE(spinUntil([this] { return logShows("PHP Fatal error:  a"); }));
    viewModel.clearContent();
    EXPECT_TRUE(spinUntil([this] { return view.logView().attributedText().isEmpty(); }));
}

TEST_F(ContentViewTest, TurningTheWrapToggleChangesTheLogsWrapping)
{
    EXPECT_TRUE(view.logView().isWrapped());
    wrap().click();
    EXPECT_TRUE(spinUntil([this] { return !view.logView().isWrapped(); }));
}

TEST_F(ContentViewTest, TheLogFollowsEachChangeOfTheTextSize)
{
    openLog();
    for (const int size : {10, 17, 24}) {
        sizeSlider().setValue(size);
        EXPECT_TRUE(spinUntil([this, size] {
            const AttributedString& text = view.logView().attributedText();
            return !text.isEmpty() && text.rows()[0].baseAttributes().fontSize == size;
        })) << size;
    }
}

TEST_F(ContentViewTest, TheOpenCommandPresentsExactlyOneOpenDialog)
{
    view.show();
    temporary.center.post(kCmdOpenLog);
    EXPECT_EQ(panels, 1);
    temporary.center.post(kCmdOpenLog);
    EXPECT_EQ(panels, 2);
}

TEST_F(ContentViewTest, TheOpenButtonPresentsTheSameDialogAsTheCommand)
{
    view.show();
    openButton().click();
    EXPECT_EQ(panels, 1);
}

TEST_F(ContentViewTest, ASecondOpenCommandWhileTheDialogIsOpenPresentsNoOther)
{
    view.show();
    whilePanelIsOpen = [this] {
        temporary.center.post(kCmdOpenLog);
    };
    temporary.center.post(kCmdOpenLog);
    EXPECT_EQ(panels, 1);
}

TEST_F(ContentViewTest, TheOpenCommandIsHeardOnlyWhileTheViewIsShown)
{
    temporary.center.post(kCmdOpenLog);
    EXPECT_EQ(panels, 0);
    view.show();
    view.hide();
    temporary.center.post(kCmdOpenLog);
    EXPECT_EQ(panels, 0);
}

TEST_F(ContentViewTest, DisappearingStopsTailPollingWithoutTurningFollowingOff)
{
    viewModel.followTail.set(true);
    openLog();
    view.show();
    ASSERT_TRUE(viewModel.pollTimer);
    view.hide();
    EXPECT_FALSE(viewModel.pollTimer);
    EXPECT_TRUE(viewModel.followTail.get());
}

TEST_F(ContentViewTest, AppearingAgainDoesNotStartTailPolling)
{
    viewModel.followTail.set(true);
    openLog();
    view.show();
    view.hide();
    view.show();
    EXPECT_FALSE(viewModel.pollTimer);
}

TEST_F(ContentViewTest, TheHelpSheetIsNotShownUnlessAskedFor)
{
    view.show();
    EXPECT_FALSE(view.showHelp());
    view.setShowHelp(true);
    EXPECT_TRUE(view.showHelp());
    const auto* const sheet = view.findChild<QDialog*>();
    ASSERT_NE(sheet, nullptr);
    EXPECT_TRUE(sheet->isModal());
    EXPECT_EQ(sheet->minimumSize(), QSize(520, 420));
    view.setShowHelp(false);
    EXPECT_FALSE(view.showHelp());
}

TEST_F(ContentViewTest, FocusingTheSearchFieldSelectsItsText)
{
    viewModel.query.set(QStringLiteral("fatal"));
    view.show();
    view.focusSearchField();
    EXPECT_EQ(search().selectedText(), QStringLiteral("fatal"));
    EXPECT_EQ(view.focusWidget(), &search());
}

TEST_F(ContentViewTest, TheKeyboardStartsInTheLog)
{
    view.show();
    EXPECT_EQ(view.focusWidget(), &view.logView());
}

TEST_F(ContentViewTest, SelectAllMeansTheLogUnlessTheSearchFieldHasTheKeyboard)
{
    openLog();
    view.show();
    ASSERT_TRUE(spinUntil([this] { return logShows("c"); }));
    view.selectAll();
    EXPECT_TRUE(view.logView().hasSelection());
}

} // namespace
} // namespace quillon
