// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>

#include <iosfwd>

// How failure messages show Qt's values. Every test file includes this, or the same comparison
// would print differently from file to file. The functions stand beside the types, where they are
// looked for.
QT_BEGIN_NAMESPACE
void PrintTo(const QString& text, std::ostream* stream);
void PrintTo(QStringView text, std::ostream* stream);
void PrintTo(const QByteArray& bytes, std::ostream* stream);
void PrintTo(const QUrl& url, std::ostream* stream);
QT_END_NAMESPACE
