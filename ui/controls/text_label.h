// SPDX-License-Identifier: MIT
#pragma once

#include "ui/theme/theme.h"

#include <QLabel>

namespace quillon {

enum class TextEmphasis : std::uint8_t { Primary, Secondary };

// A text of a window in one of the text styles, shown as it is (no markup). Secondary texts are
// dimmed. Both follow the appearance and the application's font when these change.
class TextLabel : public QLabel {
    Q_OBJECT

public:
    TextLabel(const QString& text, TextStyle style, FontWeight weight = FontWeight::Regular,
              QWidget* parent = nullptr);

    void setEmphasis(TextEmphasis emphasis);

protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void applyEmphasis();

    const TextStyle m_style;
    const FontWeight m_weight;
    TextEmphasis m_emphasis = TextEmphasis::Primary;
};

} // namespace quillon
