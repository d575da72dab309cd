// SPDX-License-Identifier: MIT
#include "tests/app/quillon_process.h"
#include "tests/support/printing.h"

#include <QFile>

#include <gtest/gtest.h>

namespace quillon {
namespace {

// The program alone, without the module that holds its window.
class ProgramAlone : public testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(QFile::copy(QStringLiteral(QUILLON_PROGRAM), m_program)); }

    const TemporaryFolder m_folder;
    const QString m_program = m_folder.path(QStringLiteral("quillon"));
};

TEST_F(ProgramAlone, SaysWhyThereIsNoWindow)
{
    QuillonProcess quillon({});
    quillon.process().setProgram(m_program);
    EXPECT_EQ(quillon.run(), 1);
    EXPECT_EQ(quillon.output(), QByteArray());
    EXPECT_TRUE(quillon.errors().startsWith("quillon: impossible de charger la fenêtre: "));
    EXPECT_EQ(quillon.errors().count('\n'), 1);
}

TEST_F(ProgramAlone, Prints)
{
    const QString log = m_folder.write(QStringLiteral("debug.log"), "PHP Warning: x\n");
    QuillonProcess quillon({QStringLiteral("--print"), log});
    quillon.process().setProgram(m_program);
    EXPECT_EQ(quillon.run(), 0);
    EXPECT_EQ(quillon.output(), QByteArray("1\tPHP Warning: x\n"));
}

} // namespace
} // namespace quillon
