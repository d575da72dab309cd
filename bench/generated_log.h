// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

namespace quillon::bench {

// What a generated log is written in.
enum class Prose { WordPress, French, Chinese };

// A log of about `bytes` bytes, the same at every call. WordPress: warnings, deprecations, notices,
// fatals with stack traces and dumps in the proportions of a real site, about 17,000 lines for
// 2 MiB, some of them with accented or CJK text. French and Chinese: every line prose of that
// language after its timestamp, as many lines to the byte.
QByteArray generatedLog(qsizetype bytes, Prose prose = Prose::WordPress);

// What a phrase at the end of each line is made of.
enum class Phrase { Ascii, Emoji, Accent, Arabic, Devanagari };

// A log of the WordPress kind with one of eight phrases at the end of each line.
QByteArray generatedLogWithPhrases(qsizetype bytes, Phrase phrase);

// As many lines as given, of the WordPress kind.
QByteArray generatedLines(qsizetype count);

} // namespace quillon::bench
