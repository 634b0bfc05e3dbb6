// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Clients/InsightPeriod.h"

#include <chrono>
#include <cmath>
#include <cstdlib>
#include <filesystem>

namespace KestCore
{

namespace
{

constexpr double kDay = 86'400;
constexpr std::size_t kDateSize = 10; // YYYY-MM-DD

// The first instant of a local day; where a clock skips the whole day, that of the next.
Base::Instant startOfDay(std::int64_t day, const Calendar &calendar)
{
    // No zone is two days from UTC, so this is before it.
    Base::Instant at = Base::fromSeconds1970(static_cast<double>(day - 2) * kDay);
    while (calendar.dayNumber(at) < day) {
        at = calendar.nextDateChange(at);
    }
    return at;
}

std::int64_t firstDay(InsightPeriod period, Base::Instant now, const Calendar &calendar)
{
    const std::int64_t today = calendar.dayNumber(now);
    switch (period) {
    case InsightPeriod::last7Days:
        return today - 6;
    case InsightPeriod::last30Days:
        return today - 29;
    case InsightPeriod::last90Days:
        return today - 89;
    case InsightPeriod::monthToDate:
        return today - calendar.at(now).day + 1;
    case InsightPeriod::yearToDate: {
        const std::chrono::year year{calendar.at(now).year};
        return std::chrono::sys_days{year / 1 / 1}.time_since_epoch().count();
    }
    case InsightPeriod::today:
        break;
    }
    return today;
}

// The name behind the folder of time zones, where the path leads into it.
std::string zoneNameIn(std::string_view path)
{
    constexpr std::string_view kFolder = "zoneinfo/";
    const std::size_t at = path.rfind(kFolder);
    return std::string{at == std::string_view::npos ? "" : path.substr(at + kFolder.size())};
}

std::string hostZoneName()
{
    const char *chosen = std::getenv("TZ");
    if (chosen == nullptr) {
        std::error_code error;
        return zoneNameIn(std::filesystem::canonical("/etc/localtime", error).string());
    }
    std::string_view name = chosen;
    name.remove_prefix(name.starts_with(':') ? 1 : 0);
    if (!name.starts_with('/')) {
        return std::string{name};
    }
    std::error_code error;
    return zoneNameIn(std::filesystem::canonical(name, error).string());
}

} // namespace

InsightZone InsightZone::ofHost()
{
    std::string name = hostZoneName();
    // The provider's days and ours must be the same ones.
    if (name.empty() || !Calendar::inZone(name)) {
        name = "UTC";
        return {.calendar = Calendar::inZone(name).value(), .identifier = std::move(name)};
    }
    return {.calendar = Calendar::ofHost(), .identifier = std::move(name)};
}

InsightSpan spanOf(InsightPeriod period, Base::Instant now, const Calendar &calendar)
{
    const Base::Instant end = Base::fromSeconds1970(std::floor(Base::seconds1970(now)));
    return {.start = startOfDay(firstDay(period, end, calendar), calendar),
            .end = end,
            .interval =
                period == InsightPeriod::today ? InsightInterval::hour : InsightInterval::day};
}

std::vector<Base::Instant> bucketsOf(const InsightSpan &span, const Calendar &calendar)
{
    std::vector<Base::Instant> buckets;
    Base::Instant at = span.start;
    while (at <= span.end) {
        buckets.push_back(at);
        at = span.interval == InsightInterval::hour ? at + Base::Seconds{3600}
                                                    : calendar.nextDateChange(at);
    }
    return buckets;
}

std::optional<Base::Instant> instantFrom(std::string_view text, const Calendar &calendar)
{
    if (const auto exact = Base::fromIso8601(text)) {
        return *exact;
    }
    std::string local{text};
    if (local.size() == kDateSize) {
        local += "T00:00:00";
    } else if (local.size() > kDateSize && local[kDateSize] == ' ') {
        local[kDateSize] = 'T';
    }
    const auto asIfUtc = Base::fromIso8601(local + "Z");
    if (!asIfUtc) {
        return std::nullopt;
    }
    if (text.size() == kDateSize) {
        const double days = Base::seconds1970(*asIfUtc) / kDay;
        return startOfDay(static_cast<std::int64_t>(days), calendar);
    }
    // The offset at a moment near it, and then at the moment itself.
    const Base::Instant near = *asIfUtc - calendar.offsetAt(*asIfUtc).ahead;
    return *asIfUtc - calendar.offsetAt(near).ahead;
}

} // namespace KestCore
