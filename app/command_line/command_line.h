// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>
#include <QUrl>

#include <cstdint>
#include <optional>
#include <variant>

namespace quillon {

// When rows are printed in colour: Auto only on a terminal that is able to show it.
enum class ColorWhen : std::uint8_t { Auto, Always, Never };

// How printed rows are written: the row's text, or one JSON object a line.
enum class RowFormat : std::uint8_t { Text, Json };

// What print mode shows of the log, and how.
struct PrintOptions {
    QString query;
    bool onlyErrors = false;
    bool showDeprecated = true;
    bool showWarning = true;
    bool showNotice = true;
    // How many of the shown rows that are there to begin with, the last ones; none for all.
    std::optional<qint64> lastRows;
    // Instead of the rows, how many of each level there are.
    bool isCount = false;
    ColorWhen color = ColorWhen::Auto;
    RowFormat format = RowFormat::Text;
    // Whether a row of text begins with its number.
    bool showNumber = true;
    // Whether a row in JSON comes with its runs.
    bool showRuns = true;
};

// What the program was asked to do.
struct CommandLine {
    enum class Action : std::uint8_t { OpenWindow, Print, ShowHelp, ShowVersion };

    Action action = Action::OpenWindow;
    // Whether rows appended to the file are shown as they are written.
    bool followTail = false;
    // As they were given, in that order. Print without any, and "-" for it, mean standard input.
    QStringList files;
    PrintOptions print;
};

// Why the arguments make no sense, in a sentence for the user, of one line whatever they are.
struct UsageError {
    QString message;
};

// Reads the arguments that follow the program's name. Options may stand before and after files;
// what follows "--" is all files. The windowing library's own single-dash options, such as
// -platform, are left for it to read, unless the arguments ask for print mode: then a single dash
// is always followed by letters of short options.
std::variant<CommandLine, UsageError> parseCommandLine(const QStringList& arguments);

// The file that an argument names: a path (see pathFromBytes()), taken from the working directory,
// or a file URL.
QUrl fileUrlFromArgument(const QString& argument);

// What to tell on standard error about wrong usage, line feed included.
QString complaintText(const UsageError& error);

} // namespace quillon
