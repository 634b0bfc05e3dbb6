// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Assistants/UsageLogs.h"
#include "Base/Serial.h"

#include <QFileSystemWatcher>
#include <QObject>
#include <QTimer>

#include <filesystem>
#include <memory>
#include <optional>
#include <stop_token>

namespace Velvetnook
{

class ApplicationModel;

// What the logs told, and when that was.
struct LogReport {
    std::vector<Assistants::ToolUse> tools{};
    std::vector<Assistants::LoggedSession> sessions{};
    Assistants::LogTotals totals{};
    QStringList places{}; // in which more will come
    Base::Instant at{};
};

// Reads the logs of coding assistants on a thread of its own, and again when the system tells
// of a change: both only between `begin` and `end`. What it has read is kept for a while after
// that, so that coming back reads only what is new.
class LogReader : public QObject
{
    Q_OBJECT

public:
    LogReader(ApplicationModel &model, std::filesystem::path home, QObject *parent = nullptr);
    ~LogReader() override;
    LogReader(const LogReader &) = delete;
    LogReader &operator=(const LogReader &) = delete;

    void begin();
    void end();

    bool isReading() const { return m_isReading; }
    // Nothing before the first.
    const std::optional<LogReport> &report() const { return m_report; }

signals:
    void came();

private:
    void read();
    void take(LogReport report);
    void follow(const QStringList &places);
    void forget();

    ApplicationModel &m_model;
    std::filesystem::path m_home;
    QFileSystemWatcher m_watcher;
    QTimer m_pause; // a session writes many lines, and each would be read for itself
    std::optional<LogReport> m_report;
    std::optional<Base::Instant> m_endedAt;
    bool m_isShown = false;
    bool m_isReading = false;
    bool m_isBehind = false; // something came while it was reading
    std::stop_source m_stop;
    // Last: its thread has ended before anything of the above goes.
    std::unique_ptr<Base::Serial<Assistants::UsageLogs>> m_logs;
};

} // namespace Velvetnook
