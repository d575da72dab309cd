// SPDX-License-Identifier: MIT
// Searches typed a key at a time while another program appends to the log.
#include "tests/support/helper_process.h"
#include "tests/support/spin_until.h"
#include "tests/support/test_data.h"
#include "tests/window/window_fixture.h"

#include <QFile>

#include <memory>

namespace quillon {
namespace {

const QString kLineCounts = QStringLiteral("Lignes: %1 • Affichées: %2");

class Searching : public WindowTest {
protected:
    void startWriter()
    {
        m_writer = std::make_unique<HelperProcess>(
            QStringLiteral("/bin/sh"),
            QStringList{QStringLiteral("-c"),
                        QStringLiteral("while echo 'PHP Warning:  written (warning) in a.php:'; do "
                                       "sleep 0.1; done >>\"$1\""),
                        QStringLiteral("sh"), folder().path(kLog)},
            desktop().environment());
    }
    // Ends the writer, and waits until the window has what it wrote.
    void stopWriter()
    {
        m_writer.reset();
        QFile log(folder().path(kLog));
        ASSERT_TRUE(log.open(QIODevice::ReadOnly));
        m_lineCount = log.readAll().count('\n');
        const QString count = QStringLiteral("Lignes: ") + QString::number(m_lineCount);
        ASSERT_TRUE(spinUntil([&] { return plainStatus().startsWith(count); }))
            << qPrintable(status());
    }

    // Types it over what stands in the search field.
    static void search(const QString& query)
    {
        desktop().press(QStringLiteral("ctrl+f"));
        desktop().type(query);
    }
    // The rows that print mode has for the query.
    [[nodiscard]] QString printed(const QString& query) const
    {
        QuillonProcess quillon(
            {QStringLiteral("--print"), QStringLiteral("-q"), query, folder().path(kLog)});
        EXPECT_EQ(quillon.run(), 0);
        return QString::fromUtf8(quillon.output());
    }
    // Waits until the window shows what print mode does.
    void awaitAsPrinted(const QString& query)
    {
        const QString expected = printed(query);
        const QString counts = kLineCounts.arg(m_lineCount).arg(expected.count(u'\n'));
        ASSERT_TRUE(spinUntil([&] { return plainStatus() == counts; }))
            << qPrintable(query) << ": " << qPrintable(status()) << " instead of "
            << qPrintable(counts);
        awaitRows(expected);
    }

private:
    // Without what groups digits.
    [[nodiscard]] QString plainStatus() const
    {
        QString text = status();
        return text.remove(QChar(0x202F)).remove(QChar(0xA0)).remove(u',');
    }

    std::unique_ptr<HelperProcess> m_writer;
    qsizetype m_lineCount = 0;
};

TEST_F(Searching, GenuineLinesAreShownAsPrintModeShowsThem)
{
    startWithLog(testData(testDataNames().front()), {QStringLiteral("--follow")});
    startWriter();
    for (const char16_t* query :
         {u".*Fatal|(\\w+\\s*)+;", u"(.*)exhausted|line \\d+", u"(.*)*x", u"(warning"}) {
        search(QString::fromUtf16(query));
    }
    stopWriter();
    for (const char16_t* query :
         {u"([a-z]+/?)+\\.php", u"(\"[^\"]*\"|[^\"])*id", u"(\\w+\\s?)+:$", u"(warning"}) {
        search(QString::fromUtf16(query));
        awaitAsPrinted(QString::fromUtf16(query));
    }
}

TEST_F(Searching, ALineOfTwoMebibytesHoldsUpNeitherKeysNorNewRows)
{
    constexpr qsizetype kLogBytes = 2'097'152;
    const QByteArray words = "PHP Notice:  Undefined index \"id\" in /srv/www/a.php on line 17; ";
    startWithLog(words.repeated(kLogBytes / words.size()) + '\n', {QStringLiteral("--follow")});
    startWriter();
    for (const char16_t* query : {u"a", u"(.*)*x", u"(?>[^z]*)z", u"([a-z]+/?)+\\.php"}) {
        search(QString::fromUtf16(query));
    }
    stopWriter();
    for (const char16_t* query : {u"^PHP Warning:  written", u"(warning"}) {
        search(QString::fromUtf16(query));
        awaitAsPrinted(QString::fromUtf16(query));
    }
}

} // namespace
} // namespace quillon
