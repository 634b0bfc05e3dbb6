// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/SharedList.h"
#include "KestCore/Devotional/Calendar.h"
#include "KestCore/Models/DevotionalState.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace Velvetnook
{

// How far back totals reach: the local date of now, with the 6 or 29 before it, or all.
enum class HistoryPeriod : std::uint8_t { today, week, month, all };

struct PeriodTotal {
    std::int64_t count{};
    std::int64_t sessions{};

    bool operator==(const PeriodTotal &) const = default;
};

struct PhraseTotal {
    std::string phraseId{};
    PeriodTotal total{};

    bool operator==(const PhraseTotal &) const = default;
};

// What finished sessions add up to.
struct HistoryTotals {
    static constexpr std::size_t kPeriods = 4;
    static constexpr std::size_t kDays = 30;

    std::array<PeriodTotal, kPeriods> total{};                 // by HistoryPeriod
    std::array<std::vector<PhraseTotal>, kPeriods> byPhrase{}; // most counted first
    std::array<std::int64_t, kDays> days{};                    // counts; the last is today's
};

// Goes through every session once: off the main thread where there are many. One that ended
// after today, as when the clock was set back since, counts as today's.
HistoryTotals historyTotals(const Base::SharedList<KestCore::SessionRecord> &records,
                            const KestCore::Calendar &calendar, Base::Instant now);

} // namespace Velvetnook
