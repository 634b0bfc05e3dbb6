// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Vocabulary.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace KestCore
{

// What the texts of the small tools have in common.

inline constexpr std::size_t kLongestTitle = 200; // characters

// A sequence that is not UTF-8 reads as U+FFFD.
std::u32string codePointsOf(std::string_view text);

// Whether anything of it shows: not only blanks, breaks and what has no width.
bool isVisible(std::string_view text);

// The pieces between white space.
std::vector<std::string_view> wordsOf(std::string_view text);

// Whether it has control characters; breaks of lines are some.
bool hasControls(std::string_view text);

// The first `most` characters, with an ellipsis in the place of the last where some are cut.
std::string shortened(std::string_view text, std::size_t most);

// The first line with something on it, as the title of a text that was given none.
std::string titleFromText(std::string_view text);

// The title, trimmed; empty where nothing of it shows. Fails with "A title is one line of at
// most 200 characters".
[[nodiscard]] Result<std::string> checkedTitle(std::string_view title);
// Fails with "WHAT holds at most 1,000,000 bytes", kLongestText.
[[nodiscard]] Result<void> checkLength(std::string_view what, std::string_view text);

} // namespace KestCore
