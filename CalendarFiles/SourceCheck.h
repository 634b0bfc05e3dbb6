// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Result.h"

#include <string>
#include <vector>

// What the user names as a calendar, before it is kept.
namespace CalendarFiles
{

// The path as it is kept: whole, and the same however it was typed.
[[nodiscard]] Base::Result<std::string> wholePath(const std::string &typed);

// Only what is a calendar, or a folder, which may come to hold some. Fails with the reason in a
// full sentence.
[[nodiscard]] Base::Result<void> checkSource(const std::string &path);

// What there is to watch for changes below these sources: their files and folders, so many.
std::vector<std::string> watchPlaces(const std::vector<std::string> &sources, std::size_t most);

} // namespace CalendarFiles
