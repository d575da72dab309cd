// SPDX-License-Identifier: MIT
// Every call by which the program reads goes wrong once, at the first to the last time that it is
// made. What is shown is the whole log or the reason why not, and the next good poll has it all.
#include "platform/settings_file.h"
#include "platform/system_error.h"
#include "tests/model/view_model_fixture.h"
#include "tests/support/system_faults.h"

#include <cerrno>
#include <ostream>

namespace quillon {
namespace {

struct Wrong {
    SystemCall call;
    Fault fault;
    // Whether nobody need hear of it.
    bool isHarmless;
    const char* name;
};

std::ostream& operator<<(std::ostream& out, const Wrong& wrong)
{
    return out << wrong.name;
}

// More than any of what is tested makes of one call.
constexpr int kMostCalls = 20;

class Faults : public ViewModelTest, public testing::WithParamInterface<Wrong> {
protected:
    Faults() { model().followTail.set(true); }

    // Does it with the n-th call going wrong, for each n until there is no such call any more, and
    // gives how many calls there are.
    int forEachCall(const std::function<void(int nth)>& attempt)
    {
        for (int nth = 1; nth <= kMostCalls; ++nth) {
            attempt(nth);
            if (HasFailure() || !m_hasHappened) {
                return nth - 1;
            }
        }
        ADD_FAILURE() << "called more often than that";
        return kMostCalls;
    }
    void withFault(int nth, const std::function<void()>& action)
    {
        const SystemFault fault(GetParam().call, GetParam().fault, nth);
        action();
        m_hasHappened = SystemFault::hasHappened();
    }
    // Long enough that its beginning is not read, and the number of its lines is estimated.
    static QByteArray largeLog() { return (QByteArray(99, 'x') + '\n').repeated(22'000); }
    static QString openError()
    {
        return QStringLiteral("Erreur d’ouverture: ") + SystemError{EIO}.message();
    }
    static QString tailError()
    {
        return QStringLiteral("Erreur lecture tail: ") + SystemError{EIO}.message();
    }

    bool m_hasHappened = false;
};

TEST_P(Faults, AnOpenedLogIsWholeOrTheReasonIsShown)
{
    const QUrl url = QUrl::fromLocalFile(folder().write(kFile, largeLog()));
    const int calls = forEachCall([&](int nth) {
        withFault(nth, [&] { model().openLog(url); });
        const bool isWhole = model().lines.get().size() == 20'972;
        EXPECT_TRUE(isWhole || (model().lines.get().isEmpty() && status() == openError()))
            << nth << ": " << qPrintable(status());
        EXPECT_TRUE(isWhole || !GetParam().isHarmless) << nth;
        model().openLog(url);
        EXPECT_EQ(model().lines.get().size(), 20'972) << nth;
    });
    EXPECT_GT(calls, 0);
}

TEST_P(Faults, AFailedPollChangesNothingAndTheNextOneHasItAll)
{
    const int calls = forEachCall([&](int nth) {
        open("x\n");
        model().pollTimer->stop();
        folder().append(kFile, "A\nB\n");
        withFault(nth, [&] { model().pollTail(); });
        const bool isWhole = model().lines.get().size() == 3;
        if (!isWhole) {
            EXPECT_FALSE(GetParam().isHarmless) << nth;
            EXPECT_EQ(status(), tailError()) << nth;
            EXPECT_EQ(texts(), QStringList{QStringLiteral("x")}) << nth;
            EXPECT_EQ(model().lastFileSize, 2U) << nth;
        }
        model().pollTail();
        EXPECT_EQ(texts().join(u' '), QStringLiteral("x A B")) << nth;
        EXPECT_FALSE(model().lastError()) << nth;
    });
    // The file is open already.
    EXPECT_EQ(calls > 0, GetParam().call != SystemCall::Open);
}

TEST_P(Faults, SettingsAreWholeOrLeftAlone)
{
    const QString path = folder().path(QStringLiteral("settings.conf"));
    const QByteArray text = "[General]\nprefs.color.info=#111111\n";
    const QString key = QStringLiteral("prefs.color.info");
    const SettingsFile file(path);
    const int calls = forEachCall([&](int nth) {
        folder().write(QStringLiteral("settings.conf"), text);
        auto written = SettingsFile::Written::No;
        withFault(nth, [&] {
            const auto values = file.read();
            EXPECT_TRUE(!values || values.value().value(key) == QStringLiteral("#111111")) << nth;
            EXPECT_TRUE(values || !GetParam().isHarmless) << nth;
            written = file.change({{QStringLiteral("prefs.new"), QStringLiteral("1")}},
                                  SettingsFile::WhenBusy::Leave);
        });
        const auto values = file.read();
        EXPECT_EQ(values.value().value(key), QStringLiteral("#111111")) << nth;
        EXPECT_EQ(values.value().contains(QStringLiteral("prefs.new")),
                  written == SettingsFile::Written::Yes)
            << nth;
    });
    // The file is read from its beginning.
    EXPECT_EQ(calls > 0, GetParam().call != SystemCall::Seek);
}

INSTANTIATE_TEST_SUITE_P(
    Calls, Faults,
    testing::Values(Wrong{SystemCall::Open, Fault::Fails, false, "OpenFails"},
                    Wrong{SystemCall::Open, Fault::IsInterrupted, true, "OpenIsInterrupted"},
                    Wrong{SystemCall::Stat, Fault::Fails, false, "StatFails"},
                    Wrong{SystemCall::Seek, Fault::Fails, false, "SeekFails"},
                    Wrong{SystemCall::Read, Fault::Fails, false, "ReadFails"},
                    Wrong{SystemCall::Read, Fault::IsInterrupted, true, "ReadIsInterrupted"},
                    Wrong{SystemCall::Read, Fault::IsCutShort, true, "ReadIsCutShort"}),
    [](const auto& row) { return std::string(row.param.name); });

} // namespace
} // namespace quillon
