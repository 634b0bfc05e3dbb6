// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "AlarmedModel.h"
#include "KestCore/Tools/TimerList.h"
#include "Velvetnook/Application/DurationText.h"
#include "Velvetnook/Application/TimerSteps.h"
#include "Velvetnook/Application/ViewModels/TimersViewModel.h"
#include "tests/Store/FaultVfs.h"

#include <QAbstractItemModelTester>

namespace
{

using KestCore::NativeState;
using KestCore::TimerMode;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class Timers : public AlarmedModel
{
public:
    explicit Timers(const Prepare &prepare = {})
        : AlarmedModel{prepare}, view{model(), formatting()}
    {
    }

    void begin(TimerMode mode, std::optional<double> minutes, const std::string &title)
    {
        Velvetnook::beginTimer(model(), {.mode = mode, .minutes = minutes, .title = title});
        rest();
    }
    // The bodies of what was announced.
    std::vector<std::string> said()
    {
        std::vector<std::string> bodies;
        for (const auto &request : std::exchange(requests, {})) {
            bodies.push_back(request.body.toStdString());
        }
        return bodies;
    }
    QString idOf(int row)
    {
        return view.rows()->rows().at(static_cast<std::size_t>(row)).timerId;
    }
    QString noteOf(int row)
    {
        return view.rows()->rows().at(static_cast<std::size_t>(row)).note;
    }

    Velvetnook::TimersViewModel view;
};

TEST(TimerAlarm, AnnouncesEachEndOnceAndMarksIt)
{
    Timers app;
    app.begin(TimerMode::countdown, 10, "Tea");
    app.go(kMinute * 10 - Base::Seconds{1});
    EXPECT_THAT(app.said(), IsEmpty());
    app.go(Base::Seconds{1});
    EXPECT_THAT(app.said(), ElementsAre("Tea finished."));
    EXPECT_TRUE(Velvetnook::timersIn(app.model()).front().state.notified);
    app.start();
    app.live(30);
    EXPECT_THAT(app.said(), IsEmpty());
}

TEST(TimerAlarm, AnnouncesOldEndsNeverThatWereSilentWhenTheyCame)
{
    Timers app{[](NativeState &state) { state.settings["timers.notifications"] = "false"; }};
    app.begin(TimerMode::countdown, 10, "Tea");
    app.live(11);
    app.change([](NativeState &state) { state.settings["timers.notifications"] = "true"; });
    app.live(5);
    EXPECT_THAT(app.said(), IsEmpty());
}

TEST(TimerAlarm, WaitsForAFullDiskAndThenAnnouncesOnce)
{
    FaultVfs disk;
    Timers app;
    app.begin(TimerMode::countdown, 10, "Tea");
    app.go(kMinute * 9);
    QSignalSpy failed{&app.model(), &Velvetnook::ApplicationModel::failed};
    for (int refusal = 0; refusal < 3; ++refusal) {
        disk.arm(FaultVfs::Fault::diskFull, 1);
        app.go(kMinute);
        ASSERT_TRUE(disk.hasStruck());
        EXPECT_THAT(app.said(), IsEmpty());
        EXPECT_FALSE(Velvetnook::timersIn(app.model()).front().state.notified);
    }
    EXPECT_EQ(failed.count(), 1) << "told once, not with every try";
    disk.disarm();
    app.go(kMinute);
    EXPECT_THAT(app.said(), ElementsAre("Tea finished."));
    app.live(5);
    EXPECT_THAT(app.said(), IsEmpty());
}

TEST(TimerAlarm, AnnouncesWhatEndedInASleepOnceAndInItsOrder)
{
    Timers app;
    app.begin(TimerMode::countdown, 20, "Late");
    app.begin(TimerMode::hydration, 5, "Water");
    app.begin(TimerMode::pomodoro, 10, "Work");
    app.begin(TimerMode::countdown, 600, "Far");
    app.go(kMinute * 45);
    EXPECT_THAT(app.said(), ElementsAre("Water finished.", "Work finished.", "Late finished."));
    app.live(4);
    EXPECT_THAT(app.said(), IsEmpty());
    app.live(1); // the water's next round began when it was seen to
    EXPECT_THAT(app.said(), ElementsAre("Water finished."));
}

TEST(TimerAlarm, EndsInTimeOnAClockThatWasSetBack)
{
    Timers app;
    app.begin(TimerMode::countdown, 10, "Tea");
    app.go(kMinute * 2);
    app.setClock(-kHour);
    app.live(9);
    EXPECT_THAT(app.said(), IsEmpty());
    app.live(1);
    EXPECT_THAT(app.said(), ElementsAre("Tea finished."));
}

TEST(TimerAlarm, FollowsAClockThatWasSetBackAlsoOnAFullDisk)
{
    FaultVfs disk;
    Timers app;
    app.begin(TimerMode::countdown, 10, "Tea");
    disk.arm(FaultVfs::Fault::diskFull, 1);
    app.setClock(-kHour);
    ASSERT_TRUE(disk.hasStruck());
    disk.disarm();
    app.live(12);
    EXPECT_THAT(app.said(), ElementsAre("Tea finished."));
}

TEST(TimerAlarm, OffersTheNextStepAndWithdrawsWhatIsOver)
{
    Timers app;
    app.begin(TimerMode::pomodoro, 25, "");
    app.live(25);
    ASSERT_EQ(app.requests.size(), 1U);
    const auto request = app.requests.front();
    ASSERT_EQ(request.actions.size(), 2U);
    QSignalSpy over{&app.alarms(), &Velvetnook::Alarms::notificationObsolete};
    app.alarms().act(request.id, QStringLiteral("break"));
    app.rest();
    EXPECT_EQ(Velvetnook::timersIn(app.model()).back().record.title, "Break");
    EXPECT_EQ(over.count(), 0);
    app.alarms().act(request.id, QStringLiteral("again"));
    app.rest();
    ASSERT_EQ(over.count(), 1);
    EXPECT_EQ(over.front().front().toString(), request.id);
    EXPECT_TRUE(Velvetnook::timersIn(app.model()).front().state.running);
}

TEST(TimersView, OffersEachKindAndShowsWhatRuns)
{
    Timers app;
    const QAbstractItemModelTester tester{app.view.rows()};
    EXPECT_EQ(app.view.rows()->rowCount(), 4);
    app.view.toggle(QStringLiteral("new-hydration"));
    app.rest();
    EXPECT_EQ(app.view.rows()->rowCount(), 4);
    EXPECT_EQ(app.noteOf(0), QStringLiteral("Drink water · in 30 min"));
    EXPECT_EQ(app.view.chosenId(), app.idOf(0));
    app.view.add(QStringLiteral("hydration"));
    app.rest();
    EXPECT_EQ(app.view.rows()->rowCount(), 5);
    EXPECT_EQ(app.view.title(), QStringLiteral("Water 2"));
}

TEST(TimersView, TicksOnlyWhileItIsWatchedAndOnlyTheFigure)
{
    Timers app;
    app.view.toggle(QStringLiteral("new-pomodoro"));
    app.rest();
    QSignalSpy ticked{&app.view, &Velvetnook::TimersViewModel::ticked};
    QSignalSpy changed{&app.view, &Velvetnook::TimersViewModel::changed};
    for (int second = 0; second < 5; ++second) {
        app.go(Base::Seconds{1});
    }
    EXPECT_EQ(ticked.count(), 0);
    app.view.setWatched(true);
    app.rest();
    changed.clear();
    ticked.clear();
    for (int second = 0; second < 5; ++second) {
        app.go(Base::Seconds{1});
    }
    EXPECT_EQ(ticked.count(), 5);
    EXPECT_EQ(changed.count(), 0);
    EXPECT_EQ(app.view.timeText(), QStringLiteral("24:50"));
}

TEST(TimersView, RefusesAdjustmentsInTheEnginesWords)
{
    Timers app;
    QSignalSpy said{&app.model(), &Velvetnook::ApplicationModel::said};
    app.view.toggle(QStringLiteral("new-countdown"));
    app.rest();
    app.view.adjust(-5);
    app.rest();
    EXPECT_EQ(app.view.timeText(), QStringLiteral("5:00"));
    app.view.adjust(-5);
    app.rest();
    ASSERT_EQ(said.count(), 1);
    EXPECT_EQ(said.front().front().toString(),
              QStringLiteral("Choose between 1 minute and 365 days."));
    EXPECT_EQ(app.view.timeText(), QStringLiteral("5:00"));
    const QString id = app.view.chosenId();
    EXPECT_EQ(app.view.setTime(id, QStringLiteral("400 days")),
              QStringLiteral("Choose between 1 minute and 365 days."));
    app.go(Base::Seconds{1});
    EXPECT_EQ(app.view.setTime(id, QStringLiteral("365 d")),
              QStringLiteral("Total timer duration cannot exceed 365 days."));
    EXPECT_EQ(app.view.setTime(id, QStringLiteral("1 h 30")), QString{});
    app.rest();
    EXPECT_EQ(app.view.timeText(), QStringLiteral("1:30:00"));
}

TEST(TimersView, RemovesAndBringsBackWithItsEnd)
{
    Timers app;
    app.begin(TimerMode::countdown, 10, "Tea");
    QSignalSpy removed{&app.view, &Velvetnook::TimersViewModel::removed};
    app.view.remove(app.idOf(0));
    app.rest();
    ASSERT_EQ(removed.count(), 1);
    EXPECT_EQ(app.view.rows()->rowCount(), 4);
    app.go(kMinute * 2);
    EXPECT_THAT(Velvetnook::timersIn(app.model()), IsEmpty());
    app.view.restore();
    app.rest();
    EXPECT_EQ(app.view.title(), QStringLiteral("Tea"));
    EXPECT_EQ(app.view.timeText(), QStringLiteral("8:00"));
    app.live(8);
    EXPECT_THAT(app.said(), ElementsAre("Tea finished."));
}

TEST(TimersView, SaysNothingOfARemovalThatWasRefused)
{
    FaultVfs disk;
    Timers app;
    app.begin(TimerMode::countdown, 10, "Tea");
    QSignalSpy removed{&app.view, &Velvetnook::TimersViewModel::removed};
    disk.arm(FaultVfs::Fault::diskFull, 1);
    app.view.remove(app.idOf(0));
    app.rest();
    ASSERT_TRUE(disk.hasStruck());
    EXPECT_EQ(removed.count(), 0);
    EXPECT_EQ(app.view.title(), QStringLiteral("Tea"));
}

TEST(TimersView, FinishesPausesAndStartsOver)
{
    Timers app;
    app.begin(TimerMode::pomodoro, 25, "");
    app.view.choose(app.idOf(0));
    app.go(kMinute * 10);
    app.view.toggle(app.idOf(0));
    app.rest();
    EXPECT_EQ(app.view.tone(), QStringLiteral("paused"));
    EXPECT_EQ(app.noteOf(0), QStringLiteral("Paused at 15:00"));
    app.go(kHour);
    app.view.toggle(app.idOf(0));
    app.rest();
    app.live(15);
    EXPECT_EQ(app.view.tone(), QStringLiteral("finished"));
    EXPECT_TRUE(app.view.offersBreak());
    app.view.reset(app.idOf(0));
    app.rest();
    EXPECT_EQ(app.view.tone(), QStringLiteral("idle"));
    EXPECT_EQ(app.view.timeText(), QStringLiteral("25:00"));
}

TEST(DurationText, ReadsWhatPeopleType)
{
    struct Case {
        const char *text;
        std::optional<double> seconds;
    };
    for (const auto &[text, seconds] :
         {Case{"25", 1500.0}, Case{" 25 min ", 1500.0}, Case{"1:30", 90.0},
          Case{"1:30:00", 5400.0}, Case{"1 h 30", 5400.0}, Case{"1h30m", 5400.0},
          Case{"1.5 h", 5400.0}, Case{"90 s", 90.0}, Case{"2 d", 172'800.0}, Case{"٢٥", 1500.0},
          Case{"2 min 5", 125.0}, Case{"", std::nullopt}, Case{"soon", std::nullopt},
          Case{"-5", std::nullopt}, Case{"1:2:3:4", std::nullopt},
          Case{"5 parsecs", std::nullopt}}) {
        SCOPED_TRACE(text);
        EXPECT_EQ(Velvetnook::secondsFromText(QString::fromUtf8(text)), seconds);
    }
}

} // namespace
