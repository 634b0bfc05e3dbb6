// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "tests/EndToEnd/KillRounds.h"
#include "tests/TemporaryFolder.h"

#include <fmt/format.h>

#include <cstdlib>
#include <random>

// The kill test for hours: StoreSoak ROUNDS. Each hundred rounds start a store of its own.
int main(int argc, char **argv)
{
    const int rounds = argc > 1 ? std::atoi(argv[1]) : 5000;
    std::random_device seeds;
    KillReport all;
    while (all.rounds < rounds) {
        const TemporaryFolder folder;
        const auto report =
            runKillRounds(folder.database(), std::min(100, rounds - all.rounds), seeds());
        all.rounds += report.rounds;
        all.acknowledged += report.acknowledged;
        all.killedWhileOpening += report.killedWhileOpening;
        if (!report.failure.empty()) {
            fmt::print(stderr, "{}\n", report.failure);
            return 1;
        }
        fmt::print("{} kills, {} acknowledged changes, none lost ({} killed while opening)\n",
                   all.rounds, all.acknowledged, all.killedWhileOpening);
        std::fflush(stdout);
    }
    return 0;
}
