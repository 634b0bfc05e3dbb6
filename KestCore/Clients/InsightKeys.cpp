// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Clients/InsightKeys.h"

#include <algorithm>

namespace KestCore
{

namespace
{

std::unexpected<KestError> refused(const char *message)
{
    return std::unexpected(KestError::invalidData(message));
}

} // namespace

Result<void> checkInsightKey(InsightProvider provider, std::string_view key)
{
    // A line's end would begin a header of its own.
    const bool isOneWord =
        std::ranges::all_of(key, [](char c) { return c > ' ' && c < '\x7F'; });
    if (key.empty() || key.size() > kLongestInsightKey || !isOneWord) {
        return refused("A key is one word of letters, digits and signs.");
    }
    if (provider == InsightProvider::datafast) {
        return {};
    }
    if (key.starts_with("sk_test_")) {
        return refused("This is a secret Stripe test key, whose figures would look like real "
                       "ones. Make a restricted test key (rk_test_) with Balance read access "
                       "at Stripe, and connect that.");
    }
    if (key.starts_with("sk_")) {
        return refused("This is a secret Stripe key: whoever has it can move money, and to "
                       "read the balance needs no such power. Make a restricted key "
                       "(rk_live_ or rk_test_) with Balance read access at Stripe, and "
                       "connect that.");
    }
    if (!key.starts_with("rk_")) {
        return refused("This is no restricted Stripe key. Make one (rk_live_ or rk_test_) with "
                       "Balance read access at Stripe, and connect that.");
    }
    return {};
}

} // namespace KestCore
