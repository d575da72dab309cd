// SPDX-License-Identifier: MIT
#include "tests/window/window_fixture.h"

#include "tests/support/printing.h"
#include "tests/support/spin_until.h"

#include <chrono>

namespace quillon {

namespace {

// A program under the sanitizers, on a machine that builds something else meanwhile.
constexpr std::chrono::seconds kPatience{60};

} // namespace

std::unique_ptr<Desktop> WindowTest::s_desktop;
std::unique_ptr<ScreenReader> WindowTest::s_screenReader;

void WindowTest::SetUpTestSuite()
{
    s_desktop = std::make_unique<Desktop>();
    s_screenReader = std::make_unique<ScreenReader>(s_desktop->environment());
    s_screenReader->listen();
}

void WindowTest::TearDownTestSuite()
{
    s_screenReader.reset();
    s_desktop.reset();
}

QuillonProcess& WindowTest::program(const QStringList& arguments,
                                    const QuillonProcess::Environment& more)
{
    m_programs.push_back(std::make_unique<QuillonProcess>(arguments, desktop().variables() + more));
    return *m_programs.back();
}

QuillonProcess& WindowTest::start(const QStringList& arguments, const QString& title)
{
    QuillonProcess& started = program(arguments);
    started.start();
    awaitActive(title);
    return started;
}

QuillonProcess& WindowTest::startWithLog(const QByteArray& content, const QStringList& options)
{
    return start(options + QStringList{m_folder.write(kLog, content)}, kLogTitle);
}

bool WindowTest::await(const std::function<bool()>& condition) const
{
    const auto isInVain = [this] {
        return HasFatalFailure() || running().process().state() == QProcess::NotRunning;
    };
    const bool isMet =
        spinUntil([&] { return condition() || isInVain(); }, kPatience) && condition();
    EXPECT_TRUE(isMet || !isInVain())
        << "the program has ended: " << running().errors().toStdString();
    return isMet;
}

void WindowTest::awaitActive(const QString& title) const
{
    ASSERT_TRUE(await([&title] { return desktop().activeTitle() == title; }))
        << "no window “" << qPrintable(title) << "” has the keyboard, but “"
        << qPrintable(desktop().activeTitle()) << "”";
}

void WindowTest::bringForward(const QString& title) const
{
    // What is asked while the window manager moves the focus, as it does for each new window, is
    // lost; a user would click again.
    constexpr int kAttempts = 10;
    const auto isActive = [&title] {
        return desktop().activeTitle() == title;
    };
    for (int attempt = 0; attempt < kAttempts && !isActive(); ++attempt) {
        desktop().activate(desktop().windowTitled(title));
        static_cast<void>(spinUntil(isActive, std::chrono::seconds(2)));
    }
    awaitActive(title);
}

void WindowTest::awaitWindows(QStringList titles) const
{
    titles.sort();
    const auto shown = [] {
        QStringList sorted = desktop().titles();
        sorted.sort();
        return sorted;
    };
    ASSERT_TRUE(await([&] { return shown() == titles; }))
        << "the windows are: " << qPrintable(shown().join(QStringLiteral(", ")));
}

void WindowTest::closeByWindowManager(const QString& title) const
{
    // The key is lost when it comes while the window manager moves the focus, as it does for each
    // new window; a user would press it again.
    constexpr int kAttempts = 10;
    for (int attempt = 0; attempt < kAttempts && desktop().activeTitle() == title; ++attempt) {
        desktop().press(QStringLiteral("alt+F4"));
        if (spinUntil([&title] { return desktop().windowTitled(title).isEmpty(); },
                      std::chrono::seconds(2))) {
            return;
        }
    }
    FAIL() << qPrintable(title) << " does not close";
}

AccessibleNode WindowTest::window(const QString& title) const
{
    return screenReader().window(running().process().processId(), title).value_or(AccessibleNode());
}

QString WindowTest::rows() const
{
    return elementOfRole(mainWindow(), QStringLiteral("document frame")).text.value_or(QString());
}

QString WindowTest::status(const QString& title) const
{
    return elementOfRole(window(title), QStringLiteral("label")).name;
}

QString WindowTest::announcedFocus() const
{
    QString focus;
    for (const AccessibleEvent& event : screenReader().heard(running().process().processId())) {
        if (event.type == QLatin1StringView("object:state-changed:focused") && event.detail == 1) {
            focus = event.name;
        }
    }
    return focus;
}

void WindowTest::pressToFocus(const QString& key, const QString& name) const
{
    desktop().press(key);
    ASSERT_TRUE(await([&] { return announcedFocus() == name; }))
        << qPrintable(key) << " leads to " << qPrintable(announcedFocus()) << " and not to "
        << qPrintable(name);
}

void WindowTest::awaitRows(const QString& rows) const
{
    ASSERT_TRUE(await([&] { return this->rows() == rows; }))
        << "the rows are: " << qPrintable(this->rows());
}

void WindowTest::awaitToggle(const QString& name, bool isOn) const
{
    ASSERT_TRUE(await([&] {
        const AccessibleNode toggle = element(mainWindow(), QStringLiteral("check box"), name);
        return toggle.is("enabled") && toggle.is("checked") == isOn;
    })) << qPrintable(name)
        << " does not become " << (isOn ? "on" : "off");
}

} // namespace quillon
