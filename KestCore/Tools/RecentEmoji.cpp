// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Tools/RecentEmoji.h"

#include "Base/Uuid.h"
#include "KestCore/Tools/Emoji.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace KestCore
{

namespace
{

constexpr std::size_t kMostKept = 100;
constexpr double kHalfLife = 7.0 * 24 * 3600; // seconds

EmojiUse useOf(const LocalRecord &record)
{
    return json::decode<EmojiUse>(std::string_view{record.body}).value_or(EmojiUse{});
}

// A clock that was set back must not lift anything above its uses.
double weightOf(const LocalRecord &record, Base::Instant now)
{
    const auto age = now - Base::fromMilliseconds1970(record.updated);
    return static_cast<double>(useOf(record).uses) *
           std::exp2(-std::max(age.count(), 0.0) / kHalfLife);
}

std::vector<LocalRecord> byWeight(std::span<const LocalRecord> records, Base::Instant now)
{
    std::vector<LocalRecord> sorted{records.begin(), records.end()};
    std::ranges::stable_sort(sorted, std::ranges::greater{}, [&](const LocalRecord &record) {
        return std::pair{weightOf(record, now), record.updated};
    });
    return sorted;
}

} // namespace

std::vector<RecentEmoji> recentEmoji(std::span<const LocalRecord> records, Base::Instant now,
                                     std::size_t limit)
{
    std::vector<RecentEmoji> recent;
    for (const LocalRecord &record : byWeight(records, now)) {
        if (recent.size() < limit) {
            const EmojiUse use = useOf(record);
            recent.push_back({.emoji = use.emoji,
                              .uses = use.uses,
                              .lastUsed = Base::fromMilliseconds1970(record.updated)});
        }
    }
    return recent;
}

Result<RecordChanges> usingEmoji(std::span<const LocalRecord> records, std::string_view text,
                                 Base::Instant now)
{
    const Emoji *known = emojiOf(text);
    if (known == nullptr) {
        return std::unexpected(KestError::invalidData(fmt::format("\"{}\" is no emoji", text)));
    }
    LocalRecord record{.id = Base::makeUuid(), .kind = kEmojiKind};
    EmojiUse use{.emoji = std::string{text}};
    const auto before = std::ranges::find_if(
        records, [&](const LocalRecord &other) { return useOf(other).emoji == text; });
    if (before != records.end()) {
        record = *before;
        use = useOf(record);
    }
    use.uses += use.uses < std::numeric_limits<std::int64_t>::max() ? 1 : 0;
    record.title = known->name;
    record.updated = Base::milliseconds1970(now);
    KEST_TRY(record.body, json::encode(use));

    RecordChanges changes{.written = {record}};
    const auto kept = byWeight(records, now);
    for (std::size_t at = kMostKept - 1; at < kept.size(); ++at) {
        if (kept[at].id != record.id) {
            changes.removed.push_back(kept[at].id);
        }
    }
    return changes;
}

} // namespace KestCore
