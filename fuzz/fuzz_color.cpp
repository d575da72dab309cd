// SPDX-License-Identifier: MIT
// Any text as the colour of a setting, against a reading of the same rules that is as plain as can
// be; and what is written for a colour must read back as it.
#include "fuzz/require.h"
#include "render/color_codec.h"

#include <QList>

namespace {

using namespace quillon;

// The digits at the front, without regard to how many a number holds.
std::optional<quint64> numberAtFront(QString text)
{
    if (text.startsWith(QStringLiteral("0x")) || text.startsWith(QStringLiteral("0X"))) {
        text = text.mid(2);
    }
    const QString digits = QStringLiteral("0123456789abcdef");
    std::optional<quint64> number;
    for (const QChar character : text) {
        const qsizetype digit = digits.indexOf(character.toLower());
        if (digit < 0 || character.unicode() > 0x7F) {
            break;
        }
        number = number.value_or(0) * 16 + quint64(digit);
    }
    return number;
}

std::optional<Color> plainReading(const QString& given)
{
    QString text = given.trimmed();
    if (text.startsWith(u'#')) {
        text = text.mid(1);
    }
    const auto number = numberAtFront(text);
    if ((text.size() != 6 && text.size() != 8) || !number) {
        return std::nullopt;
    }
    const bool hasAlpha = text.size() == 8;
    const quint64 rgb = hasAlpha ? *number >> 8 : *number;
    const auto channel = [](quint64 bits) {
        return double(bits & 0xFF) / 255.0;
    };
    return Color::rgb(channel(rgb >> 16), channel(rgb >> 8), channel(rgb),
                      hasAlpha ? channel(*number) : 1.0);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    const QString text =
        QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const auto color = colorFromHex(text);
    require(color == plainReading(text));
    if (color) {
        const QString hex = hexFromColor(*color);
        require(hex.size() == 7 && hex == hex.toUpper() && hex.startsWith(u'#'));
        require(colorFromHex(hex) == color->withAlpha(1.0));
    }
    return 0;
}
