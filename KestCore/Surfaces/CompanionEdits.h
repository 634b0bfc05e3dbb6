// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Surfaces/CompanionState.h"

#include <cstddef>
#include <limits>

// What the user does to the dock's workspaces and their items. Each works on the document that
// it is handed; one that fails has left it as it was, and says why as invalidData.
namespace KestCore
{

inline constexpr std::size_t kMostWorkspaces = 12;
inline constexpr std::size_t kMostDockItems = 64; // in one workspace
inline constexpr std::size_t kLongestDockTitle = 80;
inline constexpr std::size_t kLongestDockTarget = 4096;
inline constexpr std::size_t kAtTheEnd = std::numeric_limits<std::size_t>::max();

// Null for an id that is not there.
const Workspace *findWorkspace(const CompanionState &state, std::string_view id);
const DockItem *findDockItem(const Workspace &workspace, std::string_view id);

// A place behind the last one is the end. What is there already is refused, but for dividers.
[[nodiscard]] Result<void> addDockItem(CompanionState &state, std::string_view workspace,
                                       DockItem item, std::size_t place = kAtTheEnd);
[[nodiscard]] Result<void> removeDockItem(CompanionState &state, std::string_view workspace,
                                          std::string_view item);
// Within its workspace; `place` is counted without the item itself.
[[nodiscard]] Result<void> moveDockItem(CompanionState &state, std::string_view workspace,
                                        std::string_view item, std::size_t place);
[[nodiscard]] Result<void> moveDockItemTo(CompanionState &state, std::string_view workspace,
                                          std::string_view item, std::string_view other);
[[nodiscard]] Result<void> renameDockItem(CompanionState &state, std::string_view workspace,
                                          std::string_view item, std::string_view title);
// How long it stays from now on.
[[nodiscard]] Result<void> setDockItemLifetime(CompanionState &state,
                                               std::string_view workspace,
                                               std::string_view item, ItemLifetime lifetime,
                                               Base::Instant now, std::string_view session);

[[nodiscard]] Result<void> addWorkspace(CompanionState &state, std::string id,
                                        std::string_view name);
[[nodiscard]] Result<void> renameWorkspace(CompanionState &state, std::string_view id,
                                           std::string_view name);
[[nodiscard]] Result<void> moveWorkspace(CompanionState &state, std::string_view id,
                                         std::size_t place);
// The one beside it is selected in its place. The last one is not removed.
[[nodiscard]] Result<void> removeWorkspace(CompanionState &state, std::string_view id);
[[nodiscard]] Result<void> setHomeWidget(CompanionState &state, std::string_view workspace,
                                         std::string_view tool, bool isOn);

// Takes out what has expired. Says whether there was any.
bool removeExpired(CompanionState &state, Base::Instant now, std::string_view session);
// When the next item expires, `now` at the earliest; none while nothing will.
std::optional<Base::Instant> nextExpiry(const CompanionState &state, Base::Instant now,
                                        std::string_view session);

} // namespace KestCore
