// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractButton>
#include <QUrl>

namespace quillon {

// A web link as a control of its own: reached by Tab, activated by click, Space or Enter. What
// activating does is left to whoever connects to linkActivated. Without a valid destination it
// leads nowhere and is disabled.
class LinkButton : public QAbstractButton {
    Q_OBJECT

public:
    LinkButton(const QString& title, const QUrl& destination, QWidget* parent = nullptr);

    // Points between its edge and its text at either side, for the focus ring.
    static constexpr int kRingRoom = 3;

    [[nodiscard]] QSize sizeHint() const override;

Q_SIGNALS:
    void linkActivated(const QUrl& destination);

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    const QUrl m_destination;
};

} // namespace quillon
