// SPDX-License-Identifier: MIT
#pragma once

#include <QLatin1StringView>
#include <QStringView>

#include <array>
#include <cstdint>
#include <optional>

namespace quillon {

// How serious a log line is, most serious first.
enum class LogSeverity : std::uint8_t {
    Fatal,
    Error,
    Warning,
    Notice,
    Deprecated,
    Info,
    Debug,
    Unknown,
};

// Every severity, in the order of declaration.
inline constexpr std::array<LogSeverity, 8> kAllSeverities{
    LogSeverity::Fatal,      LogSeverity::Error, LogSeverity::Warning, LogSeverity::Notice,
    LogSeverity::Deprecated, LogSeverity::Info,  LogSeverity::Debug,   LogSeverity::Unknown,
};

// The severity's name in lower case, as it appears in preference keys and machine-readable output.
QLatin1StringView rawValue(LogSeverity severity);

// The severity of that exact name, none for any other text.
std::optional<LogSeverity> severityFromRawValue(QStringView rawValue);

} // namespace quillon
