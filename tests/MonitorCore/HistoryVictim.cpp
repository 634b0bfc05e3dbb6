// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "MonitorCore/MonitorHistoryStore.h"
#include "tests/MonitorCore/Snapshots.h"

#include <cstdio>
#include <cstdlib>

// HistoryVictim FILE START: records a second at a time until it is killed, and says so after
// each. Now and then it maintains what it has.
int main(int argc, char **argv)
{
    if (argc != 3) {
        return 2;
    }
    auto store = MonitorCore::MonitorHistoryStore::open(argv[1]);
    if (!store || store->takeNotice()) {
        return 1;
    }
    for (double time = std::atof(argv[2]);; time += 1) {
        auto snapshot = snapshotAt(time, 1, {{MonitorCore::MetricID::cpu, 50}});
        for (int n = 0; n < 20; ++n) {
            snapshot.apps.push_back({.id = "app-" + std::to_string(n), .cpu = 10});
        }
        if (!store->record(snapshot)) {
            return 1;
        }
        std::puts("recorded");
        std::fflush(stdout);
        if (static_cast<int>(time) % 8 == 0 && !store->maintain(snapshot.timestamp, 30)) {
            return 1;
        }
    }
}
