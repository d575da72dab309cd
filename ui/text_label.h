// SPDX-License-Identifier: MIT
#pragma once

#include "render/text_attributes.h"
#include "ui/theme.h"

#include <QLabel>

namespace quillon {

enum class TextEmphasis : std::uint8_t { Primary, Secondary };

// A text of a window in one of the text styles, shown as it is (no markup). Secondary texts are
// dimmed and follow the appearance when it changes.
class TextLabel : public QLabel {
    Q_OBJECT

public:
    TextLabel(const QString& text, TextStyle style, FontWeight weight = FontWeight::Regular,
              QWidget* parent = nullptr);

    void setEmphasis(TextEmphasis emphasis);

protected:
    void changeEvent(QEvent* event) override;

private:
    void applyEmphasis();

    TextEmphasis m_emphasis = TextEmphasis::Primary;
};

} // namespace quillon
