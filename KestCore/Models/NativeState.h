// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Models/DevotionalState.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace KestCore
{

// What is pinned to the notch.
struct Pin {
    std::string tool{}; // a tool id
    std::string item{}; // an item of that tool

    bool operator==(const Pin &) const = default;
};

consteval auto jsonFields(Of<Pin>)
{
    return std::tuple{json::Field{"tool", &Pin::tool}, json::Field{"item", &Pin::item}};
}
static_assert(json::coversAllMembers<Pin>());

// String keys to string values, read by tools under dotted keys such as "prayer.method".
using Settings = std::map<std::string, std::string>;

// A boolean setting is true only when its value is exactly "true".
bool settingIsTrue(const Settings &settings, const std::string &key);

// The root of everything that the application saves about itself.
struct NativeState {
    std::int64_t version{};
    std::int64_t revision{}; // counts the committed changes of the database
    bool migrated{};
    DevotionalState devotional{};
    std::vector<std::string> enabled{};             // tool ids
    std::vector<std::string> order{};               // tool ids as they are displayed
    std::vector<std::string> navigationFavorites{}; // tool ids
    Pin pin{};
    std::optional<std::uint32_t> displayID{}; // of the display that hosts the notch
    Settings settings{};

    bool operator==(const NativeState &) const = default;
};

consteval auto jsonFields(Of<NativeState>)
{
    using R = NativeState;
    return std::tuple{
        json::Field{"version", &R::version},
        json::Field{"revision", &R::revision},
        json::Field{"migrated", &R::migrated},
        json::Field{"devotional", &R::devotional},
        json::Field{"enabled", &R::enabled},
        json::Field{"order", &R::order},
        json::Field{"navigationFavorites", &R::navigationFavorites},
        json::Field{"pin", &R::pin},
        json::Field{"displayID", &R::displayID},
        json::Field{"settings", &R::settings},
    };
}
static_assert(json::coversAllMembers<NativeState>());

// Whether the state keeps every rule. Fails with invalidData "Invalid native settings", or
// with the devotional message when the embedded devotional state alone is wrong.
[[nodiscard]] Result<void> validate(const NativeState &state);

// The state of a first run. Tools that watch, sample or fetch in the background wait to be
// turned on.
NativeState defaultNativeState();

// A stored document as a state. Fails with "Invalid native settings" when it does not decode;
// the rules are not looked at, as the caller may have to bring the tool order up to date.
[[nodiscard]] Result<NativeState> decodeNativeState(const json::PaddedText &text);

} // namespace KestCore
