// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Clients/Money.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>

namespace KestCore
{

namespace
{

// By ISO 4217, except that the provider of payments counts two kinds otherwise: the ariary in
// whole ones, and the Icelandic króna and the Uganda shilling, which have lost their
// hundredths, in hundredths as before.
constexpr std::array<std::string_view, 16> kWithoutDecimals{
    "bif", "clp", "djf", "gnf", "jpy", "kmf", "krw", "mga",
    "pyg", "rwf", "uyi", "vnd", "vuv", "xaf", "xof", "xpf"};
constexpr std::array<std::string_view, 7> kWithThreeDecimals{"bhd", "iqd", "jod", "kwd",
                                                             "lyd", "omr", "tnd"};

std::int64_t partsOf(std::string_view currency)
{
    std::int64_t parts = 1;
    for (int decimal = 0; decimal < decimalsOf(currency); ++decimal) {
        parts *= 10;
    }
    return parts;
}

std::string withCommas(std::uint64_t number)
{
    std::string digits = fmt::format("{}", number);
    for (std::size_t left = digits.size(); left > 3;) {
        left -= 3;
        digits.insert(left, 1, ',');
    }
    return digits;
}

} // namespace

int decimalsOf(std::string_view currency)
{
    if (std::ranges::find(kWithoutDecimals, currency) != kWithoutDecimals.end()) {
        return 0;
    }
    return std::ranges::find(kWithThreeDecimals, currency) != kWithThreeDecimals.end() ? 3 : 2;
}

std::string shownCurrency(std::string_view currency)
{
    std::string shown{currency};
    std::ranges::transform(shown, shown.begin(), [](char c) {
        return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
    });
    return shown;
}

std::string groupedText(std::int64_t number)
{
    // The lowest number has no positive twin, but as unsigned it has.
    const auto bits = static_cast<std::uint64_t>(number);
    return number < 0 ? "-" + withCommas(0 - bits) : withCommas(bits);
}

double mainUnits(std::int64_t smallest, std::string_view currency)
{
    return static_cast<double>(smallest) / static_cast<double>(partsOf(currency));
}

std::string moneyText(std::int64_t smallest, std::string_view currency)
{
    const std::int64_t parts = partsOf(currency);
    std::string text = groupedText(smallest / parts);
    if (smallest < 0 && smallest > -parts) {
        text.insert(0, "-"); // a zero has no sign of its own
    }
    if (parts > 1) {
        text.append(fmt::format(".{:0{}}", std::abs(smallest % parts), decimalsOf(currency)));
    }
    return currency.empty() ? text : text.append(" ").append(shownCurrency(currency));
}

std::string moneyTextOfMain(double amount, std::string_view currency)
{
    constexpr double kMost = 1e18; // what no currency has and an integer holds
    const double smallest = amount * static_cast<double>(partsOf(currency));
    return moneyText(std::llround(std::clamp(smallest, -kMost, kMost)), currency);
}

} // namespace KestCore
