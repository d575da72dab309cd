// SPDX-License-Identifier: MIT
#include "platform/system_error.h"
#include "tests/model/view_model_fixture.h"
#include "tests/support/dropped_privileges.h"

#include <QFile>

#include <cerrno>
#include <sys/stat.h>

namespace quillon {
namespace {

class LogRefusal : public ViewModelTest {
protected:
    void expectRefusal(int number)
    {
        EXPECT_EQ(model().lastError(), SystemError{number});
        EXPECT_EQ(status(), QStringLiteral("Erreur d’ouverture: ") + SystemError{number}.message());
        EXPECT_TRUE(model().lines.get().isEmpty());
        EXPECT_EQ(output(), QString());
        EXPECT_EQ(model().pollTimer, nullptr);
    }
};

TEST_F(LogRefusal, AMissingFileIsReported)
{
    model().openLog(url());
    expectRefusal(ENOENT);
}

TEST_F(LogRefusal, IsForgottenWhenAFileOpens)
{
    model().openLog(url());
    open("x\n");
    EXPECT_EQ(model().lastError(), std::nullopt);
}

TEST_F(LogRefusal, ADirectoryIsReported)
{
    model().openLog(folder().url(QString()));
    expectRefusal(EISDIR);
}

TEST_F(LogRefusal, APipeThatNobodyWritesToIsReportedAtOnce)
{
    ASSERT_EQ(::mkfifo(QFile::encodeName(folder().path(kFile)).constData(), 0600), 0);
    model().openLog(url());
    expectRefusal(EOPNOTSUPP);
}

TEST_F(LogRefusal, ADeviceThatNeverEndsIsReported)
{
    model().openLog(QUrl::fromLocalFile(QStringLiteral("/dev/zero")));
    expectRefusal(EOPNOTSUPP);
}

TEST_F(LogRefusal, AFileThatMayNotBeReadIsReported)
{
    const QString path = folder().write(kFile, "secret\n");
    ASSERT_EQ(::chmod(QFile::encodeName(folder().path(QString())).constData(), 0755), 0);
    ASSERT_EQ(::chmod(QFile::encodeName(path).constData(), 0000), 0);
    {
        const DroppedPrivileges nobody;
        model().openLog(url());
    }
    expectRefusal(EACCES);
}

TEST_F(LogRefusal, AnAddressThatNamesNoFileIsReported)
{
    model().openLog(QUrl(QStringLiteral("https://example.org/debug.log")));
    expectRefusal(ENOENT);
}

TEST_F(LogRefusal, AUrlWithANulDoesNotOpenTheFileWhosePathEndsThere)
{
    folder().write(kFile, "secret\n");
    model().openLog(QUrl(url().toString() + QStringLiteral("%00.log")));
    expectRefusal(ENOENT);
    EXPECT_TRUE(model().path.get()->endsWith(QStringLiteral("/file.log\u2400.log")));
}

TEST_F(LogRefusal, TheNewFileIsNamedAllTheSame)
{
    open("un\n");
    const QUrl missing = folder().url(QStringLiteral("missing.log"));
    model().openLog(missing);
    EXPECT_EQ(model().fileURL, missing);
    EXPECT_EQ(model().path.get(), missing.toLocalFile());
}

TEST_F(LogRefusal, TheFormerHandleAndSizeAreKept)
{
    open("un\n");
    model().openLog(folder().url(QStringLiteral("missing.log")));
    EXPECT_EQ(model().lastFileSize, 3U);
    ASSERT_TRUE(model().readHandle);
    ASSERT_FALSE(model().readHandle->seek(0));
    EXPECT_EQ(model().readHandle->readToEnd().value(), "un\n");
}

TEST_F(LogRefusal, TheFollowerOfTheFormerFileIsStopped)
{
    model().followTail.set(true);
    open("un\n");
    ASSERT_NE(model().pollTimer, nullptr);
    model().openLog(folder().url(QStringLiteral("missing.log")));
    expectRefusal(ENOENT);
}

TEST_F(LogRefusal, AnotherFileCanBeOpenedAfterwards)
{
    model().openLog(folder().url(QStringLiteral("missing.log")));
    open("un\n");
    EXPECT_EQ(texts(), QStringList{QStringLiteral("un")});
    EXPECT_EQ(status(), QStringLiteral("Lignes: 1"));
}

} // namespace
} // namespace quillon
