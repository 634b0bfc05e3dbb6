// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Models/TimeOfDay.h"

#include "Base/Text.h"

#include <algorithm>

namespace KestCore
{

namespace
{

// Leading zeros are fine, however many; a value above `highest` is not.
std::optional<int> digitsUpTo(std::string_view text, int highest)
{
    int value = 0;
    for (const char c : text) {
        if (c < '0' || c > '9') {
            return std::nullopt;
        }
        value = std::min(value * 10 + (c - '0'), highest + 1);
    }
    return text.empty() || value > highest ? std::nullopt : std::optional{value};
}

} // namespace

std::optional<int> minuteOfDay(std::string_view text)
{
    const auto pieces = Base::split(text, ':');
    if (pieces.size() != 2) {
        return std::nullopt;
    }
    const auto hour = digitsUpTo(pieces[0], 23);
    const auto minute = digitsUpTo(pieces[1], 59);
    return hour && minute ? std::optional{*hour * 60 + *minute} : std::nullopt;
}

} // namespace KestCore
