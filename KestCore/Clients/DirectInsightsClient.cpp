// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Clients/DirectInsightsClient.h"

#include "KestCore/Clients/DataFastReport.h"
#include "KestCore/Clients/InsightKeys.h"
#include "KestCore/Clients/ServiceAddress.h"
#include "KestCore/Clients/StripeReport.h"

#include <fmt/format.h>

namespace KestCore
{

namespace
{

// A wait that is longer was written down while the clock was wrong.
constexpr Base::Seconds kLongestWait{86'400};

std::unexpected<InsightError> wrongConfiguration(std::string message)
{
    return std::unexpected(
        InsightError{.kind = InsightError::Kind::configuration, .message = std::move(message)});
}

} // namespace

DirectInsightsClient::DirectInsightsClient(Base::HttpTransport &transport, InsightHosts hosts)
    : m_transport(transport), m_hosts(std::move(hosts))
{
}

InsightResult<InsightReport>
DirectInsightsClient::load(InsightProvider provider, std::string_view key, InsightPeriod period,
                           std::string_view website, Base::Instant now, const InsightZone &zone,
                           const std::stop_token &stop)
{
    if (auto checked = checkInsightKey(provider, key); !checked) {
        return wrongConfiguration(std::move(checked).error().message);
    }
    const std::string &host = hostOf(provider);
    if (!isServiceAddress(host)) {
        return wrongConfiguration(fmt::format(
            "The address of {} must be https:// and a host name.", nameOf(provider)));
    }
    KEST_CHECK(checkWait(provider, now));
    const InsightSpan span = spanOf(period, now, zone.calendar);
    InsightExchange exchange{m_transport, provider, key, now, stop};
    auto report = provider == InsightProvider::stripe
                      ? stripeReport(exchange, host, key, span, zone.calendar)
                      : dataFastReport(exchange, host, website, span, zone);
    if (!report) {
        if (const auto &wait = report.error().retryAfter) {
            waitUntil(provider, now + *wait);
        }
        return report;
    }
    report->fetchedAt = now;
    return report;
}

std::optional<Base::Instant> DirectInsightsClient::waitsUntil(InsightProvider provider) const
{
    const auto wait = m_waits.find(provider);
    return wait == m_waits.end() ? std::nullopt : std::optional{wait->second};
}

void DirectInsightsClient::waitUntil(InsightProvider provider, Base::Instant instant)
{
    m_waits.insert_or_assign(provider, instant);
}

InsightResult<> DirectInsightsClient::checkWait(InsightProvider provider,
                                                Base::Instant now) const
{
    const auto until = waitsUntil(provider);
    if (!until || *until <= now || *until - now > kLongestWait) {
        return {};
    }
    return std::unexpected(
        InsightError{.kind = InsightError::Kind::rateLimited, .retryAfter = *until - now});
}

const std::string &DirectInsightsClient::hostOf(InsightProvider provider) const
{
    return provider == InsightProvider::stripe ? m_hosts.stripe : m_hosts.datafast;
}

} // namespace KestCore
