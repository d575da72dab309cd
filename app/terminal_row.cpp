// SPDX-License-Identifier: MIT
#include "app/terminal_row.h"

#include "render/attributed_string.h"

#include <algorithm>

namespace quillon {

namespace {

// Moves the terminal from one look to another, by way of plain text.
void appendChange(const QByteArray& from, const QByteArray& to, QByteArray& out)
{
    if (from == to) {
        return;
    }
    out += "\x1B[";
    if (!from.isEmpty()) {
        out += to.isEmpty() ? "0" : "0;";
    }
    out += to;
    out += 'm';
}

} // namespace

void appendTerminalRow(const AttributedRow& row, ColorDepth depth, ControlCharacters controls,
                       QByteArray& out)
{
    const QString text = row.string();
    const qsizetype textEnd = text.size() - 1;
    QByteArray look;
    const std::vector<AttributeRun> runs = row.runs();
    for (const AttributeRun& run : runs) {
        const qsizetype end = std::min(run.end(), textEnd);
        if (end <= run.start) {
            continue;
        }
        const QByteArray wanted = graphicRendition(run.attributes, depth);
        appendChange(look, wanted, out);
        look = wanted;
        appendText(QStringView(text).sliced(run.start, end - run.start), controls, out);
    }
    appendChange(look, QByteArray(), out);
    out += '\n';
}

} // namespace quillon
