// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/Monitor/MonitorService.h"

#include "MonitorCore/CounterRate.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/EngineText.h"
#include "Velvetnook/Application/ToolChoice.h"

#include <QCoreApplication>
#include <QPointer>

#include <algorithm>
#include <utility>

namespace Velvetnook
{

namespace
{

using MonitorCore::MonitorPreferences;

constexpr const char *kPreferencesKey = "stats.preferences";
constexpr Base::Seconds kFirstPace{0.5}; // rates begin with the second sample
constexpr Base::Seconds kViewPace{2};
constexpr Base::Seconds kRecordPace{10};
constexpr Base::Seconds kAlertPace{30};
constexpr Base::Seconds kLongestGap{MonitorCore::kLongestGapSeconds};
constexpr std::size_t kMostAlerts = 20;

Base::Result<MonitorPreferences> readPreferences(std::string_view text)
{
    return text.empty() ? Base::Result<MonitorPreferences>{MonitorPreferences{}}
                        : Base::json::decode<MonitorPreferences>(Base::json::PaddedText{text});
}

} // namespace

MonitorService::MonitorService(ApplicationModel &model, QObject *parent)
    : QObject{parent}, m_model{model}
{
    follow();
    connect(&model, &ApplicationModel::choicesChanged, this, &MonitorService::follow);
    model.clock().add(
        this, [this](Base::Instant now) { return nextSample(now); },
        [this](Base::Instant now) { sample(now); });
    model.clock().add(
        this, [this](Base::Instant) { return m_restsAt; }, [this](Base::Instant) { rest(); });
}

// The worker is joined by its own end; what it answers after this finds nobody.
MonitorService::~MonitorService() = default;

void MonitorService::begin(MonitorTools tools)
{
    m_tools = std::move(tools);
    m_model.clock().reschedule();
}

void MonitorService::setView(View view)
{
    if (m_view == view) {
        return;
    }
    const bool isMore = view > m_view;
    m_view = view;
    if (isMore) {
        m_askedAt.reset(); // at once
    }
    if (pace()) {
        m_restsAt.reset();
    } else if (m_worker) {
        m_restsAt = m_model.now() + kLongestGap; // a look soon after goes on from here
    }
    m_model.clock().reschedule();
}

bool MonitorService::isOn() const { return isToolOn(m_model.state(), "stats"); }

bool MonitorService::isRecording() const
{
    return isOn() && m_preferences.historyEnabled && !m_preferences.historyPaused;
}

bool MonitorService::wantsAlerts() const { return isOn() && m_preferences.alertsEnabled; }

std::optional<Base::Seconds> MonitorService::pace() const
{
    if (m_view != View::nothing) {
        const bool isFirst = m_snapshot == nullptr || m_snapshot->interval <= 0;
        return isFirst && m_askedAt ? kFirstPace : kViewPace;
    }
    if (isRecording()) {
        return kRecordPace;
    }
    return wantsAlerts() ? std::optional{kAlertPace} : std::nullopt;
}

std::optional<Base::Instant> MonitorService::nextSample(Base::Instant now) const
{
    const auto step = pace();
    if (!m_tools || m_isAsked || !step) {
        return std::nullopt;
    }
    // A clock that was set back must not silence the monitor.
    return m_askedAt && *m_askedAt <= now ? *m_askedAt + *step : now;
}

void MonitorService::sample(Base::Instant now)
{
    if (!nextSample(now)) {
        return;
    }
    const bool needsProcesses = m_view == View::processes || isRecording() || wantsAlerts();
    MonitorJob job{.scope = needsProcesses ? MonitorCore::SampleScope::processes
                                           : MonitorCore::SampleScope::system,
                   .preferences = m_preferences,
                   .records = isRecording(),
                   .watches = wantsAlerts(),
                   .now = now};
    m_askedAt = now;
    m_isAsked = true;
    ask([job = std::move(job)](MonitorWorker &worker) { return worker.sample(job); },
        [this](MonitorReport report) { take(std::move(report)); });
}

void MonitorService::take(MonitorReport report)
{
    m_isAsked = false;
    if (pace()) { // else it comes after the rest has begun, and would be old by the next look
        m_snapshot = std::move(report.snapshot);
    }
    const QString problem = engineText(report.problem);
    if (std::exchange(m_recordingProblem, problem) != problem) {
        emit recordingChanged();
    }
    for (const auto &alert : report.alerts) {
        raise(alert);
    }
    if (!report.notice.empty()) {
        emit told(engineText(report.notice));
    }
    emit sampled();
    m_model.clock().reschedule();
}

void MonitorService::rest()
{
    m_restsAt.reset();
    if (m_worker && !pace()) {
        m_snapshot.reset(); // its processes are another's by then
        m_askedAt.reset();
        ask(
            [](MonitorWorker &worker) {
                worker.rest();
                return true;
            },
            [](bool) {});
    }
}

void MonitorService::follow()
{
    const std::string text{m_model.setting(kPreferencesKey)};
    const bool isChanged = std::exchange(m_preferencesText, text) != text;
    if (isChanged) {
        m_preferencesProblem.clear();
        auto read = readPreferences(text);
        if (!read) {
            m_preferencesProblem = engineText(read.error().message);
        }
        m_preferences = normalised(read ? *std::move(read) : MonitorPreferences{});
        emit preferencesChanged();
    }
    if (isChanged || std::exchange(m_wasOn, isOn()) != isOn()) {
        m_restsAt = !pace() && m_worker ? std::optional{m_model.now()} : std::nullopt;
        m_model.clock().reschedule();
    }
}

void MonitorService::changePreferences(std::function<void(MonitorPreferences &)> change)
{
    m_model.changeState(
        [change = std::move(change)](KestCore::NativeState &state) -> Base::Result<void> {
            std::string &stored = state.settings[kPreferencesKey];
            MonitorPreferences wanted = readPreferences(stored).value_or(MonitorPreferences{});
            change(wanted);
            KEST_TRY(stored, Base::json::encode(normalised(std::move(wanted))));
            return {};
        });
}

// One that comes again takes the place of the one before.
void MonitorService::raise(const MonitorCore::MonitorAlert &alert)
{
    std::erase_if(m_alerts, [&](const auto &known) { return known.id == alert.id; });
    m_alerts.insert(m_alerts.begin(), alert);
    m_alerts.resize(std::min(m_alerts.size(), kMostAlerts));
    emit alerted(alert);
    emit alertsChanged();
}

void MonitorService::dismiss(const std::string &alertId)
{
    if (std::erase_if(m_alerts, [&](const auto &alert) { return alert.id == alertId; }) > 0) {
        emit alertsChanged();
    }
}

// Posted to the application: this may be on its way out when the worker answers.
template <class Operation, class Answer>
void MonitorService::ask(Operation operation, Answer answer)
{
    if (!m_tools) {
        return;
    }
    if (!m_worker) {
        m_worker = std::make_unique<Worker>(MonitorWorker{*m_tools});
    }
    const auto onMainThread = [owner = QPointer{this}](auto call) {
        auto shared = std::make_shared<decltype(call)>(std::move(call));
        QMetaObject::invokeMethod(
            QCoreApplication::instance(),
            [owner, shared] {
                if (owner) {
                    (*shared)();
                }
            },
            Qt::QueuedConnection);
    };
    m_worker->ask(std::move(operation), onMainThread, std::move(answer));
}

void MonitorService::readChart(ChartQuestion question, std::function<void(ChartAnswer)> answer)
{
    ask([question = std::move(question)](
            const MonitorWorker &worker) { return worker.chart(question); },
        std::move(answer));
}

void MonitorService::readCauses(
    MonitorCore::MetricID metric, const MonitorCore::HistoryPoint &point,
    std::function<void(std::vector<MonitorCore::HistoryCause>)> answer)
{
    ask([metric, point](const MonitorWorker &worker) { return worker.causes(metric, point); },
        std::move(answer));
}

void MonitorService::clearHistory(std::function<void(Base::Result<void>)> answer)
{
    ask([](MonitorWorker &worker) { return worker.clearHistory(); }, std::move(answer));
}

void MonitorService::readPorts(std::vector<MonitorCore::ProcessKey> processes,
                               std::function<void(std::vector<std::uint16_t>)> answer)
{
    ask([processes =
             std::move(processes)](MonitorWorker &worker) { return worker.portsOf(processes); },
        std::move(answer));
}

void MonitorService::end(std::vector<MonitorCore::ProcessKey> processes,
                         MonitorTools::Ending how,
                         std::function<void(Base::Result<void>)> answer)
{
    ask([processes = std::move(processes),
         how](MonitorWorker &worker) { return worker.end(processes, how); },
        std::move(answer));
}

} // namespace Velvetnook
