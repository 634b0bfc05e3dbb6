// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Devotional/Counting.h"
#include "KestCore/Store/StateStore.h"

#include <unistd.h>

#include <cstdio>
#include <cstdlib>

// Changes a store without end and says of each change that it is done, until it is killed.
// Each acknowledgement is one line: revision, count, finished sessions, records.
namespace
{

using KestCore::NativeState;
using KestCore::StateStore;

[[noreturn]] void giveUp(const std::string &message)
{
    std::fprintf(stderr, "victim: %s\n", message.c_str());
    std::exit(1);
}

Base::Result<void> apply(StateStore &store, const KestCore::CountAction &action)
{
    return store.change([&](NativeState &state) -> Base::Result<void> {
        KEST_TRY([[maybe_unused]] const bool reached,
                 KestCore::apply(action, Base::wallClock(), state.devotional));
        return {};
    });
}

Base::Result<void> nextChange(StateStore &store, int step)
{
    if (step % 11 == 10) {
        KEST_TRY([[maybe_unused]] const auto snapshot,
                 store.upsertRecord({.id = std::to_string(store.state().revision),
                                     .kind = "clipboard",
                                     .body = std::string(20'000, 'x')}));
        return {};
    }
    if (step % 17 == 16) {
        return apply(store, KestCore::Finish{});
    }
    return apply(store, KestCore::Increment{});
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 2) {
        giveUp("needs the database file");
    }
    auto store = StateStore::open(argv[1]);
    if (!store) {
        giveUp(store.error().message);
    }
    for (int step = 0;; ++step) {
        const auto &state = store->state();
        const auto snapshot = store->snapshot();
        if (!snapshot) {
            giveUp(snapshot.error().message);
        }
        char line[128];
        const int size = std::snprintf(
            line, sizeof line, "%lld %lld %zu %zu\n", static_cast<long long>(state.revision),
            static_cast<long long>(state.devotional.session.count),
            state.devotional.records.size(), snapshot->records.size());
        if (write(STDOUT_FILENO, line, static_cast<std::size_t>(size)) != size) {
            return 0;
        }
        if (const auto changed = nextChange(*store, step); !changed) {
            giveUp(changed.error().message);
        }
    }
}
