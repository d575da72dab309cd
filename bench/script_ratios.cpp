// SPDX-License-Identifier: MIT
#include "bench/generated_log.h"
#include "bench/own_view.h"
#include "bench/ratio_table.h"

#include <array>

namespace quillon::bench {

namespace {

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

void runScriptRatios(RatioTable& table)
{
    compareScripts(table);
    comparePhrases(table);
}

} // namespace quillon::bench
