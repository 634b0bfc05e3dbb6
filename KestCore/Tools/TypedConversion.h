// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Tools/Units.h"

#include <optional>
#include <string_view>

// Conversions as people type them: "5 km to mi", "100°C in °F", "5km mi", "3,5 kg → lb".
namespace KestCore
{

// The conversion that a line asks for; nothing for any other line. The number is not read
// yet, as only a locale can tell what a comma in it means, and the units may be of different
// categories, which `Units::resultText` then refuses.
std::optional<UnitConversion> typedConversion(std::string_view line);

// The same for a line that is meant to be one. Fails with invalidData "Choose compatible
// units and a finite number" without a number, and for an unknown unit with a message that
// names the units it may be.
[[nodiscard]] Result<UnitConversion> requireConversion(std::string_view line);

} // namespace KestCore
