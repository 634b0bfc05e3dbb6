// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Instant.h"
#include "KestCore/Vocabulary.h"

#include <string>
#include <string_view>
#include <vector>

namespace KestCore
{

// What was chosen in the command palette, and how often of late: a choice counts one, and half
// of that after two weeks. The setting "palette.uses" holds them.
struct PaletteUse {
    std::string key{};
    double weight{}; // at `used`
    double used{};   // ms since 1970 UTC

    bool operator==(const PaletteUse &) const = default;
};

consteval auto jsonFields(Of<PaletteUse>)
{
    using R = PaletteUse;
    return std::tuple{json::Field{"key", &R::key}, json::Field{"weight", &R::weight},
                      json::Field{"used", &R::used}};
}
static_assert(json::coversAllMembers<PaletteUse>());

inline constexpr const char *kPaletteUsesKey = "palette.uses";
inline constexpr std::size_t kMostPaletteUses = 200;

// None for a text that is no such list.
std::vector<PaletteUse> readPaletteUses(std::string_view setting);

double weightAt(const PaletteUse &use, Base::Instant now);

// The setting's new text once this was chosen; the least weighty beyond the most is forgotten.
[[nodiscard]] Result<std::string> withPaletteUse(std::string_view setting, std::string_view key,
                                                 Base::Instant now);

} // namespace KestCore
