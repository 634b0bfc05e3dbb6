// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Models/NativeState.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

// The calendar files and folders that the user has added: the setting "calendar.sources", one
// absolute path a line. Nothing below them is ever written.
namespace KestCore
{

inline constexpr std::size_t kMostCalendarSources = 50;

std::vector<std::string> calendarSources(const Settings &settings);

// Fails with invalidData for a path that is not absolute or holds a line's end, one that is
// there already, and when there are as many as may be.
[[nodiscard]] Result<void> addCalendarSource(Settings &settings, std::string_view path);

// Fails with invalidData when there is no such source.
[[nodiscard]] Result<void> removeCalendarSource(Settings &settings, std::string_view path);

} // namespace KestCore
