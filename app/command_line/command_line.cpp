// SPDX-License-Identifier: MIT
#include "app/command_line/command_line.h"

#include "app/command_line/help_text.h"
#include "app/command_line/message_text.h"
#include "app/command_line/option_table.h"
#include "platform/file_path.h"
#include "platform/one_line_text.h"

#include <algorithm>

namespace quillon {

namespace {

// Whether a single dash may begin an option of the windowing library.
enum class SingleDash : std::uint8_t { MayBeWindowing, OnlyLetters };

// Reads the arguments one after the other; the first one that makes no sense ends it.
class Parser {
public:
    Parser(const QStringList& arguments, SingleDash singleDash)
        : m_arguments(arguments), m_singleDash(singleDash)
    {
    }

    std::variant<CommandLine, UsageError> run()
    {
        while (m_next < m_arguments.size() && m_error.isEmpty()) {
            readArgument(m_arguments[m_next++]);
        }
        if (m_error.isEmpty()) {
            checkWhole();
        }
        if (!m_error.isEmpty()) {
            return UsageError{m_error};
        }
        return m_result;
    }

    [[nodiscard]] bool isPrint() const { return m_isPrint; }

private:
    void readArgument(const QString& argument)
    {
        if (m_onlyFiles || !argument.startsWith(u'-') || argument == QLatin1StringView("-")) {
            m_result.files.append(argument);
        } else if (argument == QLatin1StringView("--")) {
            m_onlyFiles = true;
        } else if (argument.startsWith(QLatin1StringView("--"))) {
            readLongOption(argument);
        } else if (!skipWindowingOption(argument)) {
            readLetters(argument);
        }
    }

    bool skipWindowingOption(const QString& argument)
    {
        const WindowingOption* const option =
            m_singleDash == SingleDash::MayBeWindowing ? findWindowingOption(argument) : nullptr;
        if (option == nullptr) {
            return false;
        }
        m_next += option->value == OptionValue::Required ? 1 : 0;
        return true;
    }

    void readLongOption(const QString& argument)
    {
        const qsizetype equals = argument.indexOf(u'=');
        const QString name = argument.left(equals);
        const OptionRow* const row = findOption(name);
        if (row == nullptr) {
            m_error = unknownOption(name, nearestOption(name));
            return;
        }
        std::optional<QString> value;
        if (equals >= 0) {
            value = argument.sliced(equals + 1);
        }
        readOption(*row, name, value);
    }

    // A dash and letters, the last of which may be followed by its value: "-pfn20".
    void readLetters(const QString& argument)
    {
        for (qsizetype i = 1; i < argument.size() && m_error.isEmpty(); ++i) {
            const QString name = u'-' + argument.sliced(i, 1);
            const OptionRow* const row = findOption(argument[i].unicode());
            if (row == nullptr) {
                reportUnknownLetter(argument, name);
                return;
            }
            std::optional<QString> value;
            if (row->value == OptionValue::Required && i + 1 < argument.size()) {
                value = argument.sliced(i + 1);
                i = argument.size();
            }
            readOption(*row, name, value);
        }
    }

    // Many a long option is typed with one dash, and many a letter in the wrong case.
    void reportUnknownLetter(const QString& argument, const QString& name)
    {
        if (const OptionRow* const nearest = nearestOption(argument)) {
            m_error = unknownOption(argument, nearest);
            return;
        }
        m_error = unknownOption(name, findOption(name.back().toLower().unicode()));
    }

    static QString unknownOption(const QString& name, const OptionRow* nearest)
    {
        const QString error = messageText("option inconnue : %1").arg(oneLineText(name));
        return nearest == nullptr
                   ? error
                   : error +
                         messageText(" ; vouliez-vous dire %1 ?").arg(callNameOf(name, *nearest));
    }

    // A letter is answered with a letter.
    static QString callNameOf(const QString& typed, const OptionRow& row)
    {
        constexpr qsizetype kLetterSize = 2;
        return typed.size() == kLetterSize && row.letter != 0
                   ? QStringLiteral("-") + QChar(row.letter)
                   : QString(row.name);
    }

    void readOption(const OptionRow& row, const QString& name, std::optional<QString> value)
    {
        if (!value && row.value == OptionValue::Required && m_next < m_arguments.size()) {
            value = m_arguments[m_next++];
        }
        if (value && row.value == OptionValue::None) {
            m_error = messageText("l’option %1 ne prend pas de valeur").arg(name);
            return;
        }
        if (!value && row.value == OptionValue::Required) {
            m_error = messageText("l’option %1 demande une valeur").arg(name);
            return;
        }
        if (row.scope == OptionScope::OnlyPrint) {
            m_printOnlyOption = name;
        }
        apply(row.option, name, value.value_or(QString()));
    }

