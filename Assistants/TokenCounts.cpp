// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Assistants/TokenCounts.h"

#include <algorithm>
#include <array>

namespace Assistants
{

namespace
{

constexpr std::array kCounts{&TokenCounts::input, &TokenCounts::output,
                             &TokenCounts::cacheWrite, &TokenCounts::cacheRead};

} // namespace

bool arePlausible(const TokenCounts &counts)
{
    return std::ranges::all_of(kCounts, [&](auto member) {
        const std::int64_t count = (counts.*member).value_or(0);
        return count >= 0 && count <= kMostTokens;
    });
}

void addTokens(TokenCounts &sum, const TokenCounts &more)
{
    for (const auto member : kCounts) {
        if (const auto &count = more.*member) {
            sum.*member = (sum.*member).value_or(0) + *count;
        }
    }
}

TokenCounts larger(const TokenCounts &one, const TokenCounts &other)
{
    TokenCounts most;
    for (const auto member : kCounts) {
        most.*member = std::max(one.*member, other.*member); // absent is less than any
    }
    return most;
}

TokenCounts since(const TokenCounts &before, const TokenCounts &after)
{
    if (std::ranges::any_of(kCounts,
                            [&](auto member) { return after.*member < before.*member; })) {
        return after;
    }
    TokenCounts more = after;
    for (const auto member : kCounts) {
        if (auto &count = more.*member) {
            *count -= (before.*member).value_or(0);
        }
    }
    return more;
}

std::optional<std::int64_t> total(const TokenCounts &counts)
{
    std::optional<std::int64_t> sum;
    for (const auto member : kCounts) {
        if (const auto &count = counts.*member) {
            sum = sum.value_or(0) + *count;
        }
    }
    return sum;
}

} // namespace Assistants
