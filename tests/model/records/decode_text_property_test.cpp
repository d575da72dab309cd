// SPDX-License-Identifier: MIT
#include "model/records/decode_text.h"
#include "tests/support/printing.h"
#include "tests/support/random_text.h"
#include "tests/support/test_data.h"

#include <gtest/gtest.h>
#include <optional>

namespace quillon {
namespace {

struct ByteRange {
    unsigned first;
    unsigned last;
    [[nodiscard]] bool contains(unsigned byte) const { return byte >= first && byte <= last; }
};

// A row of the Unicode standard's table 3-7, "Well-Formed UTF-8 Byte Sequences".
struct WellFormed {
    ByteRange lead;
    ByteRange second;
    int length;
};
constexpr WellFormed kWellFormed[] = {
    {{0x00, 0x7F}, {0, 0}, 1},       {{0xC2, 0xDF}, {0x80, 0xBF}, 2},
    {{0xE0, 0xE0}, {0xA0, 0xBF}, 3}, {{0xE1, 0xEC}, {0x80, 0xBF}, 3},
    {{0xED, 0xED}, {0x80, 0x9F}, 3}, {{0xEE, 0xEF}, {0x80, 0xBF}, 3},
    {{0xF0, 0xF0}, {0x90, 0xBF}, 4}, {{0xF1, 0xF3}, {0x80, 0xBF}, 4},
    {{0xF4, 0xF4}, {0x80, 0x8F}, 4},
};

// Byte by byte: the longest beginning of a row of the table that is there is taken; where it is a
// whole row it is a character, and otherwise it is replaced.
QString plainDecode(const QByteArray& bytes)
{
    QString text;
    const auto byteAt = [&bytes](qsizetype at) -> std::optional<unsigned> {
        return at < bytes.size() ? std::optional(unsigned{static_cast<unsigned char>(bytes[at])})
                                 : std::nullopt;
    };
    for (qsizetype at = 0; at < bytes.size();) {
        const unsigned lead = *byteAt(at);
        int taken = 1;
        bool isWhole = false;
        char32_t character = 0;
        for (const WellFormed& row : kWellFormed) {
            if (!row.lead.contains(lead)) {
                continue;
            }
            character = row.length == 1 ? lead : lead & (0xFFU >> (row.length + 1));
            while (taken < row.length) {
                const auto byte = byteAt(at + taken);
                const ByteRange allowed = taken == 1 ? row.second : ByteRange{0x80, 0xBF};
                if (!byte || !allowed.contains(*byte)) {
                    break;
                }
                character = character << 6U | (*byte & 0x3FU);
                ++taken;
            }
            isWhole = taken == row.length;
        }
        text += QChar::fromUcs4(isWhole ? character : U'\uFFFD');
        at += taken;
    }
    return text;
}

TEST(DecodeTextProperty, AgreesWithThePlainDecoderOnEveryPairOfBytes)
{
    for (int first = 0; first < 256; ++first) {
        for (int second = 0; second < 256; ++second) {
            const QByteArray bytes{QByteArray(1, char(first)) + char(second)};
            ASSERT_EQ(decodeText(bytes), plainDecode(bytes)) << first << ' ' << second;
        }
    }
}

TEST(DecodeTextProperty, AgreesWithThePlainDecoderOnEveryLeadFollowedByThree)
{
    const QByteArray interesting("\x00\x41\x7F\x80\x8F\x90\x9F\xA0\xBF\xC2\xE0\xF0\xFF", 13);
    for (int lead = 0xC0; lead < 256; ++lead) {
        for (const char second : interesting) {
            for (const char third : interesting) {
                for (const char fourth : interesting) {
                    const QByteArray bytes = QByteArray(1, char(lead)) + second + third + fourth;
                    ASSERT_EQ(decodeText(bytes), plainDecode(bytes)) << bytes.toHex().constData();
                }
            }
        }
    }
}

TEST(DecodeTextProperty, AgreesWithThePlainDecoderOnEveryCutOfATextAtEveryOffset)
{
    const QByteArray text = QByteArray("0123456789abcd") + "é日🌞\u0800\U0010FFFF" +
                            QByteArray("0123456789abcdefghij") + "\u2028ß";
    for (qsizetype start = 0; start < text.size(); ++start) {
        for (qsizetype end = start; end <= text.size(); ++end) {
            const QByteArray bytes = text.sliced(start, end - start);
            ASSERT_EQ(decodeText(bytes), plainDecode(bytes)) << start << ' ' << end;
        }
    }
}

TEST(DecodeTextProperty, AgreesWithThePlainDecoderOnRandomBytes)
{
    const QByteArrayList pieces{
        "a",    "some plain letters", "\xC3\xA9", "\xE6\x97\xA5", "\xF0\x9F\x8C\x9E",
        "\xC3", "\xE6\x97",           "\xF0\x9F", "\xED\xA0\x80", "\xC0\xAF",
        "\x80", "\xEF\xBB\xBF",
    };
    RandomText random(13);
    for (int i = 0; i < 20'000; ++i) {
        QByteArray bytes;
        for (std::uint32_t piece = random.below(20); piece > 0; --piece) {
            bytes += random.below(3) == 0 ? QByteArray(1, char(random.below(256)))
                                          : pieces[random.below(std::uint32_t(pieces.size()))];
        }
        ASSERT_EQ(decodeText(bytes), plainDecode(bytes)) << bytes.toHex().constData();
    }
}

TEST(DecodeTextProperty, AgreesWithThePlainDecoderOnGenuineLogs)
{
    for (const QString& name : testDataNames()) {
        const QByteArray bytes = testData(name);
        EXPECT_EQ(decodeText(bytes), plainDecode(bytes));
        EXPECT_TRUE(decodeText(bytes).contains(QChar(0xFFFD))) << qPrintable(name);
    }
}

} // namespace
} // namespace quillon
