// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "MonitorCore/MonitorHistoryStore.h"
#include "RunningModel.h"
#include "Velvetnook/Application/ViewModels/MonitorViewModel.h"
#include "Velvetnook/Platform/Linux/MonitorOfHost.h"

#include <QAbstractItemModelTester>
#include <QColor>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QSignalSpy>

#include <gmock/gmock.h>

#include <atomic>
#include <semaphore>

namespace
{

using MonitorCore::MetricID;
using MonitorCore::MonitorPreferences;
using MonitorCore::MonitorSnapshot;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using Velvetnook::MonitorRow;
using Velvetnook::MonitorRows;
using Velvetnook::MonitorTools;
using Velvetnook::MonitorViewModel;

// What the collector of a test has been asked, and what it answers.
struct Machine {
    std::atomic<int> samples{};
    std::atomic<int> withProcesses{};
    std::atomic<int> collectors{};
    std::atomic<bool> isStuck{};
    std::binary_semaphore release{0};
    std::atomic<double> cpu{10};
    std::atomic<double> busy{5}; // of the busy application
    std::atomic<double> interval{2};
};

class MachineCollector : public MonitorCore::Collector
{
public:
    explicit MachineCollector(Machine &machine) : m_machine{machine} { ++machine.collectors; }

    MonitorCore::RawSample sample(MonitorCore::SampleScope scope, Base::Instant now) override
    {
        if (m_machine.isStuck) {
            m_machine.release.acquire();
        }
        MonitorCore::RawSample raw;
        raw.snapshot = {.timestamp = now, .uptime = 100, .interval = m_machine.interval};
        raw.snapshot.readings[MetricID::cpu] = {.value = m_machine.cpu.load(),
                                                .unit = MonitorCore::MetricUnit::percent,
                                                .state = MonitorCore::MetricState::available,
                                                .timestamp = now};
        ++m_machine.samples;
        if (scope == MonitorCore::SampleScope::processes) {
            ++m_machine.withProcesses;
            raw.processes = {{.key = {.pid = 7, .start = 1},
                              .name = "busy",
                              .executable = "/usr/bin/busy",
                              .cpu = m_machine.busy},
                             {.key = {.pid = 8, .start = 1},
                              .name = "idle",
                              .executable = "/usr/bin/idle",
                              .cpu = 6}};
            raw.origins.resize(raw.processes.size());
        }
        return raw;
    }
    std::vector<std::uint16_t> portsOf(const MonitorCore::ProcessKey &) override { return {}; }

private:
    Machine &m_machine;
};

class Monitor : public RunningModel
{
public:
    explicit Monitor(MonitorPreferences preferences = {}, bool isOn = true)
        : RunningModel{[&](KestCore::NativeState &state) {
              state.enabled =
                  isOn ? std::vector<std::string>{"stats"} : std::vector<std::string>{};
              state.settings["stats.preferences"] = Base::json::encode(preferences).value();
          }},
          view{model(), formatting()}, said{&view, &MonitorViewModel::said}
    {
    }
    ~Monitor() { machine.release.release(); }

    void begin()
    {
        view.begin({.collector = [this] { return std::make_unique<MachineCollector>(machine); },
                    .installedApps = [] { return std::vector<MonitorCore::InstalledApp>{}; },
                    .end = [](auto &, const auto &, auto) { return Base::Result<void>{}; },
                    .history = history()});
        rest();
    }
    std::filesystem::path history() { return path("Monitor/history.sqlite"); }
    // Second by second, with every answer taken in.
    void live(int seconds)
    {
        for (int second = 0; second < seconds; ++second) {
            pass(Base::Seconds{1});
            rest();
        }
    }
    // Until the monitor has nothing more to do at this moment.
    void rest()
    {
        for (int round = 0; round < 3; ++round) {
            settle();
            // A machine that is stuck may answer long after this.
            const auto isDone = std::make_shared<bool>(false);
            view.service().readPorts({}, [isDone](const auto &) { *isDone = true; });
            waitUntil([&] { return *isDone || !view.service().hasBegun() || machine.isStuck; });
        }
    }

