// SPDX-License-Identifier: MIT
#pragma once

#include "platform/published.h"
#include "platform/subscription.h"

#include <QString>

class QAbstractButton;
class QLineEdit;
class QSlider;

// Two-way connections between a control and a published field: what the user does is written to the
// field at once, and what the field becomes is shown without being written back. The field must
// outlive the control; the control must outlive the returned token.
namespace quillon {

[[nodiscard]] Subscription bindToggle(QAbstractButton& button, Published<bool>& field);

// The slider shows the nearest whole value in its range. The field keeps what it holds until the
// user moves the slider.
[[nodiscard]] Subscription bindSlider(QSlider& slider, Published<double>& field);

[[nodiscard]] Subscription bindText(QLineEdit& edit, Published<QString>& field);

} // namespace quillon
