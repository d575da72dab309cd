// SPDX-License-Identifier: MIT
// Any arguments, one a line. They are understood or complained about, in one line; what follows
// "--" is files whatever it looks like.
#include "app/command_line/command_line.h"
#include "fuzz/require.h"

namespace {

using namespace quillon;

QStringList argumentsOf(QByteArrayView bytes)
{
    QStringList arguments;
    for (const QByteArray& line : bytes.toByteArray().split('\n')) {
        arguments.append(QString::fromLocal8Bit(line));
    }
    return arguments;
}

// Nothing that follows "--" is an option, and a file has a name.
void checkFiles(const QStringList& arguments)
{
    if (arguments.contains(QString())) {
        return;
    }
    const auto parsed = parseCommandLine(QStringList{QStringLiteral("--")} + arguments);
    const auto* const commandLine = std::get_if<CommandLine>(&parsed);
    require(commandLine != nullptr && commandLine->files == arguments);
    for (const QString& file : arguments) {
        const QUrl url = fileUrlFromArgument(file);
        require(url.isValid() || url.isEmpty());
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    const QStringList arguments = argumentsOf({data, static_cast<qsizetype>(size)});
    checkFiles(arguments);
    const auto parsed = parseCommandLine(arguments);
    if (const auto* const error = std::get_if<UsageError>(&parsed)) {
        require(!error->message.isEmpty() && !error->message.contains(u'\n'));
        require(!error->message.contains(u'\x1B') && complaintText(*error).endsWith(u'\n'));
    }
    return 0;
}
