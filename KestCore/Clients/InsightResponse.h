// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Http.h"
#include "KestCore/Clients/InsightReport.h"

#include <span>
#include <stop_token>
#include <string>
#include <string_view>
#include <utility>

namespace KestCore
{

using QueryItem = std::pair<std::string_view, std::string>;
// Everything but letters, digits and "-._~" is percent-encoded.
std::string addressOf(std::string_view host, std::string_view path,
                      std::span<const QueryItem> query);

// The requests that make up one report of one provider. Holds the key, and wipes it.
class InsightExchange
{
public:
    static constexpr std::size_t kLargestBody = 8'000'000; // bytes

    // `transport` outlives it. `now` is when the report is asked for.
    InsightExchange(Base::HttpTransport &transport, InsightProvider provider,
                    std::string_view key, Base::Instant now, std::stop_token stop);
    ~InsightExchange();
    InsightExchange(const InsightExchange &) = delete;
    InsightExchange &operator=(const InsightExchange &) = delete;

    // The body of a good answer, undecoded. Asks nobody once the stop is requested.
    [[nodiscard]] InsightResult<std::string> get(std::string address);

private:
    InsightError failureOf(const Base::HttpFailure &failure) const;
    InsightError errorOf(const Base::HttpResponse &response) const;

    Base::HttpTransport &m_transport;
    InsightProvider m_provider;
    Base::Instant m_now;
    std::stop_token m_stop;
    Base::HttpRequest m_request;
};

} // namespace KestCore
