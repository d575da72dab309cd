// SPDX-License-Identifier: MIT
#include "bench/generated_log.h"
#include "bench/ratio_table.h"
#include "model/log_view_model.h"
#include "platform/notification_center.h"
#include "platform/user_defaults.h"
#include "render/line_filter.h"

#include <QFile>
#include <QTemporaryDir>
#include <unicode/regex.h>

#include <memory>

namespace quillon::bench {

namespace {

constexpr qsizetype kLogBytes = 2'097'152;

struct Workplace {
    QTemporaryDir folder;
    NotificationCenter center;
    UserDefaults defaults{center, folder.filePath(QStringLiteral("settings.conf"))};
    LogViewModel model{defaults, center};

    QString write(const QByteArray& bytes, const QString& name = QStringLiteral("debug.log")) const
    {
        QFile file(folder.filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
            qFatal("cannot write the benchmark's log");
        }
        return file.fileName();
    }

    // What opening takes with all rows' runs, which the program itself works out only for rows
    // on screen.
    double openTime(const QString& path)
    {
        model.clearContent();
        return millisecondsOf([&] {
            model.openLog(QUrl::fromLocalFile(path));
            qsizetype runs = 0;
            for (const AttributedRow& row : model.attributedOutput.get().rows()) {
                runs += static_cast<qsizetype>(row.runs().size());
            }
            volatile qsizetype sink = runs;
            static_cast<void>(sink);
        });
    }
};

double bareReadTime(const QString& path)
{
    return millisecondsOf([&] {
        QFile file(path);
        static_cast<void>(file.open(QIODevice::ReadOnly | QIODevice::Unbuffered));
        const QString text = QString::fromUtf8(file.readAll());
        volatile qsizetype sink = text.size();
        static_cast<void>(sink);
    });
}

void compareOpening(RatioTable& table)
{
    Workplace place;
    const QString path = place.write(generatedLog(kLogBytes));
    const auto bare = [&] {
        return bareReadTime(path);
    };
    const auto open = [&] {
        place.model.clearContent();
        return millisecondsOf([&] { place.model.openLog(QUrl::fromLocalFile(path)); });
    };
    table.add(QStringLiteral("open to complete attributedOutput | read+fromUtf8"),
              comparePairs(open, bare, 15), 15);
    table.addForComparison(QStringLiteral("and every row's style worked out | read+fromUtf8"),
                           comparePairs([&] { return place.openTime(path); }, bare, 15));

    QFile sparse(place.folder.filePath(QStringLiteral("sparse.log")));
    static_cast<void>(sparse.open(QIODevice::WriteOnly));
    const QByteArray end = generatedLog(kLogBytes);
    // The same end, behind a hundred gigabytes of nothing.
    constexpr qint64 kHuge = qint64{100} * 1024 * 1024 * 1024;
    static_cast<void>(sparse.seek(kHuge - end.size()));
    sparse.write(end);
    sparse.close();
    const auto openSparse = [&] {
        place.model.clearContent();
        return millisecondsOf([&] { place.model.openLog(QUrl::fromLocalFile(sparse.fileName())); });
    };
    table.add(QStringLiteral("open 100 GB sparse | open 2 MiB"), comparePairs(openSparse, open, 25),
              1.1);
}

double icuPassTime(const LogLines& lines, const QString& pattern)
{
    UErrorCode status = U_ZERO_ERROR;
    const icu::UnicodeString source(pattern.utf16(), static_cast<int32_t>(pattern.size()));
    const icu::RegexMatcher compiled(source, UREGEX_CASE_INSENSITIVE, status);
    std::unique_ptr<icu::RegexMatcher> matcher(compiled.pattern().matcher(status));
    return millisecondsOf([&] {
        qsizetype found = 0;
        for (const LogLine& line : lines) {
            const QString& text = line.text();
            const icu::UnicodeString alias(false, text.utf16(), static_cast<int32_t>(text.size()));
            matcher->reset(alias);
            found += matcher->find() ? 1 : 0;
        }
        volatile qsizetype sink = found;
        static_cast<void>(sink);
    });
}

double ourPassTime(const LogLines& lines, const QString& query)
{
    const LineFilter filter{.search = SearchExpression::make(query)};
    return millisecondsOf([&] {
        qsizetype found = 0;
        for (const LogLine& line : lines) {
            found += filter.allows(line) ? 1 : 0;
        }
        volatile qsizetype sink = found;
        static_cast<void>(sink);
    });
}

void compareFilters(RatioTable& table)
{
    Workplace place;
    place.model.openLog(QUrl::fromLocalFile(place.write(generatedLog(kLogBytes))));
    const LogLines lines = place.model.lines.get();
    const QString expression = QStringLiteral("undefined .* \"?key");
    table.add(QStringLiteral("filter pass, regular expression | bare ICU"),
              comparePairs([&] { return ourPassTime(lines, expression); },
                           [&] { return icuPassTime(lines, expression); }, 15),
              1.15);
    const QString word = QStringLiteral("fatal");
    table.add(QStringLiteral("filter pass, plain ASCII word | bare ICU"),
              comparePairs([&] { return ourPassTime(lines, word); },
                           [&] { return icuPassTime(lines, word); }, 15),
              0.25);
    const QString unfinished = QStringLiteral("(warning");
    table.add(QStringLiteral("filter pass, unfinished expression | ICU pass"),
              comparePairs([&] { return ourPassTime(lines, unfinished); },
                           [&] { return icuPassTime(lines, expression); }, 15),
              0.3);
}

} // namespace

void runModelRatios(RatioTable& table)
{
    compareOpening(table);
    compareFilters(table);
}

} // namespace quillon::bench
