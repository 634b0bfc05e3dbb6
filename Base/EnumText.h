// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>
#include <type_traits>
#include <utility>

namespace Base
{

// Names a type in a call without making a value of it; found by argument-dependent lookup.
template <class T>
struct Of {
};

template <class E, std::size_t N>
using EnumTexts = std::array<std::pair<E, std::string_view>, N>;

// An enumeration with a text table: a function `enumTexts(Of<E>)` beside it that returns an
// EnumTexts in declaration order. The texts are what files, the command line and the
// interface say.
template <class E>
concept TextEnum = std::is_enum_v<E> && requires { enumTexts(Of<E>{}); };

template <TextEnum E>
constexpr std::string_view textOf(E value)
{
    constexpr auto kTable = enumTexts(Of<E>{});
    const auto *row = std::ranges::find(kTable, value, [](const auto &r) { return r.first; });
    return row == kTable.end() ? std::string_view{} : row->second;
}

template <TextEnum E>
constexpr std::optional<E> fromText(std::string_view text)
{
    constexpr auto kTable = enumTexts(Of<E>{});
    const auto *row = std::ranges::find(kTable, text, [](const auto &r) { return r.second; });
    return row == kTable.end() ? std::nullopt : std::optional{row->first};
}

} // namespace Base
