// SPDX-License-Identifier: MIT
#include "render/color_codec.h"

#include <cmath>

namespace quillon {

namespace {

std::optional<quint64> scanHexNumber(QStringView text)
{
    if (text.startsWith(QLatin1StringView("0x"), Qt::CaseInsensitive)) {
        text = text.sliced(2);
    }
    quint64 number = 0;
    qsizetype digits = 0;
    for (const QChar character : text) {
        const char16_t unit = character.unicode();
        unsigned digit = 0;
        if (unit >= u'0' && unit <= u'9') {
            digit = unit - u'0';
        } else if (unit >= u'A' && unit <= u'F') {
            digit = unit - u'A' + 10U;
        } else if (unit >= u'a' && unit <= u'f') {
            digit = unit - u'a' + 10U;
        } else {
            break;
        }
        number = number << 4U | digit;
        ++digits;
    }
    if (digits == 0) {
        return std::nullopt;
    }
    return number;
}

double channel(quint64 number, unsigned shift)
{
    return static_cast<double>(number >> shift & 0xFFU) / 255.0;
}

} // namespace

std::optional<Color> colorFromHex(const QString& text)
{
    const QString trimmed = text.trimmed();
    QStringView digits = trimmed;
    if (digits.startsWith(u'#')) {
        digits = digits.sliced(1);
    }
    if (digits.size() != 6 && digits.size() != 8) {
        return std::nullopt;
    }
    const auto number = scanHexNumber(digits);
    if (!number) {
        return std::nullopt;
    }
    if (digits.size() == 6) {
        return Color::rgb(channel(*number, 16), channel(*number, 8), channel(*number, 0));
    }
    return Color::rgb(channel(*number, 24), channel(*number, 16), channel(*number, 8),
                      channel(*number, 0));
}

QString hexFromColor(const Color& color)
{
    const RgbComponents* const rgb = color.components();
    if (rgb == nullptr) {
        return QStringLiteral("#000000");
    }
    const auto step = [](double component) {
        return static_cast<unsigned>(std::lround(component * 255.0));
    };
    return QString::asprintf("#%02X%02X%02X", step(rgb->red), step(rgb->green), step(rgb->blue));
}

} // namespace quillon
