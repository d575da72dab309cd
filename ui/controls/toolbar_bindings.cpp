// SPDX-License-Identifier: MIT
#include "ui/controls/toolbar_bindings.h"

#include <QAbstractButton>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QSlider>

#include <algorithm>
#include <cmath>

namespace quillon {

Subscription bindToggle(QAbstractButton& button, Published<bool>& field)
{
    QObject::connect(&button, &QAbstractButton::toggled, &button,
                     [&field](bool isOn) { field.set(isOn); });
    return field.subscribe([&button](bool isOn) {
        const QSignalBlocker quiet(button);
        button.setChecked(isOn);
    });
}

Subscription bindSlider(QSlider& slider, Published<double>& field)
{
    QObject::connect(&slider, &QSlider::valueChanged, &slider,
                     [&field](int value) { field.set(value); });
    return field.subscribe([&slider](double value) {
        const QSignalBlocker quiet(slider);
        const double inRange = std::clamp(value, static_cast<double>(slider.minimum()),
                                          static_cast<double>(slider.maximum()));
        slider.setValue(static_cast<int>(std::lround(inRange)));
    });
}

Subscription bindText(QLineEdit& edit, Published<QString>& field)
{
    QObject::connect(&edit, &QLineEdit::textChanged, &edit,
                     [&field](const QString& text) { field.set(text); });
    return field.subscribe([&edit](const QString& text) {
        // Setting the text moves the caret to its end, which nobody wants while typing.
        if (edit.text() != text) {
            const QSignalBlocker quiet(edit);
            edit.setText(text);
        }
    });
}

} // namespace quillon
