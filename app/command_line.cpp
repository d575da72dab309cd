// SPDX-License-Identifier: MIT
#include "app/command_line.h"

#include <QCoreApplication>
#include <QDir>

#include <algorithm>
#include <array>
#include <optional>

namespace quillon {

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("CommandLine", text);
}

enum class Option : std::uint8_t {
    Help,
    Version,
    Print,
    Follow,
    OnlyErrors,
    Json,
    Query,
    Hide,
    Color,
};

enum class Value : std::uint8_t { None, Required, Optional };

struct OptionRow {
    QLatin1StringView name;
    Option option;
    Value value;
};

constexpr std::array kOptions{
    OptionRow{QLatin1StringView("--help"), Option::Help, Value::None},
    OptionRow{QLatin1StringView("-h"), Option::Help, Value::None},
    OptionRow{QLatin1StringView("--version"), Option::Version, Value::None},
    OptionRow{QLatin1StringView("--print"), Option::Print, Value::None},
    OptionRow{QLatin1StringView("--follow"), Option::Follow, Value::None},
    OptionRow{QLatin1StringView("--only-errors"), Option::OnlyErrors, Value::None},
    OptionRow{QLatin1StringView("--json"), Option::Json, Value::None},
    OptionRow{QLatin1StringView("--query"), Option::Query, Value::Required},
    OptionRow{QLatin1StringView("--hide"), Option::Hide, Value::Required},
    // As in grep, the bare option means "auto" and never takes the next argument.
    OptionRow{QLatin1StringView("--color"), Option::Color, Value::Optional},
};

// QApplication takes these out of the arguments, but only once it exists, and the arguments decide
// whether it is to exist.
// https://doc.qt.io/qt-6/qguiapplication.html#supported-command-line-options
struct WindowingOption {
    QLatin1StringView name;
    Value value;
};

constexpr std::array kWindowingOptions{
    WindowingOption{QLatin1StringView("-platform"), Value::Required},
    WindowingOption{QLatin1StringView("-platformpluginpath"), Value::Required},
    WindowingOption{QLatin1StringView("-platformtheme"), Value::Required},
    WindowingOption{QLatin1StringView("-plugin"), Value::Required},
    WindowingOption{QLatin1StringView("-qwindowgeometry"), Value::Required},
    WindowingOption{QLatin1StringView("-qwindowicon"), Value::Required},
    WindowingOption{QLatin1StringView("-qwindowtitle"), Value::Required},
    WindowingOption{QLatin1StringView("-display"), Value::Required},
    WindowingOption{QLatin1StringView("-session"), Value::Required},
    WindowingOption{QLatin1StringView("-style"), Value::Required},
    WindowingOption{QLatin1StringView("-stylesheet"), Value::Required},
    WindowingOption{QLatin1StringView("-reverse"), Value::None},
};

// Reads the arguments one after the other; the first one that makes no sense ends it.
class Parser {
public:
    explicit Parser(const QStringList& arguments) : m_arguments(arguments) {}

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

private:
    void readArgument(const QString& argument)
    {
        if (m_onlyFiles || !argument.startsWith(u'-') || argument == QLatin1StringView("-")) {
            m_result.files.append(argument);
        } else if (argument == QLatin1StringView("--")) {
            m_onlyFiles = true;
        } else if (!skipWindowingOption(argument)) {
            readOption(argument);
        }
    }

    bool skipWindowingOption(const QString& argument)
    {
        const auto* const row =
            std::find_if(kWindowingOptions.begin(), kWindowingOptions.end(),
                         [&](const WindowingOption& option) { return option.name == argument; });
        if (row == kWindowingOptions.end()) {
            return false;
        }
        m_next += row->value == Value::Required ? 1 : 0;
        return true;
    }

    void readOption(const QString& argument)
    {
        const qsizetype equals = argument.indexOf(u'=');
        const QString name = argument.left(equals);
        const auto* const row = std::find_if(kOptions.begin(), kOptions.end(),
                                             [&](const OptionRow& r) { return r.name == name; });
        if (row == kOptions.end()) {
            m_error = tr("option inconnue: %1").arg(name);
            return;
        }
        std::optional<QString> value;
        if (equals >= 0) {
            value = argument.sliced(equals + 1);
        } else if (row->value == Value::Required && m_next < m_arguments.size()) {
            value = m_arguments[m_next++];
        }
        if (value && row->value == Value::None) {
            m_error = tr("l’option %1 ne prend pas de valeur").arg(name);
        } else if (!value && row->value == Value::Required) {
            m_error = tr("l’option %1 demande une valeur").arg(name);
        } else {
            apply(*row, value.value_or(QString()));
        }
    }

