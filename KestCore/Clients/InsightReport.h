// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Instant.h"
#include "KestCore/Registry/Availability.h"
#include "KestCore/Vocabulary.h"

#include <cstdint>
#include <expected>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// What the insight tools show of one account at one provider.
namespace KestCore
{

enum class InsightProvider : std::uint8_t { stripe, datafast };
constexpr auto enumTexts(Of<InsightProvider>)
{
    using enum InsightProvider;
    return Base::EnumTexts<InsightProvider, 2>{{{stripe, "stripe"}, {datafast, "datafast"}}};
}
// As the provider writes itself.
constexpr std::string_view nameOf(InsightProvider provider)
{
    return provider == InsightProvider::stripe ? "Stripe" : "DataFast";
}

// The detail of a metric that the provider left out; its value is 0 then.
inline constexpr std::string_view kUnavailableMetric = "Unavailable";

// The ids of rows that are no counts, and the series that is no currency.
inline constexpr std::string_view kAverageSessionId = "avg-session"; // seconds
inline constexpr std::string_view kBounceRateId = "bounce-rate";     // percent
inline constexpr std::string_view kRevenueId = "revenue";            // of no known currency
inline constexpr std::string_view kVisitorSeries = "visitors";

// One row of a report.
struct InsightMetric {
    std::string id{}; // of money: the currency, "-" and what it is, such as "usd-gross"
    std::string label{};
    double value{}; // of money: in the currency's main unit
    std::string detail{};

    bool operator==(const InsightMetric &) const = default;
};
consteval auto jsonFields(Of<InsightMetric>)
{
    using R = InsightMetric;
    return std::tuple{json::Field{"id", &R::id}, json::Field{"label", &R::label},
                      json::Field{"value", &R::value}, json::Field{"detail", &R::detail}};
}
static_assert(json::coversAllMembers<InsightMetric>());

// One point of a chart.
struct InsightPoint {
    Base::Instant date{}; // where the hour or the local day begins
    double value{};
    std::string series{}; // a currency, or "visitors"

    bool operator==(const InsightPoint &) const = default;
};
consteval auto jsonFields(Of<InsightPoint>)
{
    using R = InsightPoint;
    return std::tuple{json::Field{"date", &R::date}, json::Field{"value", &R::value},
                      json::Field{"series", &R::series}};
}
static_assert(json::coversAllMembers<InsightPoint>());

// One recent item.
struct InsightEntry {
    std::string id{};
    std::string title{};
    std::string value{};
    Base::Instant date{};

    bool operator==(const InsightEntry &) const = default;
};
consteval auto jsonFields(Of<InsightEntry>)
{
    using R = InsightEntry;
    return std::tuple{json::Field{"id", &R::id}, json::Field{"title", &R::title},
                      json::Field{"value", &R::value}, json::Field{"date", &R::date}};
}
static_assert(json::coversAllMembers<InsightEntry>());

struct InsightReport {
    InsightProvider provider{};
    std::vector<InsightMetric> rows{};
    Base::Instant fetchedAt{};
    std::string notice{}; // shown under the figures
    bool stale{};         // the figures are from an earlier fetch
    bool empty{};         // the period has no data
    std::vector<InsightPoint> points{};
    std::vector<InsightEntry> recent{};   // newest first
    std::vector<InsightMetric> pages{};   // top pages
    std::vector<InsightMetric> sources{}; // top referrers
    std::int64_t online{};                // visitors now

    bool operator==(const InsightReport &) const = default;
};
consteval auto jsonFields(Of<InsightReport>)
{
    using R = InsightReport;
    return std::tuple{
        json::Field{"provider", &R::provider},   json::Field{"rows", &R::rows},
        json::Field{"fetchedAt", &R::fetchedAt}, json::Field{"notice", &R::notice},
        json::Field{"stale", &R::stale},         json::Field{"empty", &R::empty},
        json::Field{"points", &R::points},       json::Field{"recent", &R::recent},
        json::Field{"pages", &R::pages},         json::Field{"sources", &R::sources},
        json::Field{"online", &R::online},
    };
}
static_assert(json::coversAllMembers<InsightReport>());

// Why there is no report. Nothing of it ever holds the key.
struct InsightError {
    enum class Kind : std::uint8_t {
        configuration, // the key, the website or the address is not right
        permission,    // the provider refuses the key
        response,      // the answer is not what was agreed on
        limit,         // more entries than are counted
        rateLimited,   // asked too often
        service,       // the provider has a fault
        offline,       // nobody answered
        cancelled,     // whoever wanted the report no longer does
    };

    Kind kind{};
    std::string message{};                       // of configuration and permission
    std::optional<Base::Seconds> retryAfter{};   // of rateLimited, where it was told
    std::optional<InsightProvider> unanswered{}; // of offline: who did not

    bool operator==(const InsightError &) const = default;
};

// What the user reads.
std::string messageOf(const InsightError &error);
Availability availabilityOf(InsightError::Kind kind);

template <class T = void>
using InsightResult = std::expected<T, InsightError>;

} // namespace KestCore
