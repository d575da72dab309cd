// SPDX-License-Identifier: MIT
#include "app/print/json_row.h"

#include "app/print/print_row.h"
#include "platform/one_line_text.h"
#include "render/attributed_string.h"
#include "render/color_codec.h"

#include <cmath>

namespace quillon {

namespace {

// Beyond what JSON asks for, the controls from DEL to U+009F and those of writing direction, so
// that the output is harmless to a terminal.
bool isEscaped(QChar character)
{
    const char16_t unit = character.unicode();
    return unit < 0x20 || unit == u'"' || unit == u'\\' || (unit >= 0x7F && unit < 0xA0) ||
           isDirectionControl(unit);
}

void appendEscape(QChar character, QByteArray& out)
{
    switch (character.unicode()) {
    case u'"':
        out += "\\\"";
        return;
    case u'\\':
        out += "\\\\";
        return;
    case u'\t':
        out += "\\t";
        return;
    case u'\n':
        out += "\\n";
        return;
    case u'\r':
        out += "\\r";
        return;
    default:
        out += "\\u" + QByteArray::number(character.unicode(), 16).rightJustified(4, '0');
        return;
    }
}

QByteArray nameOf(const Color& color)
{
    const bool isOpaque = color.alpha() >= 1.0;
    if (const SystemColor* const systemColor = color.systemColor()) {
        const QByteArray name(systemColorName(*systemColor).data(),
                              systemColorName(*systemColor).size());
        return isOpaque ? name : name + '/' + QByteArray::number(color.alpha());
    }
    QByteArray hex = hexFromColor(color).toLatin1();
    if (!isOpaque) {
        const auto alpha = static_cast<unsigned>(std::lround(color.alpha() * 255.0));
        hex += QByteArray::number(alpha, 16).rightJustified(2, '0').toUpper();
    }
    return hex;
}

void appendRun(const AttributeRun& run, QByteArray& out)
{
    out += "{\"start\":" + QByteArray::number(run.start);
    out += ",\"length\":" + QByteArray::number(run.length);
    out += ",\"foreground\":\"" + nameOf(run.attributes.foreground) + '"';
    if (run.attributes.background) {
        out += ",\"background\":\"" + nameOf(*run.attributes.background) + '"';
    }
    if (run.attributes.weight == FontWeight::Bold) {
        out += ",\"bold\":true";
    }
    out += '}';
}

} // namespace

void appendJsonString(QStringView text, QByteArray& out)
{
    out += '"';
    qsizetype start = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (isEscaped(text[i])) {
            appendUtf8(text.sliced(start, i - start), out);
            appendEscape(text[i], out);
            start = i + 1;
        }
    }
    appendUtf8(text.sliced(start), out);
    out += '"';
}

void appendJsonRowFields(const AttributedRow& row, JsonRuns runs, QByteArray& out)
{
    const QLatin1StringView severity = rawValue(row.severity());
    out += "\"number\":" + QByteArray::number(row.number());
    out += ",\"severity\":\"";
    out.append(severity.data(), severity.size());
    out += "\",\"text\":";
    appendJsonString(row.text(), out);
    if (runs == JsonRuns::LeftOut) {
        return;
    }
    out += ",\"runs\":[";
    bool isFirst = true;
    row.forEachRun([&](const AttributeRun& run) {
        if (!isFirst) {
            out += ',';
        }
        isFirst = false;
        appendRun(run, out);
    });
    out += ']';
}

} // namespace quillon
