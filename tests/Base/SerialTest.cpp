// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Base/Serial.h"

#include <gmock/gmock.h>

#include <atomic>
#include <memory>
#include <optional>
#include <stdexcept>
#include <vector>

namespace BaseTests
{

using Base::Serial;

TEST(Serial, RunsOneAtATimeInTheOrderOfEachCaller)
{
    constexpr int kCallers = 4;
    constexpr int kAsks = 500;
    struct Log {
        std::vector<int> next = std::vector<int>(kCallers, 0);
        int inside = 0; // no lock: the sanitizer would see a second thread
        bool isBroken = false;
    };
    Serial<Log> serial{Log{}};
    {
        std::vector<std::jthread> callers;
        for (std::size_t caller = 0; caller < kCallers; ++caller) {
            callers.emplace_back([&serial, caller] {
                for (int i = 0; i < kAsks; ++i) {
                    serial
                        .ask([caller, i](Log &log) {
                            log.isBroken |= ++log.inside != 1 || log.next[caller]++ != i;
                            --log.inside;
                        })
                        .wait();
                }
            });
        }
    }
    const Log log = serial.ask([](Log &owned) { return owned; }).get();
    EXPECT_EQ(log.next, std::vector<int>(kCallers, kAsks));
    EXPECT_FALSE(log.isBroken);
}

TEST(Serial, KeepsTheOrderOfWhatWaits)
{
    std::promise<void> gate;
    Serial<std::vector<int>> serial{{}};
    (void)serial.ask([opened = gate.get_future()](auto &) { opened.wait(); });
    for (int i = 0; i < 100; ++i) {
        (void)serial.ask([i](std::vector<int> &seen) { seen.push_back(i); });
    }
    gate.set_value();
    const auto seen = serial.ask([](auto &owned) { return owned; }).get();
    ASSERT_EQ(seen.size(), 100U);
    EXPECT_TRUE(std::ranges::is_sorted(seen));
}

TEST(Serial, RunsAllThatItAcceptedBeforeItGoes)
{
    std::atomic<int> ran = 0;
    std::promise<void> gate;
    std::optional<Serial<int>> serial{std::in_place, 0};
    (void)serial->ask([opened = gate.get_future()](int &) { opened.wait(); });
    for (int i = 0; i < 100; ++i) {
        (void)serial->ask([&ran](int &) { ++ran; });
    }
    const std::jthread opener{[&gate] { gate.set_value(); }};
    serial.reset();
    EXPECT_EQ(ran, 100);
}

TEST(Serial, HandsResultsToTheExecutor)
{
    using Owned = std::unique_ptr<int>; // neither copied on its way in nor out
    std::vector<std::move_only_function<void()>> posted;
    std::thread::id doneOn;
    int answer = 0;
    Serial<Owned> serial{std::make_unique<int>(41)};
    serial.ask([](Owned &owned) { return std::make_unique<int>(*owned + 1); },
               [&posted](auto work) { posted.emplace_back(std::move(work)); },
               [&](Owned value) {
                   answer = *value;
                   doneOn = std::this_thread::get_id();
               });
    serial.ask([](Owned &) {}).wait(); // the first has been posted by now
    ASSERT_EQ(posted.size(), 1U);
    EXPECT_EQ(answer, 0);
    posted.front()();
    EXPECT_EQ(answer, 42);
    EXPECT_EQ(doneOn, std::this_thread::get_id());
}

TEST(Serial, GivesExceptionsToTheFutureAndGoesOn)
{
    Serial<int> serial{1};
    auto failed = serial.ask([](int &) -> int { throw std::runtime_error{"no"}; });
    EXPECT_THROW((void)failed.get(), std::runtime_error);
    EXPECT_EQ(serial.ask([](int &owned) { return owned; }).get(), 1);
}

TEST(Serial, DropsWhatAnOperationHeldBeforeTheNextRuns)
{
    Serial<int> serial{0};
    auto held = std::make_shared<int>(1);
    const std::weak_ptr<int> watch = held;
    (void)serial.ask([held = std::move(held)](int &owned) { owned = *held; });
    EXPECT_TRUE(serial.ask([&watch](int &) { return watch.expired(); }).get());
}

TEST(SerialDeathTest, EndsTheProgramWhenNobodyCanHearTheException)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_DEATH(
        {
            Serial<int> serial{0};
            serial.ask([](int &) -> int { throw std::runtime_error{"nobody hears"}; },
                       [](auto work) { work(); }, [](int) {});
        },
        "nobody hears");
}

} // namespace BaseTests
