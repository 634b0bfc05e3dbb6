// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Models/LocalRecord.h"

#include <span>
#include <string_view>

namespace KestCore
{

// The one record whose id is the text, else the one whose id begins with it; upper and lower
// case are one. Fails with "This item was removed." for an id that none has, and says how many
// it fits where that is more than one.
[[nodiscard]] Result<LocalRecord> findByIdPrefix(std::span<const LocalRecord> records,
                                                 std::string_view prefix);

} // namespace KestCore
