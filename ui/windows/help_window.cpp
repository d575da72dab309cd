// SPDX-License-Identifier: MIT
#include "ui/windows/help_window.h"

#include "ui/windows/auxiliary_window.h"
#include "ui/windows/help_view.h"
#include "ui/windows/window_behavior.h"

#include <QApplication>
#include <QCoreApplication>
#include <QHideEvent>
#include <QScreen>

#include <memory>
#include <optional>

namespace quillon {

namespace {

constexpr QSize kContentSize(560, 420);

class HelpPanel : public AuxiliaryWindow {
public:
    HelpPanel()
        : AuxiliaryWindow(QCoreApplication::translate("HelpWindow", "Aide Quillon"), new HelpView,
                          kContentSize)
    {
        resize(minimumSize());
        move(screen()->availableGeometry().center() - rect().center());
    }

    // Window managers place a window anew each time it is mapped, unless it asks for a position.
    void restorePlace()
    {
        if (m_place && !isVisible()) {
            move(*m_place);
        }
    }

protected:
    void closeEvent(QCloseEvent* event) override
    {
        m_place = pos();
        QWidget::closeEvent(event);
    }

private:
    std::optional<QPoint> m_place;
};

// Widgets must go before the application object does, hence the routine that empties the slot.
std::unique_ptr<HelpPanel>& slot()
{
    static std::unique_ptr<HelpPanel> panel;
    return panel;
}

} // namespace

void HelpWindow::show()
{
    Q_ASSERT(qApp != nullptr);
    if (!slot()) {
        slot() = std::make_unique<HelpPanel>();
        qAddPostRoutine([] { slot().reset(); });
    }
    slot()->restorePlace();
    bringToFront(*slot());
}

QWidget* HelpWindow::window()
{
    return slot().get();
}

} // namespace quillon
