// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/SecretStore.h"
#include "KestCore/Clients/InsightReport.h"

#include <string_view>

// The user's keys to the providers. They live in the system's keyring, never in the store.
namespace KestCore
{

// Longer is no key.
inline constexpr std::size_t kLongestInsightKey = 512;

constexpr std::string_view keyAccountOf(InsightProvider provider)
{
    return provider == InsightProvider::stripe ? "insights.stripe.key"
                                               : "insights.datafast.key";
}

// Fails with invalidData for what is no key, and for a key of Stripe that is not a restricted
// one. What a restricted key may do, only Stripe knows. The message does not quote it.
[[nodiscard]] Result<void> checkInsightKey(InsightProvider provider, std::string_view key);

} // namespace KestCore
