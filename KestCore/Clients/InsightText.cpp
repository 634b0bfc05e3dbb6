// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Clients/InsightText.h"

#include "KestCore/Clients/Money.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

namespace KestCore
{

namespace
{

// "2:05", "1:02:05".
std::string lengthText(double seconds)
{
    const auto whole = static_cast<std::int64_t>(std::llround(std::clamp(seconds, 0.0, 1e12)));
    return whole >= 3600
               ? fmt::format("{}:{:02}:{:02}", whole / 3600, whole / 60 % 60, whole % 60)
               : fmt::format("{}:{:02}", whole / 60, whole % 60);
}

// What stands before the word that tells an amount of money; nothing for another id.
std::optional<std::string_view> currencyIn(std::string_view id)
{
    constexpr std::array<std::string_view, 6> kAmounts{"-gross", "-refunds", "-fees",
                                                       "-net",   "-payouts", "-revenue"};
    if (id == kRevenueId) {
        return "";
    }
    const auto *const amount = std::ranges::find_if(
        kAmounts, [id](std::string_view suffix) { return id.ends_with(suffix); });
    return amount == kAmounts.end() ? std::nullopt
                                    : std::optional{id.substr(0, id.size() - amount->size())};
}

} // namespace

std::string countText(double count)
{
    return groupedText(std::llround(std::clamp(count, -1e18, 1e18)));
}

std::string metricText(const InsightMetric &metric)
{
    if (metric.detail == kUnavailableMetric) {
        return std::string{kUnavailableMetric};
    }
    if (metric.id == kAverageSessionId) {
        return lengthText(metric.value);
    }
    if (metric.id == kBounceRateId) {
        return fmt::format("{:.1f} %", metric.value);
    }
    const auto currency = currencyIn(metric.id);
    return currency ? moneyTextOfMain(metric.value, *currency) : countText(metric.value);
}

std::string pointText(const InsightPoint &point)
{
    return point.series == kVisitorSeries ? countText(point.value)
                                          : moneyTextOfMain(point.value, point.series);
}

std::string seriesTitle(std::string_view series)
{
    return series == kVisitorSeries ? "Visitors" : "Gross payments, " + shownCurrency(series);
}

} // namespace KestCore
