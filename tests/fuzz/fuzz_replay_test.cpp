// SPDX-License-Identifier: MIT
#include "tests/support/printing.h"
#include "tests/support/random_text.h"

#include <QByteArrayList>
#include <QDir>
#include <QFile>

#include <gtest/gtest.h>
#include <ostream>
#include <string>
#include <vector>

extern "C" {
int fuzz_color(const unsigned char* data, std::size_t size);
int fuzz_command_line(const unsigned char* data, std::size_t size);
int fuzz_follower(const unsigned char* data, std::size_t size);
int fuzz_handover(const unsigned char* data, std::size_t size);
int fuzz_rows(const unsigned char* data, std::size_t size);
int fuzz_search(const unsigned char* data, std::size_t size);
int fuzz_settings(const unsigned char* data, std::size_t size);
}

namespace quillon {
namespace {

struct Target {
    const char* name;
    int (*run)(const unsigned char* data, std::size_t size);
};

std::ostream& operator<<(std::ostream& out, const Target& target)
{
    return out << target.name;
}

// How many inputs near those of the corpus are tried.
constexpr int kMutations = 1500;

class FuzzReplay : public testing::TestWithParam<Target> {
protected:
    static QByteArrayList corpus()
    {
        const QDir folder(QStringLiteral(QUILLON_FUZZ_CORPUS "/") +
                          QString::fromLatin1(GetParam().name));
        QByteArrayList inputs;
        for (const QString& name : folder.entryList(QDir::Files, QDir::Name)) {
            QFile file(folder.filePath(name));
            EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(name);
            inputs.append(file.readAll());
        }
        return inputs;
    }
    // A target ends the program over an input that breaks its promise; the trace names it.
    static void give(const QByteArray& input)
    {
        EXPECT_EQ(GetParam().run(reinterpret_cast<const unsigned char*>(input.constData()),
                                 static_cast<std::size_t>(input.size())),
                  0);
    }
};

QByteArray mutated(QByteArray input, const QByteArray& other, RandomText& random)
{
    const auto place = [&random](const QByteArray& bytes) {
        return qsizetype(random.below(quint32(bytes.size()) + 1));
    };
    for (int changes = 1 + int(random.below(4)); changes > 0; --changes) {
        switch (random.below(5)) {
        case 0:
            input.insert(place(input), char(random.below(256)));
            break;
        case 1:
            input.remove(place(input), 1 + qsizetype(random.below(8)));
            break;
        case 2:
            input.replace(place(input), 1, QByteArray(1, char(random.below(256))));
            break;
        case 3:
            input.insert(place(input), other.mid(place(other), qsizetype(random.below(64))));
            break;
        default:
            input.truncate(place(input));
            break;
        }
    }
    return input;
}

TEST_P(FuzzReplay, TakesTheCorpus)
{
    const QByteArrayList inputs = corpus();
    ASSERT_FALSE(inputs.isEmpty());
    for (const QByteArray& input : inputs) {
        give(input);
    }
}

TEST_P(FuzzReplay, TakesWhatIsNearTheCorpus)
{
    const QByteArrayList inputs = corpus();
    RandomText random(14);
    for (int i = 0; i < kMutations; ++i) {
        const auto any = [&] {
            return inputs[qsizetype(random.below(quint32(inputs.size())))];
        };
        give(mutated(any(), any(), random));
    }
}

const std::vector<Target> kTargets{
    {"color", fuzz_color},       {"command_line", fuzz_command_line},
    {"follower", fuzz_follower},
#ifdef QUILLON_HAS_DBUS
    {"handover", fuzz_handover},
#endif
    {"rows", fuzz_rows},         {"search", fuzz_search},
    {"settings", fuzz_settings},
};

INSTANTIATE_TEST_SUITE_P(Targets, FuzzReplay, testing::ValuesIn(kTargets),
                         [](const auto& row) { return std::string(row.param.name); });

} // namespace
} // namespace quillon
