// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Assistants/LogFormat.h"
#include "KestCore/Devotional/Calendar.h"

#include <array>
#include <cstdint>
#include <map>
#include <string>
#include <unordered_map>
#include <vector>

namespace Assistants
{

struct DayUse {
    std::int64_t day{}; // since 1970-01-01, local
    std::int64_t answers{};
    TokenCounts tokens{};

    bool operator==(const DayUse &) const = default;
};

struct NamedUse {
    std::string name{}; // empty when it is not told
    std::int64_t answers{};
    TokenCounts tokens{};

    bool operator==(const NamedUse &) const = default;
};

// Five hours that began with an answer after the five hours before were over.
struct WindowUse {
    Base::Instant begin{};
    Base::Instant end{};
    TokenCounts tokens{};

    bool operator==(const WindowUse &) const = default;
};

struct ToolUse {
    std::string tool{};
    std::vector<DayUse> days{};       // that have any, the oldest first
    std::vector<NamedUse> models{};   // the most used first
    std::vector<NamedUse> projects{}; // names of folders
    std::optional<WindowUse> window{};
    TokenCounts week{};          // of the last seven times 24 hours
    std::vector<Limit> limits{}; // that still hold; none where the tool tells none
};

// Adds up what logs tell. An answer that stands in several lines counts once. Holds at most
// kMostUses; what comes beyond that is counted as left out.
class UsageLedger
{
public:
    static constexpr std::size_t kMostUses = 1'000'000;

    // `key` names the line, for a use that has no id; else it is not looked at.
    void add(std::string_view tool, std::string_view folder, const LoggedUse &use,
             std::string_view key);
    void add(std::string_view tool, const Limit &limit);

    // For each tool with anything to tell. Days, models and projects are those from local
    // midnight of the day `days` - 1 before today on.
    std::vector<ToolUse> report(const KestCore::Calendar &calendar, Base::Instant now,
                                std::int64_t days) const;
    std::uint64_t leftOut() const { return m_leftOut; }

private:
    // A million of these are held, so it is small. Absent counts are kAbsent.
    struct Use {
        std::int64_t at{}; // seconds since 1970
        std::uint32_t tool{};
        std::uint32_t model{};
        std::uint32_t folder{};
        std::array<std::uint32_t, 4> tokens{};
    };
    static constexpr std::uint32_t kAbsent = 0xFFFF'FFFFU;

    static std::array<std::uint32_t, 4> packed(const TokenCounts &counts);
    static TokenCounts unpacked(const Use &use);
    std::uint32_t numberOf(std::string_view name);
    std::vector<Use> usesOf(std::uint32_t tool) const; // the oldest first
    std::vector<NamedUse> named(const std::map<std::uint32_t, NamedUse> &sums) const;
    ToolUse reportOf(std::uint32_t tool, const KestCore::Calendar &calendar, Base::Instant now,
                     std::int64_t firstDay) const;

    std::unordered_map<std::uint64_t, Use> m_uses;                 // by a hash of tool and id
    std::map<std::pair<std::string, std::string>, Limit> m_limits; // by tool and name
    std::vector<std::string> m_names;
    std::map<std::string, std::uint32_t, std::less<>> m_numbers;
    std::uint64_t m_leftOut = 0;
};

} // namespace Assistants
