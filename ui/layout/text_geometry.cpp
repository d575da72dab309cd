// SPDX-License-Identifier: MIT
#include "ui/layout/text_geometry.h"

#include <algorithm>
#include <cmath>

namespace quillon {

namespace {

constexpr double kFrameTolerance = 0.5;
constexpr double kMinimumWidth = 1.0;

} // namespace

void TextGeometry::applyWrapping(bool isWrapped, double clipWidth)
{
    m_isHorizontallyResizable = !isWrapped;
    m_container.widthTracksTextView = isWrapped;
    m_container.height = kUnlimited;
    if (!isWrapped) {
        m_container.width = kUnlimited;
        return;
    }
    const double width = std::max(clipWidth, kMinimumWidth);
    m_container.width = width;
    if (std::abs(m_frame.width - width) > kFrameTolerance) {
        m_frame.width = width;
    }
}

void TextGeometry::setContentSize(double width, double height)
{
    if (m_isHorizontallyResizable) {
        m_frame.width = width;
    }
    m_frame.height = height;
}

double TextGeometry::lineWidth() const
{
    const double room = std::min(m_container.width, m_frame.width - 2 * kTextInsetWidth);
    return std::max(kMinimumWidth, room - 2 * m_container.lineFragmentPadding);
}

} // namespace quillon
