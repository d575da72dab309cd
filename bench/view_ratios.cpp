// SPDX-License-Identifier: MIT
#include "bench/generated_log.h"
#include "bench/ratio_table.h"
#include "bench/reference_view.h"
#include "model/log_recompute.h"
#include "model/log_view_model.h"
#include "model/records/line_builder.h"
#include "platform/notification_center.h"
#include "platform/user_defaults.h"
#include "ui/log_text/log_text_view.h"

#include <QCoreApplication>
#include <QFile>
#include <QImage>
#include <QScrollBar>
#include <QTemporaryDir>

#include <array>

namespace quillon::bench {

namespace {

constexpr qsizetype kLogBytes = 2'097'152;
constexpr QSize kViewSize(1000, 700);

// The view as the window has it: queued work done, scrolled to the end, painted into an image.
class OwnView {
public:
    OwnView() : m_image(kViewSize, QImage::Format_ARGB32_Premultiplied)
    {
        m_view.resize(kViewSize);
        m_view.show();
        QCoreApplication::processEvents();
    }

    void show(const AttributedString& text, bool isWrapped)
    {
        replace(text, isWrapped);
        paint();
    }
    // Without painting, as the next two.
    void replace(const AttributedString& text, bool isWrapped, double fontSize = 13)
    {
        m_view.update(LogTextContent{text, isWrapped, fontSize});
        QCoreApplication::sendPostedEvents(&m_view, QEvent::MetaCall);
    }
    void resize(int width) { m_view.resize(width, kViewSize.height()); }
    void scrollToTopAndBack()
    {
        m_view.verticalScrollBar()->setValue(0);
        paint();
        m_view.scrollToEndOfDocument();
        paint();
    }
    void paint() { m_view.viewport()->render(&m_image); }

private:
    LogTextView m_view{LogTextContent{}};
    QImage m_image;
};

struct Model {
    QTemporaryDir folder;
    NotificationCenter center;
    UserDefaults defaults{center, folder.filePath(QStringLiteral("settings.conf"))};

