// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractButton>
#include <QUrl>

namespace quillon {

// A web link as a control of its own: reached by Tab, activated by click, Space or Enter. What
// activating does is left to whoever connects to linkActivated.
class LinkButton : public QAbstractButton {
    Q_OBJECT

public:
    LinkButton(const QString& title, const QUrl& destination, QWidget* parent = nullptr);

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
