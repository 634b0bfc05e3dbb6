// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Surfaces/AssistantEvent.h"

#include <optional>
#include <string_view>

namespace Assistants
{

// What a tool's hook gives on its standard input is at most so long.
inline constexpr std::size_t kLongestHook = 1'000'000;

// The event in a hook's JSON document, in what Claude Code, Cursor and their like call it.
// Nothing for an event that says nothing of who works or waits. Fails with invalidData for what
// is no such document.
[[nodiscard]] Base::Result<std::optional<KestCore::AssistantEvent>>
readHookEvent(std::string_view tool, std::string_view text);

} // namespace Assistants
