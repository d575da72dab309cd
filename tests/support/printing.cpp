// SPDX-License-Identifier: MIT
#include "tests/support/printing.h"

#include <QDebug>

#include <ostream>

QT_BEGIN_NAMESPACE

namespace {

template <typename T>
void printThroughDebug(const T& value, std::ostream* stream)
{
    QString text;
    QDebug(&text).nospace() << value;
    *stream << text.left(2000).toStdString();
}

} // namespace

void PrintTo(const QString& text, std::ostream* stream)
{
    printThroughDebug(text, stream);
}

void PrintTo(QStringView text, std::ostream* stream)
{
    printThroughDebug(text, stream);
}

void PrintTo(const QByteArray& bytes, std::ostream* stream)
{
    printThroughDebug(bytes, stream);
}

void PrintTo(const QUrl& url, std::ostream* stream)
{
    printThroughDebug(url, stream);
}

QT_END_NAMESPACE
