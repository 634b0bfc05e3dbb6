// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Surfaces/CompanionState.h"

#include "tests/KestCore/JsonKeys.h"

#include <gmock/gmock.h>

#include <functional>

namespace KestCoreTests
{

using namespace KestCore;

namespace
{

using State = CompanionState;

const KestError kInvalid =
    KestError::invalidData("Invalid companion data; existing data has been preserved.");

std::string toolsOf(const Workspace &workspace)
{
    std::string tools = workspace.id + "/" + workspace.name + ":";
    for (const DockItem &item : workspace.items) {
        EXPECT_EQ(item.kind, DockItemKind::tool);
        EXPECT_EQ(item.lifetime, ItemLifetime::permanent);
        EXPECT_FALSE(item.title.empty());
        tools += " " + item.target;
    }
    tools += " |";
    for (const std::string &widget : workspace.homeWidgets) {
        tools += " " + widget;
    }
    return tools;
}

Result<State> stored(const State &state)
{
    return readStoredCompanion(json::PaddedText{json::encode(state).value()});
}

DockItem fileItem()
{
    return {.id = "f",
            .kind = DockItemKind::file,
            .title = "File",
            .target = "/a",
            .bookmark = Base::Bytes{1, 2},
            .lifetime = ItemLifetime::session,
            .createdAt = Base::fromSeconds2001(1.5),
            .sessionID = "run"};
}

} // namespace

TEST(CompanionState, StartsWithThreeWorkspacesAndTheCommandPalette)
{
    const State state = defaultCompanionState();
    EXPECT_TRUE(validate(state));
    EXPECT_EQ(state.schemaVersion, 1);
    EXPECT_EQ(state.prayerBufferMinutes, 5);
    EXPECT_EQ(state.selectedWorkspaceID, "faith");
    ASSERT_EQ(state.workspaces.size(), 3U);
    EXPECT_EQ(toolsOf(state.workspaces[0]),
              "faith/Faith: dhikr prayer names timers notes | stats weather");
    EXPECT_EQ(toolsOf(state.workspaces[1]),
              "focus/Focus: timers scratchpad shelf music | screen-time weather stats");
    EXPECT_EQ(toolsOf(state.workspaces[2]),
              "coding/Coding: claude stats clipboard shelf | claude stats screen-time");
    ASSERT_EQ(state.shortcuts.size(), 1U);
    EXPECT_EQ(state.shortcuts[0].id, "command");
    EXPECT_EQ(state.shortcuts[0].target, "command");
    EXPECT_EQ(state.shortcuts[0].keyCode, 49);
    EXPECT_EQ(state.shortcuts[0].modifiers.size(), 2U);
    EXPECT_EQ(defaultCompanionState({"units"}).workspaces[0].homeWidgets,
              std::vector<std::string>{"units"});

    const auto dock = json::encode(state).value();
    EXPECT_TRUE(dock.starts_with(
        R"({"schemaVersion":1,"dock":{"enabled":false,"edge":"right","mode":"pill",)"
        R"("hover":false,"iconSize":"small","material":"frosted","floating":true,)"
        R"("magnification":false,"accent":"sage","placement":)"))
        << dock;
}

TEST(CompanionState, RoundTripsWithEveryMember)
{
    State state = defaultCompanionState();
    EXPECT_EQ(stored(state), state);
    state.dock.panelSize = "large";
    state.workspaces[1].items = {fileItem()};
    const auto text = json::encode(state).value();
    EXPECT_EQ(stored(state), state);

    for (const KeyPlace &place : keysOf(text)) {
        const bool isOptional =
            place.key == "panelSize" || place.key == "bookmark" || place.key == "sessionID";
        const auto read = readStoredCompanion(json::PaddedText{without(text, place)});
        EXPECT_EQ(read.has_value(), isOptional) << place.key;
    }
    EXPECT_TRUE(joinedKeys(text).contains(
        "id kind title target bookmark lifetime createdAt sessionID homeWidgets id name"));
}

TEST(CompanionState, RefusesAndMendsTheSameFaults)
{
    struct Case {
        const char *name;
        std::function<void(State &)> spoil;
    };
    const DockItem unknown{.kind = DockItemKind::tool, .target = "x"};
    const Case cases[] = {
        {"item", [&](State &s) { s.workspaces[0].items.push_back(unknown); }},
        {"widget", [](State &s) { s.workspaces[2].homeWidgets.emplace_back("x"); }},
        {"summons", [](State &s) { s.shortcuts.push_back({"x", "nothing", 1, {}}); }},
        {"twice", [](State &s) { s.workspaces.push_back({.id = "faith", .name = "2"}); }},
        {"selection", [](State &s) { s.selectedWorkspaceID = "gone"; }},
        {"nothing", [](State &s) { s.workspaces.clear(); }},
    };
    for (const auto &[name, spoil] : cases) {
        State state = defaultCompanionState();
        spoil(state);
        EXPECT_EQ(validate(state), Result<void>{std::unexpected(kInvalid)}) << name;
        EXPECT_EQ(stored(state), defaultCompanionState()) << name;
    }
    State state = defaultCompanionState();
    state.workspaces.erase(state.workspaces.begin());
    EXPECT_EQ(stored(state).value().selectedWorkspaceID, "focus");
}

TEST(CompanionState, KeepsWhatNamesNoTool)
{
    State state = defaultCompanionState();
    state.workspaces[0].items = {fileItem(),
                                 {.kind = DockItemKind::link, .target = "nothing"},
                                 {.kind = DockItemKind::divider}};
    state.workspaces[0].homeWidgets = {};
    state.shortcuts = {{"a", "notch", 1, {}}, {"b", "dock", 1, {}}, {"c", "prayer", 1, {}}};
    EXPECT_TRUE(validate(state));
    EXPECT_EQ(stored(state), state);
}

TEST(CompanionState, LeavesOtherVersionsAlone)
{
    State state = defaultCompanionState();
    state.schemaVersion = 0;
    EXPECT_EQ(validate(state).error(), kInvalid);
    EXPECT_EQ(stored(state).error(), kInvalid);
    state.schemaVersion = 2;
    EXPECT_EQ(validate(state).error(), kInvalid);
    EXPECT_EQ(stored(state).error().kind, KestError::Kind::unavailable);
    const std::string_view later = R"({"dock":[{"all":"new"}],"schemaVersion":7})";
    EXPECT_EQ(readStoredCompanion(json::PaddedText{later}).error().kind,
              KestError::Kind::unavailable);
    for (const std::string_view broken : {"", "{}", R"({"schemaVersion":1})", "[]"}) {
        EXPECT_EQ(readStoredCompanion(json::PaddedText{broken}).error(), kInvalid) << broken;
    }
}

TEST(DockItem, ExpiresByItsLifetime)
{
    struct Case {
        ItemLifetime lifetime;
        std::optional<std::string> sessionID;
        double age;
        bool expired;
    };
    using enum ItemLifetime;
    for (const auto &[lifetime, sessionID, age, expired] :
         {Case{permanent, "old", 1e9, false}, Case{hour, "old", 3599.5, false},
          Case{hour, "run", 3600, true}, Case{hour, {}, -5, false},
          Case{session, "run", 1e9, false}, Case{session, "old", 0, true},
          Case{session, {}, 0, true}}) {
        const DockItem item{.lifetime = lifetime,
                            .createdAt = Base::fromSeconds2001(0),
                            .sessionID = sessionID};
        EXPECT_EQ(isExpired(item, Base::fromSeconds2001(age), "run"), expired)
            << Base::textOf(lifetime) << " " << age;
    }
}

} // namespace KestCoreTests
