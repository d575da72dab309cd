// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

namespace quillon {

class AttributedRow;

// Appends the row as one JSON object in UTF-8 and a line feed:
//
//   {"number":1532,"severity":"warning","text":"…","runs":[
//    {"start":0,"length":4,"foreground":"secondaryLabelColor"},
//    {"start":4,"length":1,"foreground":"#FF9500"}, …]}        (on one line)
//
// The runs cover the whole row (number, tab, text, line feed) in order and without gaps; "start"
// and "length" count UTF-16 units. A colour is "#RRGGBB", "#RRGGBBAA" when it is not opaque, or the
// name of a system colour, with "/" and its alpha when it is not opaque. "background", a colour
// too, and "bold":true follow "foreground" only where they are set.
void appendJsonRow(const AttributedRow& row, QByteArray& out);

} // namespace quillon
