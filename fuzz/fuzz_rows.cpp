// SPDX-License-Identifier: MIT
// Any bytes as a log, and their first line as the search: from bytes to lines to styled rows to
// what print mode writes. Rows must stay whole and their runs must cover them.
#include "app/print/json_row.h"
#include "app/print/terminal_row.h"
#include "fuzz/require.h"
#include "model/records/decode_text.h"
#include "model/records/line_builder.h"
#include "platform/notification_center.h"
#include "platform/user_defaults.h"
#include "render/highlight_colors.h"
#include "render/preference_keys.h"
#include "render/styled_line.h"

#include <QJsonDocument>

namespace {

using namespace quillon;

void checkRuns(const AttributedRow& row)
{
    qsizetype end = 0;
    const std::vector<AttributeRun> runs = row.runs();
    for (std::size_t i = 0; i < runs.size(); ++i) {
        require(runs[i].start == end && runs[i].length > 0);
        require(i == 0 || runs[i].attributes != runs[i - 1].attributes);
        end = runs[i].end();
    }
    require(end == row.length() && row.string().size() == row.length());
}

void checkOutputs(const AttributedRow& row)
{
    QByteArray json("{");
    appendJsonRowFields(row, JsonRuns::Written, json);
    require(QJsonDocument::fromJson(json + '}').isObject());
    QByteArray text;
    appendPlainRow(row, ControlCharacters::AsPictures, RowNumber::Shown, text);
    require(!text.contains('\x1B') && text.endsWith('\n'));
    TerminalRowFormat(ColorDepth::Ansi16, ControlCharacters::AsPictures, RowNumber::LeftOut)
        .append(row, text);
}

HighlightColors defaultColors()
{
    NotificationCenter center;
    UserDefaults defaults(center, QStringLiteral("/nonexistent/Quillon.conf"));
    defaults.registerDefaults(defaultPreferences());
    return HighlightColors::read(defaults);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    static const HighlightColors colors = defaultColors();
    const QByteArrayView bytes(data, static_cast<qsizetype>(size));
    LogLines lines;
    appendParsedBytes(bytes, 0, lines);
    if (lines.isEmpty()) {
        return 0;
    }
    const auto search = SearchExpression::make(lines[0].text());
    const auto styler = std::make_shared<const LogRowStyler>(BaseAttributes(), colors, search);
    for (const LogLine& line : lines) {
        const AttributedRow row = styledLine(line, styler);
        checkRuns(row);
        checkOutputs(row);
    }
    return 0;
}
