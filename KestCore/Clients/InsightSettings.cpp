// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Clients/InsightSettings.h"

#include "KestCore/Clients/ServiceAddress.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <vector>

namespace KestCore
{

std::string insightSetting(InsightProvider provider, std::string_view name)
{
    const bool isPayments = provider == InsightProvider::stripe;
    return fmt::format("{}.{}", isPayments ? "revenue" : "analytics", name);
}

InsightHosts insightHosts()
{
    const InsightHosts usual;
    return {.stripe = serviceAddress(usual.stripe, "KEST_STRIPE_URL"),
            .datafast = serviceAddress(usual.datafast, "KEST_DATAFAST_URL")};
}

Result<InsightPeriod> insightPeriodFrom(std::string_view text)
{
    if (text.empty()) {
        return kUsualInsightPeriod;
    }
    if (const auto period = Base::fromText<InsightPeriod>(text)) {
        return *period;
    }
    std::vector<std::string_view> known;
    for (const auto &[period, name] : enumTexts(Of<InsightPeriod>{})) {
        known.push_back(name);
    }
    return std::unexpected(KestError::invalidData(fmt::format(
        "There is no period \"{}\"; choose one of {}", text, fmt::join(known, ", "))));
}

} // namespace KestCore
