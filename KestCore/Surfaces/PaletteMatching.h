// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

// How one text in its compared form answers to a query, for the index and for what it marks.
namespace KestCore::detail
{

// Where the letters of a fuzzy query stand in a title, and how scattered they are.
struct FuzzyMatch {
    std::vector<std::size_t> positions{}; // of each code point of the query
    std::uint32_t cost{};
};

// The letters in their order, the first at the beginning of a word; nothing where they are
// too far apart to be meant.
std::optional<FuzzyMatch> fuzzyMatch(std::string_view title, std::string_view query);

// The bytes of the code point that begins here.
std::size_t codePointSize(std::string_view text, std::size_t at);

constexpr bool beginsWord(std::string_view text, std::size_t at)
{
    return at == 0 || text[at - 1] == ' ' || text[at - 1] == '\n';
}

// Where the text has the wanted one, or npos; at the beginning of a word if anywhere.
std::size_t findBest(std::string_view text, std::string_view wanted);

} // namespace KestCore::detail
