// SPDX-License-Identifier: MIT
#include "app/desktop/quillon_app.h"
#include "model/notification_names.h"
#include "render/preference_keys.h"
#include "tests/support/spin_until.h"
#include "tests/support/temporary_folder.h"
#include "ui/windows/content_view.h"
#include "ui/windows/log_hint.h"
#include "ui/windows/main_window.h"

#include <QApplication>
#include <QClipboard>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileOpenEvent>
#include <QMenuBar>
#include <QMimeData>
#include <QWindow>

#include <gtest/gtest.h>

namespace quillon {
namespace {

// The shared state reads and writes the settings of whoever runs the program; in a test, of nobody.
class PrivateSettings : public ::testing::Environment {
public:
    void SetUp() override
    {
        m_folder = std::make_unique<TemporaryFolder>();
        qputenv("XDG_CONFIG_HOME", m_folder->path(QString()).toUtf8());
        qputenv("XDG_STATE_HOME", m_folder->path(QString()).toUtf8());
    }

private:
    std::unique_ptr<TemporaryFolder> m_folder;
};

[[maybe_unused]] const auto* const kPrivateSettings =
    ::testing::AddGlobalTestEnvironment(new PrivateSettings);

class QuillonAppTest : public ::testing::Test {
protected:
    [[nodiscard]] static MainWindow& mainWindow()
    {
        const auto windows = QApplication::topLevelWidgets();
        for (QWidget* const window : windows) {
            if (auto* const main = qobject_cast<MainWindow*>(window)) {
                return *main;
            }
        }
        throw std::runtime_error("no main window");
    }

    TemporaryFolder folder;
    QuillonApp app{*qApp};
};

TEST_F(QuillonAppTest, TheViewModelIsOneForTheWholeProcess)
{
    EXPECT_EQ(&sharedLogViewModel(), &sharedLogViewModel());
    EXPECT_EQ(&sharedLogViewModel(), &sharedState().viewModel);
}

TEST_F(QuillonAppTest, EveryPreferenceHasItsDefaultOnceItIsBuilt)
{
    for (const auto& [key, value] : defaultPreferences()) {
        EXPECT_EQ(sharedState().defaults.objectForKey(key), value) << key.toStdString();
    }
}

TEST_F(QuillonAppTest, TheProgramHasAnIconAtOnceAndInAllSizesSoon)
{
    constexpr QSize kLarge(128, 128);
    EXPECT_FALSE(QApplication::windowIcon().pixmap(48).isNull());
    EXPECT_TRUE(spinUntil([&] { return QApplication::windowIcon().actualSize(kLarge) == kLarge; }));
}

TEST_F(QuillonAppTest, TheOpenCommandPostsItsNotificationOnceAlsoWithoutALog)
{
    int posts = 0;
    const Subscription watch =
        sharedState().notifications.observe(kCmdOpenLog, [&posts] { ++posts; });
    app.run(MenuCommand::OpenLog);
    EXPECT_EQ(posts, 1);
}

TEST_F(QuillonAppTest, AFileThatTheDesktopHandsOverIsOpened)
{
    const QString path = folder.write(QStringLiteral("handed.log"), "x\n");
    QFileOpenEvent event(path);
    QCoreApplication::sendEvent(qApp, &event);
    EXPECT_TRUE(spinUntil([&] { return sharedLogViewModel().path.get() == path; }));
}

TEST_F(QuillonAppTest, SeveralFilesOfOneHandOverAreCountedOnce)
{
    testing::internal::CaptureStdout();
    for (const char* const name : {"one.log", "two.log", "three.log"}) {
        QFileOpenEvent event(folder.write(QString::fromUtf8(name), "x\n"));
        QCoreApplication::sendEvent(qApp, &event);
    }
    const QString last = folder.path(QStringLiteral("three.log"));
    EXPECT_TRUE(spinUntil([&] { return sharedLogViewModel().path.get() == last; }));
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "📂 Ouverture de 3 fichier(s)\n"
                                                      "📂 Fichier: one.log\n"
                                                      "📂 Fichier: two.log\n"
                                                      "📂 Fichier: three.log\n");
}

TEST_F(QuillonAppTest, ALaterHandOverIsCountedByItself)
{
    testing::internal::CaptureStdout();
    for (const char* const name : {"one.log", "two.log"}) {
        const QString path = folder.write(QString::fromUtf8(name), "x\n");
        QFileOpenEvent event(path);
        QCoreApplication::sendEvent(qApp, &event);
        EXPECT_TRUE(spinUntil([&] { return sharedLogViewModel().path.get() == path; }));
    }
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "📂 Ouverture de 1 fichier(s)\n"
                                                      "📂 Fichier: one.log\n"
                                                      "📂 Ouverture de 1 fichier(s)\n"
                                                      "📂 Fichier: two.log\n");
}

TEST_F(QuillonAppTest, TheWindowsTitleNamesTheOpenFile)
{
    sharedLogViewModel().path.set(QStringLiteral("/var/log/debug.log"));
    EXPECT_EQ(mainWindow().windowTitle(), QStringLiteral("debug.log — Quillon"));
    sharedLogViewModel().path.set(std::nullopt);
    EXPECT_EQ(mainWindow().windowTitle(), QStringLiteral("Quillon"));
}

