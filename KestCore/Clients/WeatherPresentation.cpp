// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Clients/WeatherPresentation.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>

namespace KestCore
{

namespace
{

using Sample = WeatherForecast::Sample;
using Samples = std::vector<Sample>;

constexpr Base::Seconds kHour{3600};
constexpr Base::Seconds kLongestStep = 6 * kHour;
constexpr Base::Seconds kNextHours = 12 * kHour;
constexpr Base::Seconds kFreshFor = 12 * kHour;
constexpr std::int64_t kDays = 7;

int minutesFromNoon(const Calendar &calendar, Base::Instant instant)
{
    const LocalTime time = calendar.at(instant);
    return std::abs(time.hour * 60 + time.minute - 12 * 60);
}

// The days of the samples, which are sorted.
std::vector<WeatherDay> daysOf(Samples::const_iterator begin, Samples::const_iterator end,
                               const Calendar &calendar, std::int64_t today)
{
    std::vector<WeatherDay> days;
    int nearest = 0;
    for (auto sample = begin; sample != end; ++sample) {
        const std::int64_t number = std::max(calendar.dayNumber(sample->date), today);
        if (number >= today + kDays) {
            break;
        }
        const int distance = minutesFromNoon(calendar, sample->date);
        if (days.empty() || days.back().number != number) {
            days.push_back({.number = number,
                            .low = sample->temperature,
                            .high = sample->temperature,
                            .code = sample->code});
            nearest = distance;
        }
        WeatherDay &day = days.back();
        day.low = std::min(day.low, sample->temperature);
        day.high = std::max(day.high, sample->temperature);
        if (distance < nearest) {
            nearest = distance;
            day.code = sample->code;
        }
    }
    return days;
}

} // namespace

Result<WeatherView> weatherView(const WeatherForecast &forecast, const Calendar &calendar,
                                Base::Instant now)
{
    const Samples &samples = forecast.samples;
    const auto later = std::ranges::upper_bound(samples, now, {}, &Sample::date);
    const auto current = later == samples.begin() ? later : std::prev(later);
    if (current == samples.end() || std::chrono::abs(now - current->date) >= kLongestStep) {
        return std::unexpected(
            KestError::unavailable("Forecast is out of date. Please try again shortly."));
    }
    const auto afterHours =
        std::ranges::upper_bound(samples, now + kNextHours, {}, &Sample::date);
    const auto next = std::next(current);
    WeatherView view{.now = *current};
    if (next < afterHours) {
        view.hours.assign(next, afterHours);
    }
    view.days = daysOf(current, samples.end(), calendar, calendar.dayNumber(now));
    return view;
}

std::string temperatureText(double celsius)
{
    return fmt::format("{:.0f}°", std::round(celsius) + 0.0); // no -0
}

std::string windText(std::optional<double> kilometresPerHour)
{
    return kilometresPerHour ? fmt::format("{:.0f} km/h", *kilometresPerHour)
                             : "Wind unavailable";
}

std::string rainText(std::optional<double> millimetres)
{
    return millimetres ? fmt::format("{:.1f} mm next hour", *millimetres) : "Rain unavailable";
}

std::string updatedText(const WeatherForecast &forecast, const Calendar &calendar,
                        Base::Instant now)
{
    constexpr std::array<std::string_view, 12> kMonths{
        "Jan", "Feb", "Mar", "Apr", "May", "Jun", "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    const LocalTime time = calendar.at(forecast.updated);
    const bool isPrevious = now - forecast.updated > kFreshFor;
    return fmt::format(
        "{}{} {}, {:02}:{:02}", isPrevious ? "Previous forecast · " : "Forecast updated ",
        time.day, kMonths.at(static_cast<std::size_t>(time.month - 1)), time.hour, time.minute);
}

} // namespace KestCore
