// SPDX-License-Identifier: MIT
#include "tests/support/spin_until.h"
#include "ui/controls/color_well.h"
#include "ui/controls/link_button.h"
#include "ui/controls/style.h"
#include "ui/controls/switch_box.h"
#include "ui/controls/symbol_label.h"
#include "ui/controls/text_label.h"
#include "ui/controls/toolbar_button.h"
#include "ui/theme/contrast.h"

#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QSlider>
#include <QVBoxLayout>

#include <gtest/gtest.h>

namespace quillon {
namespace {

class EveryAppearance : public testing::TestWithParam<Appearance> {};

INSTANTIATE_TEST_SUITE_P(Style, EveryAppearance,
                         testing::Values(Appearance::Light, Appearance::Dark),
                         [](const auto& instance) {
                             return instance.param == Appearance::Light ? "Light" : "Dark";
                         });

TEST_P(EveryAppearance, ReachesTheWholeApplicationWhenApplied)
{
    applyAppearance(*qApp, GetParam());
    EXPECT_EQ(appearanceOf(QApplication::palette()), GetParam());
    EXPECT_NE(qobject_cast<Style*>(QApplication::style()), nullptr);
}

// What a widget looks like, without and with the keyboard.
std::pair<QImage, QImage> picturesOf(QWidget& widget)
{
    widget.window()->show();
    const QImage without = widget.grab().toImage();
    widget.window()->activateWindow();
    widget.setFocus(Qt::TabFocusReason);
    // As a press of Tab has it.
    widget.window()->setAttribute(Qt::WA_KeyboardFocusChange);
    EXPECT_TRUE(spinUntil([&widget] { return widget.hasFocus(); }));
    return {without, widget.grab().toImage()};
}

int pixelsOf(const QImage& picture, const QColor& color)
{
    int count = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            count += picture.pixel(x, y) == color.rgb() ? 1 : 0;
        }
    }
    return count;
}

TEST_P(EveryAppearance, RingsWhateverHasTheKeyboardInOneColour)
{
    applyAppearance(*qApp, GetParam());
    QWidget window;
    QVBoxLayout column(&window);
    ToolbarButton tool(ToolbarButton::Kind::Action, {Symbol::Clear, 18, QString()});
    QPushButton push(QStringLiteral("Choisir…"));
    ColorWell well;
    well.setColor(Qt::white);
    SwitchBox box(QStringLiteral("a"));
    LinkButton link(QStringLiteral("Site"), QUrl(QStringLiteral("https://help.example")));
    QLineEdit field;
    QSlider slider(Qt::Horizontal);
    QWidget first;
    first.setFocusPolicy(Qt::StrongFocus);
    column.addWidget(&first);
    const std::vector<std::pair<const char*, QWidget*>> controls{
        {"tool", &tool}, {"push", &push},   {"well", &well},    {"switch", &box},
        {"link", &link}, {"field", &field}, {"slider", &slider}};
    for (const auto& [name, control] : controls) {
        column.addWidget(control);
    }
    const QColor ring = window.palette().color(QPalette::Link);
    for (const auto& [name, control] : controls) {
        const auto [without, with] = picturesOf(*control);
        EXPECT_GT(pixelsOf(with, ring), pixelsOf(without, ring) + 20) << name;
        first.setFocus();
    }
}

TEST_P(EveryAppearance, GivesMenusAnEdgeAndVisibleSeparators)
{
    applyAppearance(*qApp, GetParam());
    QMenu menu;
    menu.addAction(QStringLiteral("a"));
    QAction* const separator = menu.addSeparator();
    menu.addAction(QStringLiteral("b"));
    menu.popup(QPoint(0, 0));
    const QImage picture = menu.grab().toImage();
    const QColor inside = picture.pixelColor(picture.width() / 2, 3);
    const QColor edge = picture.pixelColor(0, picture.height() / 2);
    const QColor line = picture.pixelColor(menu.actionGeometry(separator).center());
    EXPECT_GE(contrastRatio(edge, inside), 1.3);
    EXPECT_GE(contrastRatio(line, inside), 1.3);
}

TEST(TextLabel, FollowsTheApplicationsTextSize)
{
    applyAppearance(*qApp, Appearance::Light);
    const TextLabel title(QStringLiteral("a"), TextStyle::Title2, FontWeight::Bold);
    const TextLabel note(QStringLiteral("a"), TextStyle::Footnote);
    EXPECT_EQ(title.font().pixelSize(), 17);
    EXPECT_EQ(note.font().pixelSize(), 11);
    applyAppearance(*qApp, Appearance::Light, 2.0);
    EXPECT_EQ(title.font().pixelSize(), 34);
    EXPECT_TRUE(title.font().bold());
    EXPECT_EQ(note.font().pixelSize(), 22);
    applyAppearance(*qApp, Appearance::Light);
}

TEST(SymbolLabel, ShowsItsSymbolAtTheSizeAskedFor)
{
    SymbolLabel label(Symbol::Help, 24);
    EXPECT_EQ(label.size(), QSize(24, 24));
    QImage image(24, 24, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    label.render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
    int inked = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            inked += qAlpha(image.pixel(x, y)) > 128 ? 1 : 0;
        }
    }
    EXPECT_GT(inked, 15);
}

} // namespace
} // namespace quillon
