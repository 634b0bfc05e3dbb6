// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Instant.h"
#include "KestCore/Devotional/Calendar.h"
#include "KestCore/Models/NativeState.h"

#include <optional>
#include <span>
#include <string>

// What is pinned to the notch as time goes by.
namespace KestCore
{

// The id of the Name whose day it is: one after the other, a new one at local midnight, the
// same everywhere on the same Gregorian date.
const std::string &nameOfTheDay(Base::Instant instant, const Calendar &calendar);

// The favourite after the pinned phrase, in stored order and round again; the first when what
// is pinned is none of them. Nothing without favourites.
std::optional<std::string> nextFavourite(std::span<const std::string> favourites,
                                         const Pin &pinned);

struct RotationTick {
    Base::Instant nextRotation{};
    std::optional<Pin> pin{}; // the new one; absent when the pin stays

    bool operator==(const RotationTick &) const = default;
};

// What the clock's tick does at `now` when the next rotation is due at `due`. With a Name of
// the day the due time plays no part: the tick is wanted at calendar.nextDateChange().
RotationTick tickRotation(Base::Instant now, Base::Instant due, const NativeState &state,
                          const Calendar &calendar);

} // namespace KestCore
