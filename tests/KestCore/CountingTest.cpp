// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Devotional/Counting.h"

#include <gmock/gmock.h>
#include <rapidcheck/gtest.h>

#include <limits>
#include <set>

namespace KestCoreTests
{

using namespace KestCore;

namespace
{

const Base::Instant kNow = Base::fromMilliseconds1970(1'795'249'800'250.0);
const KestError kInvalid =
    KestError::invalidData("Invalid devotional data; existing data has been preserved.");

DevotionalState freshState(std::optional<std::int64_t> target = std::nullopt)
{
    DevotionalState state = defaultDevotionalState();
    state.session.target = target;
    return state;
}

bool step(DevotionalState &state, const CountAction &action)
{
    return apply(action, kNow, state).value();
}

void increment(DevotionalState &state, int times)
{
    while (times-- > 0) {
        step(state, Increment{});
    }
}

// Applies an action that must fail with this error and change nothing.
void expectRefusal(DevotionalState state, const CountAction &action, const KestError &error)
{
    const DevotionalState before = state;
    const auto result = apply(action, kNow, state);
    ASSERT_FALSE(result);
    EXPECT_EQ(result.error(), error);
    EXPECT_EQ(state, before);
}

rc::Gen<CountAction> anyAction()
{
    using namespace rc;
    const auto target = gen::oneOf(gen::inRange<std::int64_t>(1, 6),
                                   gen::element<std::int64_t>(-1, 0, 1'000'000, 1'000'001));
    return gen::weightedOneOf<CountAction>({
        {8, gen::just(CountAction{Increment{}})},
        {3, gen::just(CountAction{Undo{}})},
        {2, gen::map(target, [](std::int64_t t) { return CountAction{SetTarget{t}}; })},
        {1, gen::just(CountAction{SetTarget{}})},
        {1, gen::just(CountAction{TogglePause{}})},
        {1, gen::just(CountAction{Finish{}})},
        {1, gen::map(gen::arbitrary<bool>(),
                     [](bool sure) { return CountAction{ResetSession{sure}}; })},
    });
}

} // namespace

TEST(Counting, AsksBeforeACountIsGivenUp)
{
    DevotionalState state = freshState(33);
    const std::string first = state.session.id;
    EXPECT_FALSE(step(state, ResetSession{.confirmed = false}));
    EXPECT_NE(state.session.id, first);

    increment(state, 3);
    state.session.completedTargets = {2};
    state.session.isPaused = true;
    expectRefusal(state, ResetSession{.confirmed = false},
                  KestError::invalidData("Confirm before resetting a nonempty session"));
    step(state, ResetSession{.confirmed = true});
    EXPECT_EQ(state.session, (Session{.id = state.session.id, .target = 33}));
    EXPECT_TRUE(state.records.empty());
}

TEST(Counting, TakesTargetsFromOneToAMillion)
{
    DevotionalState state = freshState();
    state.preferences.savedTargets = {99};
    increment(state, 2);
    const Session before = state.session;
    for (const std::int64_t target : {1'000'000, 1, 99, 1, 1'000'000}) {
        EXPECT_FALSE(step(state, SetTarget{target}));
        EXPECT_EQ(state.session.target, target);
    }
    EXPECT_EQ(state.preferences.savedTargets, (std::vector<std::int64_t>{99, 1'000'000, 1}));
    EXPECT_FALSE(step(state, SetTarget{}));
    EXPECT_EQ(state.session, before);

    for (const std::int64_t bad : {std::int64_t{0}, std::int64_t{1'000'001}, std::int64_t{-1},
                                   std::numeric_limits<std::int64_t>::min()}) {
        expectRefusal(state, SetTarget{bad},
                      KestError::invalidData("Target must be between 1 and 1,000,000"));
    }
    state.preferences.savedTargets.assign(1000, 99);
    expectRefusal(state, SetTarget{5}, kInvalid);
    EXPECT_FALSE(step(state, SetTarget{99}));
}

TEST(Counting, TellsOfATargetOnce)
{
    DevotionalState state = freshState(33);
    increment(state, 32);
    EXPECT_EQ(state.session.startedAt, 1'795'249'800'250.0);
    EXPECT_TRUE(step(state, Increment{}));
    EXPECT_EQ(state.session.completedTargets, std::vector<std::int64_t>{33});
    EXPECT_FALSE(step(state, Increment{}));
    step(state, Undo{});
    step(state, Undo{});
    EXPECT_EQ(state.session.count, 32);
    EXPECT_FALSE(step(state, Increment{}));

    step(state, SetTarget{10}); // passed long ago, but never told
    EXPECT_TRUE(step(state, Increment{}));
    EXPECT_EQ(state.session.completedTargets, (std::vector<std::int64_t>{33, 10}));
    step(state, Finish{});
    increment(state, 9);
    EXPECT_TRUE(step(state, Increment{}));
}

TEST(Counting, RemembersAThousandSteps)
{
    DevotionalState state = freshState();
    increment(state, 1005);
    EXPECT_EQ(state.session.history.size(), 1000U);
    EXPECT_EQ(state.session.history.front(), 5);
    for (int i = 0; i < 1000; ++i) {
        step(state, Undo{});
    }
    EXPECT_EQ(state.session.count, 5);
    const Session bottom = state.session;
    step(state, Undo{});
    EXPECT_EQ(state.session, bottom);
    EXPECT_TRUE(bottom.startedAt);
}

TEST(Counting, DoesNothingWhilePaused)
{
    DevotionalState state = freshState(1);
    step(state, TogglePause{});
    EXPECT_TRUE(state.session.isPaused);
    state.tab = "invalid"; // a paused increment does not even validate
    const DevotionalState paused = state;
    EXPECT_FALSE(step(state, Increment{}));
    EXPECT_EQ(state, paused);
    expectRefusal(state, Undo{}, kInvalid);
    state.tab = "dhikr";
    step(state, TogglePause{});
    EXPECT_TRUE(step(state, Increment{}));
}

TEST(Counting, RecordsAFinishedSession)
{
    DevotionalState state = freshState(3);
    state.selectedDhikrId = "salawat";
    increment(state, 4);
    const std::string id = state.session.id;
    step(state, Finish{});
    EXPECT_EQ(state.records.items(),
              (std::vector<SessionRecord>{{.id = id,
                                           .dhikrId = "salawat",
                                           .count = 4,
                                           .target = 3,
                                           .endedAt = 1'795'249'800'250.0}}));
    EXPECT_EQ(state.session, (Session{.id = state.session.id, .target = 3}));
    EXPECT_NE(state.session.id, id);

    const std::string second = state.session.id;
    step(state, Finish{});
    EXPECT_NE(state.session.id, second);
    state.preferences.historyEnabled = false;
    increment(state, 1);
    step(state, Finish{});
    EXPECT_EQ(state.records.size(), 1U);
    EXPECT_EQ(state.session.count, 0);
}

TEST(Counting, RefusesWhatTheStateCannotHold)
{
    DevotionalState highest = freshState(5);
    highest.session.count = 1'000'000'000;
    expectRefusal(highest, Increment{}, kInvalid);

    DevotionalState full = freshState();
    full.records = Base::SharedList{std::vector<SessionRecord>(
        99'999, {.id = "r", .dhikrId = "salawat", .count = 1, .endedAt = 0})};
    increment(full, 1);
    step(full, Finish{});
    EXPECT_EQ(full.records.size(), 100'000U);
    increment(full, 1);
    expectRefusal(full, Finish{}, kInvalid);

    DevotionalState state = freshState();
    increment(state, 1);
    const auto never = Base::fromSeconds1970(std::numeric_limits<double>::infinity());
    const DevotionalState before = state;
    EXPECT_EQ(apply(Finish{}, never, state), Result<bool>{std::unexpected(kInvalid)});
    EXPECT_EQ(state, before);
}

TEST(CountingDeathTest, NeverWrapsTheCountAround)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    DevotionalState state = freshState();
    state.session.count = std::numeric_limits<std::int64_t>::max();
    EXPECT_DEATH((void)apply(Increment{}, kNow, state), "the count has no number after it");
}

RC_GTEST_PROP(Counting, KeepsItsPromisesUnderAnyActions, ())
{
    DevotionalState state = freshState(3);
    const auto undoable = *rc::gen::element<std::size_t>(0, 0, 998);
    state.session.history.assign(undoable, 7);
    std::set<std::pair<std::string, std::int64_t>> told;
    for (const CountAction &action :
         *rc::gen::container<std::vector<CountAction>>(anyAction())) {
        const DevotionalState before = state;
        const auto result = apply(action, kNow, state);
        if (!result) {
            RC_ASSERT(state == before);
            continue;
        }
        RC_ASSERT(validate(state).has_value());
        RC_ASSERT(state.session.history.size() <= 1000U);
        if (*result) {
            RC_ASSERT(std::holds_alternative<Increment>(action));
            RC_ASSERT(told.emplace(state.session.id, state.session.target.value()).second);
        }
        if (!state.session.isPaused && state.session.history.size() < 1000) {
            DevotionalState back = state;
            step(back, Increment{});
            RC_ASSERT(back.session.count == state.session.count + 1);
            step(back, Undo{});
            RC_ASSERT(back.session.count == state.session.count);
            RC_ASSERT(back.session.history == state.session.history);
        }
    }
}

} // namespace KestCoreTests
