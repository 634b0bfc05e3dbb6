// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Instant.h"
#include "Base/Json.h"
#include "Base/Result.h"

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <stop_token>
#include <string>
#include <vector>

namespace KestCore
{

using Base::Result;

// What a fetch yields; shared by all who waited for it.
using FetchedBytes = std::shared_ptr<const Base::Bytes>;
using FetchAnswer = Result<FetchedBytes>;

// Decides for each key whether what is cached is young enough, whether a fetch is already on
// its way, or whether one has to start. Knows no clock and no thread.
class RefreshPlan
{
public:
    using Waiter = std::move_only_function<void(const FetchAnswer &)>;

    // A fetch that the caller now starts, and hands to `finish` when it is done.
    struct Start {
        std::uint64_t generation{};
        std::stop_token stop{};
    };

    static constexpr std::size_t kMostCached = 64;
    static constexpr std::size_t kMostCachedBytes = 16'000'000;

    // Answers `waiter` from the cache when the result there is younger than `lifetime`, and
    // else when the key's fetch is done. A result from the future, as after the clock was set
    // back, is as good as none.
    [[nodiscard]] std::optional<Start> request(const std::string &key, Base::Instant now,
                                               Base::Seconds lifetime, Waiter waiter);

    // Caches a success and answers all who wait. A fetch of an older generation was
    // cancelled, and what it brings is dropped. A failure leaves the cache as it is.
    void finish(const std::string &key, std::uint64_t generation, Result<Base::Bytes> result,
                Base::Instant now);

    // Stops the fetch and tells those who wait; the next request starts anew.
    void cancel(const std::string &key);
    void cancelAll();

private:
    struct Entry {
        std::uint64_t generation{};
        std::optional<std::stop_source> running{};
        std::vector<Waiter> waiters{};
        FetchedBytes cached{};
        Base::Instant cachedAt{};
    };

    static void stop(Entry &entry);
    static void answer(Entry &entry, const FetchAnswer &result);
    void trimCache();

    std::map<std::string, Entry> m_entries;
};

} // namespace KestCore
