// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Registry/RefreshCoordinator.h"

#include <gmock/gmock.h>

#include <pthread.h>

#include <atomic>
#include <stdexcept>

namespace KestCoreTests
{

using namespace KestCore;
using Base::Bytes;
using Base::KestError;
using Base::Seconds;

namespace
{

const KestError kCancelled = KestError::unavailable("The refresh was cancelled.");

Base::Instant at(double seconds) { return Base::fromSeconds1970(seconds); }

// What a caller was told, in order.
struct Told {
    std::vector<std::string> answers;

    RefreshPlan::Waiter waiter(std::string name)
    {
        return [this, name = std::move(name)](const FetchAnswer &answer) {
            answers.push_back(name + ":" +
                              (answer ? std::string{(*answer)->begin(), (*answer)->end()}
                                      : answer.error().message));
        };
    }
    std::vector<std::string> take() { return std::exchange(answers, {}); }
};

Bytes bytes(std::string_view text) { return {text.begin(), text.end()}; }

using testing::ElementsAre;

} // namespace

TEST(RefreshPlan, LetsOneFetchAnswerAllAndKeepsItForItsLifetime)
{
    RefreshPlan plan;
    Told told;
    const auto first = plan.request("a", at(100), Seconds{10}, told.waiter("1"));
    ASSERT_TRUE(first);
    EXPECT_FALSE(plan.request("a", at(101), Seconds{10}, told.waiter("2")));
    EXPECT_TRUE(plan.request("b", at(101), Seconds{10}, told.waiter("b")));
    EXPECT_THAT(told.take(), ElementsAre());
    plan.finish("a", first->generation, bytes("x"), at(102));
    EXPECT_THAT(told.take(), ElementsAre("1:x", "2:x"));

    EXPECT_FALSE(plan.request("a", at(111.9), Seconds{10}, told.waiter("3")));
    EXPECT_THAT(told.take(), ElementsAre("3:x"));
    EXPECT_TRUE(plan.request("a", at(112), Seconds{10}, told.waiter("4"))); // just too old
    EXPECT_THAT(told.take(), ElementsAre());
    // Whoever accepts an older result still gets it, beside the fetch that runs.
    EXPECT_FALSE(plan.request("a", at(112), Seconds{60}, told.waiter("5")));
    EXPECT_THAT(told.take(), ElementsAre("5:x"));
}

TEST(RefreshPlan, TrustsNoResultFromTheFuture)
{
    RefreshPlan plan;
    Told told;
    const auto start = plan.request("a", at(100), Seconds{10}, told.waiter("1"));
    plan.finish("a", start->generation, bytes("x"), at(100));
    EXPECT_TRUE(plan.request("a", at(99), Seconds{10}, told.waiter("2")));
}

TEST(RefreshPlan, TellsFailuresAndKeepsWhatItHad)
{
    RefreshPlan plan;
    Told told;
    auto start = plan.request("a", at(0), Seconds{10}, told.waiter("1"));
    plan.finish("a", start->generation, bytes("x"), at(0));
    start = plan.request("a", at(20), Seconds{10}, told.waiter("2"));
    plan.finish("a", start->generation, std::unexpected(KestError::unavailable("gone")),
                at(21));
    EXPECT_THAT(told.take(), ElementsAre("1:x", "2:gone"));
    EXPECT_FALSE(plan.request("a", at(22), Seconds{60}, told.waiter("3")));
    EXPECT_TRUE(plan.request("a", at(22), Seconds{10}, told.waiter("4"))); // tried again
}

TEST(RefreshPlan, DropsWhatACancelledFetchBrings)
{
    RefreshPlan plan;
    Told told;
    const auto old = plan.request("a", at(0), Seconds{10}, told.waiter("1"));
    plan.cancel("a");
    plan.cancel("nobody");
    EXPECT_TRUE(old->stop.stop_requested());
    EXPECT_THAT(told.take(), ElementsAre("1:" + kCancelled.message));
    const auto fresh = plan.request("a", at(1), Seconds{10}, told.waiter("2"));
    ASSERT_TRUE(fresh);
    EXPECT_FALSE(fresh->stop.stop_requested());
    plan.finish("a", old->generation, bytes("old"), at(2));
    EXPECT_THAT(told.take(), ElementsAre());
    plan.finish("a", fresh->generation, bytes("new"), at(3));
    EXPECT_THAT(told.take(), ElementsAre("2:new"));
}

TEST(RefreshPlan, MayBeAskedAgainFromAnAnswer)
{
    RefreshPlan plan;
    Told told;
    std::optional<RefreshPlan::Start> again;
    const auto start = plan.request("a", at(0), Seconds{0}, [&](const FetchAnswer &) {
        again = plan.request("a", at(1), Seconds{0}, told.waiter("again"));
    });
    plan.finish("a", start->generation, bytes("x"), at(1));
    ASSERT_TRUE(again);
    plan.finish("a", again->generation, bytes("y"), at(2));
    EXPECT_THAT(told.take(), ElementsAre("again:y"));
}

TEST(RefreshPlan, ForgetsTheOldestResultsBeyondItsBounds)
{
    RefreshPlan plan;
    Told told;
    const auto fetch = [&](const std::string &key, double now, Bytes result) {
        const auto start = plan.request(key, at(now), Seconds{0}, told.waiter(key));
        plan.finish(key, start->generation, std::move(result), at(now));
    };
    const auto isCached = [&](const std::string &key) {
        return !plan.request(key, at(1000), Seconds{1e9}, told.waiter(key));
    };
    for (std::size_t n = 0; n <= RefreshPlan::kMostCached; ++n) {
        fetch(std::to_string(n), static_cast<double>(n), bytes("x"));
    }
    EXPECT_FALSE(isCached("0"));
    EXPECT_TRUE(isCached("1"));
    fetch("large", 500, Bytes(RefreshPlan::kMostCachedBytes - 1));
    EXPECT_FALSE(isCached("2"));
    EXPECT_TRUE(isCached(std::to_string(RefreshPlan::kMostCached)));
    EXPECT_TRUE(isCached("large"));
}

TEST(RefreshCoordinator, FetchesOnceForManyThreads)
{
    RefreshCoordinator coordinator;
    std::atomic<int> fetches = 0;
    std::promise<void> gate;
    const auto opened = gate.get_future().share();
    const auto fetch = [&, opened](const std::stop_token &) -> Result<Bytes> {
        ++fetches;
        opened.wait();
        return bytes("x");
    };
    std::vector<std::future<FetchAnswer>> answers(64);
    {
        std::vector<std::jthread> callers;
        for (std::size_t n = 0; n < 8; ++n) {
            callers.emplace_back([&, n] {
                for (std::size_t i = n; i < answers.size(); i += 8) {
                    answers[i] = coordinator.refresh("k", Seconds{60}, fetch);
                }
            });
        }
    }
    gate.set_value();
    for (auto &answer : answers) {
        EXPECT_EQ(*answer.get().value(), bytes("x"));
    }
    EXPECT_EQ(fetches, 1);
}

TEST(RefreshCoordinator, StopsWhatRunsWhenCancelledAndWhenItGoes)
{
    const auto untilStopped = [](const std::stop_token &stop) -> Result<Bytes> {
        std::mutex mutex;
        std::condition_variable_any wake;
        std::unique_lock lock{mutex};
        wake.wait(lock, stop, [] { return false; });
        return bytes("late");
    };
    std::future<FetchAnswer> last;
    {
        RefreshCoordinator coordinator;
        auto first = coordinator.refresh("a", Seconds{60}, untilStopped);
        auto other = coordinator.refresh("b", Seconds{60}, untilStopped);
        coordinator.cancel("a").get();
        EXPECT_EQ(first.get().error(), kCancelled);
        EXPECT_EQ(other.wait_for(std::chrono::seconds{0}), std::future_status::timeout);
        // The slot is free at once, and the cancelled fetch's "late" never becomes its answer.
        auto again = coordinator.refresh("a", Seconds{60}, [](const std::stop_token &) {
            return Result<Bytes>{bytes("fresh")};
        });
        EXPECT_EQ(*again.get().value(), bytes("fresh"));
        last = coordinator.refresh("c", Seconds{60}, untilStopped);
    }
    EXPECT_EQ(last.get().error(), kCancelled);
}

TEST(RefreshCoordinator, AnswersWhenAFetchThrowsOrCannotStart)
{
    RefreshCoordinator coordinator;
    const auto fetch = [](const std::stop_token &) { return Result<Bytes>{bytes("x")}; };
    auto thrown =
        coordinator.refresh("a", Seconds{60}, [](const std::stop_token &) -> Result<Bytes> {
            throw std::runtime_error("the library gave up");
        });
    EXPECT_EQ(thrown.get().error(), KestError::unavailable("the library gave up"));

    pthread_attr_t usual;
    pthread_attr_t huge;
    ASSERT_EQ(pthread_getattr_default_np(&usual), 0);
    ASSERT_EQ(pthread_attr_init(&huge), 0);
    ASSERT_EQ(pthread_attr_setstacksize(&huge, std::size_t{1} << 60), 0);
    ASSERT_EQ(pthread_setattr_default_np(&huge), 0);
    auto refused = coordinator.refresh("a", Seconds{60}, fetch);
    EXPECT_EQ(refused.get().error().kind, KestError::Kind::unavailable);
    ASSERT_EQ(pthread_setattr_default_np(&usual), 0);
    pthread_attr_destroy(&huge);
    pthread_attr_destroy(&usual);
    EXPECT_EQ(*coordinator.refresh("a", Seconds{60}, fetch).get().value(), bytes("x"));
}

} // namespace KestCoreTests
