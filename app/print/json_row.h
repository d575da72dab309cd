// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QStringView>

#include <cstdint>

namespace quillon {

class AttributedRow;

// Whether a row's styles are written with it.
enum class JsonRuns : std::uint8_t { Written, LeftOut };

// Appends the text as a JSON string in UTF-8. What could drive a terminal is escaped.
void appendJsonString(QStringView text, QByteArray& out);

// Appends the row as the members of a JSON object, without its braces, on one line:
//
//   "number":1532,"severity":"warning","text":"…","runs":[
//    {"start":0,"length":4,"foreground":"secondaryLabelColor"},
//    {"start":4,"length":1,"foreground":"#FF9500"}, …]
//
// The runs cover the whole row (number, tab, text, line feed) in order and without gaps; "start"
// and "length" count UTF-16 units. A colour is "#RRGGBB", "#RRGGBBAA" when it is not opaque, or the
// name of a system colour, with "/" and its alpha when it is not opaque. "background", a colour
// too, and "bold":true follow "foreground" only where they are set.
void appendJsonRowFields(const AttributedRow& row, JsonRuns runs, QByteArray& out);

} // namespace quillon
