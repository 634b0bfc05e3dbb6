// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Clients/DataFastReport.h"

#include "Base/JsonReader.h"
#include "Base/Text.h"

#include <algorithm>
#include <array>
#include <cmath>

template Base::Result<KestCore::DataFastAnswer> Base::json::decode(const PaddedText &);
template Base::Result<KestCore::DataFastTotals> Base::json::decode(const PaddedText &);
template Base::Result<KestCore::DataFastRow> Base::json::decode(const PaddedText &);

namespace KestCore
{

namespace
{

using Rows = std::vector<DataFastRow>;

constexpr std::size_t kMostListed = 8;    // pages, and sources
constexpr std::size_t kMostPoints = 1000; // what is asked for
constexpr double kMostOfAnything = 1e12;  // above it the answer makes no sense

std::unexpected<InsightError> unexpectedReport()
{
    return std::unexpected(InsightError{.kind = InsightError::Kind::response});
}

bool makesSense(const std::optional<double> &figure)
{
    return !figure || (*figure >= 0 && *figure <= kMostOfAnything);
}

bool makesSense(const DataFastTotals &totals)
{
    return std::ranges::all_of(std::array{totals.visitors, totals.pageviews, totals.sessions,
                                          totals.bounceRate, totals.avgSessionDuration,
                                          totals.revenue, totals.payments},
                               [](const auto &figure) { return makesSense(figure); });
}

bool makesSense(const DataFastRow &row) { return makesSense(row.visitors); }

// The list that an answer holds, or the one thing that it is.
template <class Item>
InsightResult<std::vector<Item>> itemsOf(std::string body)
{
    const json::PaddedText text{std::move(body)};
    const auto answer = json::decode<DataFastAnswer>(text);
    if (!answer || answer->status != "success") {
        return unexpectedReport();
    }
    std::vector<Item> items;
    const auto &rows = answer->data;
    if (!rows) {
        return items;
    }
    const auto take = [&](const json::PaddedText &one) -> Result<void> {
        KEST_TRY(auto item, json::decode<Item>(one));
        if (!makesSense(item)) {
            return std::unexpected(KestError::invalidData("a figure out of reach"));
        }
        items.push_back(std::move(item));
        return {};
    };
    const json::RawJson &data = *rows;
    const auto taken = data.text.starts_with('[') ? json::forEachItem(data, take)
                                                  : take(json::PaddedText{data.text});
    return taken ? InsightResult<std::vector<Item>>{std::move(items)} : unexpectedReport();
}

// Asks for one part of the report after the other.
class Questions
{
public:
    Questions(InsightExchange &exchange, std::string_view host, std::string_view website,
              const InsightSpan &span)
        : m_exchange(exchange), m_host(host), m_website(website), m_span(span)
    {
    }

    template <class Item>
    InsightResult<std::vector<Item>> ask(std::string_view path, std::vector<QueryItem> query,
                                         bool ofPeriod = true) const
    {
        if (ofPeriod) {
            KEST_CHECK(addPeriod(query));
        }
        if (!m_website.empty()) {
            query.emplace_back("websiteId", m_website);
        }
        std::string whole{"/api/v1/analytics/"};
        whole.append(path);
        KEST_TRY(auto body, m_exchange.get(addressOf(m_host, whole, query)));
        return itemsOf<Item>(std::move(body));
    }

private:
    // Instants in UTC, such as 2026-11-21T00:00:00Z.
    InsightResult<> addPeriod(std::vector<QueryItem> &query) const
    {
        const auto start = Base::toIso8601(m_span.start);
        const auto end = Base::toIso8601(m_span.end);
        if (!start || !end) {
            return std::unexpected(InsightError{.kind = InsightError::Kind::configuration,
                                                .message = "This machine's clock is wrong."});
        }
        query.insert(query.begin(), {{"startAt", *start}, {"endAt", *end}});
        return {};
    }

