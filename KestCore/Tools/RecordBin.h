// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Instant.h"
#include "KestCore/Models/LocalRecord.h"

#include <span>
#include <string>
#include <vector>

namespace KestCore
{

// The bin: a removed record stays for half a minute in its own row, as a record of kind
// "trash" with the same id. So it comes back at its place even where only the order of the
// rows says which that is, and nothing else can take its id meanwhile. Not for the clipboard,
// where removing must leave nothing behind.

inline constexpr std::string_view kTrashKind = "trash";
inline constexpr Base::Seconds kRestorableFor{30};

// The record as it lies in the bin, removed now.
[[nodiscard]] Result<LocalRecord> binned(const LocalRecord &record, Base::Instant now);

// What was removed last of this kind, all that went in the same step; in the order of `bin`.
// Fails when nothing was removed so lately.
[[nodiscard]] Result<std::vector<LocalRecord>>
lastRemoved(std::span<const LocalRecord> bin, std::string_view kind, Base::Instant now);

// The ids of what can't be restored any more. A time of removal that lies farther ahead than
// the half minute counts as well: a clock that was set back must not keep anything for ever.
std::vector<std::string> expired(std::span<const LocalRecord> bin, Base::Instant now);

} // namespace KestCore
