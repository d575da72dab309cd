// SPDX-License-Identifier: MIT
#include "tests/support/spin_until.h"
#include "tests/ui/windows/content_view_fixture.h"
#include "ui/controls/style.h"
#include "ui/windows/help_window.h"
#include "ui/windows/log_hint.h"
#include "ui/windows/preferences_window.h"
#include "ui/windows/status_overlay.h"

#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QScrollArea>

namespace quillon {
namespace {

class TextSize : public ContentViewFixture {
protected:
    TextSize() { applyAppearance(*qApp, Appearance::Light); }
    ~TextSize() override { applyAppearance(*qApp, Appearance::Light); }

    static void setTextScale(double scale) { applyAppearance(*qApp, Appearance::Light, scale); }

    // The texts of a window that do not fit into their place.
    static QStringList clippedTexts(const QWidget& window)
    {
        QStringList clipped;
        const auto note = [&clipped](const QWidget& widget, const QString& text, QSize needed) {
            if (widget.isVisible() &&
                (widget.width() < needed.width() || widget.height() < needed.height())) {
                clipped.append(text);
            }
        };
        for (const QLabel* const label : window.findChildren<QLabel*>()) {
            // The path gives way by design, and so does a text that is broken into lines.
            if (qobject_cast<const ElidedLabel*>(label) == nullptr && !label->wordWrap()) {
                note(*label, label->text(), label->sizeHint());
            }
        }
        for (const QAbstractButton* const button : window.findChildren<QAbstractButton*>()) {
            note(*button, button->text() + button->toolTip(), button->sizeHint());
        }
        for (const QLineEdit* const edit : window.findChildren<QLineEdit*>()) {
            note(*edit, edit->placeholderText(), edit->minimumSizeHint());
        }
        return clipped;
    }

    // Whether everything within the scrolling content of a window can be seen, if need be by
    // scrolling sideways where the screen has no more room.
    static bool fitsSideways(const QWidget& window)
    {
        const auto* const area = window.findChild<QScrollArea*>();
        return area->widget()->minimumSizeHint().width() <= area->viewport()->width() ||
               area->horizontalScrollBarPolicy() == Qt::ScrollBarAsNeeded;
    }
};

TEST_F(TextSize, InTheMainWindowNothingIsClippedUpTo200Percent)
{
    view.show();
    for (const double scale : {1.0, 1.25, 1.5, 2.0}) {
        setTextScale(scale);
        view.resize(view.minimumSize());
        EXPECT_TRUE(spinUntil([this] { return clippedTexts(view).isEmpty(); }))
            << scale << qPrintable(clippedTexts(view).join(QLatin1Char('|')));
        EXPECT_EQ(view.size(), QSize(820, 520));
    }
}

TEST_F(TextSize, TheStatusOverlayGrowsWithTheTextAndStaysAtTheBottom)
{
    view.show();
    const int before = view.statusOverlay().height();
    setTextScale(2.0);
    EXPECT_TRUE(spinUntil([&] { return view.statusOverlay().height() > before + 8; }));
    EXPECT_EQ(view.statusOverlay().mapTo(&view, QPoint(0, view.statusOverlay().height())).y(),
              view.height());
    EXPECT_GE(view.statusOverlay().statusLabel().height(),
              view.statusOverlay().statusLabel().sizeHint().height());
}

TEST_F(TextSize, InThePreferencesNothingIsClippedUpTo200Percent)
{
    PreferencesWindow preferences(temporary.defaults, temporary.center);
    preferences.present();
    for (const double scale : {1.0, 1.25, 1.5, 2.0}) {
        setTextScale(scale);
        EXPECT_TRUE(spinUntil([&] {
            return fitsSideways(preferences) && clippedTexts(preferences).isEmpty();
        })) << scale
            << qPrintable(clippedTexts(preferences).join(QLatin1Char('|')));
    }
}

TEST_F(TextSize, PreferencesThatOpenWithLargeTextsShowThemWhole)
{
    setTextScale(2.0);
    PreferencesWindow preferences(temporary.defaults, temporary.center);
    preferences.present();
    EXPECT_TRUE(spinUntil(
        [&] { return fitsSideways(preferences) && clippedTexts(preferences).isEmpty(); }));
}

TEST_F(TextSize, InTheHelpNothingIsClippedUpTo200Percent)
{
    HelpWindow::show();
    for (const double scale : {1.0, 1.5, 2.0}) {
        setTextScale(scale);
        EXPECT_TRUE(spinUntil([] {
            return fitsSideways(*HelpWindow::window()) &&
                   clippedTexts(*HelpWindow::window()).isEmpty();
        })) << scale;
    }
    HelpWindow::window()->close();
}

TEST_F(TextSize, TheOtherWindowsAreWindowsToScreenReaders)
{
    PreferencesWindow preferences(temporary.defaults, temporary.center);
    HelpWindow::show();
    for (QWidget* const window : {static_cast<QWidget*>(&preferences), HelpWindow::window()}) {
        QAccessibleInterface* const accessible = QAccessible::queryAccessibleInterface(window);
        ASSERT_NE(accessible, nullptr);
        EXPECT_EQ(accessible->role(), QAccessible::Window);
        EXPECT_EQ(accessible->text(QAccessible::Name), window->windowTitle());
    }
    HelpWindow::window()->close();
}

} // namespace
} // namespace quillon
