// SPDX-License-Identifier: MIT
#include "tests/ui/windows/content_view_fixture.h"
#include "ui/controls/symbol_label.h"
#include "ui/log_text/log_text_view.h"
#include "ui/windows/toolbar_row.h"
#include "ui/windows/toolbar_search_field.h"

#include <QTest>
#include <QWindow>

#include <array>

namespace quillon {
namespace {

class Toolbar : public ContentViewFixture {
protected:
    struct Toggle {
        const char* toolTip;
        Published<bool>& field;
    };
    std::array<Toggle, 6> toggles{
        Toggle{"Suivre en direct (tail)", viewModel.followTail},
        Toggle{"Activer le retour à la ligne", viewModel.wrapLines},
        Toggle{"Afficher les lignes PHP Deprecated", viewModel.showDeprecated},
        Toggle{"Afficher les lignes PHP Warning", viewModel.showWarning},
        Toggle{"Afficher les lignes PHP Notice", viewModel.showNotice},
        Toggle{"Afficher uniquement Fatal/Error", viewModel.onlyErrors},
    };

    // The controls that Tab reaches, by the names that screen readers give them.
    [[nodiscard]] QStringList tabOrder() const
    {
        QStringList names;
        const QWidget* widget = view.nextInFocusChain();
        for (; widget != &view; widget = widget->nextInFocusChain()) {
            if ((widget->focusPolicy() & Qt::TabFocus) != 0 && widget->isEnabled()) {
                names.append(widget->accessibleName());
            }
        }
        return names;
    }
};

TEST_F(Toolbar, WithoutAFileTheFollowToggleIsDisabled)
{
    EXPECT_FALSE(follow().isEnabled());
}

TEST_F(Toolbar, WithoutLinesTheClearButtonIsDisabled)
{
    EXPECT_FALSE(clear().isEnabled());
}

TEST_F(Toolbar, AfterAFileIsOpenedTheFollowToggleIsEnabled)
{
    openLog();
    EXPECT_TRUE(follow().isEnabled());
    EXPECT_TRUE(clear().isEnabled());
}

TEST_F(Toolbar, AFileThatCannotBeOpenedStillEnablesTheFollowToggle)
{
    viewModel.openLog(temporary.folder.url(QStringLiteral("missing.log")));
    EXPECT_TRUE(follow().isEnabled());
    EXPECT_FALSE(clear().isEnabled());
}

TEST_F(Toolbar, AfterClearingTheClearButtonIsDisabledAndTheFollowToggleStaysEnabled)
{
    openLog();
    clear().click();
    EXPECT_TRUE(viewModel.lines.get().isEmpty());
    EXPECT_FALSE(clear().isEnabled());
    EXPECT_TRUE(follow().isEnabled());
}

TEST_F(Toolbar, EachToggleSetsItsField)
{
    openLog();
    for (const Toggle& toggle : toggles) {
        const bool before = toggle.field.get();
        button(toggle.toolTip).click();
        EXPECT_NE(toggle.field.get(), before) << toggle.toolTip;
        button(toggle.toolTip).click();
        EXPECT_EQ(toggle.field.get(), before) << toggle.toolTip;
    }
}

TEST_F(Toolbar, EachToggleShowsItsField)
{
    for (const Toggle& toggle : toggles) {
        EXPECT_EQ(button(toggle.toolTip).isChecked(), toggle.field.get()) << toggle.toolTip;
        toggle.field.set(!toggle.field.get());
        EXPECT_EQ(button(toggle.toolTip).isChecked(), toggle.field.get()) << toggle.toolTip;
    }
}

TEST_F(Toolbar, ShowingAFieldDoesNotWriteItBack)
{
    int writes = 0;
    const Subscription watch = viewModel.showWarning.observeWillChange([&writes] { ++writes; });
    viewModel.showWarning.set(false);
    EXPECT_EQ(writes, 1);
}

TEST_F(Toolbar, SpacePressesAToggleThatHasTheKeyboard)
{
    view.show();
    QTest::keyClick(&wrap(), Qt::Key_Space);
    EXPECT_FALSE(viewModel.wrapLines.get());
}

TEST_F(Toolbar, TheSizeSliderOnlyProducesWholeValuesFrom10To24)
{
    viewModel.fontSize.set(16.5);
    sizeSlider().setValue(0);
    EXPECT_EQ(viewModel.fontSize.get(), 10.0);
    QTest::keyClick(&sizeSlider(), Qt::Key_Right);
    EXPECT_EQ(viewModel.fontSize.get(), 11.0);
    sizeSlider().setValue(99);
    EXPECT_EQ(viewModel.fontSize.get(), 24.0);
}

TEST_F(Toolbar, ASizeBetweenTheSlidersStopsIsKeptUntilTheUserMovesIt)
{
    viewModel.fontSize.set(16.5);
    EXPECT_EQ(sizeSlider().value(), 17);
    EXPECT_EQ(viewModel.fontSize.get(), 16.5);
}

TEST_F(Toolbar, ASizeOutsideTheSlidersRangeIsNotRewritten)
{
    viewModel.fontSize.set(1e300);
    EXPECT_EQ(sizeSlider().value(), 24);
    EXPECT_EQ(viewModel.fontSize.get(), 1e300);
}

TEST_F(Toolbar, TypingInTheSearchFieldSetsTheQueryWithEachKey)
{
    QTest::keyClicks(&search(), QStringLiteral("fa"));
    EXPECT_EQ(viewModel.query.get(), QStringLiteral("fa"));
}

TEST_F(Toolbar, TheSearchFieldShowsTheQueryAndKeepsTheCaretWhileTyping)
{
    viewModel.query.set(QStringLiteral("fatl"));
    EXPECT_EQ(search().text(), QStringLiteral("fatl"));
    search().setCursorPosition(3);
    QTest::keyClicks(&search(), QStringLiteral("a"));
    EXPECT_EQ(viewModel.query.get(), QStringLiteral("fatal"));
    EXPECT_EQ(search().cursorPosition(), 4);
}

TEST_F(Toolbar, EscapeClearsTheSearch)
{
    viewModel.query.set(QStringLiteral("fatal"));
    QTest::keyClick(&search(), Qt::Key_Escape);
    EXPECT_EQ(viewModel.query.get(), QString());
}

TEST_F(Toolbar, TheSearchFieldAnnouncesThatExpressionsAreUnderstood)
{
    EXPECT_EQ(search().placeholderText(), QStringLiteral("Recherche… (regex ok)"));
    EXPECT_GE(search().minimumWidth(), 220);
}

TEST_F(Toolbar, AClickBesideTheSearchTextOrOnItsGlassGivesItTheKeyboard)
{
    view.show();
    QWindow& window = *view.windowHandle();
    const ToolbarSearchField& field = view.toolbar().searchField();
    for (const QPoint place :
         {QPoint(2, 2), field.findChild<SymbolLabel*>()->geometry().center()}) {
        view.logView().setFocus();
        ASSERT_NE(view.focusWidget(), &search());
        QTest::mouseClick(&window, Qt::LeftButton, Qt::NoModifier, field.mapTo(&view, place));
        EXPECT_EQ(view.focusWidget(), &search()) << place.x();
    }
}

TEST_F(Toolbar, TabGoesThroughTheControlsFromLeftToRightAndOnToTheLog)
{
    openLog();
    QStringList order = tabOrder();
    ASSERT_FALSE(order.isEmpty());
    order.removeLast(); // the log, which names itself
    EXPECT_EQ(order,
              QStringList({QStringLiteral("Ouvrir un fichier de log"),
                           QStringLiteral("Suivre en direct (tail)"),
                           QStringLiteral("Activer le retour à la ligne"),
                           QStringLiteral("Taille du texte"),
                           QStringLiteral("Afficher les lignes PHP Deprecated"),
                           QStringLiteral("Afficher les lignes PHP Warning"),
                           QStringLiteral("Afficher les lignes PHP Notice"),
                           QStringLiteral("Afficher uniquement Fatal/Error"),
                           QStringLiteral("Recherche"), QStringLiteral("Vider le contenu")}));
}

TEST_F(Toolbar, EveryIconOnlyControlIsNamedByItsToolTip)
{
    const auto controls = view.toolbar().findChildren<ToolbarButton*>();
    EXPECT_EQ(controls.size(), 8);
    for (const ToolbarButton* const control : controls) {
        EXPECT_FALSE(control->toolTip().isEmpty());
        EXPECT_EQ(control->accessibleName(), control->toolTip());
    }
}

TEST_F(Toolbar, TheToolTipOfTheTextSizeBelongsToItsWholeGroup)
{
    EXPECT_EQ(sizeSlider().parentWidget()->toolTip(), QStringLiteral("Taille du texte"));
    EXPECT_EQ(sizeSlider().accessibleName(), QStringLiteral("Taille du texte"));
}

TEST_F(Toolbar, NothingIsClippedAtTheMinimumWidth)
{
    EXPECT_LE(view.toolbar().minimumSizeHint().width(), view.minimumWidth());
}

} // namespace
} // namespace quillon
