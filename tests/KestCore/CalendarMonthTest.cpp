// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Tools/CalendarMonth.h"

#include "KestCore/Tools/CalendarSources.h"

#include <gmock/gmock.h>

#include <algorithm>

using namespace KestCore;
using namespace std::chrono;

TEST(CalendarMonth, HasWholeWeeksOfBothCalendars)
{
    const auto month = calendarMonth(2026y / November, Saturday, 2026y / November / 21);
    ASSERT_EQ(month.days.size(), 35U);
    EXPECT_EQ(month.days.front(),
              (CalendarDay{.date = 2026y / October / 31,
                           .islamic = {.day = 20, .month = 5, .year = 1448}}));
    EXPECT_EQ(month.days.back().date, 2026y / December / 4);
    EXPECT_EQ(std::ranges::count(month.days, true, &CalendarDay::isInMonth), 30);
    const auto today = std::ranges::find(month.days, true, &CalendarDay::isToday);
    ASSERT_NE(today, month.days.end());
    EXPECT_EQ(today->islamic, (IslamicDate{.day = 11, .month = 6, .year = 1448}));
    // A month that fills its weeks exactly gets no other days.
    EXPECT_EQ(calendarMonth(2027y / February, Monday, {}).days.size(), 28U);
    EXPECT_EQ(calendarMonth(2026y / November, Saturday, {}, -1).days[21].islamic.day, 10);
}

TEST(CalendarMonth, BeginsWeeksAsTheUserOrTheCountryDoes)
{
    struct Case {
        const char *setting;
        const char *locale;
        weekday expected;
    };
    for (const auto &[setting, locale, expected] :
         {Case{"", "de_DE.UTF-8", Monday}, Case{"", "en_US.UTF-8", Sunday},
          Case{"", "ar_EG.UTF-8", Saturday}, Case{"", "C.UTF-8", Monday}, Case{"", "", Monday},
          Case{"thursday", "en_US", Thursday}, Case{"nonsense", "en_US", Sunday}}) {
        SCOPED_TRACE(std::string{setting} + " " + locale);
        EXPECT_EQ(firstWeekday({{"calendar.weekStart", setting}}, locale), expected);
    }
}

TEST(CalendarSources, AreKeptOneALine)
{
    Settings settings;
    EXPECT_TRUE(addCalendarSource(settings, "/home/a, b/c.ics"));
    EXPECT_TRUE(addCalendarSource(settings, "/d"));
    EXPECT_FALSE(addCalendarSource(settings, "/d"));
    EXPECT_FALSE(addCalendarSource(settings, "relative.ics"));
    EXPECT_FALSE(addCalendarSource(settings, "/two\nlines"));
    EXPECT_THAT(calendarSources(settings), testing::ElementsAre("/home/a, b/c.ics", "/d"));
    EXPECT_FALSE(removeCalendarSource(settings, "/e"));
    EXPECT_TRUE(removeCalendarSource(settings, "/d"));
    EXPECT_TRUE(removeCalendarSource(settings, "/home/a, b/c.ics"));
    EXPECT_EQ(settings, Settings{});
    for (std::size_t at = 0; at < kMostCalendarSources; ++at) {
        EXPECT_TRUE(addCalendarSource(settings, "/" + std::to_string(at)));
    }
    EXPECT_FALSE(addCalendarSource(settings, "/more"));
}