    void apply(const OptionRow& row, const QString& value)
    {
        switch (row.option) {
        case Option::Help:
            m_result.action = CommandLine::Action::ShowHelp;
            return;
        case Option::Version:
            m_isVersionAsked = true;
            return;
        case Option::Print:
            m_isPrint = true;
            return;
        case Option::Follow:
            m_result.followTail = true;
            return;
        case Option::OnlyErrors:
            m_result.print.onlyErrors = true;
            break;
        case Option::Json:
            m_result.print.format = RowFormat::Json;
            break;
        case Option::Query:
            m_result.print.query = value;
            break;
        case Option::Hide:
            hide(value);
            break;
        case Option::Color:
            setColor(value);
            break;
        }
        m_printOnlyOption = row.name;
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
                m_error =
                    tr("--hide ne connaît pas « %1 » (deprecated, warning, notice)").arg(name);
                return;
            }
        }
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
            m_error = tr("--color ne connaît pas « %1 » (auto, always, never)").arg(when);
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
            m_error = tr("l’option %1 ne sert qu’avec --print").arg(m_printOnlyOption);
        } else if (m_isPrint && m_result.files.isEmpty()) {
            m_error = tr("--print demande un fichier");
        } else if (m_isPrint && m_result.files.size() > 1) {
            m_error = tr("--print ne prend qu’un fichier");
        } else if (m_result.files.contains(QString())) {
            m_error = tr("un nom de fichier est vide");
        } else if (m_isPrint) {
            m_result.action = CommandLine::Action::Print;
        }
    }

    const QStringList& m_arguments;
    qsizetype m_next = 0;
    bool m_onlyFiles = false;
    bool m_isPrint = false;
    bool m_isVersionAsked = false;
    QLatin1StringView m_printOnlyOption;
    QString m_error;
    CommandLine m_result;
};

} // namespace

std::variant<CommandLine, UsageError> parseCommandLine(const QStringList& arguments)
{
    return Parser(arguments).run();
}

QUrl fileUrlFromArgument(const QString& argument)
{
    if (argument.startsWith(QLatin1StringView("file:///"))) {
        return QUrl(argument);
    }
    return QUrl::fromLocalFile(QDir::current().absoluteFilePath(argument));
}

QString usageText()
{
    return tr("Usage: quillon [--follow] [FICHIER…]\n"
              "       quillon --print [--query TEXTE] [--only-errors] [--hide LISTE] [--follow]\n"
              "                       [--color=auto|always|never] [--json] FICHIER\n");
}

QString helpText()
{
    return usageText() +
           tr("\n"
              "Affiche la fin (2 Mio) d’un journal d’erreurs de WordPress ou de PHP: dans une\n"
              "fenêtre ou, avec --print, sur la sortie standard.\n"
              "\n"
              "  --follow           suit le fichier: les lignes ajoutées s’affichent à mesure\n"
              "  --print            écrit les lignes sur la sortie standard, sans fenêtre\n"
              "  --help             affiche cette aide\n"
              "  --version          affiche la version\n"
              "\n"
              "Avec --print:\n"
              "  --query TEXTE      seulement les lignes qui contiennent TEXTE (expression\n"
              "                     régulière sans égard à la casse, ou /expression/)\n"
              "  --only-errors      seulement les lignes fatal et error\n"
              "  --hide LISTE       cache des niveaux: deprecated, warning, notice (séparés par\n"
              "                     des virgules)\n"
              "  --color[=QUAND]    en couleurs: auto (sur un terminal, le défaut), always,\n"
              "                     never; 24 bits si COLORTERM le dit, sinon 256 couleurs\n"
              "  --json             un objet JSON par ligne\n"
              "\n"
              "Code de retour: 0 tout va bien, 1 le fichier ne s’ouvre pas ou la sortie ne\n"
              "s’écrit pas, 2 les arguments sont faux; 130 ou 143 quand --follow est interrompu\n"
              "par SIGINT ou SIGTERM.\n");
}

} // namespace quillon
