// SPDX-License-Identifier: MIT
#include "model/notification_names.h"
#include "render/status_text.h"
#include "tests/support/paint_watch.h"
#include "tests/ui/windows/content_view_fixture.h"
#include "ui/log_text/log_text_view.h"

#include <QAccessible>
#include <QClipboard>
#include <QDialog>
#include <QGuiApplication>
#include <QScrollBar>

#include <memory>

namespace quillon {
namespace {

// Notices that the window system has taken a widget from the screen.
class HideWatch : public QObject {
public:
    explicit HideWatch(QWidget& widget) { widget.installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        isHidden |= event->type() == QEvent::Hide && event->spontaneous();
        return QObject::eventFilter(watched, event);
    }

    bool isHidden = false;
};

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

    // Shows a log that is longer than the view, with nothing left to come.
    void showLongLog()
    {
        openLog(QByteArray("PHP Warning:  a\n").repeated(300));
        view.show();
        ASSERT_TRUE(spinUntil([this] { return vertical().maximum() > 0; }));
        takeQueuedSteps();
    }
    // What a change queues, and what that queues in turn. No timer fires meanwhile, so that a pass
    // that the view model makes a little later has no part in it.
    static void takeQueuedSteps()
    {
        constexpr int kMore = 4;
        for (int step = 0; step < kMore; ++step) {
            QCoreApplication::sendPostedEvents(nullptr, QEvent::MetaCall);
        }
    }
    [[nodiscard]] QScrollBar& vertical() const { return *view.logView().verticalScrollBar(); }

