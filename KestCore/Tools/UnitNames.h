// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Tools/Units.h"

#include <string_view>
#include <vector>

// What people call the units.
namespace KestCore
{

// The unit that a word or a few words stand for: an id, an English name, a plural, a plain
// spelling such as m2 or degC, whatever their case. Null for anything else, and where two
// units may be meant: a gallon that is neither American nor British, Mb, which is a bit's,
// kN, which is a force's.
const UnitDefinition *unitNamed(std::string_view name);

// The ids of the few units whose names are nearest to this one; none when none is near.
std::vector<std::string_view> unitsNear(std::string_view typed);

} // namespace KestCore
