// SPDX-License-Identifier: MIT
#include "bench/generated_log.h"
#include "bench/ratio_table.h"
#include "model/log_view_model.h"
#include "platform/notification_center.h"
#include "platform/user_defaults.h"
#include "ui/windows/content_view.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <array>
#include <chrono>
#include <vector>

namespace quillon::bench {

namespace {

using namespace std::chrono_literals;

constexpr qsizetype kLogBytes = 2'097'152;
constexpr auto kBeat = 2ms;
// A fast writer's; a pass begins after each key.
constexpr auto kKeyInterval = 80ms;
// Not every search is over by then; the next key abandons it.
constexpr auto kWaitForRows = 500ms;
constexpr auto kWriteInterval = 50ms;
constexpr int kRuns = 3;

constexpr std::array kQueries{u"([a-z]+/?)+\\.php",
                              u"(\"[^\"]*\"|[^\"])*id",
                              u"(\\w+\\s?)+:$",
                              u"a(?>[^q]*)c|bq",
                              u".*Fatal|(\\w+\\s*)+;",
                              u"(.*)exhausted|line \\d+",
                              u"(.*)*x",
                              u"(?>[^z]*)z",
                              u"(warning"};

// The longest time between two turns of the event loop, which is how long somebody may wait for an
// answer to a key, a click or a question.
class LongestGap {
public:
    LongestGap()
    {
        m_beat.setTimerType(Qt::PreciseTimer);
        QObject::connect(&m_beat, &QTimer::timeout, &m_beat, [this] {
            m_longest = std::max(m_longest, static_cast<double>(m_since.nsecsElapsed()) / 1e6);
            m_since.start();
        });
        m_since.start();
        m_beat.start(kBeat);
    }
    [[nodiscard]] double milliseconds() const { return m_longest; }

private:
    QTimer m_beat;
    QElapsedTimer m_since;
    double m_longest = 0;
};

// The main window's content with a log that it follows.
class Window {
public:
    explicit Window(const QByteArray& log)
    {
        m_file.setFileName(m_folder.filePath(QStringLiteral("debug.log")));
        static_cast<void>(m_file.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
        m_file.write(log);
        m_view.resize(1000, 700);
        m_view.show();
        m_model.followTail.set(true);
        m_model.openLog(QUrl::fromLocalFile(m_file.fileName()));
        runFor(kWaitForRows);
        QObject::connect(&m_writer, &QTimer::timeout, &m_writer, [this] {
            m_file.write("[05-Mar-2024 10:15:42 UTC] PHP Warning:  a.php:\n");
        });
        m_writer.start(kWriteInterval);
    }

    // Types the query, and waits a while for its lines.
    void type(const QString& query)
    {
        auto* const field = m_view.findChild<QLineEdit*>();
        field->clear();
        for (const QChar character : query) {
            QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, QString(character));
            QCoreApplication::sendEvent(field, &press);
            runFor(kKeyInterval);
        }
        runFor(kWaitForRows);
    }

private:
    static void runFor(std::chrono::milliseconds time)
    {
        QEventLoop loop;
        QTimer::singleShot(time, &loop, &QEventLoop::quit);
        loop.exec();
    }

    QTemporaryDir m_folder;
    NotificationCenter m_center;
    UserDefaults m_defaults{m_center, m_folder.filePath(QStringLiteral("settings.conf"))};
    LogViewModel m_model{m_defaults, m_center};
    ContentView m_view{m_model, m_center};
    QFile m_file;
    QTimer m_writer;
};

double longestGapOn(const QByteArray& log)
{
    std::vector<double> gaps;
    for (int run = 0; run < kRuns; ++run) {
        Window window(log);
        const LongestGap gap;
        for (const char16_t* query : kQueries) {
            window.type(QString::fromUtf16(query));
        }
        gaps.push_back(gap.milliseconds());
    }
    std::nth_element(gaps.begin(), gaps.begin() + kRuns / 2, gaps.end());
    return gaps[kRuns / 2];
}

} // namespace

void runTypingGaps(RatioTable& table)
{
    const QByteArray log = generatedLog(kLogBytes);
    table.addQuantity(QStringLiteral("longest gap while typing, a writer appending"),
                      longestGapOn(log), QStringLiteral("ms"), 100);
    QByteArray oneLine = log;
    oneLine.replace('\n', ' ');
    table.addQuantity(QStringLiteral("the same on one line of 2 MiB"), longestGapOn(oneLine),
                      QStringLiteral("ms"), 250);
}

} // namespace quillon::bench
