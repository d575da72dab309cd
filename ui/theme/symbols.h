// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>

#include <cstdint>

namespace quillon {

// The drawings of the windows' controls, named after what the control does.
enum class Symbol : std::uint8_t {
    OpenLog,
    Follow,
    WrapLines,
    TextSmaller,
    TextLarger,
    ShowDeprecated,
    ShowWarning,
    ShowNotice,
    OnlyErrors,
    Search,
    Clear,
    Help,
    Folder,
};

// An icon that draws the symbol at whatever size and scale is asked for, in the colours of the
// application's palette at that moment: the text colour, dimmed when disabled, stronger under the
// pointer, the accent colour when on. Nothing is loaded before the first drawing.
QIcon symbolIcon(Symbol symbol);

// The name of the drawing, such as "open_log".
QLatin1StringView symbolName(Symbol symbol);

} // namespace quillon
