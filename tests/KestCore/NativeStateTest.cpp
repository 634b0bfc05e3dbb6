// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Models/NativeState.h"

#include "KestCore/Registry/ToolRegistry.h"
#include "tests/KestCore/JsonKeys.h"

#include <gmock/gmock.h>

#include <functional>
#include <set>

namespace KestCoreTests
{

using namespace KestCore;

namespace
{

using State = NativeState;

const KestError kInvalidNative = KestError::invalidData("Invalid native settings");
const KestError kInvalidDevotional =
    KestError::invalidData("Invalid devotional data; existing data has been preserved.");

struct Case {
    const char *name;
    std::function<void(State &)> change;
};

Result<void> verdictAfter(const Case &test)
{
    State state = defaultNativeState();
    test.change(state);
    return validate(state);
}

Settings settings(std::size_t count)
{
    Settings all;
    while (all.size() < count) {
        all.emplace("key" + std::to_string(all.size()), "");
    }
    return all;
}

std::string twoByteLetters(std::size_t count)
{
    std::string text;
    while (count-- > 0) {
        text += "\u00E9";
    }
    return text;
}

// Has every optional member.
State fullState()
{
    State state = defaultNativeState();
    state.devotional.session.startedAt = 1.5;
    state.devotional.records = Base::SharedList<SessionRecord>{
        {{.id = "r", .dhikrId = "salawat", .count = 1, .target = 1, .endedAt = 2}}};
    state.devotional.pausedUntil = 3;
    state.displayID = 4'294'967'295;
    return state;
}

} // namespace

TEST(NativeState, AcceptsTheLimits)
{
    const Case cases[] = {
        {"default", [](State &) {}},
        {"nothing enabled", [](State &s) { s.enabled = s.order = s.navigationFavorites = {}; }},
        {"faith and home",
         [](State &s) { s.enabled = s.order = {"home", "dhikr", "settings"}; }},
        {"duplicates", [](State &s) { s.navigationFavorites = {"dhikr", "dhikr"}; }},
        {"pin to anything", [](State &s) { s.pin = {"settings", ""}; }},
        {"500 settings", [](State &s) { s.settings = settings(500); }},
        {"key of 100", [](State &s) { s.settings = {{twoByteLetters(100), ""}}; }},
        {"value of 100000", [](State &s) { s.settings = {{"", twoByteLetters(100'000)}}; }},
    };
    for (const Case &test : cases) {
        EXPECT_TRUE(verdictAfter(test)) << test.name;
    }
}

TEST(NativeState, RefusesWhatBreaksARule)
{
    const Case cases[] = {
        {"version 2", [](State &s) { s.version = 2; }},
        {"version 4", [](State &s) { s.version = 4; }},
        {"revision", [](State &s) { s.revision = -1; }},
        {"enabled", [](State &s) { s.enabled.emplace_back("Dhikr"); }},
        {"order", [](State &s) { s.order.insert(s.order.begin(), ""); }},
        {"favourites", [](State &s) { s.navigationFavorites.emplace_back("tools"); }},
        {"pin", [](State &s) { s.pin.tool = "subhanallah"; }},
        {"501 settings", [](State &s) { s.settings = settings(501); }},
        {"key of 101", [](State &s) { s.settings = {{std::string(101, 'k'), ""}}; }},
        {"key of 101 letters", [](State &s) { s.settings = {{twoByteLetters(101), ""}}; }},
        {"value of 100001", [](State &s) { s.settings = {{"", std::string(100'001, 'v')}}; }},
        {"both wrong", [](State &s) { s.version = s.devotional.schemaVersion = 9; }},
    };
    for (const Case &test : cases) {
        const auto verdict = verdictAfter(test);
        ASSERT_FALSE(verdict) << test.name;
        EXPECT_EQ(verdict.error(), kInvalidNative) << test.name;
    }
    const Case devotional{"devotional", [](State &s) { s.devotional.tab = "tools"; }};
    EXPECT_EQ(verdictAfter(devotional).error(), kInvalidDevotional);
}

TEST(NativeState, WritesItsKeysInTheirOrder)
{
    EXPECT_EQ(joinedKeys(json::encode(fullState()).value()),
              "version revision migrated devotional schemaVersion revision migrated mode tab "
              "selectedDhikrId selectedNameId session id count target isPaused history "
              "completedTargets startedAt favorites preferences showTransliteration "
              "showTranslation textSize reminderEnabled reminderInterval activeHoursStart "
              "activeHoursEnd soundEnabled completionSound reminderSound pinEnabled pinMode "
              "pinDisplay pinSize rotationMinutes weekdays pinnedReminder historyEnabled "
              "savedTargets onboardingComplete records id dhikrId count target endedAt "
              "pausedUntil presentation notificationStatus enabled order navigationFavorites "
              "pin tool item displayID settings");
}

TEST(NativeState, NeedsEveryKeyButTheOptionalOnes)
{
    const std::set<std::string> optional{"target", "startedAt", "pausedUntil", "displayID"};
    const auto text = json::encode(fullState()).value();
    EXPECT_EQ(decodeNativeState(json::PaddedText{text}), fullState());
    for (const KeyPlace &place : keysOf(text)) {
        const auto decoded = decodeNativeState(json::PaddedText{without(text, place)});
        EXPECT_EQ(decoded.has_value(), optional.contains(place.key)) << place.key;
        if (!decoded) {
            EXPECT_EQ(decoded.error(), kInvalidNative);
        }
    }
}

TEST(NativeState, SurvivesDamageToItsDocument)
{
    const auto text = json::encode(fullState()).value();
    for (std::size_t length = 0; length < text.size(); ++length) {
        EXPECT_FALSE(decodeNativeState(json::PaddedText{text.substr(0, length)})) << length;
    }
    for (std::size_t bit = 0; bit < text.size() * 8; ++bit) {
        std::string damaged = text;
        damaged[bit / 8] = static_cast<char>(damaged[bit / 8] ^ (1 << (bit % 8)));
        if (const auto decoded = decodeNativeState(json::PaddedText{damaged})) {
            const auto again = json::encode(*decoded).value();
            EXPECT_EQ(decodeNativeState(json::PaddedText{again}), decoded) << damaged;
        }
    }
}

TEST(NativeState, StartsWithEveryToolInOrderAndTheQuietOnesEnabled)
{
    const State state = defaultNativeState();
    EXPECT_EQ(state.devotional, defaultDevotionalState());
    EXPECT_EQ(state.order.size(), ToolRegistry::tools().size());
    EXPECT_EQ(state.order.front(), ToolRegistry::tools().front().id);
    EXPECT_EQ(state.pin, (Pin{"dhikr", "subhanallah"}));
    const std::set<std::string> enabled{state.enabled.begin(), state.enabled.end()};
    for (const char *quiet : {"home", "dhikr", "prayer", "notes", "timers", "settings"}) {
        EXPECT_TRUE(enabled.contains(quiet)) << quiet;
    }
    for (const char *busy : {"clipboard", "weather", "stats", "screen-time", "claude"}) {
        EXPECT_FALSE(enabled.contains(busy)) << busy;
    }
}

TEST(NativeState, TakesOnlyTheWordTrueForTrue)
{
    const Settings all{{"a", "true"}, {"b", "True"}, {"c", "1"}, {"d", ""}, {"e", "true "}};
    EXPECT_TRUE(settingIsTrue(all, "a"));
    for (const char *key : {"b", "c", "d", "e", "missing"}) {
        EXPECT_FALSE(settingIsTrue(all, key)) << key;
    }
}

} // namespace KestCoreTests
