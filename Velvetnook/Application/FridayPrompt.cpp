// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/FridayPrompt.h"

#include "KestCore/Models/TimeOfDay.h"
#include "Velvetnook/Application/LocalDay.h"

#include <fmt/format.h>

namespace Velvetnook
{

namespace
{

constexpr int kFriday = 5;

std::string_view valueOf(const KestCore::Settings &settings, const std::string &key)
{
    const auto found = settings.find(key);
    return found == settings.end() ? std::string_view{} : std::string_view{found->second};
}

} // namespace

std::string dateText(Base::Instant now, const KestCore::Calendar &calendar)
{
    const KestCore::LocalTime local = calendar.at(now);
    return fmt::format("{:04}-{:02}-{:02}", local.year, local.month, local.day);
}

std::optional<Base::Instant> fridayDue(Base::Instant now, const KestCore::Settings &settings,
                                       const KestCore::Calendar &calendar)
{
    if (!KestCore::settingIsTrue(settings, "friday.enabled")) {
        return std::nullopt;
    }
    const int minute =
        KestCore::minuteOfDay(valueOf(settings, "friday.time")).value_or(kFridayMinute);
    int daysAhead = (kFriday - calendar.at(now).weekday + 7) % 7;
    if (daysAhead == 0 && valueOf(settings, "friday.lastShown") == dateText(now, calendar)) {
        daysAhead = 7;
    }
    return instantOf(calendar.dayNumber(now) + daysAhead, minute, calendar, now);
}

} // namespace Velvetnook
