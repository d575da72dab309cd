// SPDX-License-Identifier: MIT
#pragma once

#include "ui/windows/vendor.h"

#include <QDate>
#include <QScrollArea>
#include <QUrl>

#include <functional>

class QVBoxLayout;

namespace quillon {

// The user guide with the credits, the link to the support site and the rights notice, in one
// column that scrolls vertically. Everything is constant but the year of the rights notice, which
// is the current one at the time of construction.
class HelpView : public QScrollArea {
    Q_OBJECT

public:
    // What the view asks of the world around it.
    struct Services {
        Vendor vendor;
        std::function<QDate()> today;
        std::function<void(const QUrl&)> openUrl;

        // This build's vendor, the clock and the user's web browser.
        static Services ofDesktop();
    };

    explicit HelpView(QWidget* parent = nullptr);
    explicit HelpView(const Services& services, QWidget* parent = nullptr);

private:
    void addTitle(QVBoxLayout& column);
    void addGuide(QVBoxLayout& column);
    void addDivider(QVBoxLayout& column);
    void addCredits(QVBoxLayout& column, const Services& services);
    void addRightsNotice(QVBoxLayout& column, const Services& services);
};

} // namespace quillon
