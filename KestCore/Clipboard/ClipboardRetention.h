// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Clipboard/ClipboardPayload.h"

namespace KestCore
{

// How long the history grows. Knows no exemptions: what must stay is not handed in.
class ClipboardRetention
{
public:
    ClipboardRetention() = delete;

    static constexpr std::int64_t kMostEntries = 2'000;

    // The history's order: favourites first, then the newest first; among equals, by id.
    static bool comesBefore(const ClipboardEntry &a, const ClipboardEntry &b);

    // The entries to keep, in the history's order: those of the last `days` (at least one), at
    // most `maxCount` of them (1 to 2,000), images and files while they fit in `maxBytes`.
    static std::vector<ClipboardEntry> prune(std::vector<ClipboardEntry> entries,
                                             Base::Instant now, std::int64_t maxCount,
                                             std::int64_t days, std::int64_t maxBytes);
};

} // namespace KestCore
