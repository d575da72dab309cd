// SPDX-License-Identifier: MIT
#pragma once

#include <QLatin1StringView>
#include <QStringView>

#include <cstdint>

namespace quillon {

// The options that the program knows itself.
enum class Option : std::uint8_t {
    Help,
    Version,
    Print,
    Follow,
    OnlyErrors,
    Query,
    Hide,
    Lines,
    Count,
    NoNumber,
    Color,
    Json,
    NoRuns,
};

// Whether an option takes a value: a required one may be the next argument, an optional one only
// stands after "=".
enum class OptionValue : std::uint8_t { None, Required, Optional };

// Where an option makes sense.
enum class OptionScope : std::uint8_t { Everywhere, OnlyPrint };

struct OptionRow {
    QLatin1StringView name; // with its two dashes
    char16_t letter;        // of the short form, 0 where it has none
    Option option;
    OptionValue value;
    OptionScope scope;
};

// Null where there is no such option.
const OptionRow* findOption(QStringView name);
const OptionRow* findOption(char16_t letter);

// The option whose long name is most like `name`, dashes not counted: a part of it, or nearly the
// same but for a few letters. Null where none is like it.
const OptionRow* nearestOption(QStringView name);

// The windowing library's own options, which it takes out of the arguments once it exists; the
// arguments decide whether it is to exist.
// https://doc.qt.io/qt-6/qguiapplication.html#supported-command-line-options
struct WindowingOption {
    QLatin1StringView name; // with its one dash
    OptionValue value;
};

// Null where it has no such option.
const WindowingOption* findWindowingOption(QStringView name);

} // namespace quillon
