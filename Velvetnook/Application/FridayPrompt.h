// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Devotional/Calendar.h"
#include "KestCore/Models/NativeState.h"

#include <optional>
#include <string>

// The one invitation of a Friday.
namespace Velvetnook
{

inline constexpr int kFridayMinute = 9 * 60; // where "friday.time" names none

// The local date of the instant as "friday.lastShown" keeps it, "2025-11-14".
std::string dateText(Base::Instant now, const KestCore::Calendar &calendar);

// When the invitation comes next: at "friday.time" of the first Friday on which it was not
// shown yet. On such a Friday this can be in the past: then it is due, until midnight. A
// Friday that the machine slept through is let go. Nothing unless "friday.enabled" is "true".
std::optional<Base::Instant> fridayDue(Base::Instant now, const KestCore::Settings &settings,
                                       const KestCore::Calendar &calendar);

} // namespace Velvetnook
