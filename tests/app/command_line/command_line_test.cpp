// SPDX-License-Identifier: MIT
#include "app/command_line/command_line.h"
#include "app/command_line/help_text.h"
#include "platform/file_path.h"
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

// The narrow no-break spaces of French typography as plain ones, which are easier to write down.
QString withPlainSpaces(QString text)
{
    return text.replace(QChar(0x202F), u' ');
}

QString complaintAbout(const QStringList& arguments)
{
    const auto parsed = parseCommandLine(arguments);
    const auto* const error = std::get_if<UsageError>(&parsed);
    return error != nullptr ? withPlainSpaces(error->message) : QString();
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

TEST(CommandLine, PrintModeLeavesNoOptionToTheWindowingLibrary)
{
    const CommandLine commandLine = understood(words("-qwindowtitle -p a.log"));
    EXPECT_EQ(commandLine.action, CommandLine::Action::OpenWindow);
    const CommandLine print = understood(words("-p -qwindowtitle a.log"));
    EXPECT_EQ(print.action, CommandLine::Action::Print);
    EXPECT_EQ(print.print.query, QStringLiteral("windowtitle"));
    EXPECT_EQ(print.files, words("a.log"));
}

TEST(CommandLine, EveryLetterMeansItsLongOption)
{
    const CommandLine commandLine = understood(words("-p -f -e -q php -n 20 a"));
    EXPECT_EQ(commandLine.action, CommandLine::Action::Print);
    EXPECT_TRUE(commandLine.followTail);
    EXPECT_TRUE(commandLine.print.onlyErrors);
    EXPECT_EQ(commandLine.print.query, QStringLiteral("php"));
    EXPECT_EQ(commandLine.print.lastRows, 20);
    EXPECT_TRUE(understood(words("-p -c a")).print.isCount);
    EXPECT_EQ(understood(words("-h")).action, CommandLine::Action::ShowHelp);
}

TEST(CommandLine, LettersMayStandTogetherTheLastWithItsValue)
{
    for (const char* const arguments : {"-pfn20 a", "-pfn 20 a", "-fpn20 a", "a -n20 -pf"}) {
        const CommandLine commandLine = understood(words(arguments));
        EXPECT_EQ(commandLine.action, CommandLine::Action::Print) << arguments;
        EXPECT_TRUE(commandLine.followTail) << arguments;
        EXPECT_EQ(commandLine.print.lastRows, 20) << arguments;
        EXPECT_EQ(commandLine.files, words("a")) << arguments;
    }
    EXPECT_EQ(understood(words("-pqf a")).print.query, QStringLiteral("f"));
    EXPECT_FALSE(understood(words("-pqf a")).followTail);
}

TEST(CommandLine, PrintTakesAnyNumberOfFiles)
{
    EXPECT_EQ(understood(words("--print b a -")).files, words("b a -"));
    EXPECT_TRUE(understood(words("--print")).files.isEmpty());
}

TEST(CommandLine, LinesCountFromNoneUp)
{
    EXPECT_EQ(understood(words("-p a")).print.lastRows, std::nullopt);
    EXPECT_EQ(understood(words("-p --lines=0 a")).print.lastRows, 0);
    EXPECT_EQ(understood(words("-p --lines 9000000000 a")).print.lastRows, 9'000'000'000);
}

TEST(CommandLine, NumbersAndRunsMayBeLeftOut)
{
    EXPECT_TRUE(understood(words("-p a")).print.showNumber);
    EXPECT_FALSE(understood(words("-p --no-number a")).print.showNumber);
    EXPECT_TRUE(understood(words("-p --json a")).print.showRuns);
    EXPECT_FALSE(understood(words("-p --no-runs --json a")).print.showRuns);
}

TEST(CommandLine, HelpAndVersionNeedNothingElse)
{
    EXPECT_EQ(understood(words("--help")).action, CommandLine::Action::ShowHelp);
    EXPECT_EQ(understood(words("--print --version")).action, CommandLine::Action::ShowVersion);
}

TEST(CommandLine, EveryMisuseIsExplained)
{
    const std::pair<const char*, const char*> misuses[] = {
        {"--print --query", "l’option --query demande une valeur"},
        {"--print --json=yes a", "l’option --json ne prend pas de valeur"},
        {"--print --frobnicate a", "option inconnue : --frobnicate"},
        {"--frobnicate=1", "option inconnue : --frobnicate"},
        {"-x", "option inconnue : -x"},
        {"-pfx a", "option inconnue : -x"},
        {"-q php a", "l’option -q ne sert qu’avec --print"},
        {"-pq", "l’option -q demande une valeur"},
        {"-pn -1 a", "-n demande un nombre de lignes, et non « -1 »"},
        {"-p --lines=9x a", "--lines demande un nombre de lignes, et non « 9x »"},
        {"-pn99999999999999999999 a",
         "-n demande un nombre de lignes, et non « 99999999999999999999 »"},
        {"-pfc a", "--count et --follow ne vont pas ensemble : il n’y a pas de fin"},
        {"-p --no-runs a", "l’option --no-runs ne sert qu’avec --json"},
        {"-p --no-number --json a", "--no-number et --json ne vont pas ensemble"},
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

TEST(CommandLine, AnUnknownOptionNamesTheNearestOne)
{
    const std::pair<const char*, const char*> typos[] = {
        {"--querry=php", "option inconnue : --querry ; vouliez-vous dire --query ?"},
        {"--colour", "option inconnue : --colour ; vouliez-vous dire --color ?"},
        {"--jsno", "option inconnue : --jsno ; vouliez-vous dire --json ?"},
        {"--errors", "option inconnue : --errors ; vouliez-vous dire --only-errors ?"},
        {"--no-numbers", "option inconnue : --no-numbers ; vouliez-vous dire --no-number ?"},
        {"-print", "option inconnue : -print ; vouliez-vous dire --print ?"},
        {"-folow", "option inconnue : -folow ; vouliez-vous dire --follow ?"},
        {"-F", "option inconnue : -F ; vouliez-vous dire -f ?"},
        {"-pF", "option inconnue : -F ; vouliez-vous dire -f ?"},
    };
    for (const auto& [arguments, complaint] : typos) {
        EXPECT_EQ(complaintAbout(words(arguments)), QString::fromUtf8(complaint)) << arguments;
    }
}

TEST(CommandLine, WhatIsQuotedFromTheArgumentsDrivesNoTerminal)
{
    const QString hostile = QStringLiteral("a\x1B[2J\n\u202Eb\a");
    const QStringList print{QStringLiteral("-p")};
    const QStringList misuses{QStringLiteral("--") + hostile, QStringLiteral("-") + hostile,
                              QStringLiteral("--hide=") + hostile,
                              QStringLiteral("--color=") + hostile, QStringLiteral("-n") + hostile};
    for (const QString& misuse : misuses) {
        const QString complaint = complaintAbout(print + QStringList{misuse});
        EXPECT_FALSE(complaint.isEmpty());
        for (const QChar character : complaint) {
            EXPECT_TRUE(character.isPrint() || character == u' ') << complaint.toStdString();
        }
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

TEST(CommandLine, AFileIsNamedCleanlyAndWithEveryByte)
{
    const QString here = QDir::currentPath();
    EXPECT_EQ(fileUrlFromArgument(QStringLiteral(".//x.log")).toLocalFile(),
              here + QStringLiteral("/x.log"));
    EXPECT_EQ(fileUrlFromArgument(pathFromBytes("caf\xE9.log")).toEncoded(),
              QUrl::fromLocalFile(here).toEncoded() + "/caf%E9.log");
}

TEST(CommandLine, AFileUrlNamesItsFile)
{
    EXPECT_EQ(fileUrlFromArgument(QStringLiteral("file:///var/a%20b.log")).toLocalFile(),
              QStringLiteral("/var/a b.log"));
}

TEST(CommandLine, TheHelpNamesEveryOption)
{
    const QStringList options = words("-f --follow -p --print -h --help --version -q --query "
                                      "-e --only-errors --hide -n --lines -c --count "
                                      "--no-number --color --json --no-runs");
    for (const QString& option : options) {
        EXPECT_TRUE(helpText().contains(option)) << option.toStdString();
    }
}

TEST(CommandLine, TheHelpFitsATerminal)
{
    const QStringList lines = helpText().split(u'\n');
    for (const QString& line : lines) {
        EXPECT_LE(line.size(), 80) << line.toStdString();
    }
}

TEST(CommandLine, TheHelpIsTypesetAsFrenchIs)
{
    const QString help = helpText();
    EXPECT_TRUE(help.startsWith(QStringLiteral("Usage\u202F: quillon")));
    EXPECT_TRUE(help.contains(QStringLiteral("«\u202F-\u202F»")));
    EXPECT_FALSE(help.contains(QLatin1StringView(" :")));
    EXPECT_FALSE(help.contains(QLatin1StringView(" ;")));
    EXPECT_FALSE(help.contains(u'\''));
}

} // namespace quillon
