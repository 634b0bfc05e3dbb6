// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Tools/RecordOrder.h"

#include <algorithm>
#include <charconv>
#include <string>
#include <utility>

namespace KestCore
{

namespace
{

constexpr const char *kPinned = "pinned";
constexpr const char *kPosition = "position";
constexpr std::string_view kYes = "true";

// Beyond this a position is nonsense, so that no arithmetic on one can overflow.
constexpr std::int64_t kFarthest = 1'000'000'000'000;

} // namespace

bool isPinned(const LocalRecord &record)
{
    const auto found = record.extra.find(kPinned);
    return found != record.extra.end() && found->second == kYes;
}

void setPinned(LocalRecord &record, bool pinned)
{
    if (pinned) {
        record.extra.insert_or_assign(kPinned, std::string{kYes});
    } else {
        record.extra.erase(kPinned);
    }
}

std::int64_t positionOf(const LocalRecord &record)
{
    const auto found = record.extra.find(kPosition);
    if (found == record.extra.end()) {
        return 0;
    }
    const std::string &text = found->second;
    std::int64_t value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    const bool isNumber = error == std::errc{} && end == text.data() + text.size();
    return isNumber && value >= -kFarthest && value <= kFarthest ? value : 0;
}

void setPosition(LocalRecord &record, std::int64_t position)
{
    record.extra.insert_or_assign(kPosition, std::to_string(position));
}

std::vector<LocalRecord> inOrder(std::vector<LocalRecord> records)
{
    std::ranges::stable_sort(records, {}, [](const LocalRecord &record) {
        return std::pair{!isPinned(record), positionOf(record)};
    });
    return records;
}

std::int64_t positionAt(ListEnd end, std::span<const LocalRecord> records)
{
    if (records.empty()) {
        return 0;
    }
    const auto [first, last] = std::ranges::minmax_element(records, {}, positionOf);
    return end == ListEnd::front ? std::max(positionOf(*first) - 1, -kFarthest)
                                 : std::min(positionOf(*last) + 1, kFarthest);
}

std::vector<LocalRecord> moved(const std::vector<LocalRecord> &ordered, std::string_view id,
                               std::size_t line)
{
    const auto from = std::ranges::find(ordered, id, &LocalRecord::id);
    // Those among which it moves stand together.
    const auto [begin, end] =
        std::ranges::equal_range(ordered, !isPinned(*from), {},
                                 [](const LocalRecord &record) { return !isPinned(record); });
    const auto groupStart = static_cast<std::size_t>(begin - ordered.begin());
    const auto groupLast = static_cast<std::size_t>(end - ordered.begin()) - 1;
    const std::size_t target = std::clamp(line, groupStart, groupLast) - groupStart;

    std::vector<LocalRecord> group{begin, end};
    LocalRecord mover = *from;
    group.erase(group.begin() + (from - begin));
    group.insert(group.begin() + static_cast<std::ptrdiff_t>(target), std::move(mover));

    // The places are handed out anew rather than counted from 1: the gap of an item that was
    // removed stays, so that restoring puts it between the same neighbours.
    std::vector<LocalRecord> changed;
    std::int64_t lowest = positionOf(*begin);
    for (std::size_t at = 0; at < group.size(); ++at) {
        const std::int64_t place = std::max(lowest, positionOf(ordered[groupStart + at]));
        if (positionOf(group[at]) != place) {
            setPosition(group[at], place);
            changed.push_back(group[at]);
        }
        lowest = place + 1;
    }
    return changed;
}

} // namespace KestCore