    Machine machine{};
    MonitorViewModel view;
    QSignalSpy said;
};

TEST(MonitorService, SamplesOnlyAsOftenAsSomebodyNeedsIt)
{
    struct Case {
        const char *name;
        MonitorPreferences preferences;
        bool isOn;
        bool isWatched;
        bool isAtHome;
        int least;
        int most;
        bool needsProcesses;
    };
    const MonitorPreferences records{.historyEnabled = true};
    const MonitorPreferences pauses{.historyEnabled = true, .historyPaused = true};
    const MonitorPreferences warns{.alertsEnabled = true};
    for (const auto &[name, preferences, isOn, isWatched, isAtHome, least, most, processes] : {
             Case{"nobody looks", {}, true, false, false, 0, 0, false},
             Case{"the view", {}, true, true, false, 30, 32, true},
             Case{"a card alone", {}, true, false, true, 30, 32, false},
             Case{"recording", records, true, false, false, 6, 7, true},
             Case{"paused", pauses, true, false, false, 0, 0, false},
             Case{"alerts alone", warns, true, false, false, 2, 3, true},
             Case{"recording, but the tool is off", records, false, false, false, 0, 0, false},
         }) {
        SCOPED_TRACE(name);
        Monitor app{preferences, isOn};
        app.begin();
        app.view.setWatched(isWatched);
        app.view.setHomeWatched(isAtHome);
        app.live(60);
        EXPECT_GE(app.machine.samples, least);
        EXPECT_LE(app.machine.samples, most);
        EXPECT_EQ(app.machine.withProcesses > 0, processes);
    }
}

TEST(MonitorService, NeverAsksForASecondSampleBeforeTheFirstIsBack)
{
    Monitor app;
    app.machine.isStuck = true;
    app.begin();
    app.view.setWatched(true);
    for (int second = 0; second < 20; ++second) {
        app.pass(Base::Seconds{1});
    }
    app.machine.isStuck = false;
    app.machine.release.release();
    ASSERT_TRUE(app.waitUntil([&] { return app.view.service().snapshot() != nullptr; }));
    app.view.setWatched(false);
    app.rest();
    EXPECT_LE(app.machine.samples, 2);
}

TEST(MonitorService, LetsGoOfTheProcessesAWhileAfterTheLastLook)
{
    Monitor app;
    app.begin();
    app.view.setWatched(true);
    app.live(4);
    app.view.setWatched(false);
    EXPECT_TRUE(app.view.apps()->rows().empty());
    app.live(20);
    app.view.setWatched(true); // soon again: the rates go on
    app.live(2);
    EXPECT_EQ(app.machine.collectors, 1);
    app.view.setWatched(false);
    app.pass(Base::Seconds{120});
    app.rest();
    EXPECT_EQ(app.view.service().snapshot(), nullptr);
    app.view.setWatched(true);
    app.live(2);
    EXPECT_EQ(app.machine.collectors, 2);
}

TEST(MonitorService, WarnsOnceAndUntilItIsDismissed)
{
    Monitor app{{.alertsEnabled = true, .cpuThreshold = 80, .cpuDuration = 60}};
    QSignalSpy wanted{&app.view, &MonitorViewModel::notificationWanted};
    QSignalSpy obsolete{&app.view, &MonitorViewModel::notificationObsolete};
    app.machine.busy = 95;
    app.machine.interval = 30;
    app.begin();
    app.live(59);
    EXPECT_EQ(wanted.count(), 0);
    app.live(120);
    EXPECT_EQ(wanted.count(), 1);
    EXPECT_EQ(app.view.alertText(), QStringLiteral("CPU stayed above 80% of one core."));
    app.view.review();
    EXPECT_EQ(app.view.appId(), QStringLiteral("/usr/bin/busy"));
    app.view.dismissAlert();
    EXPECT_TRUE(app.view.alertText().isEmpty());
    EXPECT_EQ(obsolete.count(), 1);
    app.live(120);
    EXPECT_EQ(wanted.count(), 1);
}

TEST(MonitorService, RecordsSaysWhoHindersItAndGoesOnAfterwards)
{
    Monitor app{{.historyEnabled = true}};
    app.machine.interval = 10;
    {
        auto other = MonitorCore::MonitorHistoryStore::open(app.history());
        ASSERT_TRUE(other);
        app.begin();
        app.live(20);
        EXPECT_FALSE(app.view.options()->problem().isEmpty());
    }
    app.machine.cpu = 40;
    app.machine.busy = 90;
    app.live(180);
    EXPECT_TRUE(app.view.options()->problem().isEmpty())
        << app.view.options()->problem().toStdString();
    app.view.showChart(QStringLiteral("cpu"));
    app.rest();
    EXPECT_EQ(app.view.chart()->availability(), QStringLiteral("ready"));
    EXPECT_EQ(app.view.chart()->markPeak(), QStringLiteral("peak 40%"));
    ASSERT_TRUE(app.waitUntil([&] { return !app.view.chart()->markCauses().isEmpty(); }));
    EXPECT_THAT(app.view.chart()->markCauses().toStdString(), HasSubstr("busy 90%"));

    app.view.askToClear();
    app.view.answer(true);
    app.view.options()->setHistory(false);
    app.rest();
    app.view.chart()->refresh();
    app.rest();
    EXPECT_EQ(app.view.chart()->availability(), QStringLiteral("unconfigured"));
}

TEST(MonitorService, LeavesPreferencesAsTheyAreThatItCannotRead)
{
    Monitor app;
    app.begin();
    app.change([](KestCore::NativeState &state) {
        state.settings["stats.preferences"] = R"({"historyEnabled": true})";
    });
    EXPECT_FALSE(app.view.options()->problem().isEmpty());
    EXPECT_FALSE(app.view.service().isRecording());
    app.live(5);
    EXPECT_EQ(app.model().setting("stats.preferences"), R"({"historyEnabled": true})");
}

TEST(MonitorService, KeepsBothOfTwoChangesThatComeAtOnce)
{
    Monitor app;
    app.view.options()->setAlerts(true);
    app.view.options()->setRetention(7);
    app.settle();
    EXPECT_TRUE(app.view.options()->alerts());
    EXPECT_EQ(app.view.options()->retention(), 7);
}

TEST(MonitorChart, AnswersOfAnOlderQuestionArePassedOver)
{
    Monitor app{{.historyEnabled = true}};
    app.machine.interval = 10;
    app.begin();
    app.live(30);
    app.view.showChart(QStringLiteral("cpu"));
    app.view.showChart(QStringLiteral("battery")); // of which nothing is known
    app.rest();
    EXPECT_EQ(app.view.chart()->availability(), QStringLiteral("empty"));
    EXPECT_TRUE(app.view.chart()->means().isEmpty());
}

TEST(MonitorChart, MovesOnWithTheTimeWhileItIsSeen)
{
    Monitor app{{.historyEnabled = true}};
    app.machine.interval = 10;
    app.machine.cpu = 70;
    app.begin();
    app.view.setWatched(true);
    app.live(70);
    app.view.chart()->setHours(1);
    app.view.showChart(QStringLiteral("cpu"));
    app.rest();
    app.machine.cpu = 20;
    const auto begin = [&] { return app.view.chart()->times().value(0); };
    EXPECT_EQ(begin(), QStringLiteral("12:07"));
    app.live(200);
    EXPECT_EQ(begin(), QStringLiteral("12:10"));
    EXPECT_EQ(app.view.chart()->markPeak(), QStringLiteral("peak 70%"));
    const auto columns = app.view.chart()->means().size();
    app.view.chart()->pointAt(1);
    EXPECT_EQ(app.view.chart()->markPeak(), QStringLiteral("peak 20%"));
    const QString pointed = app.view.chart()->markTime();
    app.live(120);
    EXPECT_GT(app.view.chart()->means().size(), columns);
    EXPECT_EQ(app.view.chart()->markTime(), pointed);
    EXPECT_EQ(app.view.chart()->markPeak(), QStringLiteral("peak 20%"));

    app.view.setWatched(false);
    app.live(180);
    EXPECT_EQ(begin(), QStringLiteral("12:12"));
}

std::vector<MonitorRow> rowsOf(const std::string &ids)
{
    std::vector<MonitorRow> rows;
    for (const char id : ids) {
        rows.push_back({.rowId = QString{QChar::fromLatin1(id)}});
    }
    return rows;
}

TEST(MonitorRows, StayWhereTheyAreWhileTheyAreHeld)
{
    struct Case {
        const char *before;
        const char *wanted;
        MonitorRows::Order order;
        const char *after;
    };
    constexpr auto kHeld = MonitorRows::Order::held;
    for (const auto &[before, wanted, order, after] : {
             Case{"abcd", "dcba", MonitorRows::Order::asGiven, "dcba"},
             Case{"abcd", "dcba", kHeld, "abcd"},
             Case{"abcd", "xdyb", kHeld, "bdxy"},
             Case{"", "ba", kHeld, "ba"},
             Case{"abc", "", kHeld, ""},
         }) {
        SCOPED_TRACE(std::string{before} + " " + wanted);
        MonitorRows rows;
        const QAbstractItemModelTester tester{
            &rows, QAbstractItemModelTester::FailureReportingMode::Fatal};
        rows.show(rowsOf(before), MonitorRows::Order::asGiven);
        rows.show(rowsOf(wanted), order);
        std::string ids;
        for (const MonitorRow &row : rows.rows()) {
            ids += row.rowId.toStdString();
        }
        EXPECT_EQ(ids, after);
    }
}

TEST(MonitorRows, TellOnlyWhatIsAnotherOfThousands)
{
    MonitorRows rows;
    std::vector<MonitorRow> many;
    for (int row = 0; row < 4000; ++row) {
        many.push_back({.rowId = QString::number(row)});
    }
    rows.show(many, MonitorRows::Order::asGiven);
    QSignalSpy changes{&rows, &MonitorRows::dataChanged};
    QSignalSpy resets{&rows, &MonitorRows::modelReset};
    many[10].cpu = QStringLiteral("3%");
    many[11].cpu = QStringLiteral("4%");
    many[3999].cpu = QStringLiteral("5%");
    rows.show(many, MonitorRows::Order::held);
    ASSERT_EQ(changes.count(), 2);
    EXPECT_EQ(changes[0][0].toModelIndex().row(), 10);
    EXPECT_EQ(changes[0][1].toModelIndex().row(), 11);
    EXPECT_EQ(resets.count(), 0);
}

TEST(MonitorImage, IsWrittenWholeOrNotAtAll)
{
    Monitor app;
    QSignalSpy saved{&app.view, &MonitorViewModel::imageSaved};
    QImage picture{60, 22, QImage::Format_ARGB32_Premultiplied};
    picture.fill(Qt::transparent);
    const QString file = QString::fromStdString(app.path("monitor.png"));
    app.view.saveImage(picture, QColor{10, 20, 30}, QUrl::fromLocalFile(file));
    EXPECT_EQ(QImage{file}.pixelColor(0, 0), (QColor{10, 20, 30}));
    app.view.saveImage(picture, Qt::black,
                       QUrl::fromLocalFile(QStringLiteral("/proc/monitor.png")));
    app.view.saveImage({}, Qt::black, QUrl::fromLocalFile(file));
    EXPECT_EQ(saved.count(), 1);
    ASSERT_EQ(app.said.count(), 2);
    EXPECT_THAT(app.said[0][0].toString().toStdString(), HasSubstr("could not be written"));
    EXPECT_EQ(QImage{file}.pixelColor(0, 0), (QColor{10, 20, 30}));
}

const std::vector<MonitorCore::AppUsage> kNone;

// On this very machine.
TEST(MonitorOfHost, ShowsAProcessAndEndsItButNotTheFirstOne)
{
    Monitor app;
    app.view.begin(Velvetnook::monitorOfHost(app.path("")));
    QProcess sleeper;
    sleeper.start(QStringLiteral("sleep"), {QStringLiteral("600")});
    ASSERT_TRUE(sleeper.waitForStarted());
    app.view.setWatched(true);
    std::optional<MonitorCore::ProcessKey> key;
    const auto findIt = [&] {
        const auto snapshot = app.view.service().snapshot();
        for (const auto &usage : snapshot ? snapshot->apps : kNone) {
            for (const auto &process : usage.processes) {
                if (process.key.pid == sleeper.processId() && process.name == "sleep") {
                    key = process.key;
                }
            }
        }
        return key.has_value();
    };
    ASSERT_TRUE(app.waitUntil([&] {
        app.pass(Base::Seconds{2});
        return findIt();
    }));

    std::optional<Base::Result<void>> ended;
    const auto keep = [&](Base::Result<void> result) { ended = std::move(result); };
    app.view.service().end({{.pid = 1, .start = 0}}, MonitorTools::Ending::kill, keep);
    ASSERT_TRUE(app.waitUntil([&] { return ended.has_value(); }));
    EXPECT_FALSE(*ended);
    EXPECT_EQ(sleeper.state(), QProcess::Running);

    ended.reset();
    app.view.service().end({key.value()}, MonitorTools::Ending::quit, keep);
    ASSERT_TRUE(app.waitUntil([&] { return ended.has_value(); }));
    EXPECT_TRUE(*ended);
    EXPECT_TRUE(app.waitUntil([&] { return sleeper.state() == QProcess::NotRunning; }));
}

} // namespace
