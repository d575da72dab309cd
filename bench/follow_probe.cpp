// SPDX-License-Identifier: MIT
// Follows a log in a window and prints, in this order: the bytes of memory taken for each byte
// appended, and the milliseconds of processor time that a second of following an idle file takes.
#include "bench/generated_log.h"
#include "bench/probe_report.h"
#include "model/log_view_model.h"
#include "platform/notification_center.h"
#include "platform/user_defaults.h"
#include "ui/log_text/log_text_view.h"

#include <QApplication>
#include <QEventLoop>
#include <QFile>
#include <QTemporaryDir>
#include <QTimer>

#include <chrono>
#include <cstdio>
#include <ctime>

namespace {

using namespace std::chrono_literals;

constexpr int kBatches = 80;
constexpr auto kIdleTime = 6s;

void runEventsFor(std::chrono::milliseconds time)
{
    QEventLoop loop;
    QTimer::singleShot(time, &loop, &QEventLoop::quit);
    loop.exec();
}

double processorMilliseconds()
{
    timespec time{};
    ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

} // namespace

int main(int argc, char** argv)
{
    using namespace quillon;
    QApplication application(argc, argv);
    const QTemporaryDir folder;
    NotificationCenter center;
    UserDefaults defaults(center, folder.filePath(QStringLiteral("settings.conf")));
    LogViewModel model(defaults, center);
    LogTextView view(LogTextContent{});
    view.resize(1000, 700);
    view.show();
    const Subscription shown =
        model.attributedOutput.subscribe([&view](const AttributedString& text) {
            view.update(LogTextContent{text, true, 13});
        });

    QFile file(folder.filePath(QStringLiteral("debug.log")));
    static_cast<void>(file.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    file.write(bench::generatedLines(1000));
    model.followTail.set(true);
    model.openLog(QUrl::fromLocalFile(file.fileName()));
    runEventsFor(500ms);

    const QByteArray batch = bench::generatedLines(800);
    const qint64 before = bench::residentBytes();
    for (int i = 0; i < kBatches; ++i) {
        file.write(batch);
        model.pollTail();
        QApplication::processEvents();
    }
    const auto taken = static_cast<double>(bench::residentBytes() - before);
    std::printf("%f\n", taken / static_cast<double>(kBatches * batch.size()));

    runEventsFor(500ms);
    const double start = processorMilliseconds();
    runEventsFor(kIdleTime);
    std::printf("%f\n", (processorMilliseconds() - start) /
                            std::chrono::duration<double>(kIdleTime).count());
    return 0;
}
