// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Http.h"
#include "KestCore/Clients/InsightPeriod.h"
#include "KestCore/Clients/InsightReport.h"

#include <map>
#include <stop_token>
#include <string>
#include <string_view>

namespace KestCore
{

// Where the providers are.
struct InsightHosts {
    std::string stripe = "https://api.stripe.com";
    std::string datafast = "https://datafa.st";
};

// Fetches the figures of one provider straight from it, with the user's own key. One call at
// a time; a service of its own, so the transport is for it alone and outlives it.
class DirectInsightsClient
{
public:
    explicit DirectInsightsClient(Base::HttpTransport &transport, InsightHosts hosts = {});

    // The whole report of the period up to `now`, or why there is none; never a part of one.
    // `website` is DataFast's identifier of it, and not used for Stripe. While a provider has
    // said to wait this fails with rateLimited and asks nobody. Between two requests, and by
    // the transport within one, a stop is heeded: it fails with cancelled.
    [[nodiscard]] InsightResult<InsightReport> load(InsightProvider provider,
                                                    std::string_view key, InsightPeriod period,
                                                    std::string_view website, Base::Instant now,
                                                    const InsightZone &zone,
                                                    const std::stop_token &stop);

    // Until when the provider must be left alone, where it has said so; for a caller that
    // remembers it longer than this object lives.
    std::optional<Base::Instant> waitsUntil(InsightProvider provider) const;
    void waitUntil(InsightProvider provider, Base::Instant instant);

private:
    [[nodiscard]] InsightResult<> checkWait(InsightProvider provider, Base::Instant now) const;
    const std::string &hostOf(InsightProvider provider) const;

    Base::HttpTransport &m_transport;
    InsightHosts m_hosts;
    std::map<InsightProvider, Base::Instant> m_waits;
};

} // namespace KestCore
