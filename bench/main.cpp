// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "bench/Bench.h"

#include <algorithm>
#include <string_view>

// With arguments, runs only the suites named.
int main(int argc, char **argv)
{
    if (argc > 2 && std::string_view{argv[1]} == "--peak-memory") {
        return Bench::printPeakMemory(argv + 2);
    }
    const std::pair<std::string_view, Bench::Suite> suites[] = {
        {"json", Bench::jsonSuite},
        {"store", Bench::storeSuite},
        {"prayer", Bench::prayerSuite},
        {"clipboard", Bench::clipboardSuite},
        {"program", Bench::programSuite},
        {"backup", Bench::backupSuite},
        {"monitor", Bench::monitorSuite},
        {"collector", Bench::collectorSuite},
        {"recording", Bench::recordingSuite},
        {"weather", Bench::weatherSuite},
        {"assistants", Bench::assistantSuite},
    };
    for (int at = 1; at < argc; ++at) {
        if (std::ranges::none_of(suites, [&](const auto &s) { return s.first == argv[at]; })) {
            Bench::giveUp(std::string{"there is no suite "} + argv[at]);
        }
    }
    std::vector<Bench::Row> rows;
    for (const auto &[name, suite] : suites) {
        const bool isWanted =
            argc < 2 ||
            std::any_of(
                argv + 1, argv + argc, [&](const char *wanted) { return name == wanted; });
        if (isWanted) {
            const auto more = suite();
            rows.insert(rows.end(), more.begin(), more.end());
        }
    }
    Bench::print(rows);
    if (argc < 2) { // a part of the suites must not take the place of the whole record
        Bench::save(rows, KEST_BENCH_JSON);
    }
    std::filesystem::remove_all(KEST_BENCH_FOLDER);
    return std::ranges::all_of(rows, &Bench::Row::met) ? 0 : 1;
}
