// SPDX-License-Identifier: MIT
#include "app/print_follow.h"

#include "app/print_output.h"
#include "app/row_printer.h"
#include "app/terminal_signals.h"
#include "model/log_view_model.h"
#include "render/status_text.h"

#include <QCoreApplication>
#include <QSocketNotifier>

#include <cstdio>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>

namespace quillon {

namespace {

constexpr int kExitSuccess = 0;
constexpr int kExitSignalBase = 128;

// Between two looks at the file the status tells how much there is; anything else is a complaint.
bool isComplaint(const LogViewModel& model)
{
    const QString& status = model.statusLine.get();
    const qint64 lineCount = model.lines.get().size();
    const qint64 shownCount = model.attributedOutput.get().rows().size();
    return status != lineCountStatus(lineCount) && status != countsStatus(lineCount, shownCount) &&
           status != allFilteredStatus(lineCount);
}

// Tells each complaint once, and once more when all was well in between.
class ComplaintPrinter {
public:
    void look(const LogViewModel& model)
    {
        const QString complaint = isComplaint(model) ? model.statusLine.get() : QString();
        if (!complaint.isEmpty() && complaint != m_last) {
            std::fprintf(stderr, "%s\n", complaint.toUtf8().constData());
        }
        m_last = complaint;
    }

private:
    QString m_last;
};

// Wakes up when the other end of a pipe on standard output is closed: a log may be silent for days,
// and only a write would tell otherwise.
std::unique_ptr<QSocketNotifier> watchReader()
{
    struct stat status {};
    const bool isPipe = ::fstat(STDOUT_FILENO, &status) == 0 &&
                        (S_ISFIFO(status.st_mode) || S_ISSOCK(status.st_mode));
    if (!isPipe) {
        return nullptr;
    }
    auto notifier = std::make_unique<QSocketNotifier>(STDOUT_FILENO, QSocketNotifier::Exception);
    QObject::connect(notifier.get(), &QSocketNotifier::activated, notifier.get(),
                     [] { QCoreApplication::exit(kExitSuccess); });
    return notifier;
}

} // namespace

int followPrinting(LogViewModel& model, RowPrinter& printer, PrintOutput& output)
{
    const TerminalSignals signals(
        [](int number) { QCoreApplication::exit(kExitSignalBase + number); });
    const auto readerWatch = watchReader();
    const auto isAtEnd = [&output] {
        return output.state() == PrintOutput::State::ReaderGone ||
               output.state() == PrintOutput::State::Failed;
    };
    const Subscription rows = model.attributedOutput.subscribe([&](const AttributedString& text) {
        printer.show(text);
        if (isAtEnd()) {
            QCoreApplication::exit(kExitSuccess);
        }
    });
    if (isAtEnd()) {
        return kExitSuccess;
    }
    // The model looks at the file on the same tick, before: it was connected first.
    ComplaintPrinter complaints;
    const QMetaObject::Connection ticks = QObject::connect(model.pollTimer.get(), &QTimer::timeout,
                                                           &model, [&] { complaints.look(model); });
    const int status = QCoreApplication::exec();
    QObject::disconnect(ticks);
    return status;
}

} // namespace quillon
