// SPDX-License-Identifier: MIT
#include "tests/ui/windows/content_view_fixture.h"
#include "ui/log_text/log_text_view.h"
#include "ui/windows/status_overlay.h"

#include <QAccessible>
#include <QScrollBar>

#include <set>

namespace quillon {
namespace {

class StatusOverlayTest : public ContentViewFixture {
protected:
    [[nodiscard]] const ElidedLabel& status() const { return view.statusOverlay().statusLabel(); }
    [[nodiscard]] const ElidedLabel& path() const { return view.statusOverlay().pathLabel(); }
};

TEST_F(StatusOverlayTest, WithoutAFileItShowsOnlyTheStatusText)
{
    view.show();
    EXPECT_EQ(status().text(), QStringLiteral("Aucun fichier ouvert"));
    EXPECT_FALSE(path().isVisible());
}

TEST_F(StatusOverlayTest, AfterAFileIsOpenedItShowsABulletAndThePath)
{
    view.show();
    openLog();
    EXPECT_TRUE(path().isVisible());
    EXPECT_EQ(path().text(), QStringLiteral("• ") + temporary.folder.path(kLogName));
}

TEST_F(StatusOverlayTest, AfterClearingThePathStaysShown)
{
    view.show();
    openLog();
    clear().click();
    EXPECT_EQ(status().text(), QStringLiteral("Vide"));
    EXPECT_TRUE(path().isVisible());
}

TEST_F(StatusOverlayTest, APathThatDoesNotFitLosesItsBeginning)
{
    view.show();
    const QString folder = QString(400, QLatin1Char('d'));
    viewModel.path.set(QStringLiteral("/%1/debug.log").arg(folder));
    EXPECT_TRUE(path().displayedText().startsWith(QStringLiteral("…")));
    EXPECT_TRUE(path().displayedText().endsWith(QStringLiteral("/debug.log")));
    EXPECT_FALSE(path().displayedText().contains(QLatin1Char('\n')));
}

TEST_F(StatusOverlayTest, APathShowsMoreOfItselfInAWiderWindow)
{
    view.show();
    viewModel.path.set(QStringLiteral("/%1/debug.log").arg(QString(400, QLatin1Char('d'))));
    const auto narrow = path().displayedText().size();
    view.resize(1400, 600);
    ASSERT_TRUE(spinUntil([&] { return path().displayedText().size() > narrow; }));
}

TEST_F(StatusOverlayTest, APathThatFitsIsShownWhole)
{
    view.show();
    viewModel.path.set(QStringLiteral("/var/log/<b>debug</b>.log"));
    EXPECT_EQ(path().displayedText(), QStringLiteral("• /var/log/<b>debug</b>.log"));
}

TEST_F(StatusOverlayTest, APathOverSeveralLinesIsShownOnOne)
{
    view.show();
    viewModel.path.set(QStringLiteral("/tmp/a\nb.log"));
    EXPECT_EQ(path().height(), status().height());
}

TEST_F(StatusOverlayTest, IsAStatusBarThatScreenReadersHearOfOnceTheStatusHasSettled)
{
    QAccessibleInterface* const accessible =
        QAccessible::queryAccessibleInterface(&view.statusOverlay());
    ASSERT_NE(accessible, nullptr);
    EXPECT_EQ(accessible->role(), QAccessible::StatusBar);
    // The view model's own first pass writes the status too.
    ASSERT_TRUE(spinUntil([this] { return status().text().startsWith(QStringLiteral("Lignes")); }));
    QStringList names;
    const auto note = [&] {
        const QString name = accessible->text(QAccessible::Name);
        if (names.isEmpty() || names.last() != name) {
            names.append(name);
        }
        return name == QStringLiteral("c");
    };
    for (const char* const text : {"a", "b", "c"}) {
        viewModel.statusLine.set(QString::fromLatin1(text));
    }
    EXPECT_TRUE(spinUntil(note));
    EXPECT_FALSE(names.contains(QStringLiteral("a")));
    EXPECT_FALSE(names.contains(QStringLiteral("b")));
}

TEST_F(StatusOverlayTest, ASearchThatGoesOnIsToldToScreenReadersAndThenItsCounts)
{
    const QAccessibleInterface* const accessible =
        QAccessible::queryAccessibleInterface(&view.statusOverlay());
    const auto isNamed = [accessible](const QString& name) {
        return spinUntil([&] { return accessible->text(QAccessible::Name) == name; });
    };
    const QString counts = QStringLiteral("Lignes: 0 • Affichées: 0");
    ASSERT_TRUE(isNamed(counts));
    viewModel.isRecomputing.set(true);
    EXPECT_TRUE(isNamed(QStringLiteral("Recherche en cours…")));
    EXPECT_EQ(status().text(), counts);
    // Also where the search has changed nothing.
    viewModel.isRecomputing.set(false);
    EXPECT_TRUE(isNamed(counts));
}

TEST_F(StatusOverlayTest, TheMouseGoesThroughIt)
{
    EXPECT_TRUE(view.statusOverlay().testAttribute(Qt::WA_TransparentForMouseEvents));
}

TEST_F(StatusOverlayTest, ItHasNoBackgroundOfItsOwn)
{
    EXPECT_FALSE(view.statusOverlay().autoFillBackground());
}

// Rows of a log that has been scrolled up end in the middle of a letter otherwise.
TEST_F(StatusOverlayTest, TheLogFadesAwayBelowItOverItsWholeWidth)
{
    openLog(
        QByteArray("WWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWW\n").repeated(200));
    view.show();
    ASSERT_TRUE(spinUntil([this] { return view.logView().verticalScrollBar()->maximum() > 0; }));
    view.logView().verticalScrollBar()->setValue(500);
    const StatusOverlay& overlay = view.statusOverlay();
    const int beyondTheTexts = path().geometry().right() + 10;
    ASSERT_LT(beyondTheTexts, view.logView().boxOfPosition(TextPosition{30, 60}).right());
    const auto shades = [&](int top, int height) {
        const QRect strip(QPoint(beyondTheTexts, top), QSize(40, height));
        const QImage picture =
            view.grab(strip.translated(overlay.mapTo(&view, QPoint()))).toImage();
        std::set<QRgb> found;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                found.insert(picture.pixel(x, y));
            }
        }
        return found.size();
    };
    EXPECT_GT(shades(-20, 20), 1U);
    EXPECT_EQ(shades(overlay.height() / 2, overlay.height() / 2), 1U);
}

