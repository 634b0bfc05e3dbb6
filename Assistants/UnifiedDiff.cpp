// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Assistants/UnifiedDiff.h"

#include <fmt/format.h>

#include <algorithm>
#include <cstdint>
#include <vector>

namespace Assistants
{

namespace
{

using Lines = std::vector<std::string_view>; // each with its end

constexpr std::size_t kContext = 3;
constexpr std::size_t kLargestTable = 16'000'000;

struct Step {
    char sign{}; // ' ', '-' or '+'
    std::string_view line{};
};

Lines linesOf(std::string_view text)
{
    Lines lines;
    while (!text.empty()) {
        const std::size_t size = std::min(text.find('\n'), text.size() - 1) + 1;
        lines.push_back(text.substr(0, size));
        text.remove_prefix(size);
    }
    return lines;
}

// The longest lines in common, by a table; where that would be huge, the one takes the place
// of the other as a whole.
void walk(const Lines &before, const Lines &after, std::vector<Step> &steps)
{
    const std::size_t width = after.size() + 1;
    const bool isHuge = (before.size() + 1) * width > kLargestTable;
    std::vector<std::uint32_t> longest(isHuge ? 0 : (before.size() + 1) * width);
    for (std::size_t row = isHuge ? 0 : before.size(); row-- > 0;) {
        for (std::size_t column = after.size(); column-- > 0;) {
            const std::size_t at = row * width + column;
            longest[at] = before[row] == after[column]
                              ? longest[at + width + 1] + 1
                              : std::max(longest[at + width], longest[at + 1]);
        }
    }
    std::size_t row = 0;
    std::size_t column = 0;
    while (row < before.size() || column < after.size()) {
        const std::size_t at = row * width + column;
        const bool isEnd = row == before.size();
        if (!isHuge && !isEnd && column < after.size() && before[row] == after[column]) {
            steps.push_back({' ', before[row++]});
            ++column;
        } else if (!isEnd && (isHuge || column == after.size() ||
                              longest[at + width] >= longest[at + 1])) {
            steps.push_back({'-', before[row++]});
        } else {
            steps.push_back({'+', after[column++]});
        }
    }
}

std::vector<Step> stepsOf(Lines before, Lines after)
{
    std::vector<Step> steps;
    const auto [one, other] = std::ranges::mismatch(before, after);
    const auto same = one - before.begin();
    for (auto line = before.begin(); line != one; ++line) {
        steps.push_back({' ', *line});
    }
    before.erase(before.begin(), before.begin() + same);
    after.erase(after.begin(), after.begin() + same);
    std::vector<Step> tail;
    while (!before.empty() && !after.empty() && before.back() == after.back()) {
        tail.push_back({' ', before.back()});
        before.pop_back();
        after.pop_back();
    }
    walk(before, after, steps);
    steps.insert(steps.end(), tail.rbegin(), tail.rend());
    return steps;
}

std::string hunkOf(const std::vector<Step> &steps, std::size_t first, std::size_t end)
{
    const auto count = [&](std::size_t from, std::size_t to, char skipped) {
        return std::count_if(steps.begin() + static_cast<std::ptrdiff_t>(from),
                             steps.begin() + static_cast<std::ptrdiff_t>(to),
                             [&](const Step &step) { return step.sign != skipped; });
    };
    const auto range = [&](char skipped) {
        const auto size = count(first, end, skipped);
        return fmt::format("{},{}", count(0, first, skipped) + (size > 0 ? 1 : 0), size);
    };
    std::string text = fmt::format("@@ -{} +{} @@\n", range('+'), range('-'));
    for (std::size_t at = first; at < end; ++at) {
        text += steps[at].sign;
        text += steps[at].line;
        text += steps[at].line.ends_with('\n') ? "" : "\n\\ No newline at end of file\n";
    }
    return text;
}

} // namespace

std::string unifiedDiff(std::string_view before, std::string_view after,
                        std::string_view beforeName, std::string_view afterName)
{
    if (before == after) {
        return {};
    }
    const auto steps = stepsOf(linesOf(before), linesOf(after));
    const auto changeFrom = [&](std::size_t at) {
        while (at < steps.size() && steps[at].sign == ' ') {
            ++at;
        }
        return at;
    };
    std::string text = fmt::format("--- {}\n+++ {}\n", beforeName, afterName);
    for (std::size_t at = changeFrom(0); at < steps.size();) {
        const std::size_t first = at - std::min(at, kContext);
        std::size_t end = at;
        // Changes that lie close together share their context.
        while (at < steps.size() && at <= end + 2 * kContext) {
            end = at + 1;
            at = changeFrom(end);
        }
        text += hunkOf(steps, first, std::min(end + kContext, steps.size()));
    }
    return text;
}

} // namespace Assistants
