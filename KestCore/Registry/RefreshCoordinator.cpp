// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Registry/RefreshCoordinator.h"

#include <exception>
#include <system_error>
#include <utility>

namespace KestCore
{

namespace
{

// What a library below the fetch throws is a failed fetch, not the end of the program.
Result<Base::Bytes> runFetch(const RefreshCoordinator::Fetch &fetch,
                             const std::stop_token &stop)
{
    try {
        return fetch(stop);
    } catch (const std::exception &error) {
        return std::unexpected(Base::KestError::unavailable(error.what()));
    }
}

} // namespace

RefreshCoordinator::RefreshCoordinator(Clock clock) : m_clock(std::move(clock)) {}

RefreshCoordinator::~RefreshCoordinator()
{
    auto threads = m_owned
                       .ask([](Owned &owned) {
                           owned.plan.cancelAll();
                           return std::exchange(owned.threads, {});
                       })
                       .get();
    threads.clear(); // joins them, while the queue still takes what they report
}

std::future<FetchAnswer> RefreshCoordinator::refresh(std::string key, Base::Seconds lifetime,
                                                     Fetch fetch)
{
    std::promise<FetchAnswer> promise;
    auto answer = promise.get_future();
    refresh(std::move(key), lifetime, std::move(fetch),
            [promise = std::move(promise)](const FetchAnswer &result) mutable {
                promise.set_value(result);
            });
    return answer;
}

void RefreshCoordinator::refresh(std::string key, Base::Seconds lifetime, Fetch fetch,
                                 RefreshPlan::Waiter done)
{
    (void)m_owned.ask([this, key = std::move(key), lifetime, fetch = std::move(fetch),
                       done = std::move(done)](Owned &owned) mutable {
        if (auto next = owned.plan.request(key, m_clock(), lifetime, std::move(done))) {
            start(owned, key, std::move(*next), std::move(fetch));
        }
    });
}

void RefreshCoordinator::start(Owned &owned, const std::string &key, RefreshPlan::Start start,
                               Fetch fetch)
{
    const std::uint64_t number = ++owned.lastThread;
    const auto generation = start.generation;
    const auto run = [this, number, key, start = std::move(start), fetch = std::move(fetch)] {
        auto result = runFetch(fetch, start.stop);
        (void)m_owned.ask([this, number, key, generation = start.generation,
                           result = std::move(result)](Owned &own) mutable {
            own.plan.finish(key, generation, std::move(result), m_clock());
            own.threads.erase(number); // joins a thread whose last act this was
        });
    };
    try {
        owned.threads.emplace(number, run);
    } catch (const std::system_error &error) { // the system gives no more threads
        owned.plan.finish(key, generation,
                          std::unexpected(Base::KestError::unavailable(error.what())),
                          m_clock());
    }
}

std::future<void> RefreshCoordinator::cancel(std::string key)
{
    return m_owned.ask([key = std::move(key)](Owned &owned) { owned.plan.cancel(key); });
}

std::future<void> RefreshCoordinator::cancelAll()
{
    return m_owned.ask([](Owned &owned) { owned.plan.cancelAll(); });
}

} // namespace KestCore
