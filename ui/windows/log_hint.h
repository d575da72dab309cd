// SPDX-License-Identifier: MIT
#pragma once

#include "platform/subscription.h"

#include <QWidget>

namespace quillon {

class LogViewModel;

// What stands in the log's place while no file is open: how to open one. While files are dragged
// over the window it says, over whatever is below, that they can be dropped. Its texts are painted
// only: they cannot be selected, and screen readers get noFileText() as the log's description. The
// mouse goes through to what is below. The view model must outlive it.
class LogHint : public QWidget {
    Q_OBJECT

public:
    explicit LogHint(LogViewModel& viewModel, QWidget* parent = nullptr);

    // How to open a file, on two lines.
    [[nodiscard]] static QString noFileText();
    [[nodiscard]] static QString dropText();

    void setDropOffered(bool isOffered);
    // The text that is painted now; none while there is nothing to say.
    [[nodiscard]] QString displayedText() const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void show(bool hasFile, bool isDropOffered);
    void paintDropFrame(QPainter& painter) const;
    void paintText(QPainter& painter) const;

    bool m_hasFile = false;
    bool m_isDropOffered = false;
    Subscription m_path;
};

} // namespace quillon
