// SPDX-License-Identifier: MIT
// Fuzzing takes another compiler and much time; that its target still builds, and finds nothing
// wrong with what is known, does not.
#include "tests/support/printing.h"
#include "tests/support/random_text.h"
#include "tests/support/test_data.h"

#include <gtest/gtest.h>

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size);

namespace quillon {
namespace {

int givenToTheTarget(const QByteArray& bytes)
{
    return LLVMFuzzerTestOneInput(reinterpret_cast<const unsigned char*>(bytes.constData()),
                                  static_cast<std::size_t>(bytes.size()));
}

TEST(FuzzTarget, TakesGenuineLogs)
{
    for (const QString& name : testDataNames()) {
        EXPECT_EQ(givenToTheTarget("error\n" + testData(name)), 0) << qPrintable(name);
    }
}

TEST(FuzzTarget, TakesAnyBytes)
{
    RandomText random(91);
    for (int i = 0; i < 300; ++i) {
        QByteArray bytes(qsizetype(random.below(400)), '\0');
        for (char& byte : bytes) {
            byte = static_cast<char>(random.below(256));
        }
        EXPECT_EQ(givenToTheTarget(bytes), 0) << bytes.toHex().constData();
    }
}

} // namespace
} // namespace quillon
