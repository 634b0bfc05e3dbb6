// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string_view>

namespace KestCore
{

// The minute of the day (0 to 1439) that an "hours:minutes" text names. Nothing unless the
// text is two pieces of ASCII digits around one ":", the hour 0 to 23 and the minute 0 to 59.
std::optional<int> minuteOfDay(std::string_view text);

} // namespace KestCore
