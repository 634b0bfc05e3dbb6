// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Json.h"

#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string_view>

// Decodes the bytes; what decodes must encode, and decode again to the same value. Gives the
// value for further checks.
template <class T>
std::optional<T> roundTrip(const std::uint8_t *data, std::size_t size)
{
    const std::string_view bytes{reinterpret_cast<const char *>(data), size};
    auto value = Base::json::decode<T>(bytes);
    if (!value) {
        return std::nullopt;
    }
    const auto text = Base::json::encode(*value);
    if (!text) {
        std::abort();
    }
    const auto again = Base::json::decode<T>(std::string_view{*text});
    if (!again || !(*again == *value) || Base::json::encode(*again) != text) {
        std::abort();
    }
    return *std::move(value);
}
