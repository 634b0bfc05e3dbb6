// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Models/DevotionalState.h"

#include "KestCore/Models/TimeOfDay.h"

#include <gmock/gmock.h>

#include <functional>
#include <limits>

namespace KestCoreTests
{

using namespace KestCore;

namespace
{

using State = DevotionalState;

const KestError kInvalid =
    KestError::invalidData("Invalid devotional data; existing data has been preserved.");

struct Case {
    const char *name;
    std::function<void(State &)> change;
};

void expectAccepted(std::initializer_list<Case> cases)
{
    for (const auto &[name, change] : cases) {
        State state = defaultDevotionalState();
        change(state);
        EXPECT_TRUE(validate(state)) << name;
    }
}

void expectRefused(std::initializer_list<Case> cases)
{
    for (const auto &[name, change] : cases) {
        State state = defaultDevotionalState();
        change(state);
        EXPECT_EQ(validate(state), Result<void>{std::unexpected(kInvalid)}) << name;
    }
}

SessionRecord record()
{
    return {.id = "r", .dhikrId = "subhanallah", .count = 1, .endedAt = 0};
}

Base::SharedList<SessionRecord> records(std::size_t count, const SessionRecord &last)
{
    std::vector<SessionRecord> list(count, record());
    list.back() = last;
    return Base::SharedList{std::move(list)};
}

std::string repeated(std::string_view text, std::size_t times)
{
    std::string all;
    while (times-- > 0) {
        all += text;
    }
    return all;
}

} // namespace

TEST(DevotionalState, AcceptsTheLimits)
{
    expectAccepted({
        {"default", [](State &) {}},
        {"revision", [](State &s) { s.revision = 0; }},
        {"expanded names", [](State &s) { s.mode = "expanded", s.tab = "names"; }},
        {"highest count", [](State &s) { s.session.count = 1'000'000'000; }},
        {"negative count", [](State &s) { s.session.count = -1; }},
        {"no target", [](State &s) { s.session.target.reset(); }},
        {"target 1", [](State &s) { s.session.target = 1; }},
        {"target 1000000", [](State &s) { s.session.target = 1'000'000; }},
        {"100 letters", [](State &s) { s.session.id = repeated("\u00E9", 100); }},
        {"1000 undos", [](State &s) { s.session.history.assign(1000, 1'000'000'000); }},
        {"completed", [](State &s) { s.session.completedTargets = {1, 1'000'000}; }},
        {"no favourites", [](State &s) { s.favorites = {}; }},
        {"100000 records", [](State &s) { s.records = records(100'000, record()); }},
        {"record of 0", [](State &s) { s.records = records(1, {"", "salawat", 0, -5, -1e9}); }},
        {"interval 1", [](State &s) { s.preferences.reminderInterval = 1; }},
        {"interval 1440", [](State &s) { s.preferences.reminderInterval = 1440; }},
        {"rotation 1", [](State &s) { s.preferences.rotationMinutes = 1; }},
        {"rotation 1440", [](State &s) { s.preferences.rotationMinutes = 1440; }},
        {"weekdays", [](State &s) { s.preferences.weekdays = {6, 0, 0}; }},
        {"1000 targets", [](State &s) { s.preferences.savedTargets.assign(1000, 1'000'000); }},
        {"words",
         [](State &s) {
             s.preferences.textSize = "large", s.preferences.pinMode = "favourites";
             s.preferences.pinDisplay = "meaning", s.preferences.pinSize = "mini";
             s.preferences.pinnedReminder = "nothing";
         }},
        {"hours backwards",
         [](State &s) {
             s.preferences.activeHoursStart = "23:59", s.preferences.activeHoursEnd = "0:00";
         }},
        {"any status", [](State &s) { s.notificationStatus = "whatever"; }},
    });
}

TEST(DevotionalState, RefusesASessionOrRecordThatBreaksARule)
{
    constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    expectRefused({
        {"schema 1", [](State &s) { s.schemaVersion = 1; }},
        {"schema 3", [](State &s) { s.schemaVersion = 3; }},
        {"revision -1", [](State &s) { s.revision = -1; }},
        {"mode", [](State &s) { s.mode = "Pinned"; }},
        {"tab", [](State &s) { s.tab = ""; }},
        {"a Name as phrase", [](State &s) { s.selectedDhikrId = "ar-rahman"; }},
        {"a phrase as Name", [](State &s) { s.selectedNameId = "subhanallah"; }},
        {"count", [](State &s) { s.session.count = 1'000'000'001; }},
        {"target 0", [](State &s) { s.session.target = 0; }},
        {"target -1", [](State &s) { s.session.target = -1; }},
        {"target 1000001", [](State &s) { s.session.target = 1'000'001; }},
        {"no session id", [](State &s) { s.session.id = ""; }},
        {"101 letters", [](State &s) { s.session.id = repeated("x", 101); }},
        {"1001 undos", [](State &s) { s.session.history.assign(1001, 1); }},
        {"undo count", [](State &s) { s.session.history = {1, 1'000'000'001}; }},
        {"completed 0", [](State &s) { s.session.completedTargets = {1, 0}; }},
        {"completed 1000001", [](State &s) { s.session.completedTargets = {1'000'001}; }},
        {"favourite", [](State &s) { s.favorites = {"salawat", "ar-rahman"}; }},
        {"100001 records", [](State &s) { s.records = records(100'001, record()); }},
        {"record's phrase", [](State &s) { s.records = records(3, {"r", "gone", 1, {}, 0}); }},
        {"record's count",
         [](State &s) { s.records = records(3, {"r", "salawat", -1, {}, 0}); }},
        {"record's end",
         [=](State &s) { s.records = records(3, {"r", "salawat", 1, {}, kNaN}); }},
        {"endless",
         [=](State &s) { s.records = records(1, {"r", "salawat", 1, {}, kInfinity}); }},
    });
}

TEST(DevotionalState, RefusesPreferencesThatBreakARule)
{
    expectRefused({
        {"textSize", [](State &s) { s.preferences.textSize = "mini"; }},
        {"pinMode", [](State &s) { s.preferences.pinMode = "favorites"; }},
        {"pinDisplay", [](State &s) { s.preferences.pinDisplay = "translation"; }},
        {"pinSize", [](State &s) { s.preferences.pinSize = "small"; }},
        {"interval 0", [](State &s) { s.preferences.reminderInterval = 0; }},
        {"interval 1441", [](State &s) { s.preferences.reminderInterval = 1441; }},
        {"rotation 0", [](State &s) { s.preferences.rotationMinutes = 0; }},
        {"rotation 1441", [](State &s) { s.preferences.rotationMinutes = 1441; }},
        {"weekday 7", [](State &s) { s.preferences.weekdays = {0, 7}; }},
        {"weekday -1", [](State &s) { s.preferences.weekdays = {-1}; }},
        {"pinnedReminder", [](State &s) { s.preferences.pinnedReminder = "none"; }},
        {"1001 targets", [](State &s) { s.preferences.savedTargets.assign(1001, 1); }},
        {"saved 0", [](State &s) { s.preferences.savedTargets = {33, 0}; }},
        {"saved 1000001", [](State &s) { s.preferences.savedTargets = {1'000'001}; }},
        {"start", [](State &s) { s.preferences.activeHoursStart = "24:00"; }},
        {"end", [](State &s) { s.preferences.activeHoursEnd = "7"; }},
    });
}

// What passed once is not looked at again, so an entry added later must not slip through.
TEST(DevotionalState, LooksAtRecordsThatWereAddedSinceTheLastValidation)
{
    State state = defaultDevotionalState();
    state.records = records(2, record());
    EXPECT_TRUE(validate(state));
    EXPECT_TRUE(validate(state));
    state.records.append({.id = "r", .dhikrId = "gone"});
    EXPECT_FALSE(validate(state));
    EXPECT_FALSE(validate(state));
}

TEST(DevotionalState, DecodesOnlyWhatKeepsTheRules)
{
    State state = defaultDevotionalState();
    state.records = records(2, record());
    state.pausedUntil = 1.5;
    EXPECT_EQ(decodeDevotionalState(json::PaddedText{json::encode(state).value()}), state);
    state.schemaVersion = 3;
    const auto broken = json::encode(state).value();
    for (const std::string_view text : {std::string_view{broken}, std::string_view{"{}"}}) {
        EXPECT_EQ(decodeDevotionalState(json::PaddedText{text}).error(), kInvalid);
    }
}

TEST(TimeOfDay, NamesAMinuteOfTheDay)
{
    struct Time {
        std::string_view text;
        std::optional<int> minute;
    };
    for (const auto &[text, minute] : {
             Time{"0:00", 0},
             Time{"07:05", 425},
             Time{"23:59", 1439},
             Time{"7:5", 425},
             Time{"0007:0005", 425},
             Time{"0:59", 59},
             Time{"1:00", 60},
             Time{"24:00", {}},
             Time{"7:60", {}},
             Time{"7", {}},
             Time{":30", {}},
             Time{"07:", {}},
             Time{":", {}},
             Time{"", {}},
             Time{"07:30:00", {}},
             Time{"12::30", {}},
             Time{"12:30:", {}},
             Time{":12:30", {}},
             Time{"+7:30", {}},
             Time{"-0:30", {}},
             Time{" 7:30", {}},
             Time{"7:30 ", {}},
             Time{"7.30", {}},
             Time{"\u0667:\u0663\u0660", {}},
             Time{"0x7:30", {}},
             Time{"4294967303:00", {}},
             Time{"18446744073709551616:00", {}},
         }) {
        EXPECT_EQ(minuteOfDay(text), minute) << text;
    }
}

} // namespace KestCoreTests