    void apply(Option option, const QString& name, const QString& value)
    {
        PrintOptions& print = m_result.print;
        switch (option) {
        case Option::Help:
            m_result.action = CommandLine::Action::ShowHelp;
            break;
        case Option::Version:
            m_isVersionAsked = true;
            break;
        case Option::Print:
            m_isPrint = true;
            break;
        case Option::Follow:
            m_result.followTail = true;
            break;
        case Option::OnlyErrors:
            print.onlyErrors = true;
            break;
        case Option::Query:
            print.query = value;
            break;
        case Option::Hide:
            hide(value);
            break;
        case Option::Lines:
            setLastRows(name, value);
            break;
        case Option::Count:
            print.isCount = true;
            break;
        case Option::NoNumber:
            print.showNumber = false;
            break;
        case Option::Color:
            setColor(value);
            break;
        case Option::Json:
            print.format = RowFormat::Json;
            break;
        case Option::NoRuns:
            print.showRuns = false;
            break;
        }
    }

    void hide(const QString& list)
    {
        const QStringList names = list.split(u',');
        for (const QString& name : names) {
            if (name == QLatin1StringView("deprecated")) {
                m_result.print.showDeprecated = false;
            } else if (name == QLatin1StringView("warning")) {
                m_result.print.showWarning = false;
            } else if (name == QLatin1StringView("notice")) {
                m_result.print.showNotice = false;
            } else {
                m_error = messageText("--hide ne connaît pas « %1 » (deprecated, warning, notice)")
                              .arg(oneLineText(name));
                return;
            }
        }
    }

    void setLastRows(const QString& name, const QString& value)
    {
        const bool isNumber =
            !value.isEmpty() &&
            std::all_of(value.begin(), value.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
        bool isInRange = false;
        const qint64 count = value.toLongLong(&isInRange);
        if (!isNumber || !isInRange) {
            m_error = messageText("%1 demande un nombre de lignes, et non « %2 »")
                          .arg(name, oneLineText(value));
            return;
        }
        m_result.print.lastRows = count;
    }

    void setColor(const QString& when)
    {
        if (when.isEmpty() || when == QLatin1StringView("auto")) {
            m_result.print.color = ColorWhen::Auto;
        } else if (when == QLatin1StringView("always")) {
            m_result.print.color = ColorWhen::Always;
        } else if (when == QLatin1StringView("never")) {
            m_result.print.color = ColorWhen::Never;
        } else {
            m_error = messageText("--color ne connaît pas « %1 » (auto, always, never)")
                          .arg(oneLineText(when));
        }
    }

    void checkWhole()
    {
        if (m_result.action == CommandLine::Action::ShowHelp) {
            return;
        }
        if (m_isVersionAsked) {
            m_result.action = CommandLine::Action::ShowVersion;
            return;
        }
        if (!m_isPrint && !m_printOnlyOption.isEmpty()) {
            m_error = messageText("l’option %1 ne sert qu’avec --print").arg(m_printOnlyOption);
        } else if (m_result.files.contains(QString())) {
            m_error = messageText("un nom de fichier est vide");
        } else if (m_isPrint) {
            m_result.action = CommandLine::Action::Print;
            checkPrint(m_result.print);
        }
    }

    void checkPrint(const PrintOptions& print)
    {
        const bool isJson = print.format == RowFormat::Json;
        if (print.isCount && m_result.followTail) {
            m_error = messageText("--count et --follow ne vont pas ensemble : il n’y a pas de fin");
        } else if (!print.showRuns && !isJson) {
            m_error = messageText("l’option --no-runs ne sert qu’avec --json");
        } else if (!print.showNumber && isJson) {
            m_error = messageText("--no-number et --json ne vont pas ensemble");
        }
    }

    const QStringList& m_arguments;
    const SingleDash m_singleDash;
    qsizetype m_next = 0;
    bool m_onlyFiles = false;
    bool m_isPrint = false;
    bool m_isVersionAsked = false;
    QString m_printOnlyOption; // as it was given
    QString m_error;
    CommandLine m_result;
};

} // namespace

std::variant<CommandLine, UsageError> parseCommandLine(const QStringList& arguments)
{
    // Which meaning a single dash has depends on an option that may come later.
    Parser windowParser(arguments, SingleDash::MayBeWindowing);
    auto result = windowParser.run();
    return windowParser.isPrint() ? Parser(arguments, SingleDash::OnlyLetters).run() : result;
}

QUrl fileUrlFromArgument(const QString& argument)
{
    if (argument.startsWith(QLatin1StringView("file:///"))) {
        return QUrl(argument);
    }
    return fileUrlOfPath(cleanAbsolutePath(argument));
}

QString complaintText(const UsageError& error)
{
    return QStringLiteral("quillon: %1\n%2").arg(error.message, usageText());
}

} // namespace quillon
