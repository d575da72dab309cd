// SPDX-License-Identifier: MIT
#include "ui/windows/window_state_file.h"

#include "platform/read_handle.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSaveFile>

namespace quillon {

namespace {

constexpr qint64 kLargestFile = 256; // bytes

QByteArray textOf(const WindowPlacement& placement)
{
    QString text;
    if (placement.position) {
        text = QStringLiteral("position=%1,%2\n")
                   .arg(placement.position->x())
                   .arg(placement.position->y());
    }
    text += QStringLiteral("size=%1,%2\nmaximised=%3\n")
                .arg(placement.size.width())
                .arg(placement.size.height())
                .arg(placement.isMaximised ? 1 : 0);
    return text.toLatin1();
}

std::optional<WindowPlacement> placementFrom(const QByteArray& text)
{
    // Numbers of five digits, so that no sum of them overflows.
    static const QRegularExpression kFormat(
        QStringLiteral("\\A(?:position=(-?[0-9]{1,5}),(-?[0-9]{1,5})\n)?"
                       "size=([0-9]{1,5}),([0-9]{1,5})\nmaximised=([01])\n\\z"));
    const QRegularExpressionMatch match = kFormat.match(QString::fromLatin1(text));
    if (!match.hasMatch()) {
        return std::nullopt;
    }
    const auto number = [&match](int group) {
        return match.captured(group).toInt();
    };
    WindowPlacement placement;
    if (match.hasCaptured(1)) {
        placement.position = QPoint(number(1), number(2));
    }
    placement.size = QSize(number(3), number(4));
    placement.isMaximised = number(5) == 1;
    return placement;
}

} // namespace

QString windowStateFile()
{
    QString folder = qEnvironmentVariable("XDG_STATE_HOME");
    if (!QDir::isAbsolutePath(folder)) {
        folder = QDir::home().filePath(QStringLiteral(".local/state"));
    }
    return QDir(folder).filePath(QStringLiteral("Quillon/window"));
}

std::optional<WindowPlacement> readWindowState(const QString& path)
{
    Result<ReadHandle> file = ReadHandle::open(path);
    if (!file) {
        return std::nullopt;
    }
    const Result<QByteArray> text = file.value().readUpTo(kLargestFile + 1);
    return text && text.value().size() <= kLargestFile ? placementFrom(text.value()) : std::nullopt;
}

bool writeWindowState(const QString& path, const WindowPlacement& placement)
{
    const QFileInfo present(path);
    if ((present.exists() && !present.isFile()) || !QDir().mkpath(present.path())) {
        return false;
    }
    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(textOf(placement)) >= 0 && file.commit();
}

} // namespace quillon
