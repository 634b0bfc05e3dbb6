// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "PrayerCore/PrayerDays.h"
#include "bench/Bench.h"

#include <chrono>
#include <cmath>

namespace Bench
{

namespace
{

constexpr int kDays = 365;

// What one day calls of each, by an angle method, as counted in the code.
struct Calls {
    double (*function)(double);
    int perDay;
    double furthest; // arguments are spread from -furthest to furthest
};
constexpr double kTurn = 6.283185307179586;
constexpr Calls kCalls[] = {
    {std::sin, 24, kTurn}, {std::cos, 19, kTurn}, {std::asin, 6, 1.0},
    {std::acos, 4, 1.0},   {std::atan, 2, 3.0},   {std::tan, 1, 1.0},
};

volatile double sink = 0; // what is put here cannot be left out

void computeYear()
{
    using namespace std::chrono_literals;
    auto days = PrayerCore::PrayerDays::from(
        {.latitude = 30.06, .longitude = 31.25}, std::chrono::year_month_day{2026y / 1 / 1},
        PrayerCore::parametersOf(PrayerCore::CalculationMethod::muslimWorldLeague));
    if (!days) {
        giveUp("a year of prayer times cannot be computed");
    }
    for (int day = 0; day < kDays; ++day) {
        const auto times = days->next();
        sink = times ? Base::seconds1970(times->fajr) : 0;
    }
}

// In a year arguments move slowly, which processors guess well; so do these.
std::vector<std::vector<double>> argumentsOfAYear()
{
    std::vector<std::vector<double>> all;
    for (const Calls &calls : kCalls) {
        auto &arguments = all.emplace_back(static_cast<std::size_t>(calls.perDay * kDays));
        const double step = 2 * calls.furthest / static_cast<double>(arguments.size());
        double argument = -calls.furthest;
        for (double &place : arguments) {
            place = argument;
            argument += step;
        }
    }
    return all;
}

} // namespace

// The floor is the bare cost of the trigonometric calls, one after the other.
std::vector<Row> prayerSuite()
{
    const auto arguments = argumentsOfAYear();
    const auto callOnly = [&] {
        double sum = 0;
        for (std::size_t kind = 0; kind < arguments.size(); ++kind) {
            for (const double argument : arguments[kind]) {
                sum += kCalls[kind].function(argument);
            }
        }
        sink = sum;
    };
    const Pair seconds = measureByTurns(200, computeYear, callOnly);
    return {durationRow("a year of prayer times at one place", seconds, 0.002),
            ratioRow("the same against its trigonometric calls", seconds, 2.0)};
}

} // namespace Bench
