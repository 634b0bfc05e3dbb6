// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Devotional/Reminders.h"

#include "KestCore/Models/TimeOfDay.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>
#include <unicode/gregocal.h>

#include <algorithm>
#include <memory>

namespace KestCore
{

namespace
{

Base::Instant moment(std::string_view iso) { return *Base::fromIso8601(iso); }

Calendar calendarIn(std::string_view zone) { return *Calendar::inZone(zone); }

Preferences everyDay(std::string start, std::string end, std::int64_t interval = 60)
{
    return {.reminderEnabled = true,
            .reminderInterval = interval,
            .activeHoursStart = std::move(start),
            .activeHoursEnd = std::move(end),
            .weekdays = {0, 1, 2, 3, 4, 5, 6}};
}

// The rule as it is worded, minute by minute, with a calendar of ICU's.
class MinuteByMinute
{
public:
    explicit MinuteByMinute(const std::string &zone)
    {
        UErrorCode status = U_ZERO_ERROR;
        auto *made = icu::TimeZone::createTimeZone(icu::UnicodeString::fromUTF8(zone));
        m_calendar = std::make_unique<icu::GregorianCalendar>(made, status);
    }

    bool isWithin(Base::Instant instant, const Preferences &preferences)
    {
        UErrorCode status = U_ZERO_ERROR;
        m_calendar->setTime(Base::milliseconds1970(instant), status);
        const int m = m_calendar->get(UCAL_HOUR_OF_DAY, status) * 60 +
                      m_calendar->get(UCAL_MINUTE, status);
        const int w = m_calendar->get(UCAL_DAY_OF_WEEK, status) - 1;
        const auto s = minuteOfDay(preferences.activeHoursStart);
        const auto e = minuteOfDay(preferences.activeHoursEnd);
        const auto chosen = [&](int weekday) {
            return std::ranges::find(preferences.weekdays, weekday) !=
                   preferences.weekdays.end();
        };
        if (!preferences.reminderEnabled || !s || !e) {
            return false;
        }
        if (*s < *e) {
            return chosen(w) && *s <= m && m < *e;
        }
        if (*s == *e) {
            return chosen(w);
        }
        return (m >= *s && chosen(w)) || (m < *e && chosen((w + 6) % 7));
    }

