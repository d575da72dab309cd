// SPDX-License-Identifier: MIT
#pragma once

#include "model/records/log_severity.h"
#include "platform/append_only_list.h"

#include <QString>
#include <QUuid>

namespace quillon {

// One line of a log file. Two records of the same text and number are different lines, and their
// ids say so.
class LogLine {
public:
    LogLine(const QUuid& id, qint64 number, QString text, LogSeverity severity)
        : m_id(id), m_number(number), m_text(std::move(text)), m_severity(severity)
    {
    }

    [[nodiscard]] const QUuid& id() const { return m_id; }
    // 1-based; an estimate when the beginning of the file was not read.
    [[nodiscard]] qint64 number() const { return m_number; }
    // Without the line terminator, exactly as decoded.
    [[nodiscard]] const QString& text() const { return m_text; }
    [[nodiscard]] LogSeverity severity() const { return m_severity; }

    bool operator==(const LogLine& other) const = default;

private:
    QUuid m_id;
    qint64 m_number;
    QString m_text;
    LogSeverity m_severity;
};

// Combines all four fields, in the order in which equality compares them.
std::size_t qHash(const LogLine& line, std::size_t seed = 0);

// The records of a log, in file order.
using LogLines = AppendOnlyList<LogLine>;

} // namespace quillon
