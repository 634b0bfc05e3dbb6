// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// Amounts of money. They are counted in the smallest unit that a provider tells, and turned
// into the main unit only where they are shown.
namespace KestCore
{

// More than this of one currency is not counted: what is summed up of three such amounts a
// double of the main unit still gives back exactly.
inline constexpr std::int64_t kMostMoney = std::int64_t{1} << 48U;

// How many decimals the amounts of a currency have; `currency` is its code in small letters.
int decimalsOf(std::string_view currency);

// "USD"; a sign, such as the euro's, as it is.
std::string shownCurrency(std::string_view currency);

// "12,345".
std::string groupedText(std::int64_t number);

double mainUnits(std::int64_t smallest, std::string_view currency);

// "-1,234.50 USD": with the currency's decimals, a comma between thousands.
std::string moneyText(std::int64_t smallest, std::string_view currency);
// The same from main units, which must be at most what kMostMoney makes.
std::string moneyTextOfMain(double amount, std::string_view currency);

} // namespace KestCore
