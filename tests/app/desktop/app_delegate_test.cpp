// SPDX-License-Identifier: MIT
#include "app/desktop/app_delegate.h"
#include "model/log_view_model.h"
#include "tests/support/spin_until.h"
#include "tests/support/temporary_defaults.h"

#include <QCoreApplication>
#include <QFile>
#include <QTimer>

#include <cerrno>
#include <cstdio>
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

    // What it writes to standard error.
    template <typename Action>
    static std::string errorsOf(Action action)
    {
        ::testing::internal::CaptureStderr();
        action();
        return ::testing::internal::GetCapturedStderr();
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

TEST_F(AppDelegateTest, BetweenTwoFilesTheWindowHearsOfOtherThings)
{
    QStringList order;
    const Subscription opened = viewModel->path.subscribe([&](const std::optional<QString>& path) {
        if (path) {
            order.append(path->right(1));
            // As a key, a click or a painting comes in: by the event loop, not by a queued call.
            auto* const other = new QTimer(viewModel.get());
            other->setSingleShot(true);
            QObject::connect(other, &QTimer::timeout,
                             [&order] { order.append(QStringLiteral("-")); });
            other->start(0);
        }
    });
    outputOf([this] {
        delegate.openURLs({QUrl(QStringLiteral("file:///a")), QUrl(QStringLiteral("file:///b")),
                           QUrl(QStringLiteral("file:///c"))});
    });
    errorsOf([&] { EXPECT_TRUE(spinUntil([&] { return order.size() == 6; })); });
    EXPECT_EQ(order.join(QString()), QStringLiteral("a-b-c-"));
}

TEST_F(AppDelegateTest, FilesHandedOverMeanwhileWaitTheirTurn)
{
    outputOf([this] {
        delegate.openURLs({QUrl(QStringLiteral("file:///a")), QUrl(QStringLiteral("file:///b"))});
    });
    errorsOf([this] { delegate.openNext(); });
    outputOf([this] { delegate.openFile(QStringLiteral("/c")); });
    errorsOf([this] { EXPECT_TRUE(spinUntil([this] { return openedPaths.size() == 3; })); });
    EXPECT_EQ(openedPaths.join(QString()), QStringLiteral("/a/b/c"));
}

TEST_F(AppDelegateTest, AnyNameIsReportedInOneLineAndOpened)
{
    const QByteArray bytes =
        QFile::encodeName(temporary.folder.path(QString())) + "/\xE9\n\xE2\x80\xAE.log";
    std::FILE* const file = std::fopen(bytes.constData(), "w");
    ASSERT_NE(file, nullptr);
    std::fclose(file);
    const QUrl url = QUrl::fromEncoded("file://" + bytes.toPercentEncoding("/"));
    EXPECT_EQ(outputOf([&] { delegate.openURLs({url}); }), "📂 Ouverture de 1 fichier(s)\n"
                                                           "📂 Fichier: \uFFFD\u240A\uFFFD.log\n");
    EXPECT_EQ(errorsOf([this] { delegate.openNext(); }), "");
    EXPECT_EQ(viewModel->statusLine.get(), QStringLiteral("Lignes: 0"));
}

TEST_F(AppDelegateTest, AFileThatDoesNotOpenIsNamedOnStandardError)
{
    outputOf([this] { delegate.openFile(QStringLiteral("/nowhere\n.log")); });
    const std::string message = SystemError{ENOENT}.message().toStdString();
    EXPECT_EQ(errorsOf([this] { delegate.openNext(); }),
              "quillon: /nowhere\u240A.log: " + message + "\n");
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
