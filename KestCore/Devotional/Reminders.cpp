// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Devotional/Reminders.h"

#include "KestCore/Models/TimeOfDay.h"

#include <algorithm>
#include <cmath>

namespace KestCore
{

namespace
{

constexpr std::int64_t kMinutesPerDay = 1440;
constexpr std::int64_t kMinutesPerWeek = 7 * kMinutesPerDay;
constexpr std::int64_t kMinutesSearched = 8 * kMinutesPerDay;
constexpr Base::Seconds kMinute{60.0};

// The minutes of a week, from Sunday's midnight on, in which reminders may come.
class WeeklyWindow
{
public:
    explicit WeeklyWindow(const Preferences &preferences)
    {
        const auto start = minuteOfDay(preferences.activeHoursStart);
        const auto end = minuteOfDay(preferences.activeHoursEnd);
        if (!preferences.reminderEnabled || !start || !end) {
            return;
        }
        const bool endsSameDay = *start < *end;
        m_length = *end - *start + (endsSameDay ? 0 : kMinutesPerDay);
        for (const std::int64_t weekday : preferences.weekdays) {
            if (weekday >= 0 && weekday < 7) {
                // Equal hours are the calendar day, whichever hour they name.
                const int opening = *start == *end ? 0 : *start;
                m_openings.push_back(weekday * kMinutesPerDay + opening);
            }
        }
    }

    // Minutes from this one until the window is open, 0 inside it. Nothing if it never is.
    std::optional<std::int64_t> wait(std::int64_t minuteOfWeek) const
    {
        std::optional<std::int64_t> shortest;
        for (const std::int64_t opening : m_openings) {
            const std::int64_t sinceOpening =
                (minuteOfWeek - opening + kMinutesPerWeek) % kMinutesPerWeek;
            const std::int64_t wait =
                sinceOpening < m_length ? 0 : kMinutesPerWeek - sinceOpening;
            shortest = std::min(shortest.value_or(wait), wait);
        }
        return shortest;
    }

private:
    std::vector<std::int64_t> m_openings{};
    std::int64_t m_length{}; // minutes
};

std::int64_t minuteOfWeek(const LocalTime &time)
{
    return time.weekday * kMinutesPerDay + std::int64_t{time.hour} * 60 + time.minute;
}

// How many of the minutes c, c + 1 minute, ... come before the end.
std::int64_t minutesBefore(Base::Instant end, Base::Instant c)
{
    const double minutes = std::ceil((end - c) / kMinute);
    return minutes < static_cast<double>(kMinutesSearched)
               ? std::max<std::int64_t>(1, static_cast<std::int64_t>(minutes))
               : kMinutesSearched;
}

} // namespace

bool isWithinReminderWindow(Base::Instant instant, const Preferences &preferences,
                            const Calendar &calendar)
{
    return WeeklyWindow{preferences}.wait(minuteOfWeek(calendar.at(instant))) == 0;
}

// While the offset from UTC stays, the clock advances with the minutes: there the window says
// at once how long to wait. So a search takes one step for each change of the offset.
std::optional<Base::Instant> nextReminder(Base::Instant after, const Preferences &preferences,
                                          const Calendar &calendar)
{
    const WeeklyWindow window{preferences};
    const auto interval = kMinute * static_cast<double>(preferences.reminderInterval);
    const Base::Instant first = after + interval;
    std::int64_t passed = 0;
    while (passed < kMinutesSearched) {
        const Base::Instant candidate = first + kMinute * static_cast<double>(passed);
        const auto wait = window.wait(minuteOfWeek(calendar.at(candidate)));
        if (!wait) {
            return std::nullopt;
        }
        const std::int64_t sameOffset =
            std::min(minutesBefore(calendar.offsetAt(candidate).end, candidate),
                     kMinutesSearched - passed);
        if (*wait < sameOffset) {
            return first + kMinute * static_cast<double>(passed + *wait);
        }
        passed += sameOffset;
    }
    return std::nullopt;
}

ReminderTick tickReminder(Base::Instant now, std::optional<Base::Instant> due,
                          const DevotionalState &state, const Calendar &calendar)
{
    if (!due || now < *due) {
        return {.nextReminder = due};
    }
    ReminderTick tick{.nextReminder = nextReminder(now, state.preferences, calendar)};
    const bool isPaused =
        state.pausedUntil && now < Base::fromMilliseconds1970(*state.pausedUntil);
    if (isPaused) {
        return tick;
    }
    if (!state.presentation) {
        tick.action = ReminderAction::notification;
    } else if (state.preferences.pinnedReminder == "emphasis") {
        tick.action = ReminderAction::emphasis;
    }
    return tick;
}

Notification reminderNotification(const Phrase &pinned, const Preferences &preferences)
{
    std::string body = pinned.arabic;
    if (preferences.showTransliteration) {
        body += "\n" + pinned.transliteration;
    }
    if (preferences.showTranslation && pinned.translation) {
        body += "\n" + *pinned.translation;
    }
    return {.identifier = "kest-remembrance",
            .title = "A little remembrance",
            .body = std::move(body)};
}

Notification previewNotification()
{
    return {.identifier = "kest-preview",
            .title = "Velvetnook \u2014 Preview",
            .body = "A quiet moment for remembrance."};
}

} // namespace KestCore
