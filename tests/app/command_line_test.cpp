// SPDX-License-Identifier: MIT
#include "app/command_line.h"
#include "tests/support/printing.h"

#include <QDir>

#include <gtest/gtest.h>

namespace quillon {

namespace {

QStringList words(const char* text)
{
    return QString::fromUtf8(text).split(u' ', Qt::SkipEmptyParts);
}

CommandLine understood(const QStringList& arguments)
{
    const auto parsed = parseCommandLine(arguments);
    const auto* const error = std::get_if<UsageError>(&parsed);
    EXPECT_EQ(error, nullptr) << error->message.toStdString();
    return error == nullptr ? std::get<CommandLine>(parsed) : CommandLine();
}

QString complaintAbout(const QStringList& arguments)
{
    const auto parsed = parseCommandLine(arguments);
    const auto* const error = std::get_if<UsageError>(&parsed);
    return error != nullptr ? error->message : QString();
}

} // namespace

TEST(CommandLine, NoArgumentsOpenAWindowWithoutAFile)
{
    const CommandLine commandLine = understood({});
    EXPECT_EQ(commandLine.action, CommandLine::Action::OpenWindow);
    EXPECT_TRUE(commandLine.files.isEmpty());
    EXPECT_FALSE(commandLine.followTail);
}

TEST(CommandLine, SeveralFilesOpenInAWindowInTheirOrder)
{
    EXPECT_EQ(understood(words("b.log --follow a.log")).files, words("b.log a.log"));
    EXPECT_TRUE(understood(words("b.log --follow a.log")).followTail);
}

TEST(CommandLine, EverythingAfterTwoDashesIsAFile)
{
    EXPECT_EQ(understood(words("--print -- --json")).files, words("--json"));
}

TEST(CommandLine, ALoneDashIsAFile)
{
    EXPECT_EQ(understood(words("--print -")).files, words("-"));
}

TEST(CommandLine, AllPrintOptionsAreUnderstoodTogether)
{
    const CommandLine commandLine = understood(
        words("--print --query php --only-errors --hide notice --follow --color=never --json a"));
    EXPECT_EQ(commandLine.action, CommandLine::Action::Print);
    EXPECT_EQ(commandLine.files, words("a"));
    EXPECT_TRUE(commandLine.followTail);
    EXPECT_EQ(commandLine.print.query, QStringLiteral("php"));
    EXPECT_TRUE(commandLine.print.onlyErrors);
    EXPECT_FALSE(commandLine.print.showNotice);
    EXPECT_EQ(commandLine.print.color, ColorWhen::Never);
    EXPECT_EQ(commandLine.print.format, RowFormat::Json);
}

TEST(CommandLine, AValueMayFollowAnEqualsSign)
{
    EXPECT_EQ(understood(words("--print --query=a=b f")).print.query, QStringLiteral("a=b"));
}

TEST(CommandLine, AQueryMayBeginWithADash)
{
    EXPECT_EQ(understood(words("--print --query --color f")).print.query,
              QStringLiteral("--color"));
}

TEST(CommandLine, AQueryIsTakenWithItsSpaces)
{
    const QStringList arguments{QStringLiteral("--print"), QStringLiteral("--query"),
                                QStringLiteral(" "), QStringLiteral("f")};
    EXPECT_EQ(understood(arguments).print.query, QStringLiteral(" "));
}

TEST(CommandLine, HideTakesAListOfLevels)
{
    const PrintOptions options = understood(words("--print --hide deprecated,warning f")).print;
    EXPECT_FALSE(options.showDeprecated);
    EXPECT_FALSE(options.showWarning);
    EXPECT_TRUE(options.showNotice);
}

TEST(CommandLine, RepeatedHideOptionsAddUp)
{
    const PrintOptions options = understood(words("--print --hide notice --hide=warning f")).print;
    EXPECT_FALSE(options.showNotice);
    EXPECT_FALSE(options.showWarning);
}

TEST(CommandLine, ColorAloneMeansAutoAndLeavesTheNextArgumentAlone)
{
    const CommandLine commandLine = understood(words("--print --color=never --color always"));
    EXPECT_EQ(commandLine.print.color, ColorWhen::Auto);
    EXPECT_EQ(commandLine.files, words("always"));
}

TEST(CommandLine, OptionsOfTheWindowingLibraryAreLeftToIt)
{
    const CommandLine commandLine = understood(words("-platform offscreen -reverse a.log"));
    EXPECT_EQ(commandLine.action, CommandLine::Action::OpenWindow);
    EXPECT_EQ(commandLine.files, words("a.log"));
}

TEST(CommandLine, HelpAndVersionNeedNothingElse)
{
    EXPECT_EQ(understood(words("--help")).action, CommandLine::Action::ShowHelp);
    EXPECT_EQ(understood(words("--print --version")).action, CommandLine::Action::ShowVersion);
}

TEST(CommandLine, EveryMisuseIsExplained)
{
    const std::pair<const char*, const char*> misuses[] = {
        {"--print", "--print demande un fichier"},
        {"--print a b", "--print ne prend qu’un fichier"},
        {"--print --query", "l’option --query demande une valeur"},
        {"--print --json=yes a", "l’option --json ne prend pas de valeur"},
        {"--print --frobnicate a", "option inconnue: --frobnicate"},
        {"--frobnicate=1", "option inconnue: --frobnicate"},
        {"-x", "option inconnue: -x"},
        {"--json a", "l’option --json ne sert qu’avec --print"},
        {"--query php a", "l’option --query ne sert qu’avec --print"},
        {"--color=always a", "l’option --color ne sert qu’avec --print"},
        {"--print --color=sometimes a",
         "--color ne connaît pas « sometimes » (auto, always, never)"},
        {"--print --hide fatal a", "--hide ne connaît pas « fatal » (deprecated, warning, notice)"},
        {"--print --hide=notice, a", "--hide ne connaît pas «  » (deprecated, warning, notice)"},
    };
    for (const auto& [arguments, complaint] : misuses) {
        EXPECT_EQ(complaintAbout(words(arguments)), QString::fromUtf8(complaint)) << arguments;
    }
}

TEST(CommandLine, AnEmptyFileNameIsRefused)
{
    EXPECT_EQ(complaintAbout({QString()}), QStringLiteral("un nom de fichier est vide"));
}

TEST(CommandLine, AFileIsTakenFromTheWorkingDirectory)
{
    EXPECT_EQ(fileUrlFromArgument(QStringLiteral("a b#1%20.log")).toLocalFile(),
              QDir::currentPath() + QStringLiteral("/a b#1%20.log"));
}

TEST(CommandLine, AFileUrlNamesItsFile)
{
    EXPECT_EQ(fileUrlFromArgument(QStringLiteral("file:///var/a%20b.log")).toLocalFile(),
              QStringLiteral("/var/a b.log"));
}

TEST(CommandLine, TheHelpNamesEveryOption)
{
    const QStringList options = words("--follow --print --help --version --query --only-errors "
                                      "--hide --color --json");
    for (const QString& option : options) {
        EXPECT_TRUE(helpText().contains(option)) << option.toStdString();
    }
}

} // namespace quillon
