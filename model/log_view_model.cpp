// SPDX-License-Identifier: MIT
#include "model/log_view_model.h"

#include "model/display_pass.h"
#include "model/log_loading.h"
#include "model/notification_names.h"
#include "model/tail_reading.h"
#include "platform/file_path.h"
#include "platform/notification_center.h"
#include "platform/time_slice.h"
#include "platform/user_defaults.h"
#include "render/preference_keys.h"
#include "render/status_text.h"

#include <chrono>

namespace quillon {

using namespace std::chrono_literals;

namespace {

constexpr auto kDisplayQuietPeriod = 60ms;
constexpr auto kDefaultsQuietPeriod = 120ms;
constexpr auto kPollInterval = 500ms;
// Of processor time, after which a pass lets the event loop see to other things.
constexpr auto kPassSlice = 50ms;

} // namespace

LogViewModel::LogViewModel(UserDefaults& defaults, NotificationCenter& notifications)
    : statusLine(tr("Aucun fichier ouvert")), m_defaults(defaults), m_notifications(notifications),
      m_displayChanges(kDisplayQuietPeriod, [this] { recompute(); }),
      m_defaultsChanges(kDefaultsQuietPeriod, [this] { recompute(); })
{
    // Keys, clicks and painting come in between.
    m_nextPoll.setSingleShot(true);
    connect(&m_nextPoll, &QTimer::timeout, this, [this] { pollTail(); });
    m_defaults.registerDefaults(defaultPreferences());
    connect(&m_nextSlice, &QTimer::timeout, this, [this] { goOn(); });
    reloadDisplayDefaults();
    subscribe();
}

LogViewModel::~LogViewModel() = default;

void LogViewModel::subscribe()
{
    const auto displayChanged = [this](const auto& /*value*/) {
        abandonPass();
        m_displayChanges.trigger();
    };
    cancellables.push_back(query.subscribeDistinct(displayChanged));
    cancellables.push_back(wrapLines.subscribeDistinct(displayChanged));
    cancellables.push_back(fontSize.subscribeDistinct(displayChanged));
    cancellables.push_back(showDeprecated.subscribeDistinct(displayChanged));
    cancellables.push_back(showWarning.subscribeDistinct(displayChanged));
    cancellables.push_back(showNotice.subscribeDistinct(displayChanged));
    cancellables.push_back(onlyErrors.subscribeDistinct(displayChanged));
    cancellables.push_back(m_notifications.observe(kPrefsDidClose, [this] {
        reloadDisplayDefaults();
        recompute();
    }));
    cancellables.push_back(
        m_notifications.observe(kUserDefaultsDidChange, [this] { m_defaultsChanges.trigger(); }));
}

void LogViewModel::reloadDisplayDefaults()
{
    wrapLines.set(m_defaults.boolForKey(preference_keys::kWrapDefault));
    const double size = m_defaults.doubleForKey(preference_keys::kFontDefault);
    if (size > 0) {
        fontSize.set(size);
    }
}

void LogViewModel::presentOpenPanel()
{
    if (!openPanel) {
        return;
    }
    const OpenPanelRequest request{
        .title = tr("Ouvrir un fichier de log"),
        .contentTypes = {QStringLiteral("text/plain"), QStringLiteral("application/octet-stream")},
    };
    if (const auto url = openPanel(request)) {
        openLog(*url);
    }
}

void LogViewModel::clearContent()
{
    abandonPass();
    lines.set(LogLines());
    attributedOutput.set(AttributedString());
    statusLine.set(tr("Vide"));
}

void LogViewModel::openLog(const QUrl& url)
{
    // The pass that is due after the start shows nothing yet; later it would only overwrite what
    // opening says.
    if (!fileURL) {
        m_displayChanges.flush();
    }
    invalidatePollTimer();
    clearContent();
    fileURL = url;
    path.set(displayedPath(pathOfFileUrl(url)));
    statusLine.set(tr("Chargement…"));
    auto loaded = loadLog(url, initialReadBytes, readHandle);
    if (!loaded) {
        fail(tr("Erreur d’ouverture: %1"), loaded.error());
        return;
    }
    m_lastError.reset();
    lines.set(std::move(loaded.value().lines));
    lastFileSize = loaded.value().fileSize;
    recompute();
    say(lineCountStatus(lines.get().size()));
    if (followTail.get()) {
        startTail();
    }
}

void LogViewModel::startTail()
{
    invalidatePollTimer();
    pollTimer = std::make_unique<QTimer>();
    pollTimer->setInterval(kPollInterval);
    connect(pollTimer.get(), &QTimer::timeout, this, [this] {
        // A poll that is due anyway takes as much as one turn of the event loop should.
        if (!m_nextPoll.isActive()) {
            pollTail();
        }
    });
    pollTimer->start();
}

void LogViewModel::invalidatePollTimer()
{
    m_nextPoll.stop();
    if (pollTimer) {
        pollTimer->stop();
        // The timer may be the very one whose tick led here.
        pollTimer.release()->deleteLater();
    }
}

void LogViewModel::pollTail()
{
    if (!followTail.get() || !fileURL) {
        return;
    }
    readTail();
    m_polls.notify();
}

Subscription LogViewModel::observePolls(std::function<void()> callback)
{
    return m_polls.add(std::move(callback));
}

void LogViewModel::readTail()
{
    auto found = readTailGrowth(pathOfFileUrl(*fileURL), lastFileSize, readHandle);
    if (!found) {
        fail(tr("Erreur lecture tail: %1"), found.error());
        return;
    }
    m_lastError.reset();
    if (!found.value()) {
        return;
    }
    const TailGrowth& growth = *found.value();
    lastFileSize = growth.nextOffset;
    if (growth.hasMore) {
        m_nextPoll.start();
    }
    const LogLines newLines = parseTail(growth.bytes, lines.get());
    if (newLines.isEmpty()) {
        return;
    }
    lines.mutate([&newLines](LogLines& all) { all.append(newLines); });
    recompute(newLines);
    say(lineCountStatus(lines.get().size()));
}

void LogViewModel::fail(const QString& sentence, SystemError error)
{
    m_lastError = error;
    say(sentence.arg(error.message()));
}

void LogViewModel::say(const QString& status)
{
    if (m_pass) {
        m_saidMeanwhile = status;
    }
    statusLine.set(status);
}

std::shared_ptr<const SearchExpression> LogViewModel::compiledQuery()
{
    if (m_searchedQuery != query.get()) {
        m_searchedQuery = query.get();
        m_search = SearchExpression::make(m_searchedQuery);
    }
    return m_search;
}

DisplayOptions LogViewModel::displayOptions()
{
    return DisplayOptions{
        .filter = {.onlyErrors = onlyErrors.get(),
                   .showWarning = showWarning.get(),
                   .showNotice = showNotice.get(),
                   .showDeprecated = showDeprecated.get(),
                   .search = compiledQuery()},
        .baseAttributes = {.fontSize = fontSize.get(),
                           .foreground = Color::system(SystemColor::Text),
                           .lineBreakMode = wrapLines.get() ? LineBreakMode::WordWrapping
                                                            : LineBreakMode::Clipping},
    };
}

void LogViewModel::recompute(const LogLines& newLines)
{
    if (newLines.isEmpty()) {
        begin(DisplayPass::rebuild(lines.get(), displayOptions(), m_defaults));
    } else if (m_pass) {
        m_pass->join(newLines, lines.get());
    } else {
        begin(
            DisplayPass::extension(attributedOutput.get(), newLines, displayOptions(), m_defaults));
    }
}

void LogViewModel::begin(DisplayPass pass)
{
    m_saidMeanwhile.reset();
    m_pass = std::make_unique<DisplayPass>(std::move(pass));
    goOn();
}

void LogViewModel::goOn()
{
    const TimeSlice slice(kPassSlice);
    if (!m_pass->goOn([&slice] { return slice.isOver(); })) {
        // After whatever else is due: events of the window system go before idle timers.
        m_nextSlice.start(0);
        setRecomputing(true);
        return;
    }
    m_nextSlice.stop();
    // Whoever is told may begin another one.
    const std::unique_ptr<DisplayPass> pass = std::move(m_pass);
    const std::optional<QString> saidMeanwhile = std::exchange(m_saidMeanwhile, std::nullopt);
    publish(*pass);
    if (saidMeanwhile && !m_pass) {
        statusLine.set(*saidMeanwhile);
    }
    setRecomputing(m_pass != nullptr);
}

void LogViewModel::publish(const DisplayPass& pass)
{
    DisplayedLog display = pass.result(lines.get().size());
    if (pass.kind() == DisplayPass::Kind::Rebuild) {
        undecidedLines.set(display.undecidedLines);
        statusLine.set(display.statusLine);
        attributedOutput.set(std::move(display.output));
        return;
    }
    if (display.undecidedLines > 0) {
        undecidedLines.set(undecidedLines.get() + display.undecidedLines);
    }
    if (display.newRows > 0) {
        attributedOutput.set(std::move(display.output));
        statusLine.set(display.statusLine);
    }
}

void LogViewModel::abandonPass()
{
    m_pass.reset();
    m_nextSlice.stop();
    m_saidMeanwhile.reset();
    setRecomputing(false);
}

void LogViewModel::setRecomputing(bool isGoingOn)
{
    if (isRecomputing.get() != isGoingOn) {
        isRecomputing.set(isGoingOn);
    }
}

} // namespace quillon
