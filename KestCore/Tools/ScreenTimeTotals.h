// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Models/LocalRecord.h"
#include "KestCore/Prayer/PrayerCalculator.h"
#include "KestCore/Store/StateStore.h"
#include "KestCore/Tools/ScreenTime.h"

#include <optional>
#include <span>
#include <string>
#include <vector>

// What is kept of the time at the screen: a record of kind "usage" for each day and
// application. Such records are in no backup.
namespace KestCore
{

inline constexpr int kKeptUsageDays = 92;

// The records that the pieces change, out of all that are stored, and those that are older
// than is kept.
RecordChanges usageChanges(std::span<const LocalRecord> stored,
                           std::span<const UsagePiece> pieces, std::int64_t today,
                           Base::Instant now);

struct ApplicationTotal {
    std::string application{};
    std::string name{};
    double seconds{};

    bool operator==(const ApplicationTotal &) const = default;
};

struct UsageDay {
    LocalDate date{};
    double seconds{};
    double longestStretch{};        // seconds without a break
    std::optional<double> change{}; // against the day before, where something is known of that
    std::vector<ApplicationTotal> applications{}; // the longest first

    bool operator==(const UsageDay &) const = default;
};

// So many days up to `last`, the earliest first.
std::vector<UsageDay> usageDays(std::span<const LocalRecord> records, LocalDate last,
                                int count);

struct UsageTotal {
    double seconds{};
    std::optional<double> change{};               // against as many days before these, likewise
    std::vector<ApplicationTotal> applications{}; // the longest first

    bool operator==(const UsageTotal &) const = default;
};

// All of these days together. Of a week that is not over, compared is the same part of the
// week before.
UsageTotal usageTotal(std::span<const LocalRecord> records, LocalDate last, int count,
                      int daysBack);

} // namespace KestCore
