// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Result.h"

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

// A benchmark measures something beside its floor: the least that the machine needs for the
// same work, in the same run and by turns, so that a busy machine slows both.
namespace Bench
{

// One line of the table and of bench.json.
struct Row {
    std::string name{};
    double value{};
    std::string unit{};
    double floor{}; // in the same unit
    double ratio{}; // how many times the floor; for a rate, how many times slower
    std::string goal{};
    bool met{};
};

struct Pair {
    double value{}; // median seconds
    double floor{};
};

// Runs both by turns `rounds` times and gives the median seconds of each. What `between`
// does, after the work and before the floor, does not count.
Pair measureByTurns(
    int rounds, const std::function<void()> &work, const std::function<void()> &floor,
    const std::function<void()> &between = [] {});

// A row whose goal is to stay within so many times the floor, or under so many seconds.
Row ratioRow(std::string name, const Pair &seconds, double highestRatio);
Row durationRow(std::string name, const Pair &seconds, double longestSeconds);
// A row whose goal is to go through `bytes` at so many megabytes a second at least.
Row rateRow(std::string name, const Pair &seconds, std::size_t bytes, double lowestRate);

// A row whose goal is not to pass `most`; value, floor and goal in the unit.
Row limitRow(std::string name, double value, double floor, std::string unit, double most);

// The value that this share of them does not pass.
double percentile(std::vector<double> values, double share);

// A row whose goal is to need less than `most`; all in bytes.
Row memoryRow(std::string name, double value, double floor, double most);

// What RUSAGE_SELF or RUSAGE_CHILDREN have used of the processor, in seconds.
double cpuSeconds(int who);

// Runs a program with its output thrown away; it must succeed.
void runProgram(const std::vector<std::string> &arguments);

// An empty folder for this run's files, on the disk that holds the build.
std::filesystem::path freshFolder(const std::string &name);

// Ends the program: a benchmark of something that failed would be a lie.
[[noreturn]] void giveUp(const std::string &message);

template <class T>
T must(Base::Result<T> result)
{
    if (!result) {
        giveUp(result.error().message);
    }
    if constexpr (!std::is_void_v<T>) {
        return *std::move(result);
    }
}

// The most memory that the program held, in bytes, its output thrown away. Measured by a
// small process of its own, as a child starts out with the measure of its parent.
double peakMemory(const std::vector<std::string> &arguments);
// That small process: prints the figure.
int printPeakMemory(char **arguments);

void print(const std::vector<Row> &rows);
void save(const std::vector<Row> &rows, const std::filesystem::path &file);

using Suite = std::vector<Row> (*)();
std::vector<Row> storeSuite();
std::vector<Row> jsonSuite();
std::vector<Row> prayerSuite();
std::vector<Row> clipboardSuite();
std::vector<Row> monitorSuite();
std::vector<Row> programSuite();
std::vector<Row> backupSuite();
std::vector<Row> collectorSuite();
std::vector<Row> recordingSuite();
std::vector<Row> weatherSuite();
std::vector<Row> assistantSuite();

} // namespace Bench