TEST_F(QuillonAppTest, CopyingIsOfferedWhereSomethingIsSelected)
{
    const auto isOffered = [](MenuCommand command) {
        return menuItem(*mainWindow().menuBar(), command).isEnabled();
    };
    ContentView& content = mainWindow().content();
    app.presentMainWindow();
    sharedLogViewModel().openLog(QUrl::fromLocalFile(folder.write(QStringLiteral("x.log"), "x\n")));
    app.showPending();
    EXPECT_FALSE(isOffered(MenuCommand::Copy));
    EXPECT_FALSE(isOffered(MenuCommand::CopyWithoutNumbers));
    app.run(MenuCommand::SelectAll);
    EXPECT_TRUE(isOffered(MenuCommand::Copy));
    EXPECT_TRUE(isOffered(MenuCommand::CopyWithoutNumbers));
    ASSERT_TRUE(spinUntil([] { return mainWindow().isActiveWindow(); }));
    content.focusSearchField();
    EXPECT_FALSE(isOffered(MenuCommand::Copy));
    EXPECT_TRUE(isOffered(MenuCommand::CopyWithoutNumbers));
    sharedLogViewModel().query.set(QStringLiteral("x"));
    app.run(MenuCommand::SelectAll);
    EXPECT_TRUE(isOffered(MenuCommand::Copy));
    app.run(MenuCommand::CopyWithoutNumbers);
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("x\n"));
    sharedLogViewModel().query.set(QString());
}

TEST_F(QuillonAppTest, TheWindowsTitleKeepsWhatLooksLikeAMarkOfChanges)
{
    app.presentMainWindow();
    sharedLogViewModel().path.set(QStringLiteral("/var/log/[*]a[*][*].log"));
    EXPECT_TRUE(mainWindow().windowHandle()->title().startsWith(
        QStringLiteral("[*]a[*][*].log — Quillon")));
    sharedLogViewModel().path.set(std::nullopt);
}

TEST_F(QuillonAppTest, FilesDroppedOnTheWindowAreOpenedAndTheLastOneStays)
{
    const QString first = folder.write(QStringLiteral("1.log"), "1\n");
    const QString last = folder.write(QStringLiteral("2.log"), "2\n");
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(first), QUrl::fromLocalFile(last)});
    QDragEnterEvent enter(QPoint(9, 9), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&mainWindow(), &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop(QPointF(9, 9), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&mainWindow(), &drop);
    EXPECT_TRUE(spinUntil([&] { return sharedLogViewModel().path.get() == last; }));
}

TEST_F(QuillonAppTest, WhileAFileIsDraggedOverTheWindowItShowsThatItCanBeDropped)
{
    const LogHint& hint = mainWindow().content().hint();
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(folder.write(QStringLiteral("1.log"), "1\n"))});
    const auto enter = [&] {
        QDragEnterEvent event(QPoint(9, 9), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&mainWindow(), &event);
    };
    enter();
    EXPECT_EQ(hint.displayedText(), LogHint::dropText());
    QDragLeaveEvent leave;
    QCoreApplication::sendEvent(&mainWindow(), &leave);
    EXPECT_NE(hint.displayedText(), LogHint::dropText());
    enter();
    QDropEvent drop(QPointF(9, 9), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&mainWindow(), &drop);
    EXPECT_NE(hint.displayedText(), LogHint::dropText());
}

TEST_F(QuillonAppTest, ADropOfWebAddressesIsNotTaken)
{
    QMimeData data;
    data.setUrls({QUrl(QStringLiteral("https://example.org/debug.log"))});
    QDragEnterEvent enter(QPoint(9, 9), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QCoreApplication::sendEvent(&mainWindow(), &enter);
    EXPECT_FALSE(enter.isAccepted());
    EXPECT_NE(mainWindow().content().hint().displayedText(), LogHint::dropText());
}

TEST_F(QuillonAppTest, ClosingTheMainWindowStopsPollingWithoutTurningFollowingOff)
{
    LogViewModel& viewModel = sharedLogViewModel();
    app.presentMainWindow();
    viewModel.followTail.set(true);
    viewModel.openLog(QUrl::fromLocalFile(folder.write(QStringLiteral("f.log"), "x\n")));
    ASSERT_TRUE(viewModel.pollTimer);
    app.run(MenuCommand::CloseWindow);
    EXPECT_FALSE(mainWindow().isVisible());
    EXPECT_FALSE(viewModel.pollTimer);
    EXPECT_TRUE(viewModel.followTail.get());
    viewModel.followTail.set(false);
}

TEST_F(QuillonAppTest, AMainWindowThatWasClosedComesBackWhenAFileIsHandedOver)
{
    app.presentMainWindow();
    app.run(MenuCommand::CloseWindow);
    ASSERT_FALSE(mainWindow().isVisible());
    QFileOpenEvent event(folder.write(QStringLiteral("handed.log"), "x\n"));
    QCoreApplication::sendEvent(qApp, &event);
    EXPECT_TRUE(mainWindow().isVisible());
}

TEST_F(QuillonAppTest, FindingGivesTheSearchFieldTheKeyboard)
{
    app.presentMainWindow();
    app.run(MenuCommand::Find);
    EXPECT_EQ(mainWindow().focusWidget()->accessibleName(), QStringLiteral("Recherche"));
}

} // namespace
} // namespace quillon
