// SPDX-License-Identifier: MIT
#include "tests/support/printing.h"
#include "tests/support/spin_until.h"
#include "tests/window/control_names.h"
#include "tests/window/window_fixture.h"

#include <algorithm>

namespace quillon {
namespace {

const QString kOpen = QStringLiteral("Ouvrir un fichier de log");
const QString kFollowToggle = QStringLiteral("Suivre en direct (tail)");
const QString kDeprecated = QStringLiteral("Afficher les lignes PHP Deprecated");
const QString kWarning = QStringLiteral("Afficher les lignes PHP Warning");
const QString kNotice = QStringLiteral("Afficher les lignes PHP Notice");
const QString kOnlyErrors = QStringLiteral("Afficher uniquement Fatal/Error");
const QString kClear = QStringLiteral("Vider le contenu");
const QString kContent = QStringLiteral("Contenu du log");

const QStringList kToolbar{kOpen,    kFollowToggle, kWrap,       kTextSize, kDeprecated,
                           kWarning, kNotice,       kOnlyErrors, kSearch,   kClear};

// The controls of the toolbar from left to right.
QList<AccessibleNode> toolbarControls(const AccessibleNode& window)
{
    QList<AccessibleNode> controls;
    for (const AccessibleNode& node : elementsOf(window)) {
        if (kToolbar.contains(node.name) && node.is("focusable")) {
            controls.append(node);
        }
    }
    std::sort(controls.begin(), controls.end(), [](const auto& left, const auto& right) {
        return left.box.left() < right.box.left();
    });
    return controls;
}

QStringList namesOf(const QList<AccessibleNode>& nodes)
{
    QStringList names;
    for (const AccessibleNode& node : nodes) {
        names.append(node.name);
    }
    return names;
}

class ScreenReading : public WindowTest {
protected:
    [[nodiscard]] bool hasHeard(const char* type, int detail, const QString& name) const
    {
        const auto heard = screenReader().heard(running().process().processId());
        return std::any_of(heard.begin(), heard.end(), [&](const AccessibleEvent& event) {
            return event.type == QLatin1StringView(type) && event.detail == detail &&
                   event.name == name;
        });
    }
    // Waits until the status bar has said so.
    [[nodiscard]] bool isToldByStatusBar(const QString& news) const
    {
        return spinUntil([&] {
            const auto heard = screenReader().heard(running().process().processId());
            return std::any_of(heard.begin(), heard.end(), [&](const AccessibleEvent& event) {
                return event.type == QLatin1StringView("object:property-change:accessible-name") &&
                       event.role == QLatin1StringView("status bar") && event.name == news;
            });
        });
    }
    // Whether it was announced that this text has come to, or gone from, that place of the log.
    [[nodiscard]] bool hasHeardOfText(const char* change, int place, const QString& text) const
    {
        const auto heard = screenReader().heard(running().process().processId());
        return std::any_of(heard.begin(), heard.end(), [&](const AccessibleEvent& event) {
            return event.type ==
                       QLatin1StringView("object:text-changed:") + QLatin1StringView(change) &&
                   event.detail == place && event.name == kContent && event.text == text;
        });
    }
};

TEST_F(ScreenReading, EveryToolbarControlIsNamedByItsTooltipInVisualOrder)
{
    startWithLog("a\n");
    awaitRows(QStringLiteral("1\ta\n"));
    EXPECT_EQ(namesOf(toolbarControls(mainWindow())), kToolbar);
}

TEST_F(ScreenReading, EveryToolbarControlSaysWhatItIs)
{
    startWithLog("a\n");
    awaitRows(QStringLiteral("1\ta\n"));
    QStringList roles;
    for (const AccessibleNode& control : toolbarControls(mainWindow())) {
        roles.append(control.role);
    }
    const QString button = QStringLiteral("push button");
    const QString toggle = QStringLiteral("check box");
    EXPECT_EQ(roles, (QStringList{button, toggle, toggle, QStringLiteral("slider"), toggle, toggle,
                                  toggle, toggle, QStringLiteral("text"), button}));
}

TEST_F(ScreenReading, TogglesSayWhetherTheyAreOn)
{
    startWithLog("a\n");
    awaitRows(QStringLiteral("1\ta\n"));
    QStringList checked;
    for (const AccessibleNode& control : toolbarControls(mainWindow())) {
        if (control.is("checked")) {
            checked.append(control.name);
        }
    }
    EXPECT_EQ(checked, (QStringList{kWrap, kDeprecated, kWarning, kNotice}));
}

TEST_F(ScreenReading, WithNoFileOpenFollowAndClearSayThatTheyAreDisabled)
{
    start({}, kEmptyTitle);
    ASSERT_TRUE(spinUntil([this] { return !window(kEmptyTitle).children.isEmpty(); }));
    QStringList disabled;
    for (const AccessibleNode& node : elementsOf(window(kEmptyTitle))) {
        if (kToolbar.contains(node.name) && !node.is("enabled")) {
            disabled.append(node.name);
        }
    }
    EXPECT_EQ(disabled, (QStringList{kFollowToggle, kClear}));
}

TEST_F(ScreenReading, WithNoFileOpenTheStatusIsTheOnlyTextOverTheLog)
{
    start({}, kEmptyTitle);
    ASSERT_TRUE(spinUntil(
        [this] { return status(kEmptyTitle) == QStringLiteral("Lignes: 0 • Affichées: 0"); }));
    const QList<AccessibleNode> elements = elementsOf(window(kEmptyTitle));
    EXPECT_EQ(std::count_if(elements.begin(), elements.end(),
                            [](const AccessibleNode& node) {
                                return node.role == QLatin1StringView("label") &&
                                       node.is("showing");
                            }),
              1);
}

TEST_F(ScreenReading, TabGoesThroughTheControlsInVisualOrder)
{
    startWithLog("a\n");
    awaitRows(QStringLiteral("1\ta\n"));
    EXPECT_TRUE(element(mainWindow(), QStringLiteral("document frame"), kContent).is("focused"));
    for (const QString& name : kToolbar) {
        pressToFocus(QStringLiteral("Tab"), name);
    }
    pressToFocus(QStringLiteral("Tab"), kContent);
    pressToFocus(QStringLiteral("shift+Tab"), kClear);
}

TEST_F(ScreenReading, TheLogGivesItsRowsAsReadOnlyText)
{
    startWithLog("PHP Notice:  é 日本\nPHP Fatal error:  b\n");
    awaitRows(QStringLiteral("1\tPHP Notice:  é 日本\n2\tPHP Fatal error:  b\n"));
    const AccessibleNode log = element(mainWindow(), QStringLiteral("document frame"), kContent);
    EXPECT_TRUE(log.is("read-only"));
    EXPECT_TRUE(log.is("multi-line"));
}

TEST_F(ScreenReading, RowsThatAreWrittenToTheLogAreAnnounced)
{
    startWithLog("a\n", {QStringLiteral("--follow")});
    awaitRows(QStringLiteral("1\ta\n"));
    folder().append(kLog, "PHP Notice:  é\nb\n");
    EXPECT_TRUE(spinUntil([this] {
        return hasHeardOfText("insert", 4, QStringLiteral("2\tPHP Notice:  é\n3\tb\n"));
    }));
}

TEST_F(ScreenReading, WhatASearchTakesAwayAndLeavesIsAnnounced)
{
    startWithLog("one\ntwo\n");
    awaitRows(QStringLiteral("1\tone\n2\ttwo\n"));
    desktop().press(QStringLiteral("ctrl+f"));
    desktop().type(QStringLiteral("tw"));
    awaitRows(QStringLiteral("2\ttwo\n"));
    EXPECT_TRUE(spinUntil([this] {
        return hasHeardOfText("delete", 0, QStringLiteral("1\tone\n2\ttwo\n")) &&
               hasHeardOfText("insert", 0, QStringLiteral("2\ttwo\n"));
    }));
}

TEST_F(ScreenReading, TheSelectionAndItsCaretAreAnnounced)
{
    startWithLog("one\ntwo\n");
    awaitRows(QStringLiteral("1\tone\n2\ttwo\n"));
    desktop().press(QStringLiteral("shift+Right"));
    EXPECT_TRUE(spinUntil([this] {
        return hasHeard("object:text-selection-changed", 0, kContent) &&
               hasHeard("object:text-caret-moved", 1, kContent);
    }));
    desktop().press(QStringLiteral("ctrl+a"));
    EXPECT_TRUE(spinUntil([this] { return hasHeard("object:text-caret-moved", 12, kContent); }));
}

TEST_F(ScreenReading, TheSpaceBarTurnsATogglesStateWhichIsAnnounced)
{
    startWithLog("PHP Warning:  a\nb\n");
    awaitRows(QStringLiteral("1\tPHP Warning:  a\n2\tb\n"));
    for (const QString& name : {kOpen, kFollowToggle, kWrap, kTextSize, kDeprecated, kWarning}) {
        pressToFocus(QStringLiteral("Tab"), name);
    }
    desktop().press(QStringLiteral("space"));
    awaitRows(QStringLiteral("2\tb\n"));
    EXPECT_TRUE(
        spinUntil([this] { return hasHeard("object:state-changed:checked", 0, kWarning); }));
    desktop().press(QStringLiteral("space"));
    EXPECT_TRUE(
        spinUntil([this] { return hasHeard("object:state-changed:checked", 1, kWarning); }));
}

TEST_F(ScreenReading, ThatAControlBecomesUsableIsAnnounced)
{
    const QString path = folder().write(kLog, "a\n");
    start({}, kEmptyTitle);
    ASSERT_TRUE(spinUntil([this] { return !window(kEmptyTitle).children.isEmpty(); }));
    QuillonProcess second({path}, desktop().variables());
    EXPECT_EQ(second.run(), 0);
    awaitActive(kLogTitle);
    EXPECT_TRUE(spinUntil([this] {
        return hasHeard("object:state-changed:enabled", 1, kFollowToggle) &&
               hasHeard("object:state-changed:enabled", 1, kClear);
    }));
}

// The answer would otherwise come when the dialog is closed, and the screen reader hang until then.
TEST_F(ScreenReading, OpeningByTheAccessibleActionAnswersAtOnce)
{
    const QString dialog = QStringLiteral("Ouvrir un fichier de log");
    start({}, kEmptyTitle);
    ASSERT_TRUE(spinUntil([this] { return !window(kEmptyTitle).children.isEmpty(); }));
    const qint64 process = running().process().processId();
    for (const auto& [role, name] :
         {std::pair(QStringLiteral("menu item"), QStringLiteral("Ouvrir un log…")),
          std::pair(QStringLiteral("push button"), kOpen)}) {
        EXPECT_TRUE(screenReader().act(process, role, name)) << qPrintable(role);
        awaitActive(dialog);
        desktop().press(QStringLiteral("Escape"));
        awaitActive(kEmptyTitle);
    }
}

TEST_F(ScreenReading, TheCountsOfASearchAreToldByTheStatusBar)
{
    startWithLog("one\ntwo\n");
    awaitRows(QStringLiteral("1\tone\n2\ttwo\n"));
    desktop().press(QStringLiteral("ctrl+f"));
    desktop().type(QStringLiteral("tw"));
    EXPECT_TRUE(isToldByStatusBar(QStringLiteral("Lignes: 2 • Affichées: 1")));
}

TEST_F(ScreenReading, ASearchThatTakesLongIsToldByTheStatusBarAndThenItsCounts)
{
    // Each line takes as long as any may: all of them more than anyone wants to wait.
    startWithLog((QByteArray(60, 'a') + '\n').repeated(900));
    desktop().press(QStringLiteral("ctrl+f"));
    desktop().type(QStringLiteral("(a+)+b"));
    EXPECT_TRUE(isToldByStatusBar(QStringLiteral("Recherche en cours…")));
    desktop().press(QStringLiteral("Escape"));
    EXPECT_TRUE(isToldByStatusBar(QStringLiteral("Lignes: 900 • Affichées: 900")));
}

TEST_F(ScreenReading, EachWindowSaysThatItIsOne)
{
    startWithLog("a\n");
    awaitRows(QStringLiteral("1\ta\n"));
    const QString role = mainWindow().role;
    desktop().press(QStringLiteral("ctrl+comma"));
    awaitActive(kPreferencesTitle);
    desktop().press(QStringLiteral("F1"));
    awaitActive(kHelpTitle);
    EXPECT_EQ(window(kPreferencesTitle).role, role);
    EXPECT_EQ(window(kHelpTitle).role, role);
    EXPECT_TRUE(role == QLatin1StringView("window") || role == QLatin1StringView("frame"))
        << qPrintable(role);
}

TEST_F(ScreenReading, TheWindowCannotBeMadeSmallerThanItsContentsMinimum)
{
    startWithLog("a\n");
    awaitRows(QStringLiteral("1\ta\n"));
    const auto contentSize = [this] {
        const AccessibleNode window = mainWindow();
        return window.children.isEmpty() ? QSize() : window.children.constFirst().box.size();
    };
    desktop().resize(desktop().windowTitled(kLogTitle), QSize(300, 200));
    ASSERT_TRUE(spinUntil([&] { return contentSize().width() < 1000; }));
    EXPECT_TRUE(spinUntil([&] { return contentSize() == QSize(820, 520); }));
}

TEST_F(ScreenReading, EveryControlOfThePreferencesHasAName)
{
    startWithLog("a\n");
    desktop().press(QStringLiteral("ctrl+comma"));
    awaitActive(kPreferencesTitle);
    ASSERT_TRUE(spinUntil([this] { return !window(kPreferencesTitle).children.isEmpty(); }));
    QStringList names;
    for (const AccessibleNode& node : elementsOf(window(kPreferencesTitle))) {
        if (node.is("focusable")) {
            names.append(node.name);
        }
    }
    EXPECT_EQ(names,
              (QStringList{QStringLiteral("Fatal / Error"), QStringLiteral("Warning (PHP Warning)"),
                           QStringLiteral("Notice (PHP Notice)"), QStringLiteral("Deprecated"),
                           QStringLiteral("Info"), QStringLiteral("Debug"),
                           QStringLiteral("Horodatage (date/heure)"),
                           QStringLiteral("Dump (array / var_dump)"),
                           QStringLiteral("Retour à la ligne par défaut"),
                           QStringLiteral("Taille de police par défaut"),
                           QStringLiteral("Dossier favori"), QStringLiteral("Choisir…"),
                           QStringLiteral("Restaurer les valeurs par défaut")}));
}

} // namespace
} // namespace quillon
