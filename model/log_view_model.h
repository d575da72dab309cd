// SPDX-License-Identifier: MIT
#pragma once

#include "model/open_panel_request.h"
#include "model/records/log_line.h"
#include "platform/debouncer.h"
#include "platform/published.h"
#include "platform/read_handle.h"
#include "platform/system_error.h"
#include "render/attributed_string.h"

#include <QObject>
#include <QTimer>
#include <QUrl>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace quillon {

class NotificationCenter;
class UserDefaults;
class DisplayPass;
class SearchExpression;
struct DisplayOptions;

// The state of the program: the open log, how it is to be shown, and the result. Views read and set
// its published fields and hold no log state of their own. It opens and follows files, and filters
// and styles their lines whenever something changes that shows: 60 ms after the last change of a
// display option, 120 ms after the last change of the user defaults, at once when the preferences
// window has closed. A pass that has used 50 ms of processor time goes on in the next turns of
// the event loop, so that no query keeps the window from answering. Failures become a French
// sentence in statusLine and leave the rest as it is.
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
    // How many lines are not shown because it takes too long to find out whether they match.
    Published<qint64> undecidedLines{0};
    // Whether a pass is going on, the result of which is still to come.
    Published<bool> isRecomputing{false};
    // The open file's path, for display.
    Published<std::optional<QString>> path{std::nullopt};

    // The open file; it stays named when it could not be loaded.
    std::optional<QUrl> fileURL;
    std::optional<ReadHandle> readHandle;
    // Polls for appended lines twice a second while it exists.
    std::unique_ptr<QTimer> pollTimer;
    // The file's size in bytes at the last load or successful poll; the next poll starts there.
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

    // Starts polling for appended lines every half second.
    void startTail();
    // Stops polling, without turning following off.
    void invalidatePollTimer();
    // One poll for appended lines. Where it finds more than kPollBytes it shows that much and goes
    // on in the next turns of the event loop.
    void pollTail();
    // Calls back after each poll for appended lines, whatever came of it.
    [[nodiscard]] Subscription observePolls(std::function<void()> callback);

    // Why the file could not be opened, or not be read at the last poll; none where it could.
    [[nodiscard]] std::optional<SystemError> lastError() const { return m_lastError; }

    // Filters and styles: all lines, or, when `newLines` is not empty, just those, which the caller
    // has already appended to `lines`. Over when it returns unless that takes 50 ms of processor
    // time; then its result is published at its end, lines that are appended meanwhile join it, and
    // any change of what is to be shown abandons it.
    void recompute(const LogLines& newLines = LogLines());

    // Takes the wrap and size defaults over into wrapLines and fontSize. A size that is not above 0
    // is no size.
    void reloadDisplayDefaults();

private:
    void subscribe();
    [[nodiscard]] DisplayOptions displayOptions();
    std::shared_ptr<const SearchExpression> compiledQuery();
    void begin(DisplayPass pass);
    void goOn();
    void publish(const DisplayPass& pass);
    void abandonPass();
    void setRecomputing(bool isGoingOn);
    // Says it once more at the end of a pass that is going on, which has a status of its own.
    void say(const QString& status);
    void fail(const QString& sentence, SystemError error);
    void readTail();

    UserDefaults& m_defaults;
    NotificationCenter& m_notifications;
    std::optional<SystemError> m_lastError;
    SubscriberList<> m_polls;
    // The query as it was compiled last, for as long as it stays.
    QString m_searchedQuery;
    std::shared_ptr<const SearchExpression> m_search;
    // The pass that is going on, if any.
    std::unique_ptr<DisplayPass> m_pass;
    QTimer m_nextSlice;
    std::optional<QString> m_saidMeanwhile;
    // Takes up a poll that found more than is read at once.
    QTimer m_nextPoll;
    Debouncer m_displayChanges;
    Debouncer m_defaultsChanges;
};

} // namespace quillon
