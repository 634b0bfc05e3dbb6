// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Tools/RecordLookup.h"

#include <fmt/format.h>

#include <algorithm>

namespace KestCore
{

namespace
{

char lowered(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

bool beginsWith(std::string_view id, std::string_view prefix)
{
    return id.size() >= prefix.size() &&
           std::ranges::equal(id.substr(0, prefix.size()), prefix, {}, lowered, lowered);
}

} // namespace

Result<LocalRecord> findByIdPrefix(std::span<const LocalRecord> records,
                                   std::string_view prefix)
{
    if (const auto same = std::ranges::find(records, prefix, &LocalRecord::id);
        same != records.end()) {
        return *same;
    }
    const auto fits = [&](const LocalRecord &record) { return beginsWith(record.id, prefix); };
    const auto count = prefix.empty() ? 0 : std::ranges::count_if(records, fits);
    if (count == 0) {
        return std::unexpected(removedItem());
    }
    if (count > 1) {
        return std::unexpected(KestError::invalidData(
            fmt::format("\"{}\" fits {} items; write more of the id", prefix, count)));
    }
    return *std::ranges::find_if(records, fits);
}

} // namespace KestCore