TEST_F(StatusOverlayTest, ItLiesOverTheLogAtItsBottomLeadingCornerBesideTheScrollBars)
{
    view.show();
    wrap().click();
    openLog(QByteArray(1000, 'x'));
    ASSERT_TRUE(spinUntil([this] { return view.logView().horizontalScrollBar()->isVisible(); }));
    const QWidget& viewport = *view.logView().viewport();
    const auto placeInView = [this](const QWidget& widget) {
        return QRect(widget.mapTo(&view, QPoint()), widget.size());
    };
    EXPECT_TRUE(spinUntil([&] {
        return placeInView(view.statusOverlay()).bottomLeft() == placeInView(viewport).bottomLeft();
    }));
    EXPECT_TRUE(placeInView(viewport).contains(placeInView(view.statusOverlay())));
}

TEST_F(StatusOverlayTest, AtTheEndOfTheLogNoRowLiesBelowIt)
{
    view.show();
    openLog(QByteArray("line\n").repeated(200));
    const LogTextView& log = view.logView();
    ASSERT_TRUE(spinUntil([&] { return log.attributedText().rows().size() == 200; }));
    const int rowsEnd = log.boxOfPosition(TextPosition{199, 0}).bottom();
    EXPECT_LT(log.viewport()->mapTo(&view, QPoint(0, rowsEnd)).y(),
              view.statusOverlay().mapTo(&view, QPoint(0, 0)).y() + 6);
}

} // namespace
} // namespace quillon
