// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "bench/Velvetnook/Suites.h"
#include "tests/Velvetnook/XDesktop.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace
{

// In a process of its own, as it is linked with what this one must not share.
bool isHandAnswered()
{
    const XDesktop desktop;
    return XDesktop::run({VELVETNOOK_BENCH}) == 0;
}

std::vector<Bench::Row> startOnDesktop()
{
    const XDesktop desktop;
    return Velvetnook::startSuite();
}

} // namespace

// ApplicationBench [SUITE ...]: the application on X servers that nobody sees, with a window
// manager, which are started and stopped here. Needs xvfb, openbox and xdotool.
int main(int argc, char **argv)
{
    const std::pair<std::string_view, Bench::Suite> suites[] = {
        {"start", startOnDesktop},
        {"rest", Velvetnook::restSuite},
        {"memory", Velvetnook::memorySuite},
    };
    const auto isWanted = [&](std::string_view name) {
        return argc < 2 ||
               std::any_of(argv + 1, argv + argc, [&](const char *arg) { return name == arg; });
    };
    bool isMet = !isWanted("hand") || isHandAnswered();
    std::vector<Bench::Row> rows;
    for (const auto &[name, suite] : suites) {
        if (isWanted(name)) {
            const auto more = suite();
            rows.insert(rows.end(), more.begin(), more.end());
        }
    }
    Bench::print(rows);
    if (argc < 2) {
        Bench::save(rows, KEST_BENCH_JSON);
    }
    std::filesystem::remove_all(KEST_BENCH_FOLDER);
    isMet = isMet && std::ranges::all_of(rows, &Bench::Row::met);
    return isMet ? 0 : 1;
}
