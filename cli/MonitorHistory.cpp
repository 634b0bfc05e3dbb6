// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "cli/BrailleChart.h"
#include "cli/MonitorAnswers.h"
#include "cli/MonitorSampler.h"
#include "cli/MonitorText.h"

#include <fmt/format.h>

#include <langinfo.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <algorithm>
#include <cmath>

// One series of the monitor's history, as a chart on a terminal and as rows elsewhere.
namespace Cli
{

namespace
{

using MonitorCore::HistoryPoint;
using MonitorCore::MetricID;
using MonitorCore::MetricUnit;
using MonitorCore::MonitorHistoryStore;

constexpr int kChartRows = 10;
constexpr int kLabelCells = 10;
constexpr int kUsualColumns = 80;

struct Span {
    Base::Instant from{};
    Base::Instant to{};
};

Result<MetricID> metricFrom(const std::string &text)
{
    if (const auto metric = Base::fromText<MetricID>(text)) {
        return *metric;
    }
    std::vector<std::string_view> known;
    for (const auto &[metric, name] : enumTexts(Base::Of<MetricID>{})) {
        known.push_back(name);
    }
    return std::unexpected(KestError::invalidData(fmt::format(
        "There is no metric \"{}\"; choose one of {}", text, fmt::join(known, ", "))));
}

Result<Span> spanOf(const SeriesArguments &args)
{
    Span span{.to = Base::wallClock()};
    if (!args.to.empty()) {
        KEST_TRY(span.to, Base::fromIso8601(args.to));
    }
    span.from = span.to - Base::Seconds{3600 * args.hours};
    if (!args.from.empty()) {
        KEST_TRY(span.from, Base::fromIso8601(args.from));
    }
    if (span.from > span.to) {
        return std::unexpected(
            KestError::invalidData("The history would end before it begins"));
    }
    return span;
}

int terminalColumns()
{
    winsize size{};
    const bool isKnown = ::ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0;
    return isKnown ? size.ws_col : kUsualColumns;
}

// The chart's columns: the highest mean of the points that each covers.
std::vector<std::optional<double>> columnsOf(const std::vector<HistoryPoint> &points,
                                             const Span &span, int columns)
{
    std::vector<std::optional<double>> values(static_cast<std::size_t>(columns));
    const double whole = std::max(1.0, (span.to - span.from).count());
    const auto columnAt = [&](double seconds) {
        const double column = std::floor(seconds / whole * columns);
        return static_cast<std::size_t>(std::clamp(column, 0.0, columns - 1.0));
    };
    for (const HistoryPoint &point : points) {
        const double start = (point.date - span.from).count();
        const double end = start + static_cast<double>(point.resolution);
        // The end belongs to what follows.
        for (auto at = columnAt(start); at <= columnAt(std::nextafter(end, start)); ++at) {
            values[at] = std::max(values[at].value_or(point.value), point.value);
        }
    }
    return values;
}

std::string timeLine(const Span &span, int cells)
{
    const std::string from = localTime(Base::milliseconds1970(span.from));
    const std::string to = localTime(Base::milliseconds1970(span.to));
    const auto both = static_cast<int>(from.size() + to.size());
    return from + std::string(static_cast<std::size_t>(std::max(1, cells - both)), ' ') + to;
}

void drawChart(const Console &console, const std::vector<HistoryPoint> &points,
               const Span &span, MetricUnit unit)
{
    const int cells = std::max(20, terminalColumns() - kLabelCells - 2);
    auto columns = columnsOf(points, span, 2 * cells);
    double most = 0;
    for (const auto &column : columns) {
        most = std::max(most, column.value_or(0));
    }
    const bool isShare = unit == MetricUnit::percent && most <= 100;
    const double limit = isShare ? 100 : roundLimit(most);
    for (auto &column : columns) {
        column = column ? std::optional{*column / limit} : std::nullopt;
    }
    const auto chart = brailleChart(columns, kChartRows);
    for (int row = 0; row < kChartRows; ++row) {
        const bool isLabelled = row == 0 || row == kChartRows / 2 || row == kChartRows - 1;
        const double below = row == kChartRows - 1 ? 0 : limit / 2;
        const double level = row == 0 ? limit : below;
        console.line(fmt::format(
            "{} {}",
            console.styled(
                fmt::format("{:>{}}", isLabelled ? amountText(level, unit) : "", kLabelCells),
                Style::faint),
            console.styled(chart[static_cast<std::size_t>(row)], Style::good)));
    }
    console.line(std::string(kLabelCells + 1, ' ') +
                 console.styled(timeLine(span, cells), Style::faint));
}

void printRows(const Console &console, const std::vector<HistoryPoint> &points, MetricUnit unit)
{
    std::vector<std::vector<std::string>> rows;
    for (const HistoryPoint &point : points) {
        rows.push_back({localTime(Base::milliseconds1970(point.date)),
                        fmt::format("{:>10}", amountText(point.value, unit)),
                        fmt::format("peak {}", amountText(point.peak, unit))});
    }
    console.table(rows);
}

const HistoryPoint &highestOf(const std::vector<HistoryPoint> &points)
{
    return *std::ranges::max_element(points, {}, &HistoryPoint::peak);
}

// The mean, the peak, and who was highest then.
Result<void> printSummary(const Console &console, MonitorHistoryStore &store, MetricID metric,
                          const std::vector<HistoryPoint> &points, bool isMachine)
{
    double sum = 0;
    double covered = 0;
    for (const HistoryPoint &point : points) {
        sum += point.value * point.coverage;
        covered += point.coverage;
    }
    const HistoryPoint &peak = highestOf(points);
    const MetricUnit unit = unitOf(metric);
    console.line(
        fmt::format("Mean {}, peak {} at {}", amountText(covered > 0 ? sum / covered : 0, unit),
                    amountText(peak.peak, unit), localTime(Base::milliseconds1970(peak.date))));
    if (isMachine) {
        KEST_TRY(const auto causes, store.causes(metric, peak));
        // The machine's percentages are of all cores, an application's of one.
        const char *const of = unit == MetricUnit::percent ? " of one core" : "";
        for (const auto &cause : causes) {
            console.line(fmt::format("  {:>10}{}  {}", amountText(cause.peak, unit), of,
                                     printable(cause.app)));
        }
    }
    return {};
}

// The highest point of the machine's series says who was highest then.
Result<void> answerSeries(const Console &console, MonitorHistoryStore &store, MetricID metric,
                          const std::vector<HistoryPoint> &points, bool isMachine)
{
    KEST_TRY(auto answers, answersOf(points));
    if (isMachine && !points.empty()) {
        const HistoryPoint &highest = highestOf(points);
        KEST_TRY(answers[static_cast<std::size_t>(&highest - points.data())].causes,
                 store.causes(metric, highest));
    }
    return console.answer(answers, [] {});
}

Result<void> printSeries(const Console &console, MonitorHistoryStore &store,
                         const SeriesArguments &args, MetricID metric, const Span &span)
{
    KEST_TRY(const auto points, store.history(args.app, metric, span.from, span.to));
    if (console.isJson) {
        return answerSeries(console, store, metric, points, args.app.empty());
    }
    if (points.empty()) {
        console.line("Nothing is recorded of this; kest monitor record records.");
        return {};
    }
    const bool canDraw =
        isatty(STDOUT_FILENO) != 0 && std::string_view{nl_langinfo(CODESET)} == "UTF-8";
    if (canDraw) {
        console.line(console.styled(metricTitle(metric), Style::strong));
        drawChart(console, points, span, unitOf(metric));
    } else {
        printRows(console, points, unitOf(metric));
    }
    return printSummary(console, store, metric, points, args.app.empty());
}

} // namespace

Result<void> runMonitorHistory(const Session &session, const SeriesArguments &args)
{
    KEST_TRY(const MetricID metric, metricFrom(args.metric));
    KEST_TRY(const Span span, spanOf(args));
    const auto file = historyFile(session);
    if (!std::filesystem::exists(file)) { // to look must not create it
        return session.console.answer(std::vector<PointAnswer>{}, [&] {
            session.console.line("Nothing is recorded yet; kest monitor record records.");
        });
    }
    KEST_TRY(auto store, MonitorHistoryStore::openToRead(file));
    return printSeries(session.console, store, args, metric, span);
}

} // namespace Cli