    std::optional<Base::Instant> next(Base::Instant after, const Preferences &preferences)
    {
        const auto interval = static_cast<double>(preferences.reminderInterval);
        for (int minute = 0; minute < 11'520; ++minute) {
            const auto candidate = after + Base::Seconds{(interval + minute) * 60.0};
            if (isWithin(candidate, preferences)) {
                return candidate;
            }
        }
        return std::nullopt;
    }

private:
    std::unique_ptr<icu::GregorianCalendar> m_calendar;
};

} // namespace

TEST(ReminderWindow, OpensOnTheChosenDays)
{
    auto friday = everyDay("22:00", "06:00");
    friday.weekdays = {5};
    auto fridayWhole = everyDay("09:00", "9:00");
    fridayWhole.weekdays = {5};
    auto off = everyDay("00:00", "00:00");
    off.reminderEnabled = false;
    struct Case {
        const char *name;
        Preferences preferences;
        const char *local; // 2026-11-20 is a Friday
        bool isWithin;
    };
    for (const auto &[name, preferences, local, isWithin] : {
             Case{"in the evening", friday, "2026-11-20T23:30:00Z", true},
             Case{"first minute", friday, "2026-11-20T22:00:00Z", true},
             Case{"the night after belongs to it", friday, "2026-11-21T01:00:00Z", true},
             Case{"the end is outside", friday, "2026-11-21T06:00:00Z", false},
             Case{"the night before does not", friday, "2026-11-20T01:00:00Z", false},
             Case{"whole day, from midnight", fridayWhole, "2026-11-20T00:00:00Z", true},
             Case{"whole day, to midnight", fridayWhole, "2026-11-20T23:59:59Z", true},
             Case{"whole day, not the next", fridayWhole, "2026-11-21T00:00:00Z", false},
             Case{"daytime, last second", everyDay("09:00", "17:00"), "2026-11-20T16:59:59Z",
                  true},
             Case{"daytime, end", everyDay("09:00", "17:00"), "2026-11-20T17:00:00Z", false},
             Case{"no time", everyDay("24:00", "17:00"), "2026-11-20T12:00:00Z", false},
             Case{"off", off, "2026-11-20T12:00:00Z", false},
         }) {
        SCOPED_TRACE(name);
        EXPECT_EQ(isWithinReminderWindow(moment(local), preferences, calendarIn("UTC")),
                  isWithin);
    }
}

TEST(NextReminder, IsTheFirstMinuteInTheWindow)
{
    const auto daytime = everyDay("09:00", "17:00");
    auto never = daytime;
    never.weekdays = {};
    auto off = daytime;
    off.reminderEnabled = false;
    // Sundays, in the hour that is skipped on 29 March 2026.
    auto skipped = everyDay("02:00", "03:00", 30);
    skipped.weekdays = {0};
    struct Case {
        const char *name;
        Preferences preferences;
        const char *zone;
        const char *after;
        const char *expected; // none: nullptr
    };
    for (const auto &[name, preferences, zone, after, expected] : {
             Case{"inside", daytime, "UTC", "2026-11-20T08:20:30Z", "2026-11-20T09:20:30Z"},
             Case{"next day", daytime, "UTC", "2026-11-20T16:30:00Z", "2026-11-21T09:00:00Z"},
             Case{"seconds stay", daytime, "UTC", "2026-11-20T16:30:30Z",
                  "2026-11-21T09:00:30Z"},
             Case{"no weekday", never, "UTC", "2026-11-20T08:20:30Z", nullptr},
             Case{"off", off, "UTC", "2026-11-20T08:20:30Z", nullptr},
             Case{"an hour that is skipped", skipped, "Europe/Berlin",
                  "2026-03-22T02:30:00+01:00", nullptr},
             Case{"and one that is not", skipped, "Europe/Berlin", "2026-03-23T00:00:00+01:00",
                  nullptr},
             Case{"the Sunday after it", skipped, "Europe/Berlin", "2026-03-28T12:00:00+01:00",
                  "2026-04-05T02:00:00+02:00"},
             Case{"both passes of a repeated hour", everyDay("02:30", "02:31"), "Europe/Berlin",
                  "2026-10-25T02:30:00+02:00", "2026-10-25T02:30:00+01:00"},
             Case{"morning after the clock went forward", daytime, "Europe/Berlin",
                  "2026-03-28T16:30:00+01:00", "2026-03-29T09:00:00+02:00"},
             Case{"Egypt has summer time", daytime, "Africa/Cairo", "2026-04-23T16:30:00+02:00",
                  "2026-04-24T09:00:00+03:00"},
             Case{"a day that was skipped", daytime, "Pacific/Apia",
                  "2011-12-29T16:30:00-10:00", "2011-12-31T09:00:00+14:00"},
         }) {
        SCOPED_TRACE(name);
        const auto next = nextReminder(moment(after), preferences, calendarIn(zone));
        EXPECT_EQ(next, expected == nullptr ? std::nullopt : std::optional{moment(expected)});
    }
}

RC_GTEST_PROP(NextReminder, AnswersAsTestingEachMinuteDoes, ())
{
    struct Change {
        std::string zone;
        const char *at;
    };
    // Of years in which ICU's own copy of the zones is right.
    const auto change = *rc::gen::elementOf(std::vector<Change>{
        {"Europe/Berlin", "2021-03-28T01:00:00Z"},
        {"Europe/Berlin", "2021-10-31T01:00:00Z"},
        {"America/New_York", "2022-03-13T07:00:00Z"},
        {"America/New_York", "2021-11-07T06:00:00Z"},
        {"Australia/Lord_Howe", "2021-04-03T15:00:00Z"},
        {"Australia/Lord_Howe", "2021-10-02T15:30:00Z"},
        {"Africa/Casablanca", "2021-04-11T02:00:00Z"},
        {"Africa/Casablanca", "2021-05-16T02:00:00Z"},
        {"Pacific/Apia", "2011-12-30T10:00:00Z"},
        {"Africa/Monrovia", "1972-01-07T00:44:30Z"}, // from an offset with seconds
    });
    const auto away = *rc::gen::inRange(-9 * 86'400 * 4, 2 * 86'400 * 4);
    const auto after = moment(change.at) + Base::Seconds{away / 4.0};
    const auto timeText = [](int minute) {
        return std::to_string(minute / 60) + ":" + std::to_string(minute % 60);
    };
    // Short windows in the night are where the clocks change.
    const int start = *rc::gen::weightedOneOf<int>(
        {{3, rc::gen::inRange(0, 240)}, {1, rc::gen::inRange(0, 1440)}});
    const int length = *rc::gen::weightedOneOf<int>(
        {{3, rc::gen::inRange(0, 60)}, {1, rc::gen::inRange(0, 1440)}});
    auto preferences = everyDay(timeText(start), timeText((start + length) % 1440),
                                *rc::gen::inRange(1, 1441));
    preferences.weekdays =
        *rc::gen::container<std::vector<std::int64_t>>(rc::gen::inRange<std::int64_t>(-1, 8));

    MinuteByMinute oracle{change.zone};
    const Calendar calendar = calendarIn(change.zone);
    RC_ASSERT(isWithinReminderWindow(after, preferences, calendar) ==
              oracle.isWithin(after, preferences));
    const auto expected = oracle.next(after, preferences);
    RC_CLASSIFY(!expected, "none");
    RC_ASSERT(nextReminder(after, preferences, calendar) == expected);
}

TEST(ReminderTick, FiresWhatTheMomentCallsFor)
{
    const auto now = moment("2026-11-20T10:00:10Z");
    const auto later = now + Base::Seconds{3600.0};
    DevotionalState quiet{.preferences = everyDay("09:00", "17:00")};
    quiet.preferences.pinnedReminder = "nothing";
    auto presented = quiet;
    presented.presentation = true;
    auto marked = presented;
    marked.preferences.pinnedReminder = "emphasis";
    auto hidden = marked;
    hidden.presentation = false;
    auto paused = quiet;
    paused.pausedUntil = Base::milliseconds1970(now) + 1;
    auto pauseOver = quiet;
    pauseOver.pausedUntil = Base::milliseconds1970(now);
    struct Case {
        const char *name;
        DevotionalState state;
        std::optional<Base::Instant> due;
        ReminderTick expected;
    };
    using enum ReminderAction;
    for (const auto &[name, state, due, expected] : {
             Case{"none set", quiet, std::nullopt, {std::nullopt, nothing}},
             Case{"not yet", quiet, now + Base::Seconds{0.5}, {now + Base::Seconds{0.5}}},
             Case{"due", quiet, now, {later, notification}},
             Case{"overdue, counted from now",
                  quiet,
                  moment("2026-11-19T09:00:00Z"),
                  {later, notification}},
             Case{"presented", presented, now, {later, nothing}},
             Case{"presented, with emphasis", marked, now, {later, emphasis}},
             Case{"emphasis, but nothing presented", hidden, now, {later, notification}},
             Case{"paused", paused, now, {later, nothing}},
             Case{"pause just over", pauseOver, now, {later, notification}},
         }) {
        SCOPED_TRACE(name);
        EXPECT_EQ(tickReminder(now, due, state, calendarIn("UTC")), expected);
    }
}

TEST(ReminderNotification, SaysTheChosenPartsOfThePhrase)
{
    const Phrase whole{.arabic = "A", .transliteration = "B", .translation = "C"};
    const Phrase bare{.arabic = "A", .transliteration = "B"};
    Preferences preferences{.showTransliteration = true, .showTranslation = true};
    EXPECT_EQ(reminderNotification(whole, preferences),
              (Notification{"kest-remembrance", "A little remembrance", "A\nB\nC"}));
    EXPECT_EQ(reminderNotification(bare, preferences).body, "A\nB");
    preferences.showTransliteration = false;
    EXPECT_EQ(reminderNotification(whole, preferences).body, "A\nC");
}

} // namespace KestCore