    AttributedString styled(const LogLines& lines, const QString& query = QString()) const
    {
        DisplayOptions options;
        options.filter.search = SearchExpression::make(query);
        return rebuildDisplay(lines, options, defaults).output;
    }
};

LogLines linesOf(const QByteArray& bytes)
{
    LogLines lines;
    appendParsedBytes(bytes, 0, lines);
    return lines;
}

void compareKeyPress(RatioTable& table)
{
    const Model model;
    const LogLines lines = linesOf(generatedLog(kLogBytes));
    OwnView view;
    ReferenceView reference(kViewSize);
    const QString query = QStringLiteral("e");
    const auto ours = [&] {
        return millisecondsOf([&] { view.show(model.styled(lines, query), true); });
    };
    const auto theirs = [&] {
        const AttributedString text = model.styled(lines, query);
        return millisecondsOf([&] { reference.show(text, true); });
    };
    table.addSpeedUp(QStringLiteral("key press: recompute, update, paint | QTextEdit"),
                     comparePairs(ours, theirs), 50);
}

void compareReplacing(RatioTable& table, bool isWrapped)
{
    const Model model;
    const LogLines lines = linesOf(generatedLog(kLogBytes));
    OwnView view;
    ReferenceView reference(kViewSize);
    const auto ours = [&] {
        const AttributedString text = model.styled(lines);
        return millisecondsOf([&] { view.show(text, isWrapped); });
    };
    const auto theirs = [&] {
        const AttributedString text = model.styled(lines);
        return millisecondsOf([&] { reference.show(text, isWrapped); });
    };
    table.addSpeedUp(isWrapped
                         ? QStringLiteral("replace, lay out, to end, paint, wrapped | QTextEdit")
                         : QStringLiteral("the same, unwrapped | QTextEdit"),
                     comparePairs(ours, theirs), 80);
}

void compareRewrapping(RatioTable& table)
{
    const Model model;
    const LogLines lines = linesOf(generatedLog(kLogBytes));
    OwnView view;
    const auto replace = [&] {
        const AttributedString text = model.styled(lines);
        view.show(model.styled(lines), true);
        return millisecondsOf([&] { view.replace(text, true); });
    };
    // Each is the first change after a new text, when least is known of its rows, there and back.
    const auto rewrap = [&](int from, int to) {
        view.resize(from);
        view.show(model.styled(lines), true);
        return millisecondsOf([&] { view.resize(to); });
    };
    table.add(QStringLiteral("re-wrap after a change of width | replace and lay out"),
              comparePairs([&] { return (rewrap(900, 760) + rewrap(760, 900)) / 2; }, replace, 25),
              0.5);
    const auto scale = [&](double from, double to) {
        const AttributedString text = model.styled(lines);
        view.replace(text, true, from);
        view.paint();
        return millisecondsOf([&] { view.replace(text, true, to); });
    };
    table.add(QStringLiteral("re-wrap after a change of size | replace and lay out"),
              comparePairs([&] { return (scale(13, 14) + scale(14, 13)) / 2; }, replace, 25), 0.5);
}

// One following view model with a view; each batch appends 100 lines to the file.
class FollowedLog {
public:
    FollowedLog(const QByteArray& start, QByteArray batch) : m_batch(std::move(batch))
    {
        m_file.setFileName(m_model.folder.filePath(QStringLiteral("debug.log")));
        static_cast<void>(m_file.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
        m_viewModel.followTail.set(true);
        m_viewModel.openLog(QUrl::fromLocalFile(m_file.fileName()));
        m_viewModel.invalidatePollTimer();
        m_file.write(start);
        m_viewModel.pollTail();
        m_view.show(m_viewModel.attributedOutput.get(), true);
    }

    double batchTime()
    {
        m_file.write(m_batch);
        return millisecondsOf([&] {
            m_viewModel.pollTail();
            m_view.show(m_viewModel.attributedOutput.get(), true);
        });
    }

private:
    Model m_model;
    QByteArray m_batch;
    QFile m_file;
    LogViewModel m_viewModel{m_model.defaults, m_model.center};
    OwnView m_view;
};

void compareTailBatches(RatioTable& table)
{
    const QByteArray batch = generatedLines(100);
    FollowedLog large(generatedLines(1'000'000), batch);
    FollowedLog small(generatedLines(17'000), batch);
    table.add(
        QStringLiteral("tail batch of 100 lines at 1,000,000 | at 17,000"),
        comparePairs([&] { return large.batchTime(); }, [&] { return small.batchTime(); }, 51),
        1.1);
}

struct PhraseRow {
    Phrase phrase;
    const char* name;
};

constexpr std::array kPhraseRows{
    PhraseRow{Phrase::Emoji, "emoji"}, PhraseRow{Phrase::Accent, "combining accents"},
    PhraseRow{Phrase::Arabic, "Arabic"}, PhraseRow{Phrase::Devanagari, "Devanagari"}};

QString rowName(const char* work, const char* phrase)
{
    return QLatin1StringView(work) + QStringLiteral(", ") + QLatin1StringView(phrase) +
           QStringLiteral(" in each line | ASCII");
}

// A first change of the text size, or of the width, and what it shows.
double resizeTime(OwnView& view, const AttributedString& text, bool isOfText)
{
    view.resize(kViewSize.width());
    view.show(text, true);
    return millisecondsOf([&] {
        if (isOfText) {
            view.replace(text, true, 15);
        } else {
            view.resize(kViewSize.width() * 4 / 5);
        }
        view.paint();
    });
}

void comparePhrases(RatioTable& table)
{
    const Model model;
    const LogLines ascii = linesOf(generatedLogWithPhrases(kLogBytes, Phrase::Ascii));
    for (const auto& [phrase, name] : kPhraseRows) {
        const LogLines lines = linesOf(generatedLogWithPhrases(kLogBytes, phrase));
        OwnView view;
        OwnView reference;
        for (const bool isOfText : {true, false}) {
            table.add(rowName(isOfText ? "another text size" : "another width", name),
                      comparePairs(
                          [&] { return resizeTime(view, model.styled(lines), isOfText); },
                          [&] { return resizeTime(reference, model.styled(ascii), isOfText); }, 15),
                      3);
        }
        constexpr qsizetype kBatchBytes = 1'100'000;
        FollowedLog follow(QByteArray(), generatedLogWithPhrases(kBatchBytes, phrase));
        FollowedLog followAscii(QByteArray(), generatedLogWithPhrases(kBatchBytes, Phrase::Ascii));
        table.add(rowName("tail batch of 1.1 MB", name),
                  comparePairs([&] { return follow.batchTime(); },
                               [&] { return followAscii.batchTime(); }, 15),
                  3);
    }
}

double openAndShow(const Model& model, OwnView& view, const QByteArray& bytes)
{
    return millisecondsOf([&] { view.show(model.styled(linesOf(bytes)), true); });
}

void compareScripts(RatioTable& table)
{
    const Model model;
    OwnView view;
    const QByteArray ascii = generatedLog(kLogBytes);
    const QByteArray french = generatedLog(kLogBytes, Prose::French);
    const QByteArray chinese = generatedLog(kLogBytes, Prose::Chinese);
    const auto usual = [&] {
        return openAndShow(model, view, ascii);
    };
    table.add(QStringLiteral("a log all in French prose | the usual log"),
              comparePairs([&] { return openAndShow(model, view, french); }, usual, 15), 1.5);
    table.add(QStringLiteral("a log all in Chinese | the usual log"),
              comparePairs([&] { return openAndShow(model, view, chinese); }, usual, 15), 3);

    QByteArray oneLine = ascii;
    oneLine.replace('\n', ' ');
    const auto showOneLine = [&] {
        return millisecondsOf([&] {
            view.show(model.styled(linesOf(oneLine)), true);
            view.scrollToTopAndBack();
        });
    };
    const auto showLines = [&] {
        return millisecondsOf([&] {
            view.show(model.styled(linesOf(ascii)), true);
            view.scrollToTopAndBack();
        });
    };
    table.add(QStringLiteral("one line of 2 MiB: open, paint, to top and back | usual log"),
              comparePairs(showOneLine, showLines, 15), 2);
}

} // namespace

void runViewRatios(RatioTable& table)
{
    compareKeyPress(table);
    compareReplacing(table, true);
    compareReplacing(table, false);
    compareRewrapping(table);
    compareTailBatches(table);
    compareScripts(table);
    comparePhrases(table);
}

} // namespace quillon::bench
