// SPDX-License-Identifier: MIT
#pragma once

#include <limits>

namespace quillon {

// Room around the text, in points: left and right of it, above and below it.
inline constexpr double kTextInsetWidth = 8.0;
inline constexpr double kTextInsetHeight = 10.0;

// "As large as it takes", in either direction.
inline constexpr double kUnlimited = std::numeric_limits<double>::max();

// The region that lines are laid out in.
struct TextContainer {
    double width = kUnlimited;
    double height = kUnlimited;
    // Room at both ends of each line, inside the region.
    double lineFragmentPadding = 6.0;
    // Whether the region follows the text's frame when that is resized.
    bool widthTracksTextView = false;
};

// The text as a whole, as the scroll area shows a part of it.
struct TextFrame {
    double width = 0.0;
    double height = 0.0;
};

// How wide the text is and where its lines end, all in points.
class TextGeometry {
public:
    [[nodiscard]] const TextContainer& container() const { return m_container; }
    [[nodiscard]] const TextFrame& frame() const { return m_frame; }
    // Whether the text may become wider than what shows it.
    [[nodiscard]] bool isHorizontallyResizable() const { return m_isHorizontallyResizable; }

    // Wraps lines at the width of the clip, what the scroll area shows of the text, or leaves them
    // as long as they are. The frame is left alone when it is right to half a point.
    void applyWrapping(bool isWrapped, double clipWidth);

    // The text has been laid out to this size.
    void setContentSize(double width, double height);

    // The room for the characters of a line: the container's width, within the frame's insets, less
    // the padding at both ends. Only of use where lines are wrapped.
    [[nodiscard]] double lineWidth() const;

private:
    TextContainer m_container;
    TextFrame m_frame;
    bool m_isHorizontallyResizable = false;
};

} // namespace quillon
