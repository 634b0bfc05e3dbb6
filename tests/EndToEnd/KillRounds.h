// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

struct KillReport {
    std::string failure{}; // empty when every round held
    int rounds = 0;
    std::int64_t acknowledged = 0; // changes over all rounds
    int killedWhileOpening = 0;    // before the first acknowledgement of the round
};

// Lets a process change one store and kills it (SIGKILL) at a random moment, so many times.
// After each: every acknowledged change is there and at most the one in flight besides, the
// revision counts exactly the commits, and the file passes SQLite's own check.
KillReport runKillRounds(const std::filesystem::path &database, int rounds, std::uint32_t seed);
