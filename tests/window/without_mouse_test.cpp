// SPDX-License-Identifier: MIT
#include "tests/support/spin_until.h"
#include "tests/window/window_fixture.h"

namespace quillon {
namespace {

const QByteArray kTraceOfB("PHP Fatal error:  Uncaught Error: b in /srv/b.php:7\n"
                           "Stack trace:\n"
                           "#0 /srv/index.php(12): b()\n"
                           "#1 {main}\n");

class WithoutAMouse : public WindowTest {};

TEST_F(WithoutAMouse, LeadsFromTheStartThroughTheDialogAndASearchToACopiedTrace)
{
    const QString path =
        folder().write(kLog, "PHP Notice:  a\n" + kTraceOfB + "PHP Warning:  c\nd\n");
    start({}, kEmptyTitle);
    desktop().press(QStringLiteral("ctrl+o"));
    awaitActive(kOpenTitle);
    desktop().type(path);
    desktop().press(QStringLiteral("Return"));
    awaitActive(kLogTitle);
    desktop().press(QStringLiteral("ctrl+f"));
    desktop().type(QStringLiteral("fatal|trace|^#|warning"));
    awaitRows(QStringLiteral("2\tPHP Fatal error:  Uncaught Error: b in /srv/b.php:7\n"
                             "3\tStack trace:\n"
                             "4\t#0 /srv/index.php(12): b()\n"
                             "5\t#1 {main}\n"
                             "6\tPHP Warning:  c\n"));
    pressToFocus(QStringLiteral("Tab"), QStringLiteral("Vider le contenu"));
    pressToFocus(QStringLiteral("Tab"), QStringLiteral("Contenu du log"));
    // From the beginning, where a log is that has just been searched, four rows down.
    for (int row = 0; row < 4; ++row) {
        desktop().press(QStringLiteral("shift+Down"));
    }
    desktop().press(QStringLiteral("ctrl+shift+c"));
    EXPECT_TRUE(spinUntil([] { return desktop().clipboard() == QString::fromUtf8(kTraceOfB); }))
        << qPrintable(desktop().clipboard());
}

} // namespace
} // namespace quillon
