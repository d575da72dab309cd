// SPDX-License-Identifier: MIT
#include "model/log_view_model.h"

#include "model/log_loading.h"
#include "model/log_recompute.h"
#include "model/notification_names.h"
#include "model/tail_reading.h"
#include "platform/notification_center.h"
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

// Calls `changed` for the field's current value and then whenever it has become another one.
template <typename T>
Subscription onDistinctValue(const Published<T>& field, std::function<void()> changed)
{
    return field.subscribe([last = std::optional<T>(), changed](const T& value) mutable {
        if (last != value) {
            last = value;
            changed();
        }
    });
}

} // namespace

LogViewModel::LogViewModel(UserDefaults& defaults, NotificationCenter& notifications)
    : statusLine(tr("Aucun fichier ouvert")), m_defaults(defaults), m_notifications(notifications),
      m_displayChanges(kDisplayQuietPeriod, [this] { recompute(); }),
      m_defaultsChanges(kDefaultsQuietPeriod, [this] { recompute(); })
{
    m_defaults.registerDefaults(defaultPreferences());
    reloadDisplayDefaults();
    subscribe();
}

LogViewModel::~LogViewModel() = default;

void LogViewModel::subscribe()
{
    const auto displayChanged = [this] {
        m_displayChanges.trigger();
    };
    cancellables.push_back(onDistinctValue(query, displayChanged));
    cancellables.push_back(onDistinctValue(wrapLines, displayChanged));
    cancellables.push_back(onDistinctValue(fontSize, displayChanged));
    cancellables.push_back(onDistinctValue(showDeprecated, displayChanged));
    cancellables.push_back(onDistinctValue(showWarning, displayChanged));
    cancellables.push_back(onDistinctValue(showNotice, displayChanged));
    cancellables.push_back(onDistinctValue(onlyErrors, displayChanged));
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
    lines.set(LogLines());
    attributedOutput.set(AttributedString());
    statusLine.set(tr("Vide"));
}

void LogViewModel::openLog(const QUrl& url)
{
    invalidatePollTimer();
    clearContent();
    fileURL = url;
    path.set(url.toLocalFile());
    statusLine.set(tr("Chargement…"));
    auto loaded = loadLog(url, initialReadBytes, readHandle);
    if (!loaded) {
        statusLine.set(tr("Erreur d’ouverture: %1").arg(loaded.error().message()));
        return;
    }
    lines.set(std::move(loaded.value().lines));
    lastFileSize = loaded.value().fileSize;
    recompute();
    statusLine.set(lineCountStatus(lines.get().size()));
    if (followTail.get()) {
        startTail();
    }
}

void LogViewModel::startTail()
{
    invalidatePollTimer();
    pollTimer = std::make_unique<QTimer>();
    pollTimer->setInterval(kPollInterval);
    connect(pollTimer.get(), &QTimer::timeout, this, [this] { pollTail(); });
    pollTimer->start();
}

void LogViewModel::invalidatePollTimer()
{
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
    auto look = readTailGrowth(fileURL->toLocalFile(), lastFileSize, readHandle);
    if (!look) {
        reportTailError(look.error());
        return;
    }
    if (!look.value()) {
        return;
    }
    const TailGrowth& growth = *look.value();
    lastFileSize = growth.fileSize;
    const LogLines newLines = parseTail(growth.bytes, lines.get());
    if (newLines.isEmpty()) {
        return;
    }
    lines.mutate([&newLines](LogLines& all) { all.append(newLines); });
    recompute(newLines);
    statusLine.set(lineCountStatus(lines.get().size()));
}

void LogViewModel::reportTailError(SystemError error)
{
    statusLine.set(tr("Erreur lecture tail: %1").arg(error.message()));
}

DisplayOptions LogViewModel::displayOptions() const
{
    return DisplayOptions{
        .filter = {.onlyErrors = onlyErrors.get(),
                   .showWarning = showWarning.get(),
                   .showNotice = showNotice.get(),
                   .showDeprecated = showDeprecated.get(),
                   .search = nullptr},
        .query = query.get(),
        .baseAttributes = {.fontSize = fontSize.get(),
                           .foreground = Color::system(SystemColor::Text),
                           .lineBreakMode = wrapLines.get() ? LineBreakMode::WordWrapping
                                                            : LineBreakMode::Clipping},
    };
}

void LogViewModel::recompute(const LogLines& newLines)
{
    if (newLines.isEmpty()) {
        DisplayedLog display = rebuildDisplay(lines.get(), displayOptions(), m_defaults);
        statusLine.set(display.statusLine);
        attributedOutput.set(std::move(display.output));
        return;
    }
    auto display = extendDisplay(attributedOutput.get(), newLines, lines.get().size(),
                                 displayOptions(), m_defaults);
    if (display) {
        attributedOutput.set(std::move(display->output));
        statusLine.set(display->statusLine);
    }
}

} // namespace quillon