    void giveSearchFieldTheKeyboard()
    {
        view.show();
        view.activateWindow();
        view.focusSearchField();
        ASSERT_TRUE(spinUntil([this] { return search().hasFocus(); }));
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

TEST_F(ContentViewTest, AKeyInTheSearchFieldPaintsTheLogOnceWithItsResult)
{
    showLongLog();
    PaintWatch watch(*view.logView().viewport());
    search().setText(QStringLiteral("Warning"));
    takeQueuedSteps();
    EXPECT_EQ(watch.takePaintings(), 0) << "there is no result yet";
    viewModel.recompute();
    takeQueuedSteps();
    EXPECT_EQ(watch.takePaintings(), 1);
}

TEST_F(ContentViewTest, AChangedLogIsShownOneTurnLater)
{
    view.show();
    openLog();
    viewModel.recompute();
    EXPECT_TRUE(view.logView().attributedText().isEmpty());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::MetaCall);
    EXPECT_TRUE(logShows("PHP Fatal error:  a"));
}

TEST_F(ContentViewTest, EveryChangeThatShowsBringsTheLogBackToItsEnd)
{
    showLongLog();
    const auto turn = [](Published<bool>& field) {
        field.set(!field.get());
    };
    const std::vector<std::pair<const char*, std::function<void()>>> changes{
        {"wrapping",
         [&] {
             turn(viewModel.wrapLines);
         }},
        {"text size",
         [&] {
             viewModel.fontSize.set(17.0);
         }},
        {"query",
         [&] {
             viewModel.query.set(QStringLiteral("warning"));
         }},
        {"following",
         [&] {
             turn(viewModel.followTail);
         }},
        {"deprecated",
         [&] {
             turn(viewModel.showDeprecated);
         }},
        {"warnings",
         [&] {
             turn(viewModel.showWarning);
         }},
        {"notices",
         [&] {
             turn(viewModel.showNotice);
         }},
        {"errors only",
         [&] {
             turn(viewModel.onlyErrors);
         }},
        {"status",
         [&] {
             viewModel.statusLine.set(QStringLiteral("another"));
         }},
        {"path",
         [&] {
             viewModel.path.set(QStringLiteral("/another.log"));
         }},
    };
    for (const auto& [name, change] : changes) {
        vertical().setValue(0);
        change();
        takeQueuedSteps();
        EXPECT_GT(vertical().maximum(), 0) << name;
        EXPECT_EQ(vertical().value(), vertical().maximum()) << name;
    }
}

// A file that cannot be looked at any more is told of twice a second.
TEST_F(ContentViewTest, AnErrorThatIsReportedAgainLeavesTheLogWhereItWasScrolledTo)
{
    showLongLog();
    const QString error = QStringLiteral("Erreur lecture tail: no such file");
    viewModel.statusLine.set(error);
    takeQueuedSteps();
    vertical().setValue(0);
    viewModel.statusLine.set(error);
    takeQueuedSteps();
    EXPECT_EQ(vertical().value(), 0);
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
    takeQueuedSteps();
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

TEST_F(ContentViewTest, MinimisingIsNotDisappearing)
{
    viewModel.followTail.set(true);
    openLog();
    view.show();
    const HideWatch watch(view);
    view.showMinimized();
    ASSERT_TRUE(spinUntil([&watch] { return watch.isHidden; }));
    EXPECT_TRUE(viewModel.pollTimer);
    temporary.center.post(kCmdOpenLog);
    EXPECT_EQ(panels, 1);
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

TEST_F(ContentViewTest, SelectAllMeansTheLogThatHasTheKeyboard)
{
    openLog();
    view.show();
    ASSERT_TRUE(spinUntil([this] { return logShows("c"); }));
    view.selectAll();
    EXPECT_TRUE(view.logView().hasSelection());
}

TEST_F(ContentViewTest, CopyAndSelectAllMeanTheSearchFieldThatHasTheKeyboard)
{
    openLog();
    viewModel.query.set(QStringLiteral("fatal"));
    giveSearchFieldTheKeyboard();
    ASSERT_TRUE(spinUntil([this] { return logShows("PHP Fatal error:  a"); }));
    view.logView().selectAll();
    search().deselect();
    view.selectAll();
    EXPECT_EQ(search().selectedText(), QStringLiteral("fatal"));
    view.copy();
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("fatal"));
}

// A log and a search over it that takes several slices of processor time.
class CostlySearch : public ContentViewFixture {
protected:
    static constexpr int kCostlyLines = 300;

    void begin()
    {
        openLog((QByteArray(60, 'a') + "b\n").repeated(kCostlyLines));
        viewModel.query.set(QStringLiteral("(a+)+$"));
        viewModel.recompute();
        ASSERT_TRUE(viewModel.isRecomputing.get());
    }
    [[nodiscard]] bool finish()
    {
        return spinUntil([this] { return !viewModel.isRecomputing.get(); });
    }
    static bool isPointerBusy()
    {
        const QCursor* const cursor = QGuiApplication::overrideCursor();
        return cursor != nullptr && cursor->shape() == Qt::BusyCursor;
    }
    [[nodiscard]] bool isLogBusy() const
    {
        auto* const log = view.findChild<LogTextView*>();
        return QAccessible::queryAccessibleInterface(log)->state().busy;
    }
};

TEST_F(CostlySearch, ThePointerAndTheLogAreBusyUntilItIsOver)
{
    EXPECT_FALSE(isPointerBusy());
    EXPECT_FALSE(isLogBusy());
    begin();
    EXPECT_TRUE(isPointerBusy());
    EXPECT_TRUE(isLogBusy());
    ASSERT_TRUE(finish());
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    EXPECT_FALSE(isLogBusy());
}

TEST_F(CostlySearch, AnotherKeyEndsTheBusyPointer)
{
    begin();
    search().setText(QStringLiteral("b"));
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    EXPECT_FALSE(isLogBusy());
}

TEST_F(CostlySearch, AViewThatGoesAwayMeanwhileLeavesNoBusyPointer)
{
    begin();
    auto second = std::make_unique<ContentView>(viewModel, temporary.center);
    second.reset();
    ASSERT_TRUE(finish());
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(CostlySearch, TheSearchFieldSaysHowManyLinesAreUndecided)
{
    begin();
    ASSERT_TRUE(finish());
    const QString note = undecidedText(kCostlyLines);
    const auto noteOf = [](QWidget& widget) {
        return QAccessible::queryAccessibleInterface(&widget)->text(QAccessible::Description);
    };
    QWidget& field = *search().parentWidget();
    EXPECT_FALSE(note.isEmpty());
    EXPECT_EQ(field.toolTip(), note);
    EXPECT_EQ(noteOf(search()), note);

    viewModel.query.set(QStringLiteral("a"));
    viewModel.recompute();
    EXPECT_EQ(field.toolTip(), QString());
    EXPECT_EQ(noteOf(search()), search().placeholderText());
}

} // namespace
} // namespace quillon
