// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "tests/EndToEnd/Program.h"
#include "tests/TemporaryFolder.h"

#include <gmock/gmock.h>

using testing::AllOf;
using testing::HasSubstr;
using testing::StartsWith;
using Words = std::vector<std::string>;

namespace
{

constexpr const char *kNeedsLocation =
    "kest: Allow location access to calculate prayer times for where you are.\n";

} // namespace

TEST(PrayerCommand, ShowsADayAMonthAndTheQibla)
{
    const TemporaryFolder folder;
    EXPECT_EQ(runKest(folder.path(), {"prayer"}).err, kNeedsLocation);
    EXPECT_EQ(runKest(folder.path(), {"place", "set", "Cairo"}).status, 0);
    const auto day = runKest(folder.path(), {"prayer", "--date", "2026-11-21"});
    EXPECT_THAT(day.out,
                AllOf(StartsWith("Saturday 21 November 2026 · 11 Jumada al-Akhira 1448\n"),
                      HasSubstr("\nIsha     18:17\n"), HasSubstr("Qibla 136.2° (SE)\n"),
                      HasSubstr("Calculated prayer time. Check your local timetable.\n")));
    const auto json = runKest(folder.path(), {"--json", "prayer", "--date", "2026-11-21",
                                              "--asr", "hanafi", "--days", "2"});
    EXPECT_THAT(json.out,
                AllOf(StartsWith(R"({"method":"egyptian","timezone":"Africa/Cairo","days":[)"
                                 R"({"date":"2026-11-21","islamicDate":{"day":11,"month":6,)"
                                 R"("year":1448},"times":{"fajr":"2026-11-21T02:54:00Z",)"),
                      HasSubstr(R"("date":"2026-11-22")"), HasSubstr(R"("qibla":136.24)")));
    EXPECT_THAT(
        runKest(folder.path(), {"prayer", "month", "--year", "2026", "--month", "2", "--csv"})
            .out,
        AllOf(StartsWith("date,islamic date,fajr,sunrise,dhuhr,asr,maghrib,isha\n"),
              HasSubstr("\n2026-02-28,"), testing::Not(HasSubstr("2026-03-01"))));
    EXPECT_THAT(runKest(folder.path(), {"prayer", "month", "--month", "11", "--ics"}).out,
                AllOf(StartsWith("BEGIN:VCALENDAR\r\nVERSION:2.0\r\n"),
                      testing::EndsWith("END:VEVENT\r\nEND:VCALENDAR\r\n")));
    EXPECT_EQ(
        runKest(folder.path(), {"qibla", "--latitude", "21.4", "--longitude", "0"}).status, 0);
}

TEST(PrayerCommand, SaysThatTheSunDoesNotRise)
{
    const TemporaryFolder folder;
    const Words pole{"prayer",     "--latitude",          "78.2",   "--longitude", "15.6",
                     "--timezone", "Arctic/Longyearbyen", "--date", "2026-12-21"};
    EXPECT_THAT(runKest(folder.path(), pole).out,
                HasSubstr("There are no times to calculate for this date here"));
    Words json{"--json"};
    json.insert(json.end(), pole.begin(), pole.end());
    EXPECT_THAT(runKest(folder.path(), json).out, HasSubstr(R"("times":null,"sunnah":null)"));
}

TEST(PrayerCommand, RefusesWhatItCannotCompute)
{
    const TemporaryFolder folder;
    const Words cairo{"--latitude", "30", "--longitude", "31", "--timezone", "Africa/Cairo"};
    struct Case {
        Words words;
        const char *message;
    };
    for (const auto &[words, message] : {
             Case{{"--latitude", "91"}, kNeedsLocation},
             Case{{"--timezone", "Nowhere"}, kNeedsLocation},
             Case{{"--method", "other"}, kNeedsLocation},
             Case{{"--date", "1899-12-31"},
                  "kest: Prayer times are known for dates from 1900 to 2200\n"},
             Case{{"--date", "2200-12-31", "--days", "2"},
                  "kest: Prayer times are known for dates from 1900 to 2200\n"},
             Case{{"--date", "2026-02-30"},
                  "kest: Write a date as year-month-day, such as 2026-11-21\n"},
             Case{{"--date", "2026- 1- 1"},
                  "kest: Write a date as year-month-day, such as 2026-11-21\n"},
             Case{{"--date", "2026-11-21", "month"},
                  "kest: --date and --days do not go with prayer month\n"},
             Case{{"--date", "tomorrow"},
                  "kest: Write a date as year-month-day, such as 2026-11-21\n"},
         }) {
        SCOPED_TRACE(testing::PrintToString(words));
        Words arguments{"prayer"};
        arguments.insert(arguments.end(), cairo.begin(), cairo.end());
        arguments.insert(arguments.end(), words.begin(), words.end());
        const auto outcome = runKest(folder.path(), arguments);
        EXPECT_EQ(outcome.status, 1);
        EXPECT_EQ(outcome.out, "");
        EXPECT_EQ(outcome.err, message);
    }
}

TEST(PlaceCommand, FindsCitiesAndTakesAnyCoordinates)
{
    const TemporaryFolder folder;
    EXPECT_THAT(runKest(folder.path(), {"place", "zurich"}).out, HasSubstr("Europe/Zurich"));
    EXPECT_EQ(runKest(folder.path(), {"--json", "place", "xyzzyx"}).out, "[]\n");
    EXPECT_EQ(runKest(folder.path(), {"place", "set", "xyzzyx"}).err,
              "kest: No city is called \"xyzzyx\"\n");
    EXPECT_EQ(runKest(folder.path(), {"place", "set", "Paris"}).status, 0);
    EXPECT_THAT(runKest(folder.path(), {"place", "set", "san"}).err,
                AllOf(StartsWith("kest: \"san\" may be "), HasSubstr("Santiago")));
    EXPECT_EQ(runKest(folder.path(), {"place", "set"}).status, 2);
    EXPECT_EQ(runKest(folder.path(), {"place"}).status, 2);
    EXPECT_EQ(runKest(folder.path(), {"prayer", "month", "--year", "67562"}).status, 2);
    // A place that is no city leaves nothing of the one before.
    EXPECT_EQ(runKest(folder.path(), {"place", "set", "--latitude", "95", "--longitude", "0",
                                      "--timezone", "UTC"})
                  .err,
              kNeedsLocation);
    EXPECT_EQ(runKest(folder.path(), {"settings", "get", "prayer.city"}).out, "Paris\n");
    EXPECT_EQ(runKest(folder.path(), {"place", "set", "--latitude", "-5.5", "--longitude",
                                      "100", "--timezone", "Etc/GMT-7"})
                  .status,
              0);
    EXPECT_EQ(runKest(folder.path(), {"--json", "settings"}).out,
              R"({"prayer.latitude":"-5.5","prayer.locationMode":"manual",)"
              R"("prayer.longitude":"100","prayer.timezone":"Etc/GMT-7"})"
              "\n");
}

TEST(ReminderCommand, TellsTheNextOne)
{
    const TemporaryFolder folder;
    EXPECT_EQ(runKest(folder.path(), {"--json", "reminder", "next"}).out, "{\"next\":null}\n");
    EXPECT_THAT(runKest(folder.path(), {"reminder", "next", "--after", "noon"}).err,
                StartsWith("kest: Write a time as 2026-11-21T08:30:00Z"));
}
