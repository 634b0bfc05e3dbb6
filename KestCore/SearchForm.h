// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

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

} // namespace KestCore
