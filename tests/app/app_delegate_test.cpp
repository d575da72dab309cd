// SPDX-License-Identifier: MIT
#include "app/app_delegate.h"
#include "model/log_view_model.h"
#include "tests/support/spin_until.h"
#include "tests/support/temporary_defaults.h"

#include <QCoreApplication>

#include <gtest/gtest.h>
#include <memory>
#include <string>

namespace quillon {
namespace {

class AppDelegateTest : public ::testing::Test {
protected:
    // What the action writes to standard output.
    template <typename Action>
    static std::string outputOf(Action action)
    {
        ::testing::internal::CaptureStdout();
        action();
        return ::testing::internal::GetCapturedStdout();
    }

    // The paths that the view model has held, in order.
    QStringList openedPaths;

    TemporaryDefaults temporary;
    std::unique_ptr<LogViewModel> viewModel =
        std::make_unique<LogViewModel>(temporary.defaults, temporary.center);
    AppDelegate delegate{*viewModel};
    Subscription watch = viewModel->path.subscribe([this](const std::optional<QString>& path) {
        if (path) {
            openedPaths.append(*path);
        }
    });
};

TEST_F(AppDelegateTest, AnEmptyListOfUrlsPrintsItsCountLineAndOpensNothing)
{
    EXPECT_EQ(outputOf([this] { delegate.openURLs({}); }), "📂 Ouverture de 0 fichier(s)\n");
    QCoreApplication::processEvents();
    EXPECT_TRUE(openedPaths.isEmpty());
}

TEST_F(AppDelegateTest, ThreeUrlsAtOncePrintThreeFileLinesInOrderAfterTheCountLine)
{
    const QList<QUrl> urls{QUrl(QStringLiteral("file:///a/un.log")),
                           QUrl(QStringLiteral("file:///a/deux%20mots.log")),
                           QUrl(QStringLiteral("file:///a/trois/"))};
    EXPECT_EQ(outputOf([&] { delegate.openURLs(urls); }), "📂 Ouverture de 3 fichier(s)\n"
                                                          "📂 Fichier: un.log\n"
                                                          "📂 Fichier: deux mots.log\n"
                                                          "📂 Fichier: trois\n");
}

TEST_F(AppDelegateTest, ThreeUrlsAtOnceAreOpenedInOrderAndTheThirdIsTheOneShown)
{
    QList<QUrl> urls;
    for (const char* const name : {"1.log", "2.log", "3.log"}) {
        urls.append(QUrl::fromLocalFile(temporary.folder.write(QString::fromUtf8(name), name)));
    }
    outputOf([&] { delegate.openURLs(urls); });
    EXPECT_TRUE(spinUntil([this] { return openedPaths.size() == 3; }));
    EXPECT_EQ(viewModel->path.get(), urls[2].toLocalFile());
    ASSERT_EQ(viewModel->lines.get().size(), 1);
    EXPECT_EQ(viewModel->lines.get()[0].text(), QStringLiteral("3.log"));
}

TEST_F(AppDelegateTest, APathIsReportedAndOpened)
{
    const QString path = temporary.folder.write(QStringLiteral("été.log"), "x\n");
    EXPECT_EQ(outputOf([&] { EXPECT_TRUE(delegate.openFile(path)); }),
              "📂 Ouverture du fichier: " + path.toStdString() + "\n");
    EXPECT_TRUE(spinUntil([&] { return viewModel->path.get() == path; }));
}

TEST_F(AppDelegateTest, APathThatDoesNotExistIsAcceptedAndTheStatusLineShowsTheError)
{
    const QString path = temporary.folder.path(QStringLiteral("missing.log"));
    outputOf([&] { EXPECT_TRUE(delegate.openFile(path)); });
    EXPECT_TRUE(spinUntil([&] {
        return viewModel->statusLine.get().startsWith(QStringLiteral("Erreur d’ouverture: "));
    }));
}

TEST_F(AppDelegateTest, NothingIsOpenedBeforeTheNextTurnOfTheEventLoop)
{
    outputOf([this] { delegate.openFile(QStringLiteral("/nowhere.log")); });
    EXPECT_TRUE(openedPaths.isEmpty());
}

TEST_F(AppDelegateTest, ARequestWhoseViewModelIsGoneDoesNothing)
{
    outputOf([this] { delegate.openFile(QStringLiteral("/nowhere.log")); });
    viewModel.reset();
    QCoreApplication::processEvents();
    EXPECT_TRUE(outputOf([this] {
                    EXPECT_TRUE(delegate.openFile(QStringLiteral("/nowhere.log")));
                }).ends_with("/nowhere.log\n"));
    EXPECT_TRUE(openedPaths.isEmpty());
}

} // namespace
} // namespace quillon
