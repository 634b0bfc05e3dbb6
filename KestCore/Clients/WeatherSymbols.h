// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string_view>

namespace KestCore
{

// How a symbol code of the forecast service shows.
struct WeatherSymbol {
    std::string_view words{};
    std::string_view icon{}; // by the desktop's naming of icons
};

// Of any code, with "_day", "_night" or "_polartwilight" behind it or without. A code that is
// not known says so.
WeatherSymbol weatherSymbol(std::string_view code);

} // namespace KestCore
