// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Surfaces/CompanionEdits.h"

#include "Base/Text.h"
#include "KestCore/Registry/ToolRegistry.h"

#include <algorithm>

namespace KestCore
{

namespace
{

std::unexpected<KestError> refused(const char *why)
{
    return std::unexpected(KestError::invalidData(why));
}

constexpr const char *kNoWorkspace = "This workspace is not there any more";
constexpr const char *kNoItem = "This item is not there any more";
constexpr const char *kIsFull = "A workspace has room for 64 items. Take one out first.";
constexpr const char *kIsThere = "This is in the workspace already";
constexpr const char *kNoTitle = "A name is one line of 1 to 80 characters";

Result<Workspace *> workspaceOf(CompanionState &state, std::string_view id)
{
    const auto found = std::ranges::find(state.workspaces, id, &Workspace::id);
    if (found == state.workspaces.end()) {
        return refused(kNoWorkspace);
    }
    return &*found;
}

Result<DockItem *> itemOf(CompanionState &state, std::string_view workspace,
                          std::string_view id)
{
    KEST_TRY(Workspace *const in, workspaceOf(state, workspace));
    const auto found = std::ranges::find(in->items, id, &DockItem::id);
    if (found == in->items.end()) {
        return refused(kNoItem);
    }
    return &*found;
}

Result<std::string> checkedTitle(std::string_view text)
{
    const std::string_view line = Base::trimmed(text);
    const bool isOneLine = std::ranges::none_of(
        line, [](char letter) { return static_cast<unsigned char>(letter) < ' '; });
    if (line.empty() || !isOneLine || Base::countCodePoints(line) > kLongestDockTitle) {
        return refused(kNoTitle);
    }
    return std::string{line};
}

bool isSame(const DockItem &one, const DockItem &other)
{
    return one.kind == other.kind && one.kind != DockItemKind::divider &&
           one.target == other.target;
}

Result<void> mayTake(const Workspace &workspace, const DockItem &item)
{
    if (workspace.items.size() >= kMostDockItems) {
        return refused(kIsFull);
    }
    if (item.kind == DockItemKind::tool && !ToolRegistry::knows(item.target)) {
        return refused("There is no such tool");
    }
    if (item.target.size() > kLongestDockTarget) {
        return refused("This address is too long");
    }
    if (std::ranges::any_of(workspace.items,
                            [&](const DockItem &each) { return isSame(each, item); })) {
        return refused(kIsThere);
    }
    return {};
}

template <class T>
void insertAt(std::vector<T> &list, T value, std::size_t place)
{
    const auto at = static_cast<std::ptrdiff_t>(std::min(place, list.size()));
    list.insert(list.begin() + at, std::move(value));
}

} // namespace

const Workspace *findWorkspace(const CompanionState &state, std::string_view id)
{
    const auto found = std::ranges::find(state.workspaces, id, &Workspace::id);
    return found == state.workspaces.end() ? nullptr : &*found;
}

const DockItem *findDockItem(const Workspace &workspace, std::string_view id)
{
    const auto found = std::ranges::find(workspace.items, id, &DockItem::id);
    return found == workspace.items.end() ? nullptr : &*found;
}

Result<void> addDockItem(CompanionState &state, std::string_view workspace, DockItem item,
                         std::size_t place)
{
    KEST_TRY(Workspace *const in, workspaceOf(state, workspace));
    KEST_CHECK(mayTake(*in, item));
    if (item.kind != DockItemKind::divider) {
        KEST_TRY(item.title, checkedTitle(item.title));
    }
    insertAt(in->items, std::move(item), place);
    return {};
}

Result<void> removeDockItem(CompanionState &state, std::string_view workspace,
                            std::string_view item)
{
    KEST_TRY(const DockItem *const found, itemOf(state, workspace, item));
    KEST_TRY(Workspace *const in, workspaceOf(state, workspace));
    in->items.erase(in->items.begin() + (found - in->items.data()));
    return {};
}

Result<void> moveDockItem(CompanionState &state, std::string_view workspace,
                          std::string_view item, std::size_t place)
{
    KEST_TRY(DockItem *const found, itemOf(state, workspace, item));
    DockItem moved = *found;
    KEST_CHECK(removeDockItem(state, workspace, item));
    KEST_TRY(Workspace *const in, workspaceOf(state, workspace));
    insertAt(in->items, std::move(moved), place);
    return {};
}

Result<void> moveDockItemTo(CompanionState &state, std::string_view workspace,
                            std::string_view item, std::string_view other)
{
    KEST_TRY(const DockItem *const found, itemOf(state, workspace, item));
    KEST_TRY(const Workspace *const into, workspaceOf(state, other));
    KEST_CHECK(mayTake(*into, *found));
    DockItem moved = *found;
    KEST_CHECK(removeDockItem(state, workspace, item));
    KEST_TRY(Workspace *const in, workspaceOf(state, other));
    in->items.push_back(std::move(moved));
    return {};
}

Result<void> renameDockItem(CompanionState &state, std::string_view workspace,
                            std::string_view item, std::string_view title)
{
    KEST_TRY(DockItem *const found, itemOf(state, workspace, item));
    KEST_TRY(found->title, checkedTitle(title));
    return {};
}

Result<void> setDockItemLifetime(CompanionState &state, std::string_view workspace,
                                 std::string_view item, ItemLifetime lifetime,
                                 Base::Instant now, std::string_view session)
{
    KEST_TRY(DockItem *const found, itemOf(state, workspace, item));
    found->lifetime = lifetime;
    found->createdAt = now;
    found->sessionID.reset();
    if (lifetime == ItemLifetime::session) {
        found->sessionID = session;
    }
    return {};
}

Result<void> addWorkspace(CompanionState &state, std::string id, std::string_view name)
{
    if (state.workspaces.size() >= kMostWorkspaces) {
        return refused("The dock has room for 12 workspaces. Remove one first.");
    }
    if (id.empty() || findWorkspace(state, id) != nullptr) {
        return refused("There is a workspace of this id already");
    }
    KEST_TRY(std::string line, checkedTitle(name));
    state.workspaces.push_back(
        {.id = std::move(id), .name = std::move(line), .items = {}, .homeWidgets = {}});
    return {};
}

Result<void> renameWorkspace(CompanionState &state, std::string_view id, std::string_view name)
{
    KEST_TRY(Workspace *const workspace, workspaceOf(state, id));
    KEST_TRY(workspace->name, checkedTitle(name));
    return {};
}

Result<void> moveWorkspace(CompanionState &state, std::string_view id, std::size_t place)
{
    KEST_TRY(Workspace *const workspace, workspaceOf(state, id));
    Workspace moved = *workspace;
    state.workspaces.erase(state.workspaces.begin() + (workspace - state.workspaces.data()));
    insertAt(state.workspaces, std::move(moved), place);
    return {};
}

Result<void> removeWorkspace(CompanionState &state, std::string_view id)
{
    KEST_TRY(const Workspace *const workspace, workspaceOf(state, id));
    if (state.workspaces.size() == 1) {
        return refused("The last workspace stays");
    }
    const bool wasSelected = state.selectedWorkspaceID == id;
    const std::ptrdiff_t at = workspace - state.workspaces.data();
    state.workspaces.erase(state.workspaces.begin() + at);
    if (wasSelected) {
        const auto beside = std::min(static_cast<std::size_t>(at), state.workspaces.size() - 1);
        state.selectedWorkspaceID = state.workspaces[beside].id;
    }
    return {};
}

Result<void> setHomeWidget(CompanionState &state, std::string_view workspace,
                           std::string_view tool, bool isOn)
{
    KEST_TRY(Workspace *const in, workspaceOf(state, workspace));
    if (isOn && !ToolRegistry::knows(tool)) {
        return refused("There is no such tool");
    }
    std::erase(in->homeWidgets, tool);
    if (isOn) {
        in->homeWidgets.emplace_back(tool);
    }
    return {};
}

bool removeExpired(CompanionState &state, Base::Instant now, std::string_view session)
{
    bool wasAny = false;
    for (Workspace &workspace : state.workspaces) {
        wasAny = std::erase_if(
                     workspace.items,
                     [&](const DockItem &item) { return isExpired(item, now, session); }) > 0 ||
                 wasAny;
    }
    return wasAny;
}

std::optional<Base::Instant> nextExpiry(const CompanionState &state, Base::Instant now,
                                        std::string_view session)
{
    std::optional<Base::Instant> next;
    for (const Workspace &workspace : state.workspaces) {
        for (const DockItem &item : workspace.items) {
            std::optional<Base::Instant> end;
            if (isExpired(item, now, session)) {
                end = now;
            } else if (item.lifetime == ItemLifetime::hour) {
                end = item.createdAt + std::chrono::hours{1};
            }
            if (end && (!next || *end < *next)) {
                next = end;
            }
        }
    }
    return next;
}

} // namespace KestCore
