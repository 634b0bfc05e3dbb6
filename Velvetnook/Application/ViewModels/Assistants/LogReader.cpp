// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ViewModels/Assistants/LogReader.h"

#include "Velvetnook/Application/ApplicationModel.h"

#include <utility>

namespace Velvetnook
{

namespace
{

constexpr Base::Seconds kDay{86'400};
constexpr std::int64_t kDays = 7;
constexpr Base::Seconds kKept{10 * 60}; // after the view is left
constexpr Base::Seconds kLive{60 * 60}; // a log of longer ago is hardly written on
constexpr std::size_t kMostPlaces = 128;
constexpr int kPauseMs = 2000;

LogReport reportOf(Assistants::UsageLogs &logs, const KestCore::Calendar &calendar,
                   Base::Instant now, const std::stop_token &stop)
{
    logs.refresh(stop);
    LogReport report{.tools = logs.report(calendar, now, kDays),
                     .sessions = logs.sessions(now),
                     .totals = logs.totals(),
                     .at = now};
    for (const std::filesystem::path &place : logs.places(now - kLive, kMostPlaces)) {
        report.places.push_back(QString::fromStdString(place.string()));
    }
    return report;
}

} // namespace

LogReader::LogReader(ApplicationModel &model, std::filesystem::path home, QObject *parent)
    : QObject{parent}, m_model{model}, m_home{std::move(home)}
{
    m_pause.setSingleShot(true);
    m_pause.setInterval(kPauseMs);
    connect(&m_pause, &QTimer::timeout, this, &LogReader::read);
    const auto follow = [this] {
        if (m_isShown && !m_pause.isActive()) {
            m_pause.start();
        }
    };
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, follow);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, follow);
    model.clock().add(
        this,
        [this](Base::Instant) {
            return m_endedAt ? std::optional{*m_endedAt + kKept} : std::nullopt;
        },
        [this](Base::Instant) { forget(); });
}

LogReader::~LogReader() { m_stop.request_stop(); }

void LogReader::begin()
{
    m_isShown = true;
    m_endedAt.reset();
    read();
}

void LogReader::end()
{
    if (!std::exchange(m_isShown, false)) {
        return;
    }
    m_pause.stop();
    follow({});
    m_endedAt = m_model.now();
    m_model.clock().reschedule();
}

// The report stays: it is small, and is shown with its time until the next has come.
void LogReader::forget()
{
    m_endedAt.reset();
    if (!m_isReading) {
        m_logs.reset();
    }
}

void LogReader::read()
{
    if (m_isReading) {
        m_isBehind = true;
        return;
    }
    const Base::Instant now = m_model.now();
    if (!m_logs) {
        // A week, and a day more for the five hours that began before it.
        m_logs = std::make_unique<Base::Serial<Assistants::UsageLogs>>(
            Assistants::UsageLogs{m_home, now - static_cast<double>(kDays + 1) * kDay});
    }
    m_isReading = true;
    // The queue of this object dies with it, after the thread has ended.
    m_logs->ask(
        [calendar = m_model.calendar(), now, stop = m_stop.get_token()](
            Assistants::UsageLogs &logs) { return reportOf(logs, calendar, now, stop); },
        [this](auto call) {
            auto shared = std::make_shared<decltype(call)>(std::move(call));
            QMetaObject::invokeMethod(this, [shared] { (*shared)(); }, Qt::QueuedConnection);
        },
        [this](LogReport report) { take(std::move(report)); });
}

void LogReader::take(LogReport report)
{
    m_isReading = false;
    m_report = std::move(report);
    if (m_isShown) {
        follow(m_report->places);
        if (std::exchange(m_isBehind, false)) {
            m_pause.start();
        }
    }
    emit came();
}

void LogReader::follow(const QStringList &places)
{
    const QStringList before = m_watcher.files() + m_watcher.directories();
    QStringList gone;
    for (const QString &place : before) {
        if (!places.contains(place)) {
            gone.push_back(place);
        }
    }
    QStringList fresh;
    for (const QString &place : places) {
        if (!before.contains(place)) {
            fresh.push_back(place);
        }
    }
    if (!gone.isEmpty()) {
        m_watcher.removePaths(gone);
    }
    if (!fresh.isEmpty()) {
        m_watcher.addPaths(fresh);
        m_isBehind = true; // for what came between the reading and the watching
    }
}

} // namespace Velvetnook
