// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Serial.h"
#include "KestCore/Registry/RefreshPlan.h"

#include <future>
#include <thread>

namespace KestCore
{

// Runs fetches beside one another, at most one for a key at a time, and lets everybody who
// asks meanwhile share its result. May be asked from any thread. Destruction cancels what runs
// and waits until every fetch has returned, so a fetch must heed its stop token.
class RefreshCoordinator
{
public:
    using Fetch = std::function<Result<Base::Bytes>(const std::stop_token &)>;
    using Clock = std::function<Base::Instant()>;

    explicit RefreshCoordinator(Clock clock = Base::wallClock);
    RefreshCoordinator(const RefreshCoordinator &) = delete;
    RefreshCoordinator &operator=(const RefreshCoordinator &) = delete;
    ~RefreshCoordinator();

    // What is cached for the key and younger than `lifetime`, or the result of a fetch. Fails
    // as the fetch does, or with unavailable: "The refresh was cancelled.", that no thread
    // could be started for it, or what a fetch threw.
    [[nodiscard]] std::future<FetchAnswer> refresh(std::string key, Base::Seconds lifetime,
                                                   Fetch fetch);

    // The same for who must not wait: `done` is called on the coordinator's own thread, and
    // does no more than to hand the answer on.
    void refresh(std::string key, Base::Seconds lifetime, Fetch fetch,
                 RefreshPlan::Waiter done);

    // When the future is there, all who waited have their answer, and whatever the fetch still
    // brings is dropped.
    std::future<void> cancel(std::string key);
    std::future<void> cancelAll();

private:
    // Touched on the queue alone.
    struct Owned {
        RefreshPlan plan;
        std::map<std::uint64_t, std::jthread> threads; // of fetches, by number
        std::uint64_t lastThread = 0;
    };

    void start(Owned &owned, const std::string &key, RefreshPlan::Start start, Fetch fetch);

    Clock m_clock;
    Base::Serial<Owned> m_owned{Owned{}};
};

} // namespace KestCore
