// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Vocabulary.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace KestCore
{

// One number to convert, as the user typed it.
struct UnitConversion {
    std::string category{"Length"};
    std::string from{"m"}; // unit ids
    std::string to{"km"};
    std::string text{"1"};

    bool operator==(const UnitConversion &) const = default;
};

consteval auto jsonFields(Of<UnitConversion>)
{
    using R = UnitConversion;
    return std::tuple{json::Field{"category", &R::category}, json::Field{"from", &R::from},
                      json::Field{"to", &R::to}, json::Field{"text", &R::text}};
}
static_assert(json::coversAllMembers<UnitConversion>());

// A value v in this unit is v * factor + offset in the base unit of its category.
struct UnitDefinition {
    std::string_view id; // also the symbol that is shown
    std::string_view category;
    double factor{};
    double offset{};
};

inline constexpr std::string_view kCannotConvert =
    "Choose compatible units and a finite number";

// The table of units and what it can do.
class Units
{
public:
    Units() = delete;

    static std::span<const UnitDefinition> all();
    // Null for an id that is not in the table.
    static const UnitDefinition *find(std::string_view id);

    // Both units are known and of the category that the record names.
    static bool isValid(const UnitConversion &conversion);

    // Fails with invalidData "Choose compatible units and a finite number".
    [[nodiscard]] static Result<double> convert(std::string_view from, std::string_view to,
                                                double value);

    // The result in the words of a locale such as "de_DE", with at most 12 significant digits
    // and no grouping; nothing when the text is no number or cannot be converted. The number
    // may have the locale's decimal separator or a point, and white space around it.
    static std::optional<std::string> resultText(const UnitConversion &conversion,
                                                 const std::string &locale);
};

} // namespace KestCore
