// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "AlarmedModel.h"
#include "Velvetnook/Application/SunPath.h"
#include "Velvetnook/Application/TimerSteps.h"
#include "Velvetnook/Application/ViewModels/PrayerViewModel.h"
#include "Velvetnook/Application/ViewModels/RemindersViewModel.h"
#include "tests/Store/FaultVfs.h"

#include <QVariantMap>

namespace
{

using KestCore::NativeState;
using ::testing::ElementsAre;

RunningModel::Prepare at(const char *latitude, const char *longitude, const char *zone)
{
    return [=](NativeState &state) {
        state.settings["prayer.latitude"] = latitude;
        state.settings["prayer.longitude"] = longitude;
        state.settings["prayer.timezone"] = zone;
        state.settings["prayer.country"] = "GB";
    };
}
RunningModel::Prepare inLondon() { return at("51.5074", "-0.1278", "Europe/London"); }

class Prayers : public AlarmedModel
{
public:
    explicit Prayers(const Prepare &prepare = inLondon())
        : AlarmedModel{prepare}, view{model(), formatting()}
    {
        rest();
    }

    std::string countdown() const
    {
        return (view.countdown() + u' ' + view.countdownUnit()).toStdString();
    }
    std::vector<std::string> tones() const
    {
        std::vector<std::string> tones;
        for (const QVariant &cell : view.cells()) {
            tones.push_back(cell.toMap()[QStringLiteral("tone")].toString().toStdString());
        }
        return tones;
    }

