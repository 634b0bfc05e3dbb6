// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Clipboard/ClipboardRetention.h"

#include <algorithm>

namespace KestCore
{

namespace
{

constexpr double kSecondsOfADay = 86'400;

bool drawsOnBudget(const ClipboardEntry &entry)
{
    return entry.kind == ClipboardKind::image || entry.kind == ClipboardKind::files;
}

} // namespace

bool ClipboardRetention::comesBefore(const ClipboardEntry &a, const ClipboardEntry &b)
{
    if (a.favourite != b.favourite) {
        return a.favourite;
    }
    return a.createdAt != b.createdAt ? a.createdAt > b.createdAt : a.id < b.id;
}

std::vector<ClipboardEntry> ClipboardRetention::prune(std::vector<ClipboardEntry> entries,
                                                      Base::Instant now, std::int64_t maxCount,
                                                      std::int64_t days, std::int64_t maxBytes)
{
    const double age = static_cast<double>(std::max<std::int64_t>(days, 1)) * kSecondsOfADay;
    const Base::Instant cutOff = now - Base::Seconds{age};
    std::erase_if(entries, [&](const ClipboardEntry &entry) {
        return !(entry.createdAt >= cutOff) || entry.byteCount < 0;
    });
    std::ranges::sort(entries, comesBefore);

    const auto most =
        static_cast<std::size_t>(std::clamp<std::int64_t>(maxCount, 1, kMostEntries));
    std::int64_t budget = maxBytes;
    std::vector<ClipboardEntry> kept;
    for (ClipboardEntry &entry : entries) {
        if (kept.size() == most) {
            break;
        }
        const std::int64_t cost = drawsOnBudget(entry) ? entry.byteCount : 0;
        if (drawsOnBudget(entry) && cost > budget) {
            continue;
        }
        budget -= cost;
        kept.push_back(std::move(entry));
    }
    return kept;
}

} // namespace KestCore
