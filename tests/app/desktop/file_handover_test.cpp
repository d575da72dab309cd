// SPDX-License-Identifier: MIT
#include "app/desktop/file_handover.h"
#include "app/desktop/file_handover_adaptor.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

class FileHandoverCalls : public ::testing::Test {
protected:
    FileHandoverCalls()
    {
        QObject::connect(&handover, &FileHandover::activationRequested, &handover,
                         [this] { heard.append(QStringLiteral("activate")); });
        QObject::connect(&handover, &FileHandover::filesReceived, &handover,
                         [this](const QList<QUrl>& urls) {
                             heard.append(QStringLiteral("files"));
                             files = urls;
                         });
        QObject::connect(&handover, &FileHandover::followRequested, &handover,
                         [this] { heard.append(QStringLiteral("follow")); });
        QObject::connect(&handover, &FileHandover::openPanelRequested, &handover,
                         [this] { heard.append(QStringLiteral("panel")); });
    }

    void TearDown() override { qunsetenv("XDG_ACTIVATION_TOKEN"); }

    FileHandover handover;
    FileHandoverAdaptor& adaptor = *handover.findChild<FileHandoverAdaptor*>();
    QStringList heard;
    QList<QUrl> files;
};

TEST_F(FileHandoverCalls, ActivatingBringsTheWindowToTheFront)
{
    adaptor.Activate({});
    EXPECT_EQ(heard, QStringList(QStringLiteral("activate")));
}

TEST_F(FileHandoverCalls, OpeningHandsTheFilesOverAndBringsTheWindowToTheFront)
{
    adaptor.Open({QStringLiteral("file:///a%20b.log"), QStringLiteral("file:///c.log")}, {});
    EXPECT_EQ(heard, QStringList({QStringLiteral("files"), QStringLiteral("activate")}));
    ASSERT_EQ(files.size(), 2);
    EXPECT_EQ(files[0].toLocalFile(), QStringLiteral("/a b.log"));
}

TEST_F(FileHandoverCalls, ActionsAreFollowingAndTheOpenDialog)
{
    adaptor.ActivateAction(kFollowAction, {}, {});
    adaptor.ActivateAction(kOpenLogAction, {}, {});
    EXPECT_EQ(heard, QStringList({QStringLiteral("follow"), QStringLiteral("activate"),
                                  QStringLiteral("panel")}));
}

TEST_F(FileHandoverCalls, AnUnknownActionIsIgnored)
{
    adaptor.ActivateAction(QStringLiteral("explode"), {}, {});
    EXPECT_TRUE(heard.isEmpty());
}

TEST_F(FileHandoverCalls, TheDesktopsLeaveToTakeTheKeyboardIsKeptForTheWindow)
{
    adaptor.Activate({{QStringLiteral("activation-token"), QStringLiteral("leave-1")}});
    EXPECT_EQ(qgetenv("XDG_ACTIVATION_TOKEN"), "leave-1");
    adaptor.Activate({{QStringLiteral("desktop-startup-id"), QStringLiteral("leave-2")}});
    EXPECT_EQ(qgetenv("XDG_ACTIVATION_TOKEN"), "leave-2");
}

} // namespace
} // namespace quillon
