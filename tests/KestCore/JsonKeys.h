// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

// The keys of a JSON text whose strings hold no colon behind a quote: for looking at the
// order of keys and for taking one of them away.
namespace KestCoreTests
{

struct KeyPlace {
    std::string key{};
    std::size_t at{}; // of its first letter
};

inline std::vector<KeyPlace> keysOf(std::string_view text)
{
    std::vector<KeyPlace> keys;
    for (std::size_t end = text.find("\":"); end != std::string_view::npos;
         end = text.find("\":", end + 1)) {
        const std::size_t at = text.rfind('"', end - 1) + 1;
        keys.push_back({std::string{text.substr(at, end - at)}, at});
    }
    return keys;
}

inline std::string joinedKeys(std::string_view text)
{
    std::string joined;
    for (const auto &[key, at] : keysOf(text)) {
        joined += (joined.empty() ? "" : " ") + key;
    }
    return joined;
}

// The text with that key under another name.
inline std::string without(std::string_view text, const KeyPlace &place)
{
    std::string changed{text};
    changed.insert(place.at, "_");
    return changed;
}

} // namespace KestCoreTests
