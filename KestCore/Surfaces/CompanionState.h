// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Instant.h"
#include "KestCore/Vocabulary.h"

#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

// The companion dock, its workspaces and the keyboard shortcuts: one document.
namespace KestCore
{

// Which surfaces the pinned content shows on.
enum class CompanionPlacement : std::uint8_t { notch, side, both };

constexpr auto enumTexts(Of<CompanionPlacement>)
{
    using enum CompanionPlacement;
    return Base::EnumTexts<CompanionPlacement, 3>{
        {{notch, "notch"}, {side, "side"}, {both, "both"}}};
}

struct DockPreferences {
    bool enabled = false;
    std::string edge = "right"; // left, right, bottom
    std::string mode = "pill";
    bool hover = false;
    std::string iconSize = "small"; // mini, small, medium, large
    std::string material = "frosted";
    bool floating = true;
    bool magnification = false;
    std::string accent = "sage";
    CompanionPlacement placement = CompanionPlacement::notch;
    bool pinOnSide = false;
    std::optional<std::string> panelSize{}; // mini, small, medium, large, compact, comfortable

    bool operator==(const DockPreferences &) const = default;
};

consteval auto jsonFields(Of<DockPreferences>)
{
    using R = DockPreferences;
    return std::tuple{
        json::Field{"enabled", &R::enabled},
        json::Field{"edge", &R::edge},
        json::Field{"mode", &R::mode},
        json::Field{"hover", &R::hover},
        json::Field{"iconSize", &R::iconSize},
        json::Field{"material", &R::material},
        json::Field{"floating", &R::floating},
        json::Field{"magnification", &R::magnification},
        json::Field{"accent", &R::accent},
        json::Field{"placement", &R::placement},
        json::Field{"pinOnSide", &R::pinOnSide},
        json::Field{"panelSize", &R::panelSize},
    };
}
static_assert(json::coversAllMembers<DockPreferences>());

enum class DockItemKind : std::uint8_t { app, link, file, tool, divider };

constexpr auto enumTexts(Of<DockItemKind>)
{
    using enum DockItemKind;
    return Base::EnumTexts<DockItemKind, 5>{
        {{app, "app"}, {link, "link"}, {file, "file"}, {tool, "tool"}, {divider, "divider"}}};
}

enum class ItemLifetime : std::uint8_t { permanent, hour, session };

constexpr auto enumTexts(Of<ItemLifetime>)
{
    using enum ItemLifetime;
    return Base::EnumTexts<ItemLifetime, 3>{
        {{permanent, "permanent"}, {hour, "hour"}, {session, "session"}}};
}

struct DockItem {
    std::string id{};
    DockItemKind kind{};
    std::string title{};
    std::string target{};                  // what it opens
    std::optional<Base::Bytes> bookmark{}; // how a platform finds a file that moved
    ItemLifetime lifetime{};
    Base::Instant createdAt{};
    std::optional<std::string> sessionID{}; // the run of the application that made it

    bool operator==(const DockItem &) const = default;
};

consteval auto jsonFields(Of<DockItem>)
{
    using R = DockItem;
    return std::tuple{
        json::Field{"id", &R::id},
        json::Field{"kind", &R::kind},
        json::Field{"title", &R::title},
        json::Field{"target", &R::target},
        json::Field{"bookmark", &R::bookmark},
        json::Field{"lifetime", &R::lifetime},
        json::Field{"createdAt", &R::createdAt},
        json::Field{"sessionID", &R::sessionID},
    };
}
static_assert(json::coversAllMembers<DockItem>());

// Whether the item's time is over at `now` in the run of the application named by
// `currentSession`.
bool isExpired(const DockItem &item, Base::Instant now, std::string_view currentSession);

struct Workspace {
    std::string id{};
    std::string name{};
    std::vector<DockItem> items{};
    std::vector<std::string> homeWidgets{}; // tool ids

    bool operator==(const Workspace &) const = default;
};

consteval auto jsonFields(Of<Workspace>)
{
    using R = Workspace;
    return std::tuple{json::Field{"id", &R::id}, json::Field{"name", &R::name},
                      json::Field{"items", &R::items},
                      json::Field{"homeWidgets", &R::homeWidgets}};
}
static_assert(json::coversAllMembers<Workspace>());

enum class ShortcutModifier : std::uint8_t { control, option, command, shift };

constexpr auto enumTexts(Of<ShortcutModifier>)
{
    using enum ShortcutModifier;
    return Base::EnumTexts<ShortcutModifier, 4>{
        {{control, "control"}, {option, "option"}, {command, "command"}, {shift, "shift"}}};
}

struct ShortcutBinding {
    std::string id{};
    std::string target{};   // a surface or a tool id
    std::int64_t keyCode{}; // the platform's virtual key code
    std::set<ShortcutModifier> modifiers{};

    bool operator==(const ShortcutBinding &) const = default;
};

consteval auto jsonFields(Of<ShortcutBinding>)
{
    using R = ShortcutBinding;
    return std::tuple{json::Field{"id", &R::id}, json::Field{"target", &R::target},
                      json::Field{"keyCode", &R::keyCode},
                      json::Field{"modifiers", &R::modifiers}};
}
static_assert(json::coversAllMembers<ShortcutBinding>());

struct CompanionState {
    std::int64_t schemaVersion = 1;
    DockPreferences dock{};
    std::string selectedWorkspaceID{};
    std::vector<Workspace> workspaces{};
    std::vector<ShortcutBinding> shortcuts{};
    std::int64_t prayerBufferMinutes = 5; // a focus period ends so long before the prayer

    bool operator==(const CompanionState &) const = default;
};

consteval auto jsonFields(Of<CompanionState>)
{
    using R = CompanionState;
    return std::tuple{
        json::Field{"schemaVersion", &R::schemaVersion},
        json::Field{"dock", &R::dock},
        json::Field{"selectedWorkspaceID", &R::selectedWorkspaceID},
        json::Field{"workspaces", &R::workspaces},
        json::Field{"shortcuts", &R::shortcuts},
        json::Field{"prayerBufferMinutes", &R::prayerBufferMinutes},
    };
}
static_assert(json::coversAllMembers<CompanionState>());

// The document of a first run; `faithHomeWidgets` are the widgets of its first workspace.
CompanionState defaultCompanionState(std::vector<std::string> faithHomeWidgets = {"stats",
                                                                                  "weather"});

// For a document that the user hands in or the application saves: fails with invalidData
// "Invalid companion data; existing data has been preserved." for another schema version, a
// tool id that nobody knows, two workspaces of one id, or a selection that is not there.
[[nodiscard]] Result<void> validate(const CompanionState &state);

// For the stored document: what `validate` would refuse is mended in memory (unknown tools
// dropped, the first of two workspaces kept, the first one selected, the default workspaces
// for none at all). Fails with the same message when it does not decode, and as unavailable
// for a newer schema version, so that nothing of a newer build is ever overwritten.
[[nodiscard]] Result<CompanionState> readStoredCompanion(const json::PaddedText &text);

} // namespace KestCore
