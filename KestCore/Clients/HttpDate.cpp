// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Clients/HttpDate.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <chrono>

namespace KestCore
{

namespace
{

constexpr std::array<std::string_view, 7> kWeekdays{"Sun", "Mon", "Tue", "Wed",
                                                    "Thu", "Fri", "Sat"};
constexpr std::array<std::string_view, 12> kMonths{"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                                   "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};

} // namespace

std::optional<Base::Instant> fromHttpDate(std::string_view text)
{
    constexpr std::string_view kForm = "Sat, 21 Nov 2026 18:00:00 GMT";
    const bool hasForm = text.size() == kForm.size() && text.substr(3, 2) == ", " &&
                         text[7] == ' ' && text[11] == ' ' && text[16] == ' ' &&
                         (text.ends_with(" GMT") || text.ends_with(" UTC"));
    if (!hasForm) {
        return std::nullopt;
    }
    const auto month = std::ranges::find(kMonths, text.substr(8, 3)) - kMonths.begin() + 1;
    const auto instant = Base::fromIso8601(fmt::format(
        "{}-{:02}-{}T{}Z", text.substr(12, 4), month, text.substr(5, 2), text.substr(17, 8)));
    if (!instant) {
        return std::nullopt;
    }
    const auto days = std::chrono::floor<std::chrono::days>(*instant);
    const std::chrono::weekday weekday{std::chrono::sys_days{days.time_since_epoch()}};
    return kWeekdays.at(weekday.c_encoding()) == text.substr(0, 3) ? std::optional{*instant}
                                                                   : std::nullopt;
}

} // namespace KestCore
