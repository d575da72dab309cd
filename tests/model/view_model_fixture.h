// SPDX-License-Identifier: MIT
#pragma once

#include "model/log_view_model.h"
#include "tests/support/printing.h"
#include "tests/support/spin_until.h"
#include "tests/support/temporary_defaults.h"
#include "tests/support/temporary_folder.h"

#include <QLocale>
#include <QStringList>

#include <gtest/gtest.h>

namespace quillon {

// What is read of a log when it is opened.
inline constexpr qsizetype kTwoMebibytes = 2'097'152;

// A view model over settings and a log file of its own. Counts are written without grouping.
class ViewModelTest : public testing::Test {
protected:
    static inline const QString kFile = QStringLiteral("file.log");

    ViewModelTest() { QLocale::setDefault(QLocale::c()); }
    ~ViewModelTest() override { QLocale::setDefault(m_localeBefore); }

    LogViewModel& model() { return m_model; }
    UserDefaults& defaults() { return m_temporary.defaults; }
    NotificationCenter& center() { return m_temporary.center; }
    [[nodiscard]] const TemporaryFolder& folder() const { return m_folder; }
    [[nodiscard]] QUrl url() const { return m_folder.url(kFile); }

    // Writes the log file anew and opens it.
    void open(const QByteArray& bytes)
    {
        m_folder.write(kFile, bytes);
        m_model.openLog(url());
    }

    // Lets a pass that takes more than a slice of processor time come to its end.
    bool finishPass()
    {
        return spinUntil([this] { return !m_model.isRecomputing.get(); });
    }

    [[nodiscard]] QString status() const { return m_model.statusLine.get(); }
    [[nodiscard]] QString output() const { return m_model.attributedOutput.get().string(); }
    [[nodiscard]] qint64 number(qsizetype index) const
    {
        return m_model.lines.get()[index].number();
    }
    [[nodiscard]] QStringList texts() const
    {
        QStringList texts;
        for (const LogLine& line : m_model.lines.get()) {
            texts.append(line.text());
        }
        return texts;
    }
    // The texts of the rows that are shown.
    [[nodiscard]] QStringList shown() const
    {
        QStringList texts;
        for (const AttributedRow& row : m_model.attributedOutput.get().rows()) {
            texts.append(row.text());
        }
        return texts;
    }

private:
    const QLocale m_localeBefore;
    TemporaryFolder m_folder;
    TemporaryDefaults m_temporary;
    LogViewModel m_model{m_temporary.defaults, m_temporary.center};
};

} // namespace quillon
