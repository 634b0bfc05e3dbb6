// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "bench/Velvetnook/RunningProgram.h"
#include "bench/Velvetnook/Suites.h"

#include <algorithm>
#include <thread>

namespace Velvetnook
{

namespace
{

using namespace std::chrono_literals;

constexpr auto kRest = 60s;

Usage during(const RunningProgram &program, const Usage &before)
{
    const Usage after = program.usage();
    return {.wakeUps = after.wakeUps - before.wakeUps,
            .cpuSeconds = after.cpuSeconds - before.cpuSeconds};
}

} // namespace

std::vector<Bench::Row> startSuite()
{
    constexpr int kStarts = 11;
    prepareSession(Bench::freshFolder("start"), true);
    Bench::Pair seconds;
    std::vector<double> ours;
    std::vector<double> empty;
    secondsToFirstFrame(VELVETNOOK_PROGRAM); // once each, so that the files are in memory
    secondsToFirstFrame(EMPTY_WINDOW);
    for (int start = 0; start < kStarts; ++start) {
        ours.push_back(secondsToFirstFrame(VELVETNOOK_PROGRAM));
        empty.push_back(secondsToFirstFrame(EMPTY_WINDOW));
    }
    seconds = {.value = Bench::percentile(ours, 0.5), .floor = Bench::percentile(empty, 0.5)};
    return {Bench::ratioRow("start to the first frame of the strip", seconds, 2)};
}

// Both rest at the same time: what wakes one for no fault of its own wakes the other too.
std::vector<Bench::Row> restSuite()
{
    prepareSession(Bench::freshFolder("rest"), true);
    const XDesktop desktop;
    const RunningProgram empty{EMPTY_WINDOW};
    const RunningProgram program{VELVETNOOK_PROGRAM};
    const auto isOpen = [&] { return desktop.notch() && desktop.notch()->height >= 320; };
    const auto isStrip = [&] { return desktop.notch() && desktop.notch()->height < 60; };
    if (!XDesktop::waitFor(isStrip)) {
        Bench::giveUp("no strip was shown");
    }
    askKest({"notch", "open"}); // so that everything has been made
    if (!XDesktop::waitFor(isOpen)) {
        Bench::giveUp("the panel did not open");
    }
    askKest({"notch", "close"});
    if (!XDesktop::waitFor(isStrip)) {
        Bench::giveUp("the panel did not close");
    }
    std::this_thread::sleep_for(10s);
    const Usage before = program.usage();
    const Usage emptyBefore = empty.usage();
    std::this_thread::sleep_for(kRest);
    const Usage used = during(program, before);
    const Usage floor = during(empty, emptyBefore);
    constexpr double kSeconds = std::chrono::duration<double>{kRest}.count();
    return {Bench::limitRow("wake-ups of the closed panel", used.wakeUps / kSeconds,
                            std::max(floor.wakeUps, 1.0) / kSeconds, "/s", 1),
            Bench::limitRow("processor of the closed panel", used.cpuSeconds / kSeconds * 100,
                            std::max(floor.cpuSeconds, 1e-6) / kSeconds * 100, "%", 0.1)};
}

} // namespace Velvetnook
