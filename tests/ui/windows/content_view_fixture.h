// SPDX-License-Identifier: MIT
#pragma once

#include "model/log_view_model.h"
#include "tests/support/spin_until.h"
#include "tests/support/temporary_defaults.h"
#include "ui/windows/content_view.h"

#include <QAbstractButton>
#include <QLineEdit>
#include <QSlider>

#include <gtest/gtest.h>

namespace quillon {

// A content view on a view model of its own, with a folder for log files.
class ContentViewFixture : public ::testing::Test {
protected:
    static constexpr const char* kThreeRows = "PHP Fatal error:  a\nPHP Warning:  b\nc\n";

    void openLog(const QByteArray& bytes = kThreeRows)
    {
        viewModel.openLog(QUrl::fromLocalFile(temporary.folder.write(kLogName, bytes)));
    }

    // The control that carries the tooltip.
    [[nodiscard]] QAbstractButton& button(const char* toolTip) const
    {
        const auto buttons = view.findChildren<QAbstractButton*>();
        for (QAbstractButton* const candidate : buttons) {
            if (candidate->toolTip() == QString::fromUtf8(toolTip)) {
                return *candidate;
            }
        }
        throw std::runtime_error(toolTip);
    }
    [[nodiscard]] QAbstractButton& openButton() const { return button("Ouvrir un fichier de log"); }
    [[nodiscard]] QAbstractButton& follow() const { return button("Suivre en direct (tail)"); }
    [[nodiscard]] QAbstractButton& wrap() const { return button("Activer le retour à la ligne"); }
    [[nodiscard]] QAbstractButton& clear() const { return button("Vider le contenu"); }
    [[nodiscard]] QSlider& sizeSlider() const { return *view.findChild<QSlider*>(); }
    [[nodiscard]] QLineEdit& search() const { return *view.findChild<QLineEdit*>(); }

    static inline const QString kLogName = QStringLiteral("debug.log");

    TemporaryDefaults temporary;
    LogViewModel viewModel{temporary.defaults, temporary.center};
    ContentView view{viewModel, temporary.center};
};

} // namespace quillon
