// SPDX-License-Identifier: MIT
#include "platform/file_path.h"

#include "platform/one_line_text.h"

#include <QDir>
#include <QStringDecoder>

#include <cstdlib>
#include <memory>
#include <unistd.h>

namespace quillon {

namespace {

constexpr char16_t kEscape = 0xDC00;

bool isEscapedByte(QChar character)
{
    return character >= QChar(kEscape + 0x80) && character <= QChar(kEscape + 0xFF);
}

// By what the first byte says; 0 where none begins there.
qsizetype sequenceLength(unsigned char first)
{
    if (first < 0x80) {
        return 1;
    }
    if (first < 0xC2 || first > 0xF4) {
        return 0;
    }
    return first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
}

// The character that the bytes begin with, empty where they begin with none.
QString firstCharacter(QByteArrayView bytes)
{
    const qsizetype length = sequenceLength(static_cast<unsigned char>(bytes.front()));
    if (length == 0 || length > bytes.size()) {
        return QString();
    }
    QStringDecoder decoder(QStringConverter::Utf8, QStringConverter::Flag::Stateless |
                                                       QStringConverter::Flag::ConvertInitialBom);
    QString character = decoder(bytes.first(length));
    return decoder.hasError() ? QString() : character;
}

// Calls `take` for each span of the path: with a text, or with an escaped byte.
template <typename TakeText, typename TakeByte>
void walk(const QString& path, TakeText takeText, TakeByte takeByte)
{
    qsizetype textStart = 0;
    for (qsizetype at = 0; at < path.size(); ++at) {
        const bool isPair = at > 0 && path[at - 1].isHighSurrogate();
        if (isEscapedByte(path[at]) && !isPair) {
            takeText(QStringView(path).sliced(textStart, at - textStart));
            takeByte(static_cast<char>(path[at].unicode() - kEscape));
            textStart = at + 1;
        }
    }
    takeText(QStringView(path).sliced(textStart));
}

QString currentFolder()
{
    const std::unique_ptr<char, decltype(&std::free)> folder(::getcwd(nullptr, 0), &std::free);
    return folder ? pathFromBytes(folder.get()) : QString();
}

} // namespace

QString pathFromBytes(const QByteArray& bytes)
{
    QString path;
    for (qsizetype at = 0; at < bytes.size();) {
        const QString character = firstCharacter(QByteArrayView(bytes).sliced(at));
        if (character.isEmpty()) {
            path += QChar(kEscape + static_cast<unsigned char>(bytes[at]));
            ++at;
        } else {
            path += character;
            at += sequenceLength(static_cast<unsigned char>(bytes[at]));
        }
    }
    return path;
}

QByteArray bytesOfPath(const QString& path)
{
    QByteArray bytes;
    if (path.contains(QChar(QChar::Null))) {
        return bytes;
    }
    walk(
        path, [&bytes](QStringView text) { bytes += text.toUtf8(); },
        [&bytes](char byte) { bytes += byte; });
    return bytes;
}

QString pathOfFileUrl(const QUrl& url)
{
    if (!url.isLocalFile() || !url.host().isEmpty()) {
        return url.toLocalFile();
    }
    return pathFromBytes(QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toLatin1()));
}

QUrl fileUrlOfPath(const QString& path)
{
    const QByteArray bytes = bytesOfPath(path);
    const bool isText = QString::fromUtf8(bytes) == path;
    return isText ? QUrl::fromLocalFile(path)
                  : QUrl::fromEncoded("file://" + bytes.toPercentEncoding("/"));
}

QString cleanAbsolutePath(const QString& path)
{
    const QString absolute =
        path.startsWith(u'/') ? path : currentFolder() + QLatin1Char('/') + path;
    // Behind a symbolic link ".." is another folder than the names tell.
    if (absolute.contains(QLatin1StringView("/../"))) {
        const qsizetype nameStart = absolute.lastIndexOf(u'/') + 1;
        const std::unique_ptr<char, decltype(&std::free)> folder(
            ::realpath(bytesOfPath(absolute.left(nameStart)).constData(), nullptr), &std::free);
        if (folder) {
            return QDir::cleanPath(pathFromBytes(folder.get()) + QLatin1Char('/') +
                                   absolute.sliced(nameStart));
        }
    }
    return QDir::cleanPath(absolute);
}

QString displayedPath(const QString& path)
{
    QString text;
    walk(
        path, [&text](QStringView part) { text += part; },
        [&text](char /*byte*/) { text += QChar(QChar::ReplacementCharacter); });
    return oneLineText(text);
}

} // namespace quillon
