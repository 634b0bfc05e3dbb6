// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace Base
{

// Unicode code points of a valid UTF-8 text.
std::size_t countCodePoints(std::string_view text);

// The text without differences of case and of diacritics, by the rules of the user's
// language (LC_ALL, LC_MESSAGES, LANG): a Turkish dotless i stays itself there.
std::string foldCaseAndDiacritics(std::string_view text);

// Splits at each separator. "a,,b" gives "a", "", "b"; an empty text gives one empty piece.
std::vector<std::string_view> split(std::string_view text, char separator);

// Puts `to` in the place of every `from`, which must not be empty.
void replaceAll(std::string &text, std::string_view from, std::string_view to);

} // namespace Base
