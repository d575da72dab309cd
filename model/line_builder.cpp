// SPDX-License-Identifier: MIT
#include "model/line_builder.h"

#include "model/classify.h"
#include "model/line_enumeration.h"

#include <QRandomGenerator>
#include <QtEndian>

#include <array>
#include <limits>

namespace quillon {

namespace {

// A random (version 4) UUID. QUuid::createUuid() asks the operating system for each one, which
// takes longer than all the rest of a record; Qt's own generator is seeded from it once.
QUuid newRandomId()
{
    std::array<quint32, 4> words{};
    QRandomGenerator::global()->fillRange(words.data(), qsizetype{words.size()});
    QUuid id;
    id.data1 = words[0];
    id.data2 = static_cast<ushort>(words[1]);
    id.data3 = static_cast<ushort>(((words[1] >> 16) & 0x0FFFU) | 0x4000U);
    qToBigEndian(words[2], id.data4);
    qToBigEndian(words[3], id.data4 + sizeof(quint32));
    id.data4[0] = static_cast<uchar>((id.data4[0] & 0x3FU) | 0x80U);
    return id;
}

} // namespace

void appendParsedLine(QStringView text, qint64& counter, LogLines& lines)
{
    if (counter == std::numeric_limits<qint64>::max()) {
        qFatal("the line counter has overflowed");
    }
    ++counter;
    lines.append(LogLine(newRandomId(), counter, text.toString(), classify(text)));
}

void appendParsedText(QStringView text, qint64 base, LogLines& lines)
{
    LineEnumeration enumeration(text);
    qint64 counter = base;
    while (const auto line = enumeration.next()) {
        appendParsedLine(*line, counter, lines);
    }
}

} // namespace quillon
