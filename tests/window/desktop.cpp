// SPDX-License-Identifier: MIT
#include "tests/window/desktop.h"

#include "tests/support/spin_until.h"

#include <QRegularExpression>

#include <gtest/gtest.h>

namespace quillon {

namespace {

const QString kXprop = QStringLiteral("xprop");
const QString kXdotool = QStringLiteral("xdotool");

// `NAME = "value"` or `NAME: value`, as xprop prints it.
QString propertyValue(const QByteArray& output)
{
    static const QRegularExpression expression(QStringLiteral("^[^:=]*[:=] *\"?(.*?)\"?\\n?$"),
                                               QRegularExpression::DotMatchesEverythingOption);
    return expression.match(QString::fromUtf8(output)).captured(1);
}

} // namespace

Desktop::Desktop(QSize screen)
{
    startScreen(screen);
    m_session.startBus();
    startWindowManager();
}

QList<DesktopWindow> Desktop::windows() const
{
    const QString ids =
        propertyValue(ask(kXprop, {QStringLiteral("-root"), QStringLiteral("-notype"),
                                   QStringLiteral("_NET_CLIENT_LIST")}));
    static const QRegularExpression kId(QStringLiteral("0x[0-9a-f]+"));
    QList<DesktopWindow> windows;
    for (const QRegularExpressionMatch& match : kId.globalMatch(ids)) {
        const QString id = match.captured();
        const QByteArray title = ask(kXdotool, {QStringLiteral("getwindowname"), id});
        windows.append({id, QString::fromUtf8(title).chopped(title.endsWith('\n') ? 1 : 0)});
    }
    return windows;
}

QStringList Desktop::titles() const
{
    QStringList titles;
    for (const DesktopWindow& window : windows()) {
        titles.append(window.title);
    }
    return titles;
}

QString Desktop::activeTitle() const
{
    const QByteArray title =
        ask(kXdotool, {QStringLiteral("getactivewindow"), QStringLiteral("getwindowname")});
    return QString::fromUtf8(title).trimmed();
}

QString Desktop::windowTitled(const QString& title) const
{
    for (const DesktopWindow& window : windows()) {
        if (window.title == title) {
            return window.id;
        }
    }
    return QString();
}

void Desktop::press(const QString& keys) const
{
    ask(kXdotool, {QStringLiteral("key"), keys});
}

void Desktop::type(const QString& text) const
{
    ask(kXdotool, {QStringLiteral("type"), text});
}

void Desktop::activate(const QString& windowId) const
{
    ask(kXdotool, {QStringLiteral("windowactivate"), QStringLiteral("--sync"), windowId});
}

void Desktop::resize(const QString& windowId, QSize size) const
{
    ask(kXdotool, {QStringLiteral("windowsize"), windowId, QString::number(size.width()),
                   QString::number(size.height())});
}

void Desktop::move(const QString& windowId, QPoint place) const
{
    ask(kXdotool, {QStringLiteral("windowmove"), windowId, QString::number(place.x()),
                   QString::number(place.y())});
}

QRect Desktop::geometry(const QString& windowId) const
{
    const QByteArray geometry =
        ask(kXdotool, {QStringLiteral("getwindowgeometry"), QStringLiteral("--shell"), windowId});
    const auto number = [&geometry](const char* name) {
        const QRegularExpression expression(
            QStringLiteral("%1=(\\d+)").arg(QLatin1StringView(name)));
        return expression.match(QString::fromLatin1(geometry)).captured(1).toInt();
    };
    return {number("X"), number("Y"), number("WIDTH"), number("HEIGHT")};
}

QSize Desktop::outerSize(const QString& windowId) const
{
    const QStringList extents =
        propertyValue(ask(kXprop, {QStringLiteral("-id"), windowId, QStringLiteral("-notype"),
                                   QStringLiteral("_NET_FRAME_EXTENTS")}))
            .split(QStringLiteral(", "));
    if (extents.size() != 4) {
        return QSize();
    }
    return size(windowId) +
           QSize(extents[0].toInt() + extents[1].toInt(), extents[2].toInt() + extents[3].toInt());
}

void Desktop::maximise(const QString& windowId) const
{
    ask(kXdotool, {QStringLiteral("mousemove"), QStringLiteral("--window"), windowId,
                   QStringLiteral("300"), QStringLiteral("-8"), QStringLiteral("click"),
                   QStringLiteral("--repeat"), QStringLiteral("2"), QStringLiteral("--delay"),
                   QStringLiteral("30"), QStringLiteral("1")});
}

QImage Desktop::picture(const QString& windowId) const
{
    return QImage::fromData(
        ask(QStringLiteral("import"), {QStringLiteral("-silent"), QStringLiteral("-window"),
                                       windowId, QStringLiteral("png:-")}));
}

QString Desktop::clipboard() const
{
    return selection(QStringLiteral("clipboard"));
}

QString Desktop::primarySelection() const
{
    return selection(QStringLiteral("primary"));
}

QString Desktop::selection(const QString& name) const
{
    return QString::fromUtf8(
        ask(QStringLiteral("xclip"), {QStringLiteral("-o"), QStringLiteral("-selection"), name}));
}

void Desktop::startScreen(QSize screen)
{
    m_screen = std::make_unique<HelperProcess>(
        QStringLiteral("Xvfb"),
        QStringList{QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
                    QStringLiteral("0"),
                    QStringLiteral("%1x%2x24").arg(screen.width()).arg(screen.height()),
                    QStringLiteral("-nolisten"), QStringLiteral("tcp"), QStringLiteral("-noreset")},
        environment());
    m_session.environment().insert(QStringLiteral("DISPLAY"),
                                   QStringLiteral(":") + QString::fromLatin1(m_screen->readLine()));
}

void Desktop::startWindowManager()
{
    m_windowManager =
        std::make_unique<HelperProcess>(QStringLiteral("openbox"), QStringList(), environment());
    EXPECT_TRUE(spinUntil([this] {
        return ask(kXprop, {QStringLiteral("-root"), QStringLiteral("_NET_SUPPORTING_WM_CHECK")})
            .contains("0x");
    })) << "the window manager does not come up";
}

QByteArray Desktop::ask(const QString& tool, const QStringList& arguments) const
{
    return outputOf(tool, arguments, environment());
}

int pixelsOfColor(const QImage& picture, const QColor& color)
{
    int count = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            count += picture.pixel(x, y) == color.rgb() ? 1 : 0;
        }
    }
    return count;
}

} // namespace quillon
