// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>

namespace quillon {

// The path of a file as a text that loses nothing: a byte that is no part of UTF-8 stands in it as
// the lone surrogate of its value above U+DC00, which no UTF-8 gives. (The toolkit's own decoding
// makes U+FFFD of it, by which no file is found.) All other paths are the text that they look like.
QString pathFromBytes(const QByteArray& bytes);

// What the system's calls are to be given for such a path. Nothing for one with a NUL, which no
// file has: the calls would take it for the path that ends there.
QByteArray bytesOfPath(const QString& path);

// The path that a file URL names; empty for any other URL. The URL of an absolute path.
QString pathOfFileUrl(const QUrl& url);
QUrl fileUrlOfPath(const QString& path);

// The absolute path of what a path names from the working directory, without empty and "."
// components, nor ".." where its folder exists.
QString cleanAbsolutePath(const QString& path);

// The path as the user may read it: one line, with U+FFFD for what is no text (see oneLineText()).
QString displayedPath(const QString& path);

} // namespace quillon
