// SPDX-License-Identifier: MIT
#pragma once

#include "ui/windows/vendor.h"

#include <QDialog>

#include <cstdint>

class QLabel;

namespace quillon {

// The credits: who made the program, what it is, and where its users find help; four lines, or
// three where there is no support site.
QString creditsText(const Vendor& vendor);

// The About panel: the program's icon, name and version, and, when it was called for them, the
// credits. One panel serves both.
class CreditsPanel : public QDialog {
    Q_OBJECT

public:
    enum class Content : std::uint8_t { Plain, WithCredits };

    explicit CreditsPanel(QWidget* parent = nullptr);

    // Brings the panel to the front with that content.
    void present(Content content);

    [[nodiscard]] const QLabel& creditsLabel() const { return *m_credits; }

private:
    QLabel* m_credits;
};

} // namespace quillon
