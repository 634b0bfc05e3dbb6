// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Instant.h"
#include "KestCore/Models/UtilityPayloads.h"
#include "KestCore/Store/StateStore.h"

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace KestCore
{

// Emoji that were used before. One weighs as much as it was used, and half of that for each
// week since it was used last, so that a habit stands before a single use and a habit of last
// year does not. Those that the user has pinned stand before all others and are not forgotten.

inline constexpr const char *kEmojiKind = "emoji";

struct RecentEmoji {
    std::string emoji{};
    std::int64_t uses{};
    Base::Instant lastUsed{};
    bool isPinned{};

    bool operator==(const RecentEmoji &) const = default;
};

// At most `limit` of them, the weightiest first.
std::vector<RecentEmoji> recentEmoji(std::span<const LocalRecord> records, Base::Instant now,
                                     std::size_t limit);

// What using an emoji changes: it counts one more, and the least weighty beyond a hundred is
// forgotten. Fails for a text that is no emoji.
[[nodiscard]] Result<RecordChanges> usingEmoji(std::span<const LocalRecord> records,
                                               std::string_view text, Base::Instant now);

// What pinning an emoji changes, or no longer pinning it. One that was never used has been used
// once by that. Fails for a text that is no emoji.
[[nodiscard]] Result<RecordChanges> pinningEmoji(std::span<const LocalRecord> records,
                                                 std::string_view text, Base::Instant now);

} // namespace KestCore
