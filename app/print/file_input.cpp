// SPDX-License-Identifier: MIT
#include "app/print/file_input.h"

#include "app/command_line/command_line.h"
#include "app/print/input_error.h"

#include <QEventLoop>

namespace quillon {

FileInput::FileInput(PrintedInput input, const CommandLine& commandLine, UserDefaults& defaults,
                     NotificationCenter& notifications, PrintWriter& writer)
    : m_model(defaults, notifications), m_printer(std::move(input), commandLine.print, writer)
{
    const PrintOptions& options = commandLine.print;
    m_model.query.set(options.query);
    m_model.onlyErrors.set(options.onlyErrors);
    m_model.showDeprecated.set(options.showDeprecated);
    m_model.showWarning.set(options.showWarning);
    m_model.showNotice.set(options.showNotice);
    m_model.followTail.set(commandLine.followTail);
}

std::optional<SystemError> FileInput::print()
{
    m_model.openLog(fileUrlFromArgument(m_printer.input().name));
    if (const auto error = m_model.lastError()) {
        return error;
    }
    if (m_model.isRecomputing.get()) {
        waitForRows();
    }
    m_printer.begin();
    printNewRows(m_model.attributedOutput.get());
    m_printer.endBeginning();
    m_printer.flush();
    tellNewUndecided();
    return std::nullopt;
}

// A search may take a while. It does not hold up what else the event loop has to see to.
void FileInput::waitForRows()
{
    QEventLoop loop;
    const Subscription end = m_model.isRecomputing.subscribe([&loop](bool isGoingOn) {
        if (!isGoingOn) {
            loop.quit();
        }
    });
    loop.exec();
}

void FileInput::tellNewUndecided()
{
    const qint64 count = m_model.undecidedLines.get();
    if (count > m_toldUndecided) {
        tellUndecided(m_printer.input().name, count);
    }
    m_toldUndecided = count;
}

void FileInput::follow(std::function<void()> printed)
{
    m_subscriptions.push_back(m_model.attributedOutput.subscribe(
        [this, printed = std::move(printed)](const AttributedString& text) {
            printNewRows(text);
            m_printer.flush();
            tellNewUndecided();
            printed();
        }));
    m_subscriptions.push_back(m_model.observePolls([this] { complainOnce(); }));
}

void FileInput::printNewRows(const AttributedString& text)
{
    const auto& rows = text.rows();
    qsizetype next = m_printed.rows().size();
    if (!text.isExtensionOf(m_printed)) {
        next = rows.size();
        while (next > 0 && rows[next - 1].number() > m_lastPrinted) {
            --next;
        }
    }
    for (; next < rows.size(); ++next) {
        m_printer.add(rows[next]);
        m_lastPrinted = rows[next].number();
    }
    m_printed = text;
}

void FileInput::complainOnce()
{
    const auto error = m_model.lastError();
    if (error && error != m_lastComplaint) {
        complainAboutInput(m_printer.input().name, *error);
    }
    m_lastComplaint = error;
}

} // namespace quillon
