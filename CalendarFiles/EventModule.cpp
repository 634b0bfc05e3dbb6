// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "CalendarFiles/EventText.h"

#include <libical/ical.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <span>

// The module itself. The library reads one event or one rule at a time and is never given a
// whole file, so what it may cost is bounded before it begins.
namespace CalendarFiles
{

namespace
{

namespace chrono = std::chrono;

constexpr std::int64_t kDay = 86'400;
constexpr int kFirstYear = 2; // what comes of it is a year of four digits on every clock
constexpr int kLastYear = 9998;
constexpr std::int64_t kMostTimesADay = 100; // a rule that asks for more is none of a person
constexpr std::int64_t kOtherCalendar = 20;  // how much dearer a step in such a one is

struct Free {
    void operator()(icalcomponent *component) const { icalcomponent_free(component); }
    void operator()(icalrecur_iterator *iterator) const { icalrecur_iterator_free(iterator); }
    void operator()(char *text) const { std::free(text); }
};
template <class T>
using Owned = std::unique_ptr<T, Free>;

using Days = chrono::sys_days;

std::optional<std::int64_t> wallOf(const icaltimetype &time)
{
    const chrono::year_month_day date{chrono::year{time.year},
                                      chrono::month{static_cast<unsigned>(time.month)},
                                      chrono::day{static_cast<unsigned>(time.day)}};
    const bool isTime = time.hour >= 0 && time.hour < 24 && time.minute >= 0 &&
                        time.minute < 60 && time.second >= 0 && time.second <= 60;
    if (!date.ok() || time.year < kFirstYear || time.year > kLastYear ||
        (time.is_date == 0 && !isTime)) {
        return std::nullopt;
    }
    const std::int64_t days = Days{date}.time_since_epoch().count();
    return time.is_date != 0
               ? days * kDay
               : days * kDay + time.hour * 3600L + time.minute * 60L + time.second;
}

icaltimetype timeAt(std::int64_t wall, EventTime::Clock clock)
{
    const Days day{chrono::floor<chrono::days>(chrono::seconds{wall})};
    const chrono::year_month_day date{day};
    const auto second = static_cast<int>(wall - day.time_since_epoch().count() * kDay);
    icaltimetype time = icaltime_null_time();
    time.year = static_cast<int>(date.year());
    time.month = static_cast<int>(static_cast<unsigned>(date.month()));
    time.day = static_cast<int>(static_cast<unsigned>(date.day()));
    if (clock == EventTime::Clock::date) {
        time.is_date = 1;
    } else {
        time.hour = second / 3600;
        time.minute = second / 60 % 60;
        time.second = second % 60;
    }
    return time;
}

std::optional<EventTime> timeOf(const icaltimetype &time, icalproperty *property)
{
    const auto wall = wallOf(time);
    if (!wall) {
        return std::nullopt;
    }
    EventTime read{.wall = *wall, .clock = EventTime::Clock::floating};
    if (time.is_date != 0) {
        read.clock = EventTime::Clock::date;
    } else if (icaltime_is_utc(time) != 0) {
        read.clock = EventTime::Clock::utc;
    } else if (icalparameter *const zone =
                   icalproperty_get_first_parameter(property, ICAL_TZID_PARAMETER);
               zone != nullptr) {
        const char *const name = icalparameter_get_tzid(zone);
        read.clock = EventTime::Clock::zone;
        read.zone = name == nullptr ? "" : name;
    }
    return read;
}

std::optional<EventLength> lengthOf(const icaldurationtype &duration)
{
    if (icaldurationtype_is_bad_duration(duration) != 0 || duration.is_neg != 0) {
        return std::nullopt;
    }
    return EventLength{.days = std::int64_t{duration.weeks} * 7 + duration.days,
                       .seconds = std::int64_t{duration.hours} * 3600 +
                                  std::int64_t{duration.minutes} * 60 + duration.seconds};
}

std::string textOf(const char *text) { return text == nullptr ? "" : text; }

// Sets a member to a value that was read; false where there was none to read.
template <class Member, class Value>
bool put(Member &member, const std::optional<Value> &value)
{
    if (value) {
        member = *value;
    }
    return value.has_value();
}

bool addExtra(EventText &event, icalproperty *property)
{
    const icaldatetimeperiodtype date = icalproperty_get_rdate(property);
    ExtraDate extra;
    if (icaltime_is_null_time(date.time) == 0) {
        if (!put(extra.start, timeOf(date.time, property))) {
            return false;
        }
    } else if (!put(extra.start, timeOf(date.period.start, property)) ||
               !(icaltime_is_null_time(date.period.end) == 0
                     ? put(extra.end, timeOf(date.period.end, property))
                     : put(extra.length, lengthOf(date.period.duration)))) {
        return false;
    }
    event.extra.push_back(std::move(extra));
    return true;
}

bool addException(EventText &event, icalproperty *property)
{
    const auto except = timeOf(icalproperty_get_exdate(property), property);
    if (except) {
        event.except.push_back(*except);
    }
    return except.has_value();
}

// False for a value that is none.
bool addTime(EventText &event, icalproperty *property)
{
    switch (icalproperty_isa(property)) {
    case ICAL_DTSTART_PROPERTY:
        return put(event.start, timeOf(icalproperty_get_dtstart(property), property));
    case ICAL_DTEND_PROPERTY:
        return put(event.end, timeOf(icalproperty_get_dtend(property), property));
    case ICAL_DURATION_PROPERTY:
        return put(event.length, lengthOf(icalproperty_get_duration(property)));
    case ICAL_RECURRENCEID_PROPERTY:
        return put(event.replaces, timeOf(icalproperty_get_recurrenceid(property), property));
    case ICAL_RDATE_PROPERTY:
        return addExtra(event, property);
    case ICAL_EXDATE_PROPERTY:
        return addException(event, property);
    case ICAL_XLICERROR_PROPERTY:
        return false;
    default:
        return true;
    }
}

void addWords(EventText &event, icalproperty *property)
{
    switch (icalproperty_isa(property)) {
    case ICAL_UID_PROPERTY:
        event.uid = textOf(icalproperty_get_uid(property));
        break;
    case ICAL_SUMMARY_PROPERTY:
        event.title = textOf(icalproperty_get_summary(property));
        break;
    case ICAL_LOCATION_PROPERTY:
        event.place = textOf(icalproperty_get_location(property));
        break;
    case ICAL_STATUS_PROPERTY:
        event.isCancelled = icalproperty_get_status(property) == ICAL_STATUS_CANCELLED;
        break;
    case ICAL_SEQUENCE_PROPERTY:
        event.sequence = icalproperty_get_sequence(property);
        break;
    case ICAL_TZOFFSETFROM_PROPERTY:
        event.offsetFrom = icalproperty_get_tzoffsetfrom(property);
        break;
    case ICAL_TZOFFSETTO_PROPERTY:
        event.offsetTo = icalproperty_get_tzoffsetto(property);
        break;
    case ICAL_RRULE_PROPERTY:
        event.rules.push_back(
            textOf(Owned<char>{icalproperty_get_value_as_string_r(property)}.get()));
        break;
    default:
        break;
    }
}

std::int64_t named(std::span<const short> list)
{
    const auto end = std::ranges::find(list, short{ICAL_RECURRENCE_ARRAY_MAX});
    return end - list.begin();
}

struct Cost {
    std::int64_t timesADay{};
    std::int64_t steps{};
};

// What the library will have to do, at most, to go through so many days.
Cost costOf(const icalrecurrencetype &rule, std::int64_t days)
{
    struct Period {
        icalrecurrencetype_frequency frequency{};
        std::int64_t days{};
    };
    constexpr std::array<Period, 4> kPeriods{{{ICAL_YEARLY_RECURRENCE, 366},
                                              {ICAL_MONTHLY_RECURRENCE, 31},
                                              {ICAL_WEEKLY_RECURRENCE, 7},
                                              {ICAL_DAILY_RECURRENCE, 1}}};
    const bool isHourly = rule.freq == ICAL_HOURLY_RECURRENCE;
    const std::int64_t hours = isHourly ? 24 : std::max<std::int64_t>(1, named(rule.by_hour));
    Cost cost{.timesADay = hours * std::max<std::int64_t>(1, named(rule.by_minute)) *
                           std::max<std::int64_t>(1, named(rule.by_second))};
    const auto *const found = std::ranges::find(kPeriods, rule.freq, &Period::frequency);
    const std::int64_t length = found == kPeriods.end() ? 1 : found->days;
    std::int64_t each = isHourly ? cost.timesADay : 1;
    if (named(rule.by_set_pos) > 0) {
        // A rule that picks by position counts out the whole period for one date.
        each = length * cost.timesADay;
    }
    cost.steps = (days / length + 1) * each;
    if (rule.rscale != nullptr) {
        cost.steps *= kOtherCalendar;
    }
    return cost;
}

class Parser : public EventParser
{
public:
    std::optional<EventText> event(const std::string &text) override;
    std::optional<EventTime> endOf(const std::string &rule) override;
    std::optional<RuleDates> dates(const RuleSpan &span) override;
};

std::optional<EventText> Parser::event(const std::string &text)
{
    const Owned<icalcomponent> component{icalparser_parse_string(text.c_str())};
    if (component == nullptr ||
        icalcomponent_get_first_property(component.get(), ICAL_DTSTART_PROPERTY) == nullptr) {
        return std::nullopt;
    }
    EventText event;
    for (icalproperty *property =
             icalcomponent_get_first_property(component.get(), ICAL_ANY_PROPERTY);
         property != nullptr;
         property = icalcomponent_get_next_property(component.get(), ICAL_ANY_PROPERTY)) {
        if (!addTime(event, property)) {
            return std::nullopt;
        }
        addWords(event, property);
    }
    return event;
}

std::optional<EventTime> Parser::endOf(const std::string &rule)
{
    const icaltimetype until = icalrecurrencetype_from_string(rule.c_str()).until;
    const auto wall = wallOf(until);
    if (icaltime_is_null_time(until) != 0 || !wall) {
        return std::nullopt;
    }
    EventTime end{.wall = *wall, .clock = EventTime::Clock::floating};
    if (until.is_date != 0) {
        end.clock = EventTime::Clock::date;
    } else if (icaltime_is_utc(until) != 0) {
        end.clock = EventTime::Clock::utc;
    }
    return end;
}

std::optional<RuleDates> Parser::dates(const RuleSpan &span)
{
    icalrecurrencetype rule = icalrecurrencetype_from_string(span.rule.c_str());
    const bool isCounted = rule.count != 0;
    const std::int64_t begin =
        isCounted ? span.first.wall : std::max(span.first.wall, span.from);
    const std::int64_t end = std::min(span.until.value_or(span.to), span.to);
    const Cost cost = costOf(rule, std::max<std::int64_t>(0, end - begin) / kDay + 1);
    if (rule.freq == ICAL_NO_RECURRENCE || rule.freq == ICAL_SECONDLY_RECURRENCE ||
        rule.freq == ICAL_MINUTELY_RECURRENCE || cost.timesADay > kMostTimesADay) {
        return std::nullopt;
    }
    RuleDates found{.steps = cost.steps, .isWhole = cost.steps <= span.most};
    if (!found.isWhole || end < begin) {
        found.steps = std::min(found.steps, span.most);
        return found;
    }
    // The library looks for the next date without end, where a rule matches none.
    rule.until = timeAt(end, span.first.clock);
    const Owned<icalrecur_iterator> iterator{
        icalrecur_iterator_new(rule, timeAt(span.first.wall, span.first.clock))};
    if (iterator == nullptr) {
        return std::nullopt;
    }
    if (begin > span.first.wall) {
        icalrecur_iterator_set_start(iterator.get(), timeAt(begin, span.first.clock));
    }
    while (true) {
        const auto wall = wallOf(icalrecur_iterator_next(iterator.get()));
        if (!wall || *wall > end) {
            return found;
        }
        if (++found.steps > span.most) {
            found.isWhole = false;
            return found;
        }
        if (*wall >= span.from) {
            found.dates.push_back(*wall);
        }
    }
}

} // namespace

} // namespace CalendarFiles

extern "C" [[gnu::visibility("default")]] CalendarFiles::EventParser *kestOpenEventParser();

CalendarFiles::EventParser *kestOpenEventParser()
{
    icalerror_set_errors_are_fatal(0);
    return new CalendarFiles::Parser;
}
