// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Tools/RecordBin.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace KestCore
{

namespace
{

bool isRestorable(const LocalRecord &trash, Base::Instant now)
{
    const auto age = now - Base::fromMilliseconds1970(trash.updated);
    return std::abs(age.count()) <= kRestorableFor.count();
}

struct Removed {
    LocalRecord record{};
    double removedAt{};
};

std::vector<Removed> restorable(std::span<const LocalRecord> bin, std::string_view kind,
                                Base::Instant now)
{
    std::vector<Removed> found;
    for (const LocalRecord &trash : bin) {
        auto record = json::decode<LocalRecord>(std::string_view{trash.body});
        if (record && record->kind == kind && isRestorable(trash, now)) {
            found.push_back({.record = *std::move(record), .removedAt = trash.updated});
        }
    }
    return found;
}

} // namespace

Result<LocalRecord> binned(const LocalRecord &record, Base::Instant now)
{
    KEST_TRY(std::string body, json::encode(record));
    return LocalRecord{.id = record.id,
                       .kind = std::string{kTrashKind},
                       .title = record.title,
                       .body = std::move(body),
                       .updated = Base::milliseconds1970(now)};
}

Result<std::vector<LocalRecord>> lastRemoved(std::span<const LocalRecord> bin,
                                             std::string_view kind, Base::Instant now)
{
    const auto candidates = restorable(bin, kind, now);
    if (candidates.empty()) {
        return std::unexpected(
            KestError::invalidData("Nothing was removed in the last 30 seconds"));
    }
    const double last =
        std::ranges::max_element(candidates, {}, &Removed::removedAt)->removedAt;
    std::vector<LocalRecord> records;
    for (const Removed &removed : candidates) {
        if (removed.removedAt == last) {
            records.push_back(removed.record);
        }
    }
    return records;
}

std::vector<std::string> expired(std::span<const LocalRecord> bin, Base::Instant now)
{
    std::vector<std::string> ids;
    for (const LocalRecord &trash : bin) {
        if (!isRestorable(trash, now)) {
            ids.push_back(trash.id);
        }
    }
    return ids;
}

} // namespace KestCore
