// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Surfaces/CompanionState.h"

#include "Base/JsonReader.h"
#include "Base/JsonWriter.h"
#include "KestCore/Registry/ToolRegistry.h"
#include "KestCore/Surfaces/NotchInteraction.h"

#include <algorithm>
#include <unordered_set>

namespace KestCore
{

namespace
{

constexpr std::int64_t kSchemaVersion = 1;

// The part of the document that every version has.
struct VersionOnly {
    std::int64_t schemaVersion{};
};
consteval auto jsonFields(Of<VersionOnly>)
{
    return std::tuple{json::Field{"schemaVersion", &VersionOnly::schemaVersion}};
}

KestError invalidCompanionData()
{
    return KestError::invalidData("Invalid companion data; existing data has been preserved.");
}

std::string titleOf(std::string_view toolId)
{
    const auto &tools = ToolRegistry::tools();
    const auto tool = std::ranges::find(tools, toolId, &ToolDescriptor::id);
    return tool == tools.end() ? std::string{toolId} : tool->title;
}

// Default items have ids and a date of their own making, so that the default is one value.
Workspace makeWorkspace(std::string id, std::string name,
                        std::initializer_list<std::string_view> tools,
                        std::vector<std::string> homeWidgets)
{
    std::vector<DockItem> items;
    for (const std::string_view tool : tools) {
        items.push_back({.id = id + "." + std::string{tool},
                         .kind = DockItemKind::tool,
                         .title = titleOf(tool),
                         .target = std::string{tool},
                         .lifetime = ItemLifetime::permanent,
                         .createdAt = Base::fromSeconds2001(0)});
    }
    return {.id = std::move(id),
            .name = std::move(name),
            .items = std::move(items),
            .homeWidgets = std::move(homeWidgets)};
}

bool opensUnknownTool(const DockItem &item)
{
    return item.kind == DockItemKind::tool && !ToolRegistry::knows(item.target);
}

bool summonsNothing(const ShortcutBinding &binding)
{
    return !Base::fromText<QuickSurface>(binding.target) &&
           !ToolRegistry::knows(binding.target);
}

bool hasSelection(const CompanionState &state)
{
    return std::ranges::find(state.workspaces, state.selectedWorkspaceID, &Workspace::id) !=
           state.workspaces.end();
}

// Keeps the first workspace of each id. Says whether there was a second one.
bool dropRepeatedWorkspaces(std::vector<Workspace> &workspaces)
{
    std::unordered_set<std::string> seen;
    return std::erase_if(workspaces, [&](const Workspace &workspace) {
               return !seen.insert(workspace.id).second;
           }) != 0;
}

void mend(CompanionState &state)
{
    dropRepeatedWorkspaces(state.workspaces);
    for (Workspace &workspace : state.workspaces) {
        std::erase_if(workspace.items, opensUnknownTool);
        std::erase_if(workspace.homeWidgets,
                      [](const std::string &id) { return !ToolRegistry::knows(id); });
    }
    std::erase_if(state.shortcuts, summonsNothing);
    if (state.workspaces.empty()) {
        state.workspaces = defaultCompanionState().workspaces;
    }
    if (!hasSelection(state)) {
        state.selectedWorkspaceID = state.workspaces.front().id;
    }
}

} // namespace

bool isExpired(const DockItem &item, Base::Instant now, std::string_view currentSession)
{
    switch (item.lifetime) {
    case ItemLifetime::hour:
        return now >= item.createdAt + std::chrono::hours{1};
    case ItemLifetime::session:
        return item.sessionID != currentSession;
    case ItemLifetime::permanent:
        break;
    }
    return false;
}

CompanionState defaultCompanionState(std::vector<std::string> faithHomeWidgets)
{
    CompanionState state{.selectedWorkspaceID = "faith"};
    state.workspaces = {
        makeWorkspace("faith", "Faith", {"dhikr", "prayer", "names", "timers", "notes"},
                      std::move(faithHomeWidgets)),
        makeWorkspace("focus", "Focus", {"timers", "scratchpad", "shelf", "music"},
                      {"screen-time", "weather", "stats"}),
        makeWorkspace("coding", "Coding", {"claude", "stats", "clipboard", "shelf"},
                      {"claude", "stats", "screen-time"}),
    };
    state.shortcuts = {
        {.id = "command",
         .target = "command",
         .keyCode = 49, // the space bar
         .modifiers = {ShortcutModifier::control, ShortcutModifier::shift}},
    };
    return state;
}

Result<void> validate(const CompanionState &state)
{
    const auto knowsItsTools = [](const Workspace &workspace) {
        return std::ranges::none_of(workspace.items, opensUnknownTool) &&
               ToolRegistry::knowsAll(workspace.homeWidgets);
    };
    auto workspaces = state.workspaces;
    const bool isValid = state.schemaVersion == kSchemaVersion && hasSelection(state) &&
                         std::ranges::all_of(workspaces, knowsItsTools) &&
                         !dropRepeatedWorkspaces(workspaces) &&
                         std::ranges::none_of(state.shortcuts, summonsNothing);
    if (!isValid) {
        return std::unexpected(invalidCompanionData());
    }
    return {};
}

Result<CompanionState> readStoredCompanion(const json::PaddedText &text)
{
    const auto version = json::decode<VersionOnly>(text);
    if (version && version->schemaVersion > kSchemaVersion) {
        return std::unexpected(KestError::unavailable(
            "The companion layout was saved by a newer Velvetnook and was left as it is"));
    }
    auto state = json::decode<CompanionState>(text);
    if (!state || state->schemaVersion != kSchemaVersion) {
        return std::unexpected(invalidCompanionData());
    }
    mend(*state);
    return state;
}

} // namespace KestCore

template Base::Result<KestCore::CompanionState>
Base::json::decode<KestCore::CompanionState>(const Base::json::PaddedText &);
template Base::Result<std::string> Base::json::encode(const KestCore::CompanionState &);
