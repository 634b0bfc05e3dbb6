// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "bench/Bench.h"

#include <fmt/format.h>

#include <sys/resource.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>

namespace Bench
{

namespace
{

double secondsOf(const std::function<void()> &work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

double median(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::ranges::nth_element(values, middle);
    return *middle;
}

// Short times read better in microseconds, long ones in milliseconds.
std::pair<double, const char *> scaleFor(double seconds)
{
    return seconds < 0.001 ? std::pair{1e6, "us"} : std::pair{1e3, "ms"};
}

Row timeRow(std::string name, const Pair &seconds)
{
    const auto [scale, unit] = scaleFor(seconds.value);
    return {.name = std::move(name),
            .value = seconds.value * scale,
            .unit = unit,
            .floor = seconds.floor * scale,
            .ratio = seconds.value / seconds.floor};
}

std::string jsonOf(const Row &row)
{
    return fmt::format(R"(  {{"name":"{}","value":{:.4g},"unit":"{}","floor":{:.4g},)"
                       R"("ratio":{:.4g},"goal":"{}","met":{}}})",
                       row.name, row.value, row.unit, row.floor, row.ratio, row.goal, row.met);
}

} // namespace

Pair measureByTurns(int rounds, const std::function<void()> &work,
                    const std::function<void()> &floor, const std::function<void()> &between)
{
    std::vector<double> works;
    std::vector<double> floors;
    work(); // once each to warm up
    between();
    floor();
    for (int round = 0; round < rounds; ++round) {
        works.push_back(secondsOf(work));
        between();
        floors.push_back(secondsOf(floor));
    }
    return {.value = median(std::move(works)), .floor = median(std::move(floors))};
}

void print(const std::vector<Row> &rows)
{
    fmt::print("{:<52} {:>10} {:>10} {:<5} {:>7}  {:<14} {}\n", "what", "value", "floor",
               "unit", "ratio", "goal", "met");
    for (const Row &row : rows) {
        fmt::print("{:<52} {:>10.4g} {:>10.4g} {:<5} {:>7.3f}  {:<14} {}\n", row.name,
                   row.value, row.floor, row.unit, row.ratio, row.goal, row.met ? "yes" : "NO");
    }
}

void save(const std::vector<Row> &rows, const std::filesystem::path &file)
{
    std::ofstream out{file};
    out << "[\n";
    for (std::size_t at = 0; at < rows.size(); ++at) {
        out << jsonOf(rows[at]) << (at + 1 < rows.size() ? ",\n" : "\n");
    }
    out << "]\n";
}

Row ratioRow(std::string name, const Pair &seconds, double highestRatio)
{
    Row row = timeRow(std::move(name), seconds);
    row.goal = fmt::format("ratio <= {}", highestRatio);
    row.met = row.ratio <= highestRatio;
    return row;
}

Row durationRow(std::string name, const Pair &seconds, double longestSeconds)
{
    Row row = timeRow(std::move(name), seconds);
    row.goal =
        fmt::format("<= {} {}", longestSeconds * scaleFor(seconds.value).first, row.unit);
    row.met = seconds.value <= longestSeconds;
    return row;
}

Row limitRow(std::string name, double value, double floor, std::string unit, double most)
{
    return {.name = std::move(name),
            .value = value,
            .unit = std::move(unit),
            .floor = floor,
            .ratio = value / floor,
            .goal = fmt::format("<= {}", most),
            .met = value <= most};
}

double percentile(std::vector<double> values, double share)
{
    std::ranges::sort(values);
    return values.at(static_cast<std::size_t>(share * static_cast<double>(values.size() - 1)));
}

Row rateRow(std::string name, const Pair &seconds, std::size_t bytes, double lowestRate)
{
    const double megabytes = static_cast<double>(bytes) / 1e6;
    Row row{.name = std::move(name),
            .value = megabytes / seconds.value,
            .unit = "MB/s",
            .floor = megabytes / seconds.floor,
            .ratio = seconds.value / seconds.floor,
            .goal = fmt::format(">= {} MB/s", lowestRate)};
    row.met = row.value >= lowestRate;
    return row;
}

double cpuSeconds(int who)
{
    rusage usage{};
    ::getrusage(who, &usage);
    const auto seconds = [](const timeval &time) {
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
    };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

std::filesystem::path freshFolder(const std::string &name)
{
    const std::filesystem::path folder = std::filesystem::path{KEST_BENCH_FOLDER} / name;
    std::filesystem::remove_all(folder);
    std::filesystem::create_directories(folder);
    return folder;
}

void giveUp(const std::string &message)
{
    fmt::print(stderr, "bench: {}\n", message);
    std::exit(1);
}

} // namespace Bench
