// SPDX-License-Identifier: MIT
#include "tests/app/print/quillon_process.h"
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
    EXPECT_EQ(quillon.errors(),
              QByteArray("quillon: la fenêtre n’est pas installée\u202F; «\u202Fquillon "
                         "--print FICHIER\u202F» affiche le journal dans le "
                         "terminal\n"));
}

TEST(Program, SaysThatThereIsNoDisplay)
{
    const TemporaryFolder folder;
    const QString none = QStringLiteral("");
    QuillonProcess quillon({QStringLiteral("x.log")},
                           {{QStringLiteral("DISPLAY"), none},
                            {QStringLiteral("WAYLAND_DISPLAY"), none},
                            {QStringLiteral("WAYLAND_SOCKET"), none},
                            {QStringLiteral("XDG_RUNTIME_DIR"), folder.path(QString())},
                            {QStringLiteral("QT_QPA_PLATFORM"), none}});
    EXPECT_EQ(quillon.run(), 1);
    EXPECT_EQ(quillon.output(), QByteArray());
    EXPECT_EQ(quillon.errors(),
              QByteArray("quillon: aucun écran n’est accessible\u202F; «\u202Fquillon "
                         "--print FICHIER\u202F» affiche le journal dans le "
                         "terminal\n"));
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
