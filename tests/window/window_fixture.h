// SPDX-License-Identifier: MIT
#pragma once

#include "tests/app/print/quillon_process.h"
#include "tests/support/temporary_folder.h"
#include "tests/window/accessibility.h"
#include "tests/window/desktop.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <vector>

namespace quillon {

inline const QString kEmptyTitle = QStringLiteral("Quillon");
inline const QString kHelpTitle = QStringLiteral("Aide Quillon");
inline const QString kOpenTitle = QStringLiteral("Ouvrir un fichier de log");
inline const QString kPreferencesTitle = QStringLiteral("Préférences");
inline const QString kLog = QStringLiteral("php.log");
inline const QString kLogTitle = QStringLiteral("php.log — Quillon");

// Tests of the real program, a process of its own, on a desktop of its own with a screen reader.
class WindowTest : public testing::Test {
protected:
    static void SetUpTestSuite();
    static void TearDownTestSuite();

    static Desktop& desktop() { return *s_desktop; }
    static ScreenReader& screenReader() { return *s_screenReader; }
    [[nodiscard]] const TemporaryFolder& folder() const { return m_folder; }

    // The program with those arguments, not started yet. The last one made is the one that the
    // operations below look at.
    QuillonProcess& program(const QStringList& arguments,
                            const QuillonProcess::Environment& more = {});
    // Starts the program and waits until the window of that title has the keyboard.
    QuillonProcess& start(const QStringList& arguments, const QString& title);
    // Starts the program on a log of that content.
    QuillonProcess& startWithLog(const QByteArray& content, const QStringList& options = {});
    [[nodiscard]] QuillonProcess& running() const { return *m_programs.back(); }

    // Waits until that window has the keyboard.
    void awaitActive(const QString& title) const;
    // Gives the keyboard to that window of several, as a click on it does.
    void bringForward(const QString& title) const;
    // Waits until these windows are on the screen, in any order, and no others.
    void awaitWindows(QStringList titles) const;

    // Closes the window that has the keyboard, and that title, with the window manager's own key.
    void closeByWindowManager(const QString& title) const;

    // The running program's window as a screen reader has it; an empty one while there is none.
    [[nodiscard]] AccessibleNode window(const QString& title) const;
    [[nodiscard]] AccessibleNode mainWindow() const { return window(kLogTitle); }
    // The rows of the log and the status text in the running program's main window.
    [[nodiscard]] QString rows() const;
    [[nodiscard]] QString status(const QString& title = kLogTitle) const;
    // The element that the running program last announced as having the keyboard.
    [[nodiscard]] QString announcedFocus() const;
    // Presses a key that leads the keyboard to the element of that name, and waits until it is
    // announced there.
    void pressToFocus(const QString& key, const QString& name) const;
    // Waits until the log shows these rows and nothing else.
    void awaitRows(const QString& rows) const;
    // Waits until a toggle of that name is on or off in the main window.
    void awaitToggle(const QString& name, bool isOn) const;

private:
    // Waits for the condition, but not for a program that has ended, nor after a first failure.
    [[nodiscard]] bool await(const std::function<bool()>& condition) const;

    static std::unique_ptr<Desktop> s_desktop;
    static std::unique_ptr<ScreenReader> s_screenReader;

    TemporaryFolder m_folder;
    std::vector<std::unique_ptr<QuillonProcess>> m_programs;
};

} // namespace quillon
