// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "AlarmedModel.h"
#include "KestCore/Devotional/Rotation.h"
#include "Velvetnook/Application/PrayerWatch.h"
#include "Velvetnook/Application/ZoneWatch.h"
#include "tests/Store/FaultVfs.h"

#include <QDir>
#include <QTest>

namespace
{

using KestCore::NativeState;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

void remindEachHour(NativeState &state)
{
    KestCore::Preferences &preferences = state.devotional.preferences;
    preferences.reminderEnabled = true;
    preferences.reminderInterval = 60;
    preferences.activeHoursStart = "09:00";
    preferences.activeHoursEnd = "17:00";
    preferences.weekdays = {0, 1, 2, 3, 4, 5, 6};
}

void beInLondon(NativeState &state)
{
    state.settings["prayer.latitude"] = "51.5074";
    state.settings["prayer.longitude"] = "-0.1278";
    state.settings["prayer.timezone"] = "Europe/London";
    state.settings["prayer.country"] = "GB";
    state.settings["prayer.notifications"] = "true";
}

TEST(ReminderAlarm, ComesEachHourOfTheActiveOnes)
{
    AlarmedModel app{remindEachHour};
    app.live(24 * 60);
    EXPECT_THAT(app.taken(), ElementsAre("14:06 kest-remembrance", "15:06 kest-remembrance",
                                         "16:06 kest-remembrance", "09:00 kest-remembrance",
                                         "10:00 kest-remembrance", "11:00 kest-remembrance",
                                         "12:00 kest-remembrance", "13:00 kest-remembrance"));
    EXPECT_EQ(app.requests.front().title, QStringLiteral("A little remembrance"));
}

TEST(ReminderAlarm, IsToldOnceAfterASleepAndNotOutsideItsHours)
{
    struct Case {
        const char *name;
        Base::Seconds asleep;
        std::size_t told;
    };
    for (const auto &[name, asleep, told] :
         {Case{"over one", kHour * 1.5, 1}, Case{"over three", kHour * 3.5, 1},
          Case{"into the evening", kHour * 9, 0}, Case{"until the next day", kHour * 21, 1}}) {
        SCOPED_TRACE(name);
        AlarmedModel app{remindEachHour};
        app.go(asleep);
        EXPECT_EQ(app.taken().size(), told);
        app.live(59);
        EXPECT_THAT(app.taken(), IsEmpty());
    }
}

TEST(ReminderAlarm, CountsAnewOnAClockThatWasSetBack)
{
    AlarmedModel app{remindEachHour};
    app.go(kMinute * 30);
    app.setClock(-kHour * 4); // 9:36 again
    app.live(180);
    EXPECT_THAT(app.taken(), ElementsAre("10:36 kest-remembrance", "11:36 kest-remembrance",
                                         "12:36 kest-remembrance"));
}

TEST(ReminderAlarm, KeepsToTheHoursOfAnotherZone)
{
    AlarmedModel app{remindEachHour};
    setenv("TZ", "Asia/Tokyo", 1); // 22:06 there
    app.setClock({});
    app.live(13 * 60);
    setenv("TZ", "Europe/London", 1);
    EXPECT_THAT(app.taken(), ElementsAre("09:00 kest-remembrance", "10:00 kest-remembrance",
                                         "11:00 kest-remembrance"));
}

TEST(ReminderAlarm, IsSilentInAPauseAndNeedsNothingToEndIt)
{
    AlarmedModel app{[](NativeState &state) {
        remindEachHour(state);
        state.devotional.pausedUntil = Base::milliseconds1970(RunningModel::kStart + kHour * 2);
    }};
    app.live(125);
    EXPECT_THAT(app.taken(), ElementsAre("15:06 kest-remembrance"));
}

TEST(ReminderAlarm, DrawsTheEyeToAPhraseOnlyWhereThatIsInView)
{
    struct Case {
        const char *chosen;
        bool isInView;
        int emphasised;
        std::size_t told;
    };
    for (const auto &[chosen, isInView, emphasised, told] :
         {Case{"emphasis", true, 1, 0}, Case{"emphasis", false, 0, 1},
          Case{"nothing", true, 0, 0}, Case{"nothing", false, 0, 1}}) {
        SCOPED_TRACE(std::string{chosen} + (isInView ? ", in view" : ", not in view"));
        AlarmedModel app{[&](NativeState &state) {
            remindEachHour(state);
            state.devotional.presentation = !isInView; // as an import may have left it
            state.devotional.preferences.pinnedReminder = chosen;
        }};
        app.alarms().follow({.phrase = [isInView] { return isInView; }});
        QSignalSpy emphasis{&app.alarms(), &Velvetnook::Alarms::emphasisWanted};
        app.live(61);
        EXPECT_EQ(emphasis.count(), emphasised);
        EXPECT_EQ(app.taken().size(), told);
    }
}

TEST(ReminderAlarm, SendsThePinnedPhraseAndKeepsToTheSwitchOfAllSounds)
{
    struct Case {
        const char *tool;
        bool hasSound;
        const char *begins;
    };
    for (const auto &[tool, hasSound, begins] :
         {Case{"tasbih", true, "أَسْتَغْفِرُ"}, Case{"dhikr", false, "أَسْتَغْفِرُ"},
          Case{"prayer", true, "سُبْحَانَ"}}) { // what is counted
        SCOPED_TRACE(tool);
        AlarmedModel app{[&](NativeState &state) {
            remindEachHour(state);
            state.pin = {.tool = tool, .item = "astaghfirullah"};
            state.devotional.preferences.reminderSound = true;
            state.devotional.preferences.soundEnabled = hasSound;
        }};
        app.live(60);
        ASSERT_EQ(app.requests.size(), 1U);
        EXPECT_TRUE(app.requests.front().body.startsWith(QString::fromUtf8(begins)))
            << app.requests.front().body.toStdString();
        EXPECT_EQ(app.requests.front().withSound, hasSound);
    }
}

void count(NativeState &state, std::int64_t to, std::vector<std::int64_t> reached)
{
    state.devotional.session.count = to;
    state.devotional.session.startedAt = 0;
    state.devotional.session.history.clear();
    state.devotional.session.completedTargets = std::move(reached);
}

TEST(TargetNotice, TellsOnceOfATargetThatNobodyWatches)
{
    bool isOpen = false;
    AlarmedModel app{[](NativeState &state) {
        state.devotional.session.target = 33;
        count(state, 32, {});
    }};
    app.alarms().follow({.panel = [&isOpen] { return isOpen; }});
    QSignalSpy over{&app.alarms(), &Velvetnook::Alarms::notificationObsolete};
    QSignalSpy finish{&app.alarms(), &Velvetnook::Alarms::finishWanted};
    app.change([](NativeState &state) { count(state, 33, {33}); });
    EXPECT_THAT(app.taken(), ElementsAre("13:06 kest-target"));
    EXPECT_EQ(app.requests.front().actions.size(), 2U);
    app.change([](NativeState &state) { count(state, 34, {33}); });
    app.change([](NativeState &state) { count(state, 32, {33}); });
    EXPECT_EQ(over.count(), 1);
    app.change([](NativeState &state) { count(state, 33, {33}); });
    EXPECT_THAT(app.taken(), IsEmpty());
    isOpen = true;
    app.change([](NativeState &state) {
        state.devotional.session.target = 34;
        count(state, 34, {33, 34});
    });
    EXPECT_THAT(app.taken(), IsEmpty());
    app.alarms().act(QStringLiteral("kest-target"), QStringLiteral("on"));
    EXPECT_EQ(finish.count(), 0);
    app.alarms().act(QStringLiteral("kest-target"), QStringLiteral("finish"));
    EXPECT_EQ(finish.count(), 1);
}

TEST(ReminderAlarm, ComesAgainTenMinutesAfterLater)
{
    AlarmedModel app{remindEachHour};
    app.live(60);
    app.alarms().act(QStringLiteral("kest-remembrance"), QStringLiteral("later"));
    app.rest();
    app.live(61);
    EXPECT_THAT(app.taken(), ElementsAre("14:06 kest-remembrance", "14:16 kest-remembrance",
                                         "15:06 kest-remembrance"));
}

TEST(PrayerAlarm, TellsTheFivePrayersOfADay)
{
    AlarmedModel app{beInLondon};
    app.live(24 * 60);
    EXPECT_THAT(app.taken(),
                ElementsAre("13:48 prayer-asr", "16:15 prayer-maghrib", "17:42 prayer-isha",
                            "05:41 prayer-fajr", "11:50 prayer-dhuhr"));
    EXPECT_EQ(app.requests.front().body,
              QStringLiteral("Calculated prayer time. Check your local timetable."));
}

TEST(PrayerAlarm, TellsOnlyThePrayerInProgressAfterASleep)
{
    struct Case {
        const char *name;
        Base::Seconds before; // lived through before the sleep
        Base::Seconds asleep;
        const char *told; // empty: none
    };
    for (const auto &[name, before, asleep, told] :
         {Case{"two missed", {}, kHour * 4, "17:06 prayer-maghrib"},
          Case{"into the morning after sunrise", kHour * 6, kHour * 13, ""},
          Case{"days", {}, kHour * 24 * 9 + kHour, "14:06 prayer-asr"}}) {
        SCOPED_TRACE(name);
        AlarmedModel app{beInLondon};
        app.live(static_cast<int>(before / kMinute));
        app.taken();
        app.go(asleep);
        const auto shown = app.taken();
        EXPECT_EQ(shown.empty() ? std::string{} : shown.front(), told);
        EXPECT_LE(shown.size(), 1U);
        app.live(3);
        EXPECT_THAT(app.taken(), IsEmpty());
    }
}

TEST(PrayerAlarm, IsNotTwiceOnAClockThatIsSetBackALittle)
{
    AlarmedModel app{beInLondon};
    app.live(43);
    EXPECT_THAT(app.taken(), ElementsAre("13:48 prayer-asr"));
    app.setClock(-kMinute * 10);
    app.live(20);
    EXPECT_THAT(app.taken(), IsEmpty());
    // A clock that was a day ahead must not silence the day that follows.
    app.setClock(-kHour * 24.5);
    app.live(60);
    EXPECT_EQ(app.taken().size(), 1U);
}

TEST(PrayerAlarm, DoesNotBringUpWhatPassedWhileItWasOff)
{
    AlarmedModel app{[](NativeState &state) {
        beInLondon(state);
        state.settings["prayer.notifications"] = "false";
    }};
    app.live(60);
    app.change([](NativeState &state) { state.settings["prayer.notifications"] = "true"; });
    app.live(5);
    EXPECT_THAT(app.taken(), IsEmpty());
    // Nor what would have come in a place that is chosen later than its time.
    app.change([](NativeState &state) { state.settings["prayer.adjust.asr"] = "15"; });
    app.live(150);
    EXPECT_THAT(app.taken(), ElementsAre("16:15 prayer-maghrib"));
}

TEST(PrayerWatch, CountsAPrayerAsNowForTenMinutes)
{
    AlarmedModel app{beInLondon};
    Velvetnook::PrayerWatch watch{app.model()};
    app.rest();
    QSignalSpy came{&watch, &Velvetnook::PrayerWatch::timeCame};
    EXPECT_FALSE(watch.now(app.model().now()));
    app.go(kMinute * 42);
    EXPECT_EQ(came.count(), 1);
    ASSERT_TRUE(watch.now(app.model().now()));
    EXPECT_EQ(watch.now(app.model().now())->prayer, PrayerCore::Prayer::asr);
    app.go(kMinute * 10 - Base::Seconds{1});
    EXPECT_EQ(came.count(), 1);
    EXPECT_TRUE(watch.now(app.model().now()));
    app.go(Base::Seconds{1});
    EXPECT_EQ(came.count(), 2);
    EXPECT_FALSE(watch.now(app.model().now()));
}

TEST(PrayerWatch, BeginsADayAtTheMidnightOfThePlace)
{
    AlarmedModel app{[](NativeState &state) {
        state.settings["prayer.latitude"] = "35.6762";
        state.settings["prayer.longitude"] = "139.6503";
        state.settings["prayer.timezone"] = "Asia/Tokyo"; // 22:06 there
    }};
    Velvetnook::PrayerWatch watch{app.model()};
    app.rest();
    QSignalSpy came{&watch, &Velvetnook::PrayerWatch::timeCame};
    app.go(kMinute * 113);
    EXPECT_EQ(came.count(), 0);
    app.go(kMinute * 2);
    EXPECT_EQ(came.count(), 1);
}

TEST(FridayAlarm, InvitesOnceAndOnlyWhenThatIsSaved)
{
    FaultVfs disk;
    AlarmedModel app{[](NativeState &state) {
        state.settings["friday.enabled"] = "true";
        state.settings["friday.time"] = "14:00";
    }};
    app.live(53);
    EXPECT_THAT(app.taken(), IsEmpty());
    disk.arm(FaultVfs::Fault::diskFull, 1);
    app.live(1);
    ASSERT_TRUE(disk.hasStruck());
    EXPECT_THAT(app.taken(), IsEmpty());
    disk.disarm();
    app.live(1);
    EXPECT_THAT(app.taken(), ElementsAre("14:01 kest-friday"));
    app.start(); // the program is started again on the same day
    app.live(60);
    EXPECT_THAT(app.taken(), IsEmpty());
    app.go(kHour * 24 * 7);
    EXPECT_EQ(app.taken().size(), 1U);
}

TEST(RotationAlarm, WalksTheFavouritesAndWaitsForAFullDisk)
{
    FaultVfs disk;
    AlarmedModel app{[](NativeState &state) {
        state.devotional.preferences.pinMode = "favourites";
        state.devotional.preferences.rotationMinutes = 30;
        state.devotional.favorites = {"subhanallah", "alhamdulillah", "salawat"};
        state.pin = {.tool = "dhikr", .item = "subhanallah"};
    }};
    app.live(29);
    EXPECT_EQ(app.state().pin.item, "subhanallah");
    app.live(1);
    EXPECT_EQ(app.state().pin.item, "alhamdulillah");
    disk.arm(FaultVfs::Fault::diskFull, 1);
    app.live(30);
    ASSERT_TRUE(disk.hasStruck());
    EXPECT_EQ(app.state().pin.item, "alhamdulillah");
    disk.disarm();
    app.live(1);
    EXPECT_EQ(app.state().pin.item, "salawat");
    app.go(kHour * 5); // slept through many rounds: one step
    EXPECT_EQ(app.state().pin.item, "subhanallah");
}

TEST(RotationAlarm, PinsTheNameOfEachDayAtMidnight)
{
    AlarmedModel app{[](NativeState &state) {
        state.devotional.preferences.pinMode = "daily";
        state.pin = {.tool = "names", .item = "ar-rahman"};
    }};
    const auto today = [&] {
        return KestCore::nameOfTheDay(app.model().now(), app.model().calendar());
    };
    EXPECT_EQ(app.state().pin.item, today());
    const std::string friday = app.state().pin.item;
    app.live(11 * 60);
    EXPECT_NE(app.state().pin.item, friday);
    EXPECT_EQ(app.state().pin.item, today());
}

TEST(ZoneWatch, TellsOfAnotherZoneAndNotOfItsNeighbours)
{
    const RunningModel app; // for the event loop
    const TemporaryFolder folder;
    const QDir directory{QString::fromStdString(folder.path().string())};
    const QString link = directory.filePath(QStringLiteral("localtime"));
    const auto write = [&](const char *name) {
        QFile file{directory.filePath(QLatin1String{name})};
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    };
    write("London");
    write("Tokyo");
    ASSERT_TRUE(QFile::link(directory.filePath(QStringLiteral("London")), link));
    Velvetnook::ZoneWatch watch{link};
    QSignalSpy changed{&watch, &Velvetnook::ZoneWatch::zoneChanged};
    write("neighbour");
    EXPECT_FALSE(changed.wait(300));
    ASSERT_TRUE(QFile::remove(link));
    ASSERT_TRUE(QFile::link(directory.filePath(QStringLiteral("Tokyo")), link));
    EXPECT_TRUE(QTest::qWaitFor([&] { return changed.count() > 0; }, 10'000));
}

} // namespace
