// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "RunningModel.h"
#include "Velvetnook/Application/ViewModels/ScreenTimeViewModel.h"
#include "tests/Store/FaultVfs.h"

#include <QSignalSpy>

#include <gmock/gmock.h>

namespace
{

using KestCore::NativeState;
using Velvetnook::ScreenActivity;
using Velvetnook::ScreenTimeViewModel;

class Desk : public ScreenActivity
{
public:
    explicit Desk(int &alive) : m_alive{alive} { ++alive; }
    ~Desk() override { --m_alive; }
    Desk(const Desk &) = delete;
    Desk &operator=(const Desk &) = delete;

    QString problem() const override { return {}; }
    std::optional<KestCore::FocusedApplication> application() const override
    {
        return front.empty() ? std::nullopt
                             : std::optional{KestCore::FocusedApplication{front, front}};
    }
    std::optional<Base::Seconds> idle() const override { return untouched; }
    bool isLocked() const override { return locked; }

    void bring(const std::string &application)
    {
        front = application;
        emit applicationChanged();
    }
    void lock(bool isLocked)
    {
        locked = isLocked;
        emit lockedChanged();
    }

    std::string front = "editor";
    Base::Seconds untouched{};
    bool locked = false;

private:
    int &m_alive;
};

class ScreenTime : public RunningModel
{
public:
    explicit ScreenTime(const Prepare &prepare = {})
        : RunningModel{[&](NativeState &state) {
              state.enabled.emplace_back("screen-time");
              state.settings["screen-time.enabled"] = "true";
              if (prepare) {
                  prepare(state);
              }
          }},
          view{model(), formatting()}
    {
        view.service().begin([this] {
            auto made = std::make_unique<Desk>(desks);
            desk = made.get();
            return made;
        });
        settle();
    }

    // In steps of the clock, as it wakes for the tracker.
    void live(int minutes)
    {
        for (int half = 0; half < 2 * minutes; ++half) {
            pass(Base::Seconds{30});
        }
    }
    // Minutes of each application today, as they are stored now.
    std::map<std::string, int> stored()
    {
        settle();
        std::map<std::string, int> minutes;
        const KestCore::LocalDate today{std::chrono::sys_days{
            std::chrono::days{model().calendar().dayNumber(model().now())}}};
        for (const auto &day : KestCore::usageDays(model().recordsOfKind("usage"), today, 1)) {
            for (const auto &total : day.applications) {
                minutes[total.application] = static_cast<int>(std::lround(total.seconds / 60));
            }
        }
        return minutes;
    }

    int desks = 0;
    Desk *desk = nullptr;
    ScreenTimeViewModel view;
};

using Minutes = std::map<std::string, int>;

TEST(ScreenTime, WatchesNothingUntilItIsTurnedOnAndNothingAfterItIsTurnedOff)
{
    ScreenTime app{[](NativeState &state) { state.settings.erase("screen-time.enabled"); }};
    EXPECT_EQ(app.desks, 0);
    app.view.setWatched(true);
    EXPECT_EQ(app.view.availability(), QStringLiteral("unconfigured"));
    app.view.setOn(true);
    app.settle();
    EXPECT_EQ(app.desks, 1);
    app.live(3);
    app.view.setOn(false);
    app.settle();
    EXPECT_EQ(app.desks, 0);
    app.live(10);
    EXPECT_EQ(app.stored(), (Minutes{{"editor", 3}})) << "what was counted before is kept";
    app.change([](NativeState &state) {
        state.settings["screen-time.enabled"] = "true";
        std::erase(state.enabled, "screen-time");
    });
    EXPECT_EQ(app.desks, 0) << "the tool itself is off";
}

TEST(ScreenTime, CountsWhoIsInFrontWhileSomebodyIsThere)
{
    ScreenTime app{
        [](NativeState &state) { state.settings["screen-time.excluded"] = "secret"; }};
    app.live(4);
    app.desk->bring("browser");
    app.live(6);
    app.desk->bring("secret");
    app.live(5);
    app.desk->bring("");
    app.live(5);
    app.desk->bring("browser");
    app.desk->lock(true);
    app.live(20);
    app.desk->lock(false);
    app.live(2);
    app.desk->untouched = Base::Seconds{3600}; // nobody is there any more
    app.live(30);
    app.view.service().write();
    const auto counted = app.stored();
    EXPECT_EQ(counted.at("editor"), 4);
    EXPECT_FALSE(counted.contains("secret"));
    // Eight, and what passed until the pause began: at most the idle limit.
    EXPECT_GE(counted.at("browser"), 8);
    EXPECT_LE(counted.at("browser"), 13);
}

TEST(ScreenTime, WritesInFewSteps)
{
    ScreenTime app;
    QSignalSpy written{&app.model(), &Velvetnook::ApplicationModel::recordsChanged};
    app.live(60);
    EXPECT_GE(written.count(), 11);
    EXPECT_LE(written.count(), 13);
    EXPECT_GE(app.stored().at("editor"), 55);
    app.desk->lock(true);
    const auto before = written.count();
    app.live(60);
    EXPECT_LE(written.count() - before, 1);
}

TEST(ScreenTime, KeepsWhatAFullDiskRefusedForTheNextTime)
{
    FaultVfs disk;
    ScreenTime app;
    app.live(4);
    disk.arm(FaultVfs::Fault::diskFull, 1);
    app.view.service().write();
    app.settle();
    ASSERT_TRUE(disk.hasStruck());
    disk.disarm();
    app.live(1);
    app.view.service().write();
    EXPECT_EQ(app.stored(), (Minutes{{"editor", 5}})) << "neither lost nor counted twice";
}

TEST(ScreenTime, LeavesAnApplicationOutAndTakesItBack)
{
    ScreenTime app;
    app.live(2);
    app.view.exclude(QStringLiteral("editor"));
    app.settle();
    app.live(10);
    app.view.include(QStringLiteral("editor"));
    app.settle();
    app.live(1);
    app.view.service().write();
    EXPECT_EQ(app.stored(), (Minutes{{"editor", 3}}));
}

TEST(ScreenTime, ShowsADayAndTheWeekInWords)
{
    ScreenTime app;
    app.live(75);
    app.desk->bring("browser");
    app.live(30);
    app.view.setWatched(true);
    app.settle();
    EXPECT_EQ(app.view.availability(), QStringLiteral("ready"));
    EXPECT_EQ(app.view.hours() + u':' + app.view.minutes(), QStringLiteral("1:45"));
    const QVariantMap first = app.view.applications().at(0).toMap();
    EXPECT_EQ(first[QStringLiteral("title")], QStringLiteral("editor"));
    EXPECT_EQ(first[QStringLiteral("time")], QStringLiteral("1 h 15 min"));
    EXPECT_EQ(app.view.stretch(), QStringLiteral("Longest stretch 1 h 45 min"));
    app.view.choose(5);
    EXPECT_EQ(app.view.title(), QStringLiteral("Thursday"));
    EXPECT_EQ(app.view.minutes(), QStringLiteral("0"));
    app.view.setPeriod(QStringLiteral("week"));
    EXPECT_EQ(app.view.hours(), QStringLiteral("1"));
}

} // namespace
