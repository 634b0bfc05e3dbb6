// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Surfaces/PaletteUses.h"

#include "Base/JsonReader.h"
#include "Base/JsonWriter.h"

#include <algorithm>
#include <cmath>

namespace KestCore
{

namespace
{

constexpr double kHalfLifeMs = 14.0 * 24 * 60 * 60 * 1000;

struct UseList {
    std::vector<PaletteUse> uses{};
};

consteval auto jsonFields(Of<UseList>)
{
    return std::tuple{json::Field{"uses", &UseList::uses}};
}
static_assert(json::coversAllMembers<UseList>());

double millisecondsOf(Base::Instant now) { return Base::milliseconds1970(now); }

} // namespace

std::vector<PaletteUse> readPaletteUses(std::string_view setting)
{
    auto list = json::decode<UseList>(setting).value_or(UseList{});
    std::erase_if(list.uses, [](const PaletteUse &use) {
        return use.key.empty() || !(use.weight > 0) || !std::isfinite(use.used);
    });
    return std::move(list.uses);
}

double weightAt(const PaletteUse &use, Base::Instant now)
{
    // A clock that was set back must not make it grow.
    const double age = std::max(0.0, millisecondsOf(now) - use.used);
    return use.weight * std::exp2(-age / kHalfLifeMs);
}

Result<std::string> withPaletteUse(std::string_view setting, std::string_view key,
                                   Base::Instant now)
{
    UseList list{.uses = readPaletteUses(setting)};
    auto found = std::ranges::find(list.uses, key, &PaletteUse::key);
    if (found == list.uses.end()) {
        found = list.uses.insert(found, {.key = std::string{key}});
    }
    *found = {
        .key = found->key, .weight = weightAt(*found, now) + 1, .used = millisecondsOf(now)};
    const PaletteUse chosen = *found;
    std::ranges::stable_sort(list.uses, std::ranges::greater{}, [&](const PaletteUse &use) {
        // What is chosen now stays, however light it is among many.
        return use.key == chosen.key ? HUGE_VAL : weightAt(use, now);
    });
    if (list.uses.size() > kMostPaletteUses) {
        list.uses.resize(kMostPaletteUses);
    }
    return json::encode(list);
}

} // namespace KestCore
