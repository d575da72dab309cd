// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/helper_process.h"
#include "tests/window/test_session.h"

#include <QColor>
#include <QImage>
#include <QList>
#include <QPoint>
#include <QProcessEnvironment>
#include <QRect>
#include <QSize>
#include <QString>

#include <memory>

namespace quillon {

// A window that the window manager shows.
struct DesktopWindow {
    QString id; // the window system's, as its tools take it
    QString title;
};

// A desktop of its own for a suite of tests: a screen in memory, a window manager and a session
// bus, none of which touches those of whoever runs the tests.
class Desktop {
public:
    // The screen's size is in pixels.
    explicit Desktop(QSize screen = QSize(1400, 1000));

    // What a program needs to come up here.
    [[nodiscard]] QuillonProcess::Environment variables() const
    {
        return m_session.variables(QStringLiteral("xcb"));
    }
    [[nodiscard]] const QProcessEnvironment& environment() const { return m_session.environment(); }

    // The windows on the screen, oldest first.
    [[nodiscard]] QList<DesktopWindow> windows() const;
    [[nodiscard]] QStringList titles() const;
    // The title of the window that has the keyboard.
    [[nodiscard]] QString activeTitle() const;
    // The id of the window of that title, empty when there is none.
    [[nodiscard]] QString windowTitled(const QString& title) const;

    // Keys go to whatever has the keyboard, as from a real one: "ctrl+o", "Escape".
    void press(const QString& keys) const;
    void type(const QString& text) const;
    // Brings the window to the front as a user does who clicks it in a task bar.
    void activate(const QString& windowId) const;
    // Asks the window manager for another size of the window's inside.
    void resize(const QString& windowId, QSize size) const;
    // Asks for another place of the window's upper left corner, its frame included.
    void move(const QString& windowId, QPoint place) const;
    // The place and size of the window's inside, in pixels.
    [[nodiscard]] QRect geometry(const QString& windowId) const;
    [[nodiscard]] QSize size(const QString& windowId) const { return geometry(windowId).size(); }
    // The size of the window with the frame that the window manager gives it.
    [[nodiscard]] QSize outerSize(const QString& windowId) const;
    // Clicks its title bar twice, which makes the window as large as the screen.
    void maximise(const QString& windowId) const;
    // What the window looks like now.
    [[nodiscard]] QImage picture(const QString& windowId) const;
    [[nodiscard]] QString clipboard() const;
    // What the middle button would paste.
    [[nodiscard]] QString primarySelection() const;

private:
    [[nodiscard]] QString selection(const QString& name) const;
    void startScreen(QSize screen);
    void startWindowManager();
    QByteArray ask(const QString& tool, const QStringList& arguments) const;

    TestSession m_session;
    std::unique_ptr<HelperProcess> m_screen;
    std::unique_ptr<HelperProcess> m_windowManager;
};

// How many pixels of the picture have exactly that colour.
int pixelsOfColor(const QImage& picture, const QColor& color);

} // namespace quillon
