// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Clients/InsightPeriod.h"
#include "KestCore/Clients/InsightReport.h"
#include "KestCore/Clients/InsightResponse.h"

#include <optional>
#include <string>
#include <string_view>

// The visitors of a website, as DataFast counts them.
namespace KestCore
{

// What every answer is wrapped in. `data` is one object or a list of them.
struct DataFastAnswer {
    std::string status{};
    std::optional<json::RawJson> data{};
};
consteval auto jsonFields(Of<DataFastAnswer>)
{
    return std::tuple{json::Field{"status", &DataFastAnswer::status},
                      json::Field{"data", &DataFastAnswer::data}};
}
static_assert(json::coversAllMembers<DataFastAnswer>());

// The totals of a period; absent: not told.
struct DataFastTotals {
    std::optional<double> visitors{};
    std::optional<double> pageviews{};
    std::optional<double> sessions{};
    std::optional<double> bounceRate{};         // percent
    std::optional<double> avgSessionDuration{}; // seconds
    std::optional<std::string> currency{};
    std::optional<double> revenue{}; // in main units
    std::optional<double> payments{};
    std::optional<double> conversionRate{}; // percent
};
consteval auto jsonFields(Of<DataFastTotals>)
{
    using R = DataFastTotals;
    return std::tuple{
        json::Field{"visitors", &R::visitors},
        json::Field{"pageviews", &R::pageviews},
        json::Field{"sessions", &R::sessions},
        json::Field{"bounce_rate", &R::bounceRate},
        json::Field{"avg_session_duration", &R::avgSessionDuration},
        json::Field{"currency", &R::currency},
        json::Field{"revenue", &R::revenue},
        json::Field{"payments", &R::payments},
        json::Field{"conversion_rate", &R::conversionRate},
    };
}
static_assert(json::coversAllMembers<DataFastTotals>());

// One row of the other answers, each of which has some of this.
struct DataFastRow {
    std::optional<std::string> timestamp{};
    std::optional<std::string> date{};
    std::optional<std::string> hostname{};
    std::optional<std::string> path{};
    std::optional<std::string> referrer{};
    std::optional<double> visitors{};
};
consteval auto jsonFields(Of<DataFastRow>)
{
    using R = DataFastRow;
    return std::tuple{
        json::Field{"timestamp", &R::timestamp}, json::Field{"date", &R::date},
        json::Field{"hostname", &R::hostname},   json::Field{"path", &R::path},
        json::Field{"referrer", &R::referrer},   json::Field{"visitors", &R::visitors},
    };
}
static_assert(json::coversAllMembers<DataFastRow>());

// The whole report of the span. `website` may be empty where the key is for one website alone.
[[nodiscard]] InsightResult<InsightReport>
dataFastReport(InsightExchange &exchange, std::string_view host, std::string_view website,
               const InsightSpan &span, const InsightZone &zone);

} // namespace KestCore
