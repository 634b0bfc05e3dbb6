// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Vocabulary.h"

#include <cstdint>
#include <optional>

namespace Assistants
{

namespace json = Base::json;

using Base::KestError;
using Base::Of;
using Base::Result;

// Tokens as a tool wrote them down. What it does not tell is absent, never 0.
struct TokenCounts {
    std::optional<std::int64_t> input{}; // without what came from the cache
    std::optional<std::int64_t> output{};
    std::optional<std::int64_t> cacheWrite{};
    std::optional<std::int64_t> cacheRead{};

    bool operator==(const TokenCounts &) const = default;
};
consteval auto jsonFields(Of<TokenCounts>)
{
    using R = TokenCounts;
    return std::tuple{json::Field{"input", &R::input}, json::Field{"output", &R::output},
                      json::Field{"cacheWrite", &R::cacheWrite},
                      json::Field{"cacheRead", &R::cacheRead}};
}
static_assert(json::coversAllMembers<TokenCounts>());

// More than any tool uses for one answer: a larger number is no count.
inline constexpr std::int64_t kMostTokens = 1'000'000'000;

// Whether every count that is there can be one.
bool arePlausible(const TokenCounts &counts);

void addTokens(TokenCounts &sum, const TokenCounts &more);

// The larger of each: a tool writes an answer down while it comes, and each time whole.
TokenCounts larger(const TokenCounts &one, const TokenCounts &other);

// What came to `before` to make `after`; all of `after` where something has become less, as the
// count has begun anew then.
TokenCounts since(const TokenCounts &before, const TokenCounts &after);

// All that are told, together; nothing when none is.
std::optional<std::int64_t> total(const TokenCounts &counts);

} // namespace Assistants
