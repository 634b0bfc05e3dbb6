// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "tests/EndToEnd/KillRounds.h"
#include "tests/TemporaryFolder.h"

#include <fmt/format.h>
#include <gmock/gmock.h>

#include <random>

TEST(Kill, NoAcknowledgedChangeIsEverLost)
{
    const TemporaryFolder folder;
    const KillReport report = runKillRounds(folder.database(), 200, std::random_device{}());
    EXPECT_EQ(report.failure, "");
    EXPECT_EQ(report.rounds, 200);
    // A kill that always came too early would prove nothing.
    EXPECT_GT(report.acknowledged, 1000);
    fmt::print("{} rounds, {} acknowledged changes, {} killed while opening\n", report.rounds,
               report.acknowledged, report.killedWhileOpening);
}
