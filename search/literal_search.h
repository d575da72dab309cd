// SPDX-License-Identifier: MIT
#pragma once

#include "search/ascii_search.h"
#include "search/text_range.h"

#include <QString>

#include <optional>
#include <vector>

namespace quillon {

// Finds a text in others, both in lower case.
class LiteralSearch {
public:
    // `literal` must not be empty.
    explicit LiteralSearch(const QString& literal);

    // Whether the text has an occurrence.
    [[nodiscard]] bool isIn(const QString& text) const;

    // What finds the same in that text by comparing letters; null where nothing does.
    [[nodiscard]] const AsciiSearch* lettersFor(const QString& text) const;

    // Every occurrence in the text, in order and without overlap: where it is in the text's lower
    // case, clipped to the text where lower case is longer.
    [[nodiscard]] std::vector<TextRange> rangesIn(const QString& text) const;

private:
    QString m_lowerCased;
    // Set where lower case is ASCII: then comparing letters gives the same in most texts, without
    // making their lower case.
    std::optional<AsciiSearch> m_ascii;
};

} // namespace quillon