    InsightExchange &m_exchange;
    std::string_view m_host;
    std::string m_website;
    const InsightSpan &m_span;
};

bool isNothing(const std::optional<double> &figure) { return figure.value_or(0) == 0; }

// A period without data is told as no totals, as totals without figures or as zeros.
bool isEmpty(const DataFastTotals &totals)
{
    return isNothing(totals.visitors) && isNothing(totals.pageviews) &&
           isNothing(totals.sessions) && isNothing(totals.revenue) &&
           isNothing(totals.payments);
}

// "usd-revenue"; without a currency that can stand in an id, "revenue".
std::string revenueId(const std::optional<std::string> &currency)
{
    constexpr std::size_t kLongest = 8; // bytes: a code, or a sign such as the euro's
    const bool isUsable = currency && !currency->empty() && currency->size() <= kLongest &&
                          std::ranges::none_of(*currency, [](char c) {
                              return (c >= 0 && c <= ' ') || c == '-' || c == '\x7F';
                          });
    return isUsable ? Base::lowerAscii(*currency) + "-revenue" : std::string{kRevenueId};
}

void addTotals(const DataFastTotals &totals, InsightReport &report)
{
    constexpr const char *kTotal = "DataFast website total · selected period";
    struct Row {
        std::string id;
        const char *label;
        const std::optional<double> &value;
        const char *detail;
    };
    const std::array rows{
        Row{"visitors", "Visitors", totals.visitors, kTotal},
        Row{"pageviews", "Page views", totals.pageviews, kTotal},
        Row{"sessions", "Sessions", totals.sessions, kTotal},
        Row{std::string{kAverageSessionId}, "Avg. session", totals.avgSessionDuration,
            "DataFast average session duration"},
        Row{std::string{kBounceRateId}, "Bounce rate", totals.bounceRate, kTotal},
        Row{revenueId(totals.currency), "Attributed revenue", totals.revenue,
            "DataFast attribution in the website currency; not a Stripe payout or accounting "
            "total"},
        Row{"payments", "Attributed payments", totals.payments, kTotal},
    };
    for (const auto &[id, label, value, detail] : rows) {
        report.rows.push_back({.id = id,
                               .label = label,
                               .value = value.value_or(0),
                               .detail = value ? detail : std::string{kUnavailableMetric}});
    }
}

InsightResult<> addPoints(const Rows &rows, const Calendar &calendar, InsightReport &report)
{
    if (rows.size() > kMostPoints) {
        return unexpectedReport();
    }
    for (const DataFastRow &row : rows) {
        const auto &text = row.timestamp ? row.timestamp : row.date;
        const auto instant = text ? instantFrom(*text, calendar) : std::nullopt;
        if (!instant || !row.visitors) {
            return unexpectedReport();
        }
        report.points.push_back(
            {.date = *instant, .value = *row.visitors, .series = std::string{kVisitorSeries}});
    }
    return {};
}

void addPages(const Rows &rows, InsightReport &report)
{
    for (const DataFastRow &row : rows) {
        const std::string host = row.hostname.value_or("");
        const std::string path = row.path.value_or("/");
        report.pages.push_back(
            {.id = host + path,
             .label = path,
             .value = row.visitors.value_or(0),
             .detail = row.visitors ? host : std::string{kUnavailableMetric}});
    }
    report.pages.resize(std::min(report.pages.size(), kMostListed));
}

// Who came without a referrer typed the address or had it kept.
void addSources(const Rows &rows, InsightReport &report)
{
    for (const DataFastRow &row : rows) {
        const std::string referrer = row.referrer.value_or("");
        report.sources.push_back(
            {.id = referrer.empty() ? "direct" : referrer,
             .label = referrer.empty() ? "Direct" : referrer,
             .value = row.visitors.value_or(0),
             .detail = std::string{row.visitors ? "" : kUnavailableMetric}});
    }
    report.sources.resize(std::min(report.sources.size(), kMostListed));
}

InsightResult<> addDetails(const Questions &questions, const InsightSpan &span,
                           const InsightZone &zone, InsightReport &report)
{
    KEST_TRY(const Rows series,
             questions.ask<DataFastRow>("timeseries",
                                        {{"fields", "visitors"},
                                         {"interval", std::string{Base::textOf(span.interval)}},
                                         {"limit", std::to_string(kMostPoints)},
                                         {"timezone", zone.identifier}}));
    KEST_CHECK(addPoints(series, zone.calendar, report));
    KEST_TRY(const Rows pages,
             questions.ask<DataFastRow>("pages", {{"fields", "hostname,path,visitors"},
                                                  {"limit", std::to_string(kMostListed)}}));
    addPages(pages, report);
    KEST_TRY(const Rows sources,
             questions.ask<DataFastRow>("referrers", {{"fields", "referrer,visitors"}}));
    addSources(sources, report);
    return {};
}

} // namespace

InsightResult<InsightReport> dataFastReport(InsightExchange &exchange, std::string_view host,
                                            std::string_view website, const InsightSpan &span,
                                            const InsightZone &zone)
{
    const Questions questions{exchange, host, website, span};
    KEST_TRY(const auto totals,
             questions.ask<DataFastTotals>(
                 "overview", {{"fields", "visitors,pageviews,sessions,bounce_rate,"
                                         "avg_session_duration,currency,revenue,payments,"
                                         "conversion_rate"}}));
    InsightReport report{
        .provider = InsightProvider::datafast,
        .notice =
            "DataFast · website attribution rules. No currencies or providers are combined."};
    report.empty = totals.empty() || isEmpty(totals.front());
    if (report.empty) {
        report.notice = "DataFast returned no data for this period.";
    } else {
        addTotals(totals.front(), report);
        KEST_CHECK(addDetails(questions, span, zone, report));
    }
    KEST_TRY(const Rows online, questions.ask<DataFastRow>("realtime", {}, false));
    const auto visitors = online.empty() ? std::nullopt : online.front().visitors;
    if (!visitors) {
        return unexpectedReport();
    }
    report.online = std::llround(*visitors);
    return report;
}

} // namespace KestCore
