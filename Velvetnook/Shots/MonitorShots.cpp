// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Tools/ScreenTimeTotals.h"
#include "MonitorCore/MonitorHistoryStore.h"
#include "MonitorCore/MonitorPreferences.h"
#include "Velvetnook/Application/App.h"
#include "Velvetnook/Application/ViewModels/MonitorViewModel.h"
#include "Velvetnook/Application/ViewModels/OverlayViewModel.h"
#include "Velvetnook/Application/ViewModels/ScreenTimeViewModel.h"
#include "Velvetnook/Shots/Shot.h"

#include <QEventLoop>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <cmath>

namespace Velvetnook
{

namespace
{

using MonitorCore::MetricID;
using MonitorCore::MetricState;
using MonitorCore::MonitorSnapshot;
using MonitorCore::ProcessSample;

constexpr double kGigabyte = 1e9;
constexpr double kMegabyte = 1e6;

// A figure that wanders, the same each time.
double wander(int step, double middle, double width, double phase)
{
    const double at = step;
    return middle + width * (0.6 * std::sin(at * 0.35 + phase) + 0.3 * std::sin(at * 1.3) +
                             0.1 * std::sin(at * 2.9 + phase));
}

void give(MonitorSnapshot &snapshot, MetricID metric, double value)
{
    snapshot.readings[metric] = {.value = value,
                                 .unit = unitOf(metric),
                                 .source = "shot",
                                 .state = MetricState::available,
                                 .timestamp = snapshot.timestamp};
}

void lack(MonitorSnapshot &snapshot, MetricID metric, MetricState state)
{
    snapshot.readings[metric] = {.value = std::nullopt,
                                 .unit = unitOf(metric),
                                 .source = "shot",
                                 .state = state,
                                 .timestamp = snapshot.timestamp};
}

MonitorSnapshot machineAt(int step, Base::Instant now)
{
    MonitorSnapshot snapshot{.timestamp = now, .uptime = 273'900, .interval = 2};
    give(snapshot, MetricID::cpu, step == 29 ? 18 : wander(step, 20, 9, 0));
    give(snapshot, MetricID::memoryUsed, step == 29 ? 9.4e9 : wander(step, 9.4e9, 2e8, 1));
    give(snapshot, MetricID::memoryTotal, 16 * kGigabyte);
    give(snapshot, MetricID::memoryPressure, 0.3);
    give(snapshot, MetricID::diskFree, 214 * kGigabyte);
    give(snapshot, MetricID::diskTotal, 512 * kGigabyte);
    give(snapshot, MetricID::diskRead, std::max(0.0, wander(step, 10.1e6, 9e6, 2)));
    give(snapshot, MetricID::diskWrite, 2 * kMegabyte);
    give(snapshot, MetricID::download, step == 29 ? 2.3e6 : wander(step, 2e6, 8e5, 3));
    give(snapshot, MetricID::upload, 0.1 * kMegabyte);
    give(snapshot, MetricID::battery, 82);
    give(snapshot, MetricID::batteryHealth, 96);
    give(snapshot, MetricID::batteryMinutes, 214);
    give(snapshot, MetricID::cpuTemperature, 51);
    give(snapshot, MetricID::fanRPM, 1800);
    lack(snapshot, MetricID::gpu, MetricState::unsupported);
    lack(snapshot, MetricID::gpuTemperature, MetricState::stale);
    lack(snapshot, MetricID::powerWatts, MetricState::permissionRequired);
    snapshot.accessories = {{.id = "mouse", .name = "Mouse M720", .percent = 64}};
    snapshot.restrictedProcessCount = 2;
    return snapshot;
}

struct App5 {
    const char *name;
    double cpu;
    double memory;
};
constexpr App5 kApps[]{
    {"Blender", 84.2, 1.9e9},   {"Firefox", 22.6, 2.4e9},
    {"Files", 3.1, 1.82e8},     {"Terminal", 1.4, 9.6e7},
    {"Velvetnook", 0.3, 7.4e7}, {"A program with a name that is long", 0.1, 1.2e6}};

ProcessSample process(int pid, int parent, const App5 &app, double part)
{
    return {.key = {.pid = pid, .start = 4711},
            .parentPID = parent,
            .owner = 1000,
            .name = app.name,
            .executable = "/usr/bin/" + std::string{app.name},
            .cpu = app.cpu * part,
            .memory = app.memory * part,
            .diskRead = 1.2e6 * part};
}

class ShotCollector : public MonitorCore::Collector
{
public:
    explicit ShotCollector(bool isFirst) : m_isFirst{isFirst} {}

    MonitorCore::RawSample sample(MonitorCore::SampleScope, Base::Instant now) override
    {
        MonitorCore::RawSample raw{.snapshot = machineAt(m_step++, now)};
        if (m_isFirst) { // rates begin with the second sample
            raw.snapshot.interval = 0;
            for (const MetricID metric :
                 {MetricID::cpu, MetricID::diskRead, MetricID::diskWrite, MetricID::download}) {
                lack(raw.snapshot, metric, MetricState::warmingUp);
            }
        }
        int pid = 400;
        for (const App5 &app : kApps) {
            const int first = pid++;
            raw.processes.push_back(process(first, 1, app, 0.7));
            raw.processes.push_back(process(pid++, first, app, 0.2));
            raw.processes.push_back(process(pid++, first, app, 0.1));
        }
        raw.origins.resize(raw.processes.size());
        return raw;
    }
    std::vector<std::uint16_t> portsOf(const MonitorCore::ProcessKey &key) override
    {
        return key.pid == 403 ? std::vector<std::uint16_t>{5353, 8080}
                              : std::vector<std::uint16_t>{};
    }

private:
    bool m_isFirst;
    int m_step = 0;
};

std::vector<MonitorCore::InstalledApp> installed()
{
    std::vector<MonitorCore::InstalledApp> apps;
    for (const App5 &app : kApps) {
        apps.push_back({.id = std::string{"org.example."} + app.name,
                        .name = app.name,
                        .executable = "/usr/bin/" + std::string{app.name}});
    }
    return apps;
}

// A day with two hours in which the computer was off.
void record(const std::filesystem::path &file)
{
    auto store = MonitorCore::MonitorHistoryStore::open(file);
    if (!store) {
        return;
    }
    for (int minute = 0; minute < 1440; ++minute) {
        if (minute > 600 && minute < 720) {
            continue;
        }
        const int step = minute / 6;
        MonitorSnapshot snapshot{.timestamp = kShotTime - Base::Seconds{60.0 * (1440 - minute)},
                                 .interval = 60};
        const bool isSpike = minute == 930;
        give(snapshot, MetricID::cpu, isSpike ? 92 : std::max(3.0, wander(step, 34, 16, 0)));
        MonitorCore::AppUsage app{
            .id = "org.example.Blender", .name = "Blender", .cpu = isSpike ? 640.0 : 30.0};
        snapshot.apps = {app, {.id = "/usr/bin/make", .name = "make", .cpu = 22}};
        (void)store->record(snapshot);
    }
}

struct Scene {
    bool isFirst{};
    bool hasHistory{};
    bool fails{};
};

void prepareMonitor(ShotData &data, bool history, bool alerts)
{
    MonitorCore::MonitorPreferences preferences{
        .historyEnabled = history, .historyPaused = history, .alertsEnabled = alerts};
    data.state.settings["stats.preferences"] =
        Base::json::encode(preferences).value_or(std::string{});
}

// Samples a minute of the machine, as when the view has stood open so long.
void begin(App &app, Scene scene)
{
    const auto folder = std::make_shared<QTemporaryDir>();
    const std::filesystem::path history =
        folder->filePath(QStringLiteral("Monitor/history.sqlite")).toStdString();
    if (scene.hasHistory) {
        record(history);
    }
    MonitorViewModel *monitor = app.monitor();
    monitor->begin(
        {.collector = [folder,
                       scene] { return std::make_unique<ShotCollector>(scene.isFirst); },
         .installedApps = installed,
         .end = [](auto &, const auto &, auto) { return Base::Result<void>{}; },
         .history = history,
         .cores = 8});
    for (int round = 0; round < (scene.isFirst ? 1 : 30); ++round) {
        QEventLoop loop;
        QObject::connect(&monitor->service(), &MonitorService::sampled, &loop,
                         &QEventLoop::quit);
        QTimer::singleShot(5000, &loop, &QEventLoop::quit);
        monitor->setWatched(false);
        monitor->setWatched(true);
        loop.exec();
    }
}

Shot monitor(const char *name, Scene scene, std::function<void(MonitorViewModel &)> then = {},
             bool alerts = false)
{
    return {.name = QLatin1String{name},
            .surface = QStringLiteral("Panel"),
            .view = QStringLiteral("stats"),
            .prepare =
                [scene, alerts](ShotData &data) {
                    data.state.enabled.emplace_back("stats");
                    data.state.navigationFavorites = {"home",  "dhikr",  "prayer",
                                                      "names", "timers", "stats"};
                    prepareMonitor(data, scene.hasHistory, alerts);
                },
            .arrange =
                [scene, then](App &app) {
                    begin(app, scene);
                    if (then) {
                        then(*app.monitor());
                    }
                }};
}

// A week at the screen, as it would have been counted.
void fillUsage(ShotData &data)
{
    struct Use {
        const char *application;
        const char *name;
        double share;
    };
    constexpr Use kUses[]{{"firefox", "Firefox", 0.38},
                          {"org.gnome.Nautilus", "Nautilus", 0.08},
                          {"code", "Code", 0.31},
                          {"xterm", "Xterm", 0.14},
                          {"libreoffice", "Libreoffice", 0.09}};
    constexpr double kHours[]{3.1, 5.2, 4.4, 6.3, 2.2, 0, 4.2, 3.4};
    const std::int64_t today = 20'406;
    std::vector<KestCore::UsagePiece> pieces;
    for (std::int64_t age = 0; age < 8; ++age) {
        const double hours = kHours[static_cast<std::size_t>(7 - age)];
        for (const Use &use : kUses) {
            if (hours > 0) {
                pieces.push_back({.application = {.id = use.application, .name = use.name},
                                  .day = today - age,
                                  .seconds = Base::Seconds{3600 * hours * use.share},
                                  .stretch = Base::Seconds{4000}});
            }
        }
    }
    data.records = KestCore::usageChanges({}, pieces, today, kShotTime).written;
    data.state.settings["screen-time.enabled"] = "true";
}

Shot screenTime(const char *name, bool hasUsage,
                std::function<void(ScreenTimeViewModel &)> then = {})
{
    return {.name = QLatin1String{name},
            .surface = QStringLiteral("Panel"),
            .view = QStringLiteral("screen-time"),
            .prepare =
                [hasUsage](ShotData &data) {
                    data.state.enabled.emplace_back("screen-time");
                    if (hasUsage) {
                        fillUsage(data);
                        data.state.settings["screen-time.excluded"] = "keepassxc";
                    }
                },
            .arrange =
                [then](App &app) {
                    if (then) {
                        then(*app.screenTime());
                    }
                }};
}

class ShotSound : public SoundServer
{
public:
    QString problem() const override { return {}; }
    std::optional<SystemVolume> volume() const override { return SystemVolume{.level = 0.6}; }
    std::vector<AudioStream> streams() const override
    {
        return {{.index = 1,
                 .application = "Firefox",
                 .title = "A lecture, part 2",
                 .level = 0.8,
                 .isPlaying = true},
                {.index = 2, .application = "Music", .title = "Playback", .level = 0.45},
                {.index = 3,
                 .application = "Calls",
                 .title = "Ring",
                 .level = 1,
                 .isMuted = true,
                 .isPlaying = true}};
    }
    void setLevel(std::uint32_t, double) override {}
    void setMuted(std::uint32_t, bool) override {}
};

Shot overlay(const char *name, OverlayViewModel::Kind kind, double share, bool isMuted)
{
    return {.name = QLatin1String{name},
            .surface = QStringLiteral("Overlay"),
            .arrange = [=](App &app) { app.overlay()->show(kind, share, isMuted); }};
}

} // namespace

std::vector<Shot> monitorShots()
{
    return {
        overlay("overlay-volume", OverlayViewModel::Kind::volume, 0.64, false),
        overlay("overlay-muted", OverlayViewModel::Kind::volume, 0.64, true),
        overlay("overlay-brightness", OverlayViewModel::Kind::screen, 0.4, false),
        monitor("monitor-mixer", {},
                [](MonitorViewModel &view) {
                    view.mixer()->begin([] { return std::make_shared<ShotSound>(); });
                    view.showPage(QStringLiteral("mixer"));
                }),
        monitor("monitor-silent", {},
                [](MonitorViewModel &view) { view.showPage(QStringLiteral("mixer")); }),
        screenTime("screentime", true),
        screenTime("screentime-week", true,
                   [](ScreenTimeViewModel &view) { view.setPeriod(QStringLiteral("week")); }),
        screenTime("screentime-off", false),
        monitor("monitor", {}),
        monitor("monitor-warming", {.isFirst = true}),
        monitor("monitor-alert", {},
                [](MonitorViewModel &view) {
                    view.service().raise({.id = "org.example.Blender|cpu",
                                          .appID = "org.example.Blender",
                                          .title = "Blender",
                                          .detail = "CPU stayed above 80% of one core."});
                }),
        monitor("monitor-app", {},
                [](MonitorViewModel &view) {
                    view.showApp(QStringLiteral("org.example.Firefox"));
                }),
        monitor("monitor-question", {},
                [](MonitorViewModel &view) {
                    view.showApp(QStringLiteral("org.example.Firefox"));
                    QTimer::singleShot(500, &view, [&view] {
                        view.askToEnd(QStringLiteral("org.example.Firefox"), true);
                    });
                }),
        monitor("monitor-history", {.hasHistory = true},
                [](MonitorViewModel &view) { view.showChart(QStringLiteral("cpu")); }),
        monitor("monitor-history-off", {},
                [](MonitorViewModel &view) { view.showChart(QStringLiteral("cpu")); }),
        monitor("monitor-machine", {},
                [](MonitorViewModel &view) { view.showPage(QStringLiteral("machine")); }),
        monitor(
            "monitor-options", {.hasHistory = true},
            [](MonitorViewModel &view) { view.showPage(QStringLiteral("options")); }, true),
        {.name = QStringLiteral("monitor-nothing"),
         .surface = QStringLiteral("Panel"),
         .view = QStringLiteral("stats"),
         .prepare = [](ShotData &data) { data.state.enabled.emplace_back("stats"); }},
        {.name = QStringLiteral("monitor-home"),
         .surface = QStringLiteral("Panel"),
         .view = QStringLiteral("home"),
         .prepare =
             [](ShotData &data) {
                 data.state.enabled.emplace_back("stats");
                 data.state.settings["home.widgets"] = "dhikr,prayer,names,timers,stats";
             },
         .arrange = [](App &app) { begin(app, {}); }},
    };
}

} // namespace Velvetnook
