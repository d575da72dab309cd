// SPDX-License-Identifier: MIT
#include "tests/support/temporary_folder.h"
#include "ui/windows/open_panel.h"

#include <QAbstractItemModel>
#include <QApplication>
#include <QFileDialog>
#include <QHeaderView>
#include <QTimer>
#include <QTreeView>

#include <functional>
#include <gtest/gtest.h>

namespace quillon {
namespace {

class OpenPanelTest : public testing::Test {
protected:
    // Runs the panel and looks at its dialog, which is closed afterwards.
    std::optional<QUrl> whileOpen(const std::function<void(QFileDialog&)>& look)
    {
        QTimer::singleShot(0, [&look] {
            auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            look(*dialog);
            dialog->reject();
        });
        return openPanelOver(window)(request);
    }

    QWidget window;
    OpenPanelRequest request;
};

TEST_F(OpenPanelTest, OfTheToolkitShowsItsColumnsWhole)
{
    whileOpen([](QFileDialog& dialog) {
        const auto* const files = dialog.findChild<QTreeView*>();
        ASSERT_NE(files, nullptr);
        ASSERT_TRUE(files->isVisible());
        const QHeaderView& header = *files->header();
        EXPECT_LE(header.length(), files->viewport()->width());
        for (int column = 0; column < header.count(); ++column) {
            EXPECT_GE(header.sectionSize(column), header.sectionSizeHint(column)) << column;
        }
    });
}

TEST_F(OpenPanelTest, ThatIsCancelledGivesNothing)
{
    EXPECT_EQ(whileOpen([](QFileDialog& /*dialog*/) {}), std::nullopt);
}

} // namespace
} // namespace quillon
