// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QLineEdit;

namespace quillon {

// A magnifying glass and a line of text on a rounded background, which is ringed while the text has
// the keyboard. Escape empties it.
class ToolbarSearchField : public QWidget {
    Q_OBJECT

public:
    explicit ToolbarSearchField(QWidget* parent = nullptr);

    [[nodiscard]] QLineEdit& edit() const { return *m_edit; }

    // Gives it the keyboard with its text selected, ready to be typed over.
    void focusAndSelect();

    // What there is to know of the search, in the tooltip and for screen readers; empty for
    // nothing.
    void setNote(const QString& note);

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QLineEdit* m_edit;
};

} // namespace quillon
