// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Tools/RecentEmoji.h"

#include "Base/Uuid.h"
#include "KestCore/Tools/Emoji.h"
#include "KestCore/Tools/RecordOrder.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <tuple>
#include <utility>

namespace KestCore
{

namespace
{

constexpr std::size_t kMostKept = 100;
constexpr double kHalfLife = 7.0 * 24 * 3600; // seconds

// A clock that was set back must not lift anything above its uses.
double weightOf(const LocalRecord &record, Base::Instant now)
{
    const auto age = now - Base::fromMilliseconds1970(record.updated);
    return static_cast<double>(payloadOf<EmojiUse>(record).uses) *
           std::exp2(-std::max(age.count(), 0.0) / kHalfLife);
}

std::vector<LocalRecord> byWeight(std::span<const LocalRecord> records, Base::Instant now)
{
    std::vector<LocalRecord> sorted{records.begin(), records.end()};
    std::ranges::stable_sort(sorted, std::ranges::greater{}, [&](const LocalRecord &record) {
        return std::tuple{isPinned(record), weightOf(record, now), record.updated};
    });
    return sorted;
}

bool isSame(std::string_view emoji, const KnownEmoji &known)
{
    const auto other = emojiOf(emoji);
    return other && other->text == known.text;
}

// Of counts from anywhere.
std::int64_t sumOf(std::int64_t one, std::int64_t other)
{
    constexpr auto kMost = std::numeric_limits<std::int64_t>::max();
    return other > kMost - one ? kMost : one + other;
}

} // namespace

std::vector<RecentEmoji> recentEmoji(std::span<const LocalRecord> records, Base::Instant now,
                                     std::size_t limit)
{
    std::vector<RecentEmoji> recent;
    for (const LocalRecord &record : byWeight(records, now)) {
        if (recent.size() < limit) {
            const auto use = payloadOf<EmojiUse>(record);
            recent.push_back({.emoji = use.emoji,
                              .uses = use.uses,
                              .lastUsed = Base::fromMilliseconds1970(record.updated),
                              .isPinned = isPinned(record)});
        }
    }
    return recent;
}

Result<RecordChanges> usingEmoji(std::span<const LocalRecord> records, std::string_view text,
                                 Base::Instant now)
{
    const auto known = emojiOf(text);
    if (!known) {
        return std::unexpected(KestError::invalidData(fmt::format("\"{}\" is no emoji", text)));
    }
    LocalRecord record{.id = Base::makeUuid(), .kind = kEmojiKind};
    EmojiUse use{.emoji = known->text, .uses = 1};
    RecordChanges changes;
    std::vector<LocalRecord> others;
    bool isFirst = true;
    for (const LocalRecord &other : records) {
        const auto before = payloadOf<EmojiUse>(other);
        if (!isSame(before.emoji, *known)) {
            others.push_back(other);
            continue;
        }
        use.uses = sumOf(use.uses, before.uses);
        if (std::exchange(isFirst, false)) {
            record = other;
        } else {
            changes.removed.push_back(other.id); // kept in another form once
        }
    }
    record.title = known->emoji->name;
    record.updated = Base::milliseconds1970(now);
    KEST_TRY(record.body, json::encode(use));
    changes.written.push_back(std::move(record));

    const auto kept = byWeight(others, now);
    for (std::size_t at = kMostKept - 1; at < kept.size(); ++at) {
        changes.removed.push_back(kept[at].id);
    }
    return changes;
}

Result<RecordChanges> pinningEmoji(std::span<const LocalRecord> records, std::string_view text,
                                   Base::Instant now)
{
    const auto known = emojiOf(text);
    if (known) {
        for (const LocalRecord &record : records) {
            if (isSame(payloadOf<EmojiUse>(record).emoji, *known)) {
                LocalRecord changed = record;
                setPinned(changed, !isPinned(record));
                return RecordChanges{.written = {std::move(changed)}, .removed = {}};
            }
        }
    }
    KEST_TRY(auto changes, usingEmoji(records, text, now));
    setPinned(changes.written.front(), true);
    return changes;
}

} // namespace KestCore
