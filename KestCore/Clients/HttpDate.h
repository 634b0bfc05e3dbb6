// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Instant.h"

#include <optional>
#include <string_view>

namespace KestCore
{

// A date as web servers write it, such as "Sat, 21 Nov 2026 18:00:00 GMT". Nothing for any
// other form, for a date that the calendar lacks and for a wrong day of the week.
std::optional<Base::Instant> fromHttpDate(std::string_view text);

} // namespace KestCore
