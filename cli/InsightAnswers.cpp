// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "cli/InsightAnswers.h"

#include "Base/JsonWriter.h"
#include "KestCore/Clients/InsightText.h"
#include "cli/MonitorText.h"

#include <fmt/format.h>

#include <langinfo.h>

#include <algorithm>
#include <map>
#include <numeric>

template Base::Result<std::string> Base::json::encode(const Cli::InsightAnswer &);
template Base::Result<std::string> Base::json::encode(const Cli::ConnectionAnswer &);

namespace Cli
{

namespace
{

using KestCore::InsightMetric;
using KestCore::InsightPoint;
using KestCore::InsightReport;
using Rows = std::vector<std::vector<std::string>>;

constexpr int kSparkCells = 48;
constexpr std::size_t kLongestTitle = 60; // characters

// Figures stand under each other by their last digits.
void alignRight(Rows &rows, std::size_t column)
{
    std::size_t widest = 0;
    for (const auto &row : rows) {
        widest = std::max(widest, Base::countCodePoints(row[column]));
    }
    for (auto &row : rows) {
        row[column].insert(0, widest - Base::countCodePoints(row[column]), ' ');
    }
}

void printTotals(const Console &console, const InsightReport &report)
{
    Rows rows;
    for (const InsightMetric &metric : report.rows) {
        const std::string value = KestCore::metricText(metric);
        rows.push_back({metric.label, printable(value),
                        value == metric.detail
                            ? ""
                            : console.styled(printable(metric.detail), Style::faint)});
    }
    alignRight(rows, 1);
    console.table(rows);
}

// As many sums of neighbours as fit into the cells.
std::vector<double> inCells(const std::vector<double> &values)
{
    const std::size_t each = (values.size() + kSparkCells - 1) / kSparkCells;
    std::vector<double> sums;
    for (std::size_t at = 0; at < values.size(); at += each) {
        const auto from = values.begin() + static_cast<std::ptrdiff_t>(at);
        const auto count = std::min(each, values.size() - at);
        sums.push_back(std::accumulate(from, from + static_cast<std::ptrdiff_t>(count), 0.0));
    }
    return sums;
}

void printCharts(const Console &console, const InsightReport &report)
{
    std::map<std::string, std::vector<InsightPoint>> series;
    for (const InsightPoint &point : report.points) {
        series[point.series].push_back(point);
    }
    if (std::string_view{nl_langinfo(CODESET)} != "UTF-8") {
        return;
    }
    for (const auto &[name, points] : series) {
        std::vector<double> values;
        std::ranges::transform(points, std::back_inserter(values), &InsightPoint::value);
        const std::vector<double> cells = inCells(values);
        const auto &highest = *std::ranges::max_element(points, {}, &InsightPoint::value);
        const std::string line =
            sparkline(cells, *std::ranges::max_element(cells), static_cast<int>(cells.size()));
        console.line(fmt::format(
            "{}  {}  most {} on {}", printable(KestCore::seriesTitle(name)),
            console.styled(line, Style::good), printable(KestCore::pointText(highest)),
            localTime(Base::milliseconds1970(highest.date))));
    }
}

void printRecent(const Console &console, const InsightReport &report)
{
    Rows rows;
    for (const auto &entry : report.recent) {
        const std::string title = printable(entry.title);
        rows.push_back({localTime(Base::milliseconds1970(entry.date)), printable(entry.value),
                        std::string{Base::firstCharacters(title, kLongestTitle)}});
    }
    alignRight(rows, 1);
    console.table(rows);
}

void printList(const Console &console, std::string_view title,
               const std::vector<InsightMetric> &metrics)
{
    if (metrics.empty()) {
        return;
    }
    console.line(console.styled(title, Style::strong));
    Rows rows;
    for (const InsightMetric &metric : metrics) {
        const bool isTold = metric.detail != KestCore::kUnavailableMetric;
        const std::string label = printable(metric.label);
        rows.push_back({isTold ? KestCore::countText(metric.value) : metric.detail,
                        std::string{Base::firstCharacters(label, kLongestTitle)},
                        isTold ? console.styled(printable(metric.detail), Style::faint) : ""});
    }
    alignRight(rows, 0);
    console.table(rows);
}

} // namespace

Result<InsightAnswer> answerOf(const InsightReport &report)
{
    InsightAnswer answer{.provider = report.provider,
                         .rows = report.rows,
                         .notice = report.notice,
                         .stale = report.stale,
                         .empty = report.empty,
                         .pages = report.pages,
                         .sources = report.sources,
                         .online = report.online};
    KEST_TRY(answer.fetchedAt, Base::toIso8601(report.fetchedAt));
    for (const auto &[date, value, series] : report.points) {
        KEST_TRY(std::string when, Base::toIso8601(date));
        answer.points.push_back({.date = std::move(when), .value = value, .series = series});
    }
    for (const auto &[id, title, value, date] : report.recent) {
        KEST_TRY(std::string when, Base::toIso8601(date));
        answer.recent.push_back(
            {.id = id, .title = title, .value = value, .date = std::move(when)});
    }
    return answer;
}

void printReport(const Console &console, const InsightReport &report)
{
    const bool isAnalytics = report.provider == KestCore::InsightProvider::datafast;
    console.line(console.styled(KestCore::nameOf(report.provider), Style::strong));
    printTotals(console, report);
    if (report.empty && !isAnalytics) {
        console.line("No payments, refunds or payouts in this period.");
    }
    printCharts(console, report);
    printRecent(console, report);
    printList(console, "Top pages", report.pages);
    printList(console, "Top referrers", report.sources);
    if (isAnalytics) {
        console.line(fmt::format("Online now: {}", report.online));
    }
    if (report.stale) {
        console.line(console.styled("These figures are from " +
                                        localTime(Base::milliseconds1970(report.fetchedAt)) +
                                        "; newer ones could not be had.",
                                    Style::warning));
    }
    console.line(console.styled(report.notice, Style::faint));
}

} // namespace Cli
