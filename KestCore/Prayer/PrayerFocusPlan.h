// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Instant.h"
#include "KestCore/Vocabulary.h"

#include <cstdint>
#include <string>

namespace KestCore
{

// A focus period that ends some minutes before a prayer: the body of a record of kind
// "prayer". Its deadline stays as it was set when places or settings change later.
struct PrayerFocusPlan {
    std::string prayer{};
    std::int64_t bufferMinutes{};
    Base::Instant deadline{};

    bool operator==(const PrayerFocusPlan &) const = default;
};

consteval auto jsonFields(Of<PrayerFocusPlan>)
{
    using R = PrayerFocusPlan;
    return std::tuple{json::Field{"prayer", &R::prayer},
                      json::Field{"bufferMinutes", &R::bufferMinutes},
                      json::Field{"deadline", &R::deadline}};
}
static_assert(json::coversAllMembers<PrayerFocusPlan>());

inline bool keepsRules(const PrayerFocusPlan &plan)
{
    return !plan.prayer.empty() && plan.bufferMinutes >= 0;
}

} // namespace KestCore
