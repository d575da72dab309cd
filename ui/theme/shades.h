// SPDX-License-Identifier: MIT
#pragma once

#include <QRgb>

namespace quillon {

// A colour at either appearance.
struct Shades {
    QRgb light;
    QRgb dark;
};

} // namespace quillon
