// SPDX-License-Identifier: MIT
#pragma once

#include "model/log_line.h"
#include "model/open_panel_request.h"
#include "platform/debouncer.h"
#include "platform/published.h"
#include "platform/read_handle.h"
#include "render/attributed_string.h"

#include <QObject>
#include <QTimer>
#include <QUrl>

#include <memory>
#include <optional>
#include <vector>

namespace quillon {

class NotificationCenter;
class UserDefaults;
struct DisplayOptions;

// The state of the program: the open log, how it is to be shown, and the result. Views read and set
// its published fields and hold no log state of their own. It opens and follows files, and filters
// and styles their lines whenever something changes that shows: 60 ms after the last change of a
// display option, 120 ms after the last change of the user defaults, at once when the preferences
// window has closed. Failures become a French sentence in statusLine and leave the rest as it is.
//
// Everything runs on the thread of the event loop. The defaults and the notification centre must
// outlive the object. (A QObject so that deferred calls can hold it weakly.)
class LogViewModel : public QObject {
public:
    // How much of the end of a file opening reads, in bytes.
    static constexpr qint64 initialReadBytes = 2'097'152;

    LogViewModel(UserDefaults& defaults, NotificationCenter& notifications);
    ~LogViewModel() override;

    // Display options; setting one schedules a recompute.
    Published<bool> wrapLines{true};
    Published<double> fontSize{13.0}; // points
    Published<QString> query{QString()};
    Published<bool> showDeprecated{true};
    Published<bool> showWarning{true};
    Published<bool> showNotice{true};
    Published<bool> onlyErrors{false};

    // Whether appended lines are shown as they are written. It takes effect on an open file only
    // if following was on when the file was opened.
    Published<bool> followTail{false};

    // Results.
    Published<LogLines> lines{LogLines()};
    Published<AttributedString> attributedOutput{AttributedString()};
    Published<QString> statusLine;
    // The open file's path, for display.
    Published<std::optional<QString>> path{std::nullopt};

    // The open file; it stays named when it could not be loaded.
    std::optional<QUrl> fileURL;
    std::optional<ReadHandle> readHandle;
    // Looks for appended lines twice a second while it exists.
    std::unique_ptr<QTimer> pollTimer;
    // The file's size in bytes at the last load or successful look; the next look starts there.
    quint64 lastFileSize = 0;
    std::vector<Subscription> cancellables;

    // How presentOpenPanel() asks the user; without one it does nothing.
    OpenPanel openPanel;

    // Lets the user choose a log file and opens it.
    void presentOpenPanel();
    // Shows the end of the file, and follows it when following is on.
    void openLog(const QUrl& url);
    // Empties the display. The file stays open.
    void clearContent();

    // Starts looking for appended lines every half second.
    void startTail();
    // Stops looking, without turning following off.
    void invalidatePollTimer();
    // One look for appended lines.
    void pollTail();

    // Filters and styles: all lines, or, when `newLines` is not empty, just those, which the caller
    // has already appended to `lines`.
    void recompute(const LogLines& newLines = LogLines());

    // Takes the wrap and size defaults over into wrapLines and fontSize. A size that is not above 0
    // is no size.
    void reloadDisplayDefaults();

private:
    void subscribe();
    [[nodiscard]] DisplayOptions displayOptions() const;
    void reportTailError(SystemError error);

    UserDefaults& m_defaults;
    NotificationCenter& m_notifications;
    Debouncer m_displayChanges;
    Debouncer m_defaultsChanges;
};

} // namespace quillon
