// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Assistants/UsageLedger.h"

#include <algorithm>
#include <functional>
#include <set>

namespace Assistants
{

namespace
{

constexpr Base::Seconds kWindow{5 * 60 * 60};
constexpr Base::Seconds kWeek{7 * 86'400};
constexpr std::size_t kMostNames = 10'000;
constexpr std::string_view kOtherNames = "(others)";

void addTo(NamedUse &sum, const TokenCounts &tokens)
{
    ++sum.answers;
    addTokens(sum.tokens, tokens);
}

void addTo(std::optional<WindowUse> &window, Base::Instant at, const TokenCounts &tokens)
{
    if (!window || at >= window->end) {
        window = WindowUse{.begin = at, .end = at + kWindow};
    }
    addTokens(window->tokens, tokens);
}

std::uint64_t hashOf(std::string_view tool, std::string_view name)
{
    constexpr std::uint64_t kOdd =
        0x9E37'79B9'7F4A'7C15U; // so that the two cannot change places
    const std::hash<std::string_view> hash;
    return hash(tool) * kOdd + hash(name);
}

// A window that has ended since tells nothing of the one that runs now.
bool holds(const Limit &limit, Base::Instant now)
{
    const auto length = Base::Seconds{60 * limit.windowMinutes.value_or(0)};
    return limit.resetsAt.value_or(limit.windowMinutes ? limit.toldAt + length : now) >= now;
}

} // namespace

std::array<std::uint32_t, 4> UsageLedger::packed(const TokenCounts &counts)
{
    const auto pack = [](const std::optional<std::int64_t> &count) {
        return count ? static_cast<std::uint32_t>(*count) : kAbsent;
    };
    return {pack(counts.input), pack(counts.output), pack(counts.cacheWrite),
            pack(counts.cacheRead)};
}

TokenCounts UsageLedger::unpacked(const Use &use)
{
    const auto unpack = [](std::uint32_t count) {
        return count == kAbsent ? std::nullopt : std::optional<std::int64_t>{count};
    };
    return {.input = unpack(use.tokens[0]),
            .output = unpack(use.tokens[1]),
            .cacheWrite = unpack(use.tokens[2]),
            .cacheRead = unpack(use.tokens[3])};
}

std::uint32_t UsageLedger::numberOf(std::string_view name)
{
    if (const auto known = m_numbers.find(name); known != m_numbers.end()) {
        return known->second;
    }
    if (m_names.size() >= kMostNames && name != kOtherNames) {
        return numberOf(kOtherNames);
    }
    const auto number = static_cast<std::uint32_t>(m_names.size());
    m_names.emplace_back(name);
    m_numbers.emplace(name, number);
    return number;
}

void UsageLedger::add(std::string_view tool, std::string_view folder, const LoggedUse &use,
                      std::string_view key)
{
    const std::string_view name = use.id.empty() ? key : std::string_view{use.id};
    const std::uint64_t hash = hashOf(tool, name);
    if (const auto known = m_uses.find(hash); known != m_uses.end()) {
        known->second.tokens = packed(larger(unpacked(known->second), use.tokens));
        return;
    }
    if (m_uses.size() >= kMostUses) {
        ++m_leftOut;
        return;
    }
    m_uses.emplace(hash, Use{.at = static_cast<std::int64_t>(Base::seconds1970(use.at)),
                             .tool = numberOf(tool),
                             .model = numberOf(use.model),
                             .folder = numberOf(folder),
                             .tokens = packed(use.tokens)});
}

void UsageLedger::add(std::string_view tool, const Limit &limit)
{
    numberOf(tool); // so that the report knows of it
    const auto [place, isNew] = m_limits.try_emplace({std::string{tool}, limit.name}, limit);
    if (!isNew && place->second.toldAt <= limit.toldAt) {
        place->second = limit;
    }
}

std::vector<UsageLedger::Use> UsageLedger::usesOf(std::uint32_t tool) const
{
    std::vector<Use> uses;
    for (const auto &[hash, use] : m_uses) {
        if (use.tool == tool) {
            uses.push_back(use);
        }
    }
    std::ranges::sort(uses, {}, &Use::at);
    return uses;
}

std::vector<NamedUse> UsageLedger::named(const std::map<std::uint32_t, NamedUse> &sums) const
{
    std::vector<NamedUse> uses;
    for (const auto &[number, sum] : sums) {
        uses.push_back(sum);
        uses.back().name = m_names[number];
    }
    std::ranges::sort(uses, [](const NamedUse &one, const NamedUse &other) {
        const auto tokens = [](const NamedUse &use) { return total(use.tokens).value_or(0); };
        return std::tuple{tokens(other), one.name} < std::tuple{tokens(one), other.name};
    });
    return uses;
}

ToolUse UsageLedger::reportOf(std::uint32_t tool, const KestCore::Calendar &calendar,
                              Base::Instant now, std::int64_t firstDay) const
{
    ToolUse report{.tool = m_names[tool]};
    std::map<std::uint32_t, NamedUse> models;
    std::map<std::uint32_t, NamedUse> projects;
    std::int64_t day = 0;
    Base::Instant dayEnd = Base::fromSeconds1970(0);
    for (const Use &use : usesOf(tool)) {
        const Base::Instant at = Base::fromSeconds1970(static_cast<double>(use.at));
        const TokenCounts tokens = unpacked(use);
        if (at > now - kWeek) {
            addTokens(report.week, tokens);
        }
        addTo(report.window, at, tokens);
        if (at >= dayEnd) {
            day = calendar.dayNumber(at);
            dayEnd = calendar.nextDateChange(at);
        }
        if (day < firstDay) {
            continue;
        }
        if (report.days.empty() || report.days.back().day != day) {
            report.days.push_back({.day = day});
        }
        ++report.days.back().answers;
        addTokens(report.days.back().tokens, tokens);
        addTo(models[use.model], tokens);
        addTo(projects[use.folder], tokens);
    }
    if (report.window && report.window->end <= now) {
        report.window.reset();
    }
    report.models = named(models);
    report.projects = named(projects);
    return report;
}

std::vector<ToolUse> UsageLedger::report(const KestCore::Calendar &calendar, Base::Instant now,
                                         std::int64_t days) const
{
    std::set<std::uint32_t> tools;
    for (const auto &[hash, use] : m_uses) {
        tools.insert(use.tool);
    }
    for (const auto &[key, limit] : m_limits) {
        if (const auto known = m_numbers.find(key.first); known != m_numbers.end()) {
            tools.insert(known->second);
        }
    }
    std::vector<ToolUse> reports;
    for (const std::uint32_t tool : tools) {
        reports.push_back(reportOf(tool, calendar, now, calendar.dayNumber(now) - days + 1));
        for (const auto &[key, limit] : m_limits) {
            if (key.first == reports.back().tool && holds(limit, now)) {
                reports.back().limits.push_back(limit);
            }
        }
    }
    std::ranges::sort(reports, {}, &ToolUse::tool);
    return reports;
}

} // namespace Assistants
