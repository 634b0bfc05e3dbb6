// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Models/NativeState.h"

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

// The cities of the world, so that a place can be chosen without any network.
namespace KestCore
{

// A city. Its texts belong to the list that it came from.
struct Place {
    std::string_view name{};       // as it is written there in Latin letters
    std::string_view asciiName{};  // empty when it is only the name without its accents
    std::string_view otherNames{}; // separated by commas; some in Arabic letters
    std::string_view country{};    // two letters
    std::string_view countryName{};
    std::string_view otherCountryNames{}; // separated by commas
    std::string_view region{};            // the state or province, where known
    std::string_view timeZone{};
    double latitude{};
    double longitude{};
    std::int64_t population{}; // in whole thousands

    bool operator==(const Place &) const = default;
};

// A list of places, read from `text`, which has to live as long as they do. Fails with
// invalidData that names the first bad line.
[[nodiscard]] Result<std::vector<Place>> parsePlaces(std::string_view text);

// The list that ships with the program, read on first use and kept. A missing or broken one
// is a fault of the build and ends the process.
const std::vector<Place> &allPlaces();

// At most `limit` places that go by a name like the query: those of exactly this name first,
// then names that begin so, then names in which a word does, larger cities first in each. Case,
// accents, apostrophes and hyphens don't matter. A country or region may follow the name
// ("Paris, US", "cairo egypt"); the name of a country alone gives its cities.
std::vector<const Place *> searchPlaces(std::string_view query, std::size_t limit);

// What choosing the place by hand writes into the settings of the prayer tool.
Settings settingsFor(const Place &place);

} // namespace KestCore
