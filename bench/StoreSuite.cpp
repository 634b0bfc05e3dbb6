// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Devotional/Counting.h"
#include "KestCore/Store/StateStore.h"
#include "bench/Bench.h"
#include "bench/RawDatabase.h"
#include "bench/Samples.h"

#include <fmt/format.h>

namespace Bench
{

namespace
{

using KestCore::NativeState;
using KestCore::StateStore;

StateStore storeWith(const std::filesystem::path &file, std::size_t sessions)
{
    StateStore store = must(StateStore::open(file));
    must(store.update([&](NativeState &state) -> Base::Result<void> {
        state = stateWithSessions(sessions);
        return {};
    }));
    return store;
}

// What the application does for one click, answer included.
void countOnce(StateStore &store)
{
    must(store.update([](NativeState &state) -> Base::Result<void> {
        KEST_TRY([[maybe_unused]] const bool reached,
                 KestCore::apply(KestCore::Increment{}, Base::wallClock(), state.devotional));
        return {};
    }));
}

Row countRow(std::size_t sessions, int rounds, double goal)
{
    const auto folder = freshFolder("count");
    StateStore store = storeWith(folder / "kest.sqlite", sessions);
    RawDatabase raw{folder / "raw.sqlite"};
    std::string body; // the very bytes that the store has just committed
    const Pair seconds = measureByTurns(
        rounds, [&] { countOnce(store); }, [&] { raw.commitState(body); },
        [&] { body = must(Base::json::encode(store.state())); });
    return ratioRow(fmt::format("one durable count, {} finished sessions", sessions), seconds,
                    goal);
}

void addRecords(StateStore &store, std::size_t count, std::size_t bodySize)
{
    for (std::size_t n = 0; n < count; ++n) {
        must(store.upsertRecord({.id = fmt::format("clip-{}", n),
                                 .kind = "clipboard",
                                 .title = "An entry of the clipboard",
                                 .body = std::string(bodySize, static_cast<char>('a' + n % 26)),
                                 .updated = 1'700'000'000'000.0,
                                 .extra = {{"format", "rich-v1"}}}));
    }
}

Row countBesideRecords()
{
    const auto folder = freshFolder("records");
    StateStore full = storeWith(folder / "full.sqlite", 0);
    StateStore empty = storeWith(folder / "empty.sqlite", 0);
    addRecords(full, 200, 1'000'000);
    for (int n = 0; n < 1'200; ++n) { // until both logs have their lasting size
        countOnce(full);
        countOnce(empty);
    }
    const Pair seconds =
        measureByTurns(400, [&] { countOnce(full); }, [&] { countOnce(empty); });
    return ratioRow("one durable count, 200 MB of records against none", seconds, 1.1);
}

Row openRow()
{
    const auto file = freshFolder("open") / "kest.sqlite";
    {
        StateStore store = storeWith(file, 0);
        addRecords(store, 20'000, 400);
        must(store.update([&](NativeState &state) -> Base::Result<void> {
            state = stateWithSessions(100'000);
            return {};
        }));
    }
    RawDatabase raw{file};
    const Pair seconds = measureByTurns(
        9,
        [&] {
            StateStore store = must(StateStore::open(file));
            must(store.snapshot());
        },
        [&] { raw.readAll(); });
    return durationRow("open and read 100,000 sessions and 20,000 records", seconds, 0.4);
}

} // namespace

std::vector<Row> storeSuite()
{
    return {countRow(0, 400, 1.6), countRow(1'000, 200, 1.6), countRow(100'000, 25, 1.25),
            countBesideRecords(), openRow()};
}

} // namespace Bench
