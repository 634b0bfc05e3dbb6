// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Serial.h"
#include "Velvetnook/Application/Monitor/MonitorWorker.h"

#include <QObject>
#include <QString>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace Velvetnook
{

class ApplicationModel;

// Has the machine sampled on a thread of its own, as often as somebody looks or as the user
// has wished for: each two seconds for what is in view, each ten for the history, each thirty
// for alerts alone, and otherwise not at all. Never a second sample before the first is back.
class MonitorService : public QObject
{
    Q_OBJECT

public:
    // What is in view.
    enum class View : std::uint8_t { nothing, machine, processes };

    explicit MonitorService(ApplicationModel &model, QObject *parent = nullptr);
    ~MonitorService() override;
    MonitorService(const MonitorService &) = delete;
    MonitorService &operator=(const MonitorService &) = delete;

    // Until then nothing can be sampled.
    void begin(MonitorTools tools);
    bool hasBegun() const { return m_tools.has_value(); }

    void setView(View view);

    // The last sample; none before the first. One that looked at the machine alone has no apps.
    const std::shared_ptr<const MonitorCore::MonitorSnapshot> &snapshot() const
    {
        return m_snapshot;
    }

    const MonitorCore::MonitorPreferences &preferences() const { return m_preferences; }
    // Why the stored preferences could not be read; they stay until others are chosen.
    const QString &preferencesProblem() const { return m_preferencesProblem; }
    // Changes what is stored by then, on the store's thread.
    void changePreferences(std::function<void(MonitorCore::MonitorPreferences &)> change);
    bool isRecording() const;
    // Why nothing is recorded although it should be.
    const QString &recordingProblem() const { return m_recordingProblem; }

    // The alerts that nobody has dismissed, the newest first.
    const std::vector<MonitorCore::MonitorAlert> &alerts() const { return m_alerts; }
    void raise(const MonitorCore::MonitorAlert &alert);
    void dismiss(const std::string &alertId);

    // Each answers on this thread.
    void readChart(ChartQuestion question, std::function<void(ChartAnswer)> answer);
    void readCauses(MonitorCore::MetricID metric, const MonitorCore::HistoryPoint &point,
                    std::function<void(std::vector<MonitorCore::HistoryCause>)> answer);
    void clearHistory(std::function<void(Base::Result<void>)> answer);
    void readPorts(std::vector<MonitorCore::ProcessKey> processes,
                   std::function<void(std::vector<std::uint16_t>)> answer);
    void end(std::vector<MonitorCore::ProcessKey> processes, MonitorTools::Ending how,
             std::function<void(Base::Result<void>)> answer);

signals:
    void sampled();
    void preferencesChanged();
    void alertsChanged();
    void alerted(const MonitorCore::MonitorAlert &alert);
    void recordingChanged();
    void told(const QString &message);

private:
    using Worker = Base::Serial<MonitorWorker>;

    void follow();
    std::optional<Base::Seconds> pace() const;
    bool isOn() const;
    bool wantsAlerts() const;
    std::optional<Base::Instant> nextSample(Base::Instant now) const;
    void sample(Base::Instant now);
    void take(MonitorReport report);
    void rest();
    template <class Operation, class Answer>
    void ask(Operation operation, Answer answer);

    ApplicationModel &m_model;
    std::optional<MonitorTools> m_tools;
    View m_view = View::nothing;
    MonitorCore::MonitorPreferences m_preferences;
    std::string m_preferencesText;
    QString m_preferencesProblem;
    bool m_wasOn = false;
    std::shared_ptr<const MonitorCore::MonitorSnapshot> m_snapshot;
    QString m_recordingProblem;
    std::vector<MonitorCore::MonitorAlert> m_alerts;
    std::optional<Base::Instant> m_askedAt; // when the last sample was asked for
    std::optional<Base::Instant> m_restsAt; // when what sampling keeps open is let go
    bool m_isAsked = false;                 // and not back
    std::unique_ptr<Worker> m_worker;       // last: its answers need nothing of the above
};

} // namespace Velvetnook
