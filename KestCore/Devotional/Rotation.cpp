// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Devotional/Rotation.h"

#include "Base/Fault.h"
#include "KestCore/Devotional/Content.h"

#include <algorithm>

namespace KestCore
{

namespace
{

RotationTick rotateFavourites(Base::Instant now, Base::Instant due, const NativeState &state)
{
    const bool isPhraseOrName = state.pin.tool == "dhikr" || state.pin.tool == "names";
    const auto favourite = nextFavourite(state.devotional.favorites, state.pin);
    if (now < due || !favourite || !isPhraseOrName) {
        return {.nextRotation = due};
    }
    const auto minutes = static_cast<double>(state.devotional.preferences.rotationMinutes);
    RotationTick tick{.nextRotation = now + Base::Seconds{minutes * 60.0}};
    // Favourites are phrases, so a pinned Name gives way to the dhikr tool.
    const Pin next{.tool = "dhikr", .item = *favourite};
    if (next != state.pin) {
        tick.pin = next;
    }
    return tick;
}

} // namespace

const std::string &nameOfTheDay(Base::Instant instant, const Calendar &calendar)
{
    const auto &names = contentCatalogue().names;
    if (names.empty()) {
        Base::fatalFault("KestCore/Rotation", "the catalogue has no Names");
    }
    const auto size = static_cast<std::int64_t>(names.size());
    const std::int64_t day = calendar.dayNumber(instant);
    return names[static_cast<std::size_t>(((day % size) + size) % size)].id;
}

std::optional<std::string> nextFavourite(std::span<const std::string> favourites,
                                         const Pin &pinned)
{
    if (favourites.empty()) {
        return std::nullopt;
    }
    const auto at =
        pinned.tool == "dhikr" ? std::ranges::find(favourites, pinned.item) : favourites.end();
    const bool isLast = at != favourites.end() && std::next(at) == favourites.end();
    return at == favourites.end() || isLast ? favourites.front() : *std::next(at);
}

RotationTick tickRotation(Base::Instant now, Base::Instant due, const NativeState &state,
                          const Calendar &calendar)
{
    const std::string &mode = state.devotional.preferences.pinMode;
    if (mode == "favourites") {
        return rotateFavourites(now, due, state);
    }
    RotationTick tick{.nextRotation = due};
    if (mode == "daily" && state.pin.tool == "names") {
        if (const std::string &name = nameOfTheDay(now, calendar); state.pin.item != name) {
            tick.pin = Pin{.tool = "names", .item = name};
        }
    }
    return tick;
}

} // namespace KestCore
