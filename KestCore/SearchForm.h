// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace KestCore
{

// The form in which texts are compared when searching: no case, no diacritics, no harakat or
// tatweel, every alef a plain one.
std::string normalizeForSearch(std::string_view text);

// Beyond that: without what a keyboard does not offer or people leave out, which are hyphens,
// apostrophes and the signs for hamza and ayn.
std::string looseSearchForm(std::string_view text);

// How well a text fits what is wanted, the best first: it is that, begins with it, has a word
// that does, or has it at all; or it only has all its words.
enum class SearchFit : std::uint8_t { exact, prefix, wordStart, inside, allWords, none };

// How the wanted text as a whole fits, so never `allWords`. Both are in the same search form.
SearchFit fitOfWhole(std::string_view text, std::string_view wanted);
bool hasAllWords(std::string_view text, std::span<const std::string_view> words);

} // namespace KestCore
