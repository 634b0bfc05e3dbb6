// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <compare>
#include <cstdint>
#include <optional>
#include <string_view>

namespace KestCore
{

// "1.4.0", or "1.4.0-rc.2" for what comes before it.
struct SemanticVersion {
    std::uint32_t major{};
    std::uint32_t minor{};
    std::uint32_t patch{};
    std::optional<std::uint32_t> candidate{};

    bool operator==(const SemanticVersion &) const = default;
    std::strong_ordering operator<=>(const SemanticVersion &other) const;
};

// Nothing for any other form, such as leading zeros or a "v".
std::optional<SemanticVersion> semanticVersion(std::string_view text);

} // namespace KestCore
