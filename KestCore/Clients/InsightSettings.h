// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Clients/DirectInsightsClient.h"

#include <string>
#include <string_view>

// What the settings and the environment say of the insight tools.
namespace KestCore
{

inline constexpr const char *kWebsiteSetting = "analytics.website";

// The tool that shows a provider's figures keeps its settings under its own name: "period", and
// "waitUntil", an instant until which the provider wants to be left alone.
std::string insightSetting(InsightProvider provider, std::string_view name);

// The providers' own hosts, or mirrors of one's own that the environment names.
InsightHosts insightHosts();

// Fails with invalidData that lists the periods there are. No text is the usual one.
[[nodiscard]] Result<InsightPeriod> insightPeriodFrom(std::string_view text);

} // namespace KestCore