    Velvetnook::PrayerViewModel view;
};

TEST(PrayerView, CountsDownInTheUnitThatIsLeft)
{
    struct Case {
        Base::Seconds later;
        const char *next;
        const char *countdown;
    };
    for (const auto &[later, next, countdown] :
         {Case{kHour * -2, "Dhuhr", "44 min"}, Case{{}, "Asr", "42 min"},
          Case{Base::Seconds{0.5}, "Asr", "42 min"},
          Case{kMinute * 41 - Base::Seconds{1}, "Asr", "2 min"},
          Case{kMinute * 41, "Asr", "1 min"}, Case{kMinute * 41.5, "Asr", "30 s"},
          Case{kMinute * 42, "Maghrib", "2:27 h"}, Case{kMinute * 99, "Maghrib", "90 min"},
          Case{kHour * 8, "Fajr", "8:35 h"}, Case{kHour * -7, "Sunrise", "71 min"}}) {
        SCOPED_TRACE(testing::Message() << later.count() << " s later");
        Prayers app;
        app.pass(later);
        EXPECT_EQ(app.view.nextName().toStdString(), next);
        EXPECT_EQ(app.countdown(), countdown);
    }
}

TEST(PrayerView, TellsWhichTimeIsWhich)
{
    Prayers app;
    EXPECT_THAT(app.tones(),
                ElementsAre("past", "past", "current", "next", "coming", "coming"));
    app.pass(kMinute * 42); // the very instant of asr
    EXPECT_THAT(app.tones(), ElementsAre("past", "past", "past", "current", "next", "coming"));
    app.pass(kHour * 8);
    EXPECT_THAT(app.tones(), ElementsAre("past", "past", "past", "past", "past", "current"));
    app.pass(-kHour * 13); // between sunrise and dhuhr no prayer is in progress
    EXPECT_THAT(app.tones(), ElementsAre("past", "past", "next", "coming", "coming", "coming"));
}

TEST(PrayerView, TicksByTheMinuteThenByTheSecondAndOnlyWhileWatched)
{
    Prayers app;
    QSignalSpy ticked{&app.view, &Velvetnook::PrayerViewModel::ticked};
    app.live(3);
    EXPECT_EQ(ticked.count(), 0);
    app.view.setWatched(true);
    app.rest();
    ticked.clear();
    for (int second = 0; second < 120; ++second) {
        app.go(Base::Seconds{1});
    }
    EXPECT_EQ(ticked.count(), 2);
    app.go(kMinute * 36); // one minute is left
    ticked.clear();
    for (int second = 0; second < 10; ++second) {
        app.go(Base::Seconds{1});
    }
    EXPECT_EQ(ticked.count(), 10);
}

TEST(PrayerView, SaysWhatIsMissing)
{
    struct Case {
        const char *name;
        RunningModel::Prepare prepare;
        bool hasPlace;
        const char *message;
    };
    for (const auto &[name, prepare, hasPlace, message] :
         {Case{"no place",
               {},
               false,
               "Add a location to see your next prayer. You can set it manually."},
          Case{"no such zone", at("51.5", "0", "Nowhere/None"), false,
               "Allow location access to calculate prayer times for where you are."},
          Case{"polar night", at("78.22", "15.65", "Arctic/Longyearbyen"), true,
               "There are no times to calculate for this date here"}}) {
        SCOPED_TRACE(name);
        Prayers app{prepare};
        EXPECT_EQ(app.view.hasPlace(), hasPlace);
        EXPECT_TRUE(app.view.message().startsWith(QLatin1String{message}))
            << app.view.message().toStdString();
        EXPECT_FALSE(app.view.hasTimes());
        EXPECT_TRUE(app.view.focusLink().isEmpty());
    }
}

TEST(PrayerView, TurnsItsTablesAndComesHome)
{
    Prayers app;
    app.view.setPage(QStringLiteral("month"));
    EXPECT_EQ(app.view.tableTitle(), QStringLiteral("November 2025"));
    EXPECT_EQ(app.view.tableRows().size(), 30);
    app.view.turn(-9);
    EXPECT_EQ(app.view.tableTitle(), QStringLiteral("February 2025"));
    EXPECT_EQ(app.view.tableRows().size(), 28);
    EXPECT_FALSE(app.view.isTodayShown());
    app.view.turn(9);
    EXPECT_TRUE(app.view.isTodayShown());
    app.view.setPage(QStringLiteral("week"));
    app.view.turn(1);
    EXPECT_EQ(app.view.tableTitle(), QStringLiteral("21 November – 27 November 2025"));
    const auto first = app.view.tableRows().front().toMap();
    EXPECT_EQ(first[QStringLiteral("day")].toString(), QStringLiteral("Fri 21"));
    EXPECT_EQ(first[QStringLiteral("islamic")].toString(), QStringLiteral("30 Jumada I"));
    app.view.turn(100'000); // beyond what can be calculated
    EXPECT_EQ(app.view.tableTitle(), QStringLiteral("21 November – 27 November 2025"));
}

TEST(PrayerFocus, RunsToItsDeadlineAndReviewsItOnlyWhenAsked)
{
    Prayers app;
    app.view.askFocus();
    EXPECT_EQ(app.view.focusBody(),
              QStringLiteral("Focus until Asr, 5 minutes before 13:48. Later location or "
                             "prayer changes will ask you to review the deadline."));
    app.view.acceptFocus();
    app.rest();
    EXPECT_EQ(app.view.page(), QStringLiteral("day"));
    EXPECT_EQ(app.view.focusState(), QStringLiteral("Focus until 13:43"));
    EXPECT_TRUE(app.view.focusLink().isEmpty());

    app.change([](NativeState &state) { state.settings["prayer.adjust.asr"] = "10"; });
    EXPECT_EQ(app.view.focusState(),
              QStringLiteral("Prayer settings changed. Your current deadline is unchanged."));
    EXPECT_EQ(app.view.focusLink(), QStringLiteral("Review revised deadline…"));
    const auto deadline = [&] {
        const auto timer = Velvetnook::timersIn(app.model()).front();
        return app.formatting().time(timer.state.deadline.value()).toStdString();
    };
    EXPECT_EQ(deadline(), "13:43");
    app.view.askFocus();
    app.view.acceptFocus();
    app.rest();
    EXPECT_EQ(deadline(), "13:53");
    EXPECT_EQ(app.view.focusState(), QStringLiteral("Focus until 13:53"));

    // A timer that is paused has let go of the plan.
    Velvetnook::changeTimer(app.model(), Velvetnook::timersIn(app.model()).front().record.id,
                            Velvetnook::PastEnd::left,
                            [](KestCore::TimerState &timer, Base::Instant now) {
                                KestCore::pauseTimer(timer, now);
                                return Base::Result<void>{};
                            });
    app.rest();
    EXPECT_FALSE(app.view.isFocusing());
}

TEST(PrayerFocus, IsRefusedTooCloseToThePrayer)
{
    Prayers app;
    app.go(kMinute * 36.5); // 13:42:30
    app.view.askFocus();
    EXPECT_FALSE(app.view.canFocus());
    EXPECT_EQ(app.view.focusBody(),
              QStringLiteral("The next prayer is too close for this buffer. Try an ordinary "
                             "timer or reduce the buffer."));
    app.view.acceptFocus();
    app.rest();
    EXPECT_TRUE(Velvetnook::timersIn(app.model()).empty());
    app.view.setFocusBuffer(0);
    app.rest();
    EXPECT_TRUE(app.view.canFocus());
}

TEST(PrayerFocus, LeavesNothingBehindWhenTheDiskIsFull)
{
    FaultVfs disk;
    Prayers app;
    QSignalSpy failed{&app.model(), &Velvetnook::ApplicationModel::failed};
    app.view.askFocus();
    disk.arm(FaultVfs::Fault::diskFull, 1);
    app.view.acceptFocus();
    app.rest();
    ASSERT_TRUE(disk.hasStruck());
    EXPECT_EQ(failed.count(), 1);
    EXPECT_EQ(app.view.page(), QStringLiteral("focus")) << "the question still stands";
    EXPECT_TRUE(Velvetnook::timersIn(app.model()).empty());
    EXPECT_FALSE(app.view.isFocusing());
}

TEST(SunPath, StaysInThePictureFromThePolesToTheEquator)
{
    for (const double latitude : {0.0, 21.4, 45.0, 51.5, 60.0, 63.0, -54.0}) {
        for (const int day : {355, 80, 172}) {
            SCOPED_TRACE(testing::Message() << latitude << " on day " << day);
            const std::chrono::year_month_day date{
                std::chrono::sys_days{std::chrono::year{2025} / 1 / 1} +
                std::chrono::days{day - 1}};
            const auto times = PrayerCore::prayerTimes(
                {.latitude = latitude, .longitude = 0}, date,
                PrayerCore::parametersOf(PrayerCore::CalculationMethod::muslimWorldLeague));
            if (!times) {
                continue; // the Sun does not set there on that day
            }
            const auto path = Velvetnook::sunPathOf(*times, times->dhuhr);
            ASSERT_TRUE(path.sun);
            EXPECT_NEAR(path.sun->y(), 0.07, 0.03) << "highest at noon";
            double x = 0;
            for (const auto &mark : path.marks) {
                ASSERT_TRUE(mark);
                EXPECT_GT(mark->x(), x);
                EXPECT_LT(mark->x(), 1);
                EXPECT_LE(mark->y(), Velvetnook::SunPath::kLowest + 1e-9);
                x = mark->x();
            }
            EXPECT_NEAR(path.marks[1]->y(), Velvetnook::SunPath::kHorizon, 1e-9);
        }
    }
}

TEST(PrayerView, AChangeLeavesWhatAnotherProgramHasChanged)
{
    Prayers app;
    app.model().perform([](KestCore::StateStore &store) -> Base::Result<Velvetnook::Committed> {
        KestCore::CompanionState companion = store.companion();
        companion.selectedWorkspaceID = "focus";
        KEST_CHECK(store.saveCompanion(companion));
        return Velvetnook::Committed{}; // the model is told later
    });
    app.view.setFocusBuffer(25);
    app.rest();
    EXPECT_EQ(app.model().companion().selectedWorkspaceID, "focus");
    EXPECT_EQ(app.model().companion().prayerBufferMinutes, 25);
}

class Reminders : public AlarmedModel
{
public:
    Reminders()
        : AlarmedModel{[](NativeState &state) {
              state.devotional.preferences.reminderEnabled = true;
              state.devotional.preferences.reminderInterval = 60;
              state.devotional.preferences.activeHoursStart = "09:00";
              state.devotional.preferences.activeHoursEnd = "17:00";
              state.devotional.preferences.weekdays = {0, 1, 2, 3, 4, 5, 6};
          }},
          view{model(), formatting(), alarms()}
    {
    }

    Velvetnook::RemindersViewModel view;
};

TEST(RemindersView, KeepsTheOldValueOfOneThatIsRefused)
{
    Reminders app;
    for (const char *minutes : {"0", "1441", "-5", "ten", "", "1.5"}) {
        EXPECT_EQ(app.view.setInterval(QLatin1String{minutes}),
                  QStringLiteral("Choose between 1 and 1440 minutes."));
    }
    for (const char *time : {"24:00", "9", "09:60", "", "nine"}) {
        EXPECT_EQ(app.view.setActiveStart(QLatin1String{time}),
                  QStringLiteral("Write a time such as 09:00."));
    }
    app.rest();
    EXPECT_EQ(app.view.interval(), 60);
    EXPECT_EQ(app.view.activeStart(), QStringLiteral("09:00"));
    EXPECT_EQ(app.view.setInterval(QStringLiteral("٩٠")), QString{});
    EXPECT_EQ(app.view.setActiveStart(QStringLiteral("8:05")), QString{});
    app.rest();
    EXPECT_EQ(app.view.interval(), 90);
    EXPECT_EQ(app.view.activeStart(), QStringLiteral("08:05"));
}

TEST(RemindersView, TellsTheNextReminderAsItReallyComes)
{
    Reminders app;
    EXPECT_EQ(app.view.nextText(), QStringLiteral("Next reminder at 14:06"));
    app.view.setInterval(QStringLiteral("30"));
    app.rest();
    EXPECT_EQ(app.view.nextText(), QStringLiteral("Next reminder at 13:36"));
    app.live(30);
    EXPECT_THAT(app.taken(), ElementsAre("13:36 kest-remembrance"));
    EXPECT_EQ(app.view.nextText(), QStringLiteral("Next reminder at 14:06"));
    for (int weekday = 0; weekday < 7; ++weekday) {
        app.view.setWeekday(weekday, weekday == 1);
    }
    app.rest();
    EXPECT_EQ(app.view.nextText(),
              QStringLiteral("Next reminder on Monday 17 November at 09:00"));
    app.view.setWeekday(1, false);
    app.rest();
    EXPECT_EQ(app.view.nextText(), QStringLiteral("No day is chosen, so no reminder comes."));
    app.view.setReminderEnabled(false);
    app.rest();
    EXPECT_EQ(app.view.nextText(), QStringLiteral("Reminders are off."));
}

TEST(RemindersView, PausesUntilTheTimeOnTheClockAlsoWhereThatIsSet)
{
    Reminders app;
    app.go(kHour * (24 * 134 + 7)); // Saturday 28 March, 20:06: an hour is left out at night
    app.view.pauseUntilTomorrow();
    app.rest();
    EXPECT_EQ(app.view.pausedText(), QStringLiteral("Paused until Sunday 29 March at 09:00"));
    app.view.pauseUntil(QStringLiteral("8:30"));
    app.rest();
    EXPECT_EQ(app.view.pausedText(), QStringLiteral("Paused until Sunday 29 March at 08:30"));
}

TEST(RemindersView, PausesAndTellsUntilWhen)
{
    Reminders app;
    app.view.pauseForHours(1);
    app.rest();
    EXPECT_EQ(app.view.pausedText(), QStringLiteral("Paused until 14:06"));
    QSignalSpy changed{&app.view, &Velvetnook::RemindersViewModel::changed};
    app.go(kHour);
    EXPECT_GE(changed.count(), 1);
    EXPECT_FALSE(app.view.isPaused());
    app.view.pauseUntilTomorrow();
    app.rest();
    EXPECT_EQ(app.view.pausedText(),
              QStringLiteral("Paused until Saturday 15 November at 09:00"));
    EXPECT_EQ(app.view.pauseUntil(QStringLiteral("13:00")), QString{}); // it is 14:06
    app.rest();
    EXPECT_EQ(app.view.pausedText(),
              QStringLiteral("Paused until Saturday 15 November at 13:00"));
    app.view.endPause();
    app.rest();
    EXPECT_EQ(app.view.pausedText(), QString{});
}

TEST(RemindersView, TestsTheNotificationsAndReportsWhatBecameOfIt)
{
    Reminders app;
    app.view.sendTest();
    ASSERT_EQ(app.requests.size(), 1U);
    EXPECT_EQ(app.requests.front().id, QStringLiteral("kest-preview"));
    EXPECT_EQ(app.requests.front().title, QStringLiteral("Velvetnook — Preview"));
    EXPECT_EQ(app.requests.front().body, QStringLiteral("A quiet moment for remembrance."));
    app.alarms().reportShown(QStringLiteral("kest-preview"), false);
    app.rest();
    EXPECT_EQ(app.view.testText(),
              QStringLiteral("Notifications denied. Enable Velvetnook in System Settings → "
                             "Notifications."));
    app.alarms().reportShown(QStringLiteral("kest-preview"), true);
    app.rest();
    EXPECT_EQ(app.view.testText(), QStringLiteral("Notifications allowed."));
}

} // namespace
