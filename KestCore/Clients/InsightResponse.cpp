// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Clients/InsightResponse.h"

#include "Base/Secret.h"
#include "Base/Text.h"
#include "KestCore/Clients/HttpDate.h"
#include "KestCore/Clients/ServiceAddress.h"

#include <fmt/format.h>

#include <algorithm>

namespace KestCore
{

namespace
{

using Kind = InsightError::Kind;

std::string percentEncoded(std::string_view text)
{
    std::string encoded;
    for (const char c : text) {
        if (isPlainLetterOrDigit(c) || std::string_view{"-._~"}.contains(c)) {
            encoded += c;
        } else {
            encoded.append(fmt::format("%{:02X}", static_cast<unsigned char>(c)));
        }
    }
    return encoded;
}

// How long to wait, told in seconds or as a date. At most a day: longer is a mistake that
// would lock the user out.
std::optional<Base::Seconds> retryAfter(const Base::HttpResponse &response, Base::Instant now)
{
    constexpr Base::Seconds kLongest{86'400};
    const auto told = response.header("Retry-After");
    if (!told) {
        return std::nullopt;
    }
    const std::string_view text = Base::trimmed(*told);
    std::optional<Base::Seconds> wait;
    if (const auto seconds = Base::numberFrom<std::uint64_t>(text)) {
        wait = Base::Seconds{static_cast<double>(*seconds)};
    } else if (const auto date = fromHttpDate(text)) {
        wait = *date - now;
    }
    return wait ? std::optional{std::clamp(*wait, Base::Seconds{0}, kLongest)} : std::nullopt;
}

std::string_view permissionAdvice(InsightProvider provider)
{
    return provider == InsightProvider::datafast
               ? "Allow analytics:read and access to this website, then reconnect."
               : "Allow Balance read access on this restricted Stripe key, then reconnect.";
}

} // namespace

std::string addressOf(std::string_view host, std::string_view path,
                      std::span<const QueryItem> query)
{
    std::string address{host};
    address.append(path);
    char separator = '?';
    for (const auto &[name, value] : query) {
        address += separator;
        address.append(percentEncoded(name)).append("=").append(percentEncoded(value));
        separator = '&';
    }
    return address;
}

InsightExchange::InsightExchange(Base::HttpTransport &transport, InsightProvider provider,
                                 std::string_view key, Base::Instant now, std::stop_token stop)
    : m_transport(transport), m_provider(provider), m_now(now), m_stop(std::move(stop))
{
    constexpr std::string_view kScheme = "Bearer ";
    m_request.mostBytes = kLargestBody + 1; // one more tells that there is too much
    m_request.headers.resize(2);
    m_request.headers[1] = {.name = "Accept", .value = "application/json"};
    Base::HttpHeader &authorization = m_request.headers[0];
    authorization.name = "Authorization";
    authorization.value.reserve(kScheme.size() + key.size()); // no copy is outgrown
    authorization.value.append(kScheme).append(key);
}

InsightExchange::~InsightExchange() { Base::wipe(m_request.headers[0].value); }

InsightResult<std::string> InsightExchange::get(std::string address)
{
    if (m_stop.stop_requested()) {
        return std::unexpected(InsightError{.kind = Kind::cancelled});
    }
    m_request.url = std::move(address);
    auto response = m_transport.get(m_request, m_stop);
    if (!response) {
        return std::unexpected(failureOf(response.error()));
    }
    if (response->body.size() > kLargestBody) {
        return std::unexpected(InsightError{.kind = Kind::response});
    }
    if (response->status < 200 || response->status > 299) {
        return std::unexpected(errorOf(*response));
    }
    return std::move(response->body);
}

InsightError InsightExchange::failureOf(const Base::HttpFailure &failure) const
{
    switch (failure.kind) {
    case Base::HttpFailure::Kind::cancelled:
        return {.kind = Kind::cancelled};
    case Base::HttpFailure::Kind::tooLarge:
        return {.kind = Kind::response};
    case Base::HttpFailure::Kind::refused:
        return {.kind = Kind::configuration,
                .message = fmt::format(
                    "The address of {} is not allowed, or leads to one that is not.",
                    nameOf(m_provider))};
    case Base::HttpFailure::Kind::noAnswer:
        break;
    }
    return {.kind = Kind::offline, .unanswered = m_provider};
}

InsightError InsightExchange::errorOf(const Base::HttpResponse &response) const
{
    const std::string_view name = nameOf(m_provider);
    if (response.status == 429) {
        return {.kind = Kind::rateLimited, .retryAfter = retryAfter(response, m_now)};
    }
    if (response.status == 403) {
        return {.kind = Kind::permission, .message = std::string{permissionAdvice(m_provider)}};
    }
    if (response.status == 401) {
        return {.kind = Kind::permission,
                .message = fmt::format("This {} key has expired or is invalid. Replace it in "
                                       "Connections.",
                                       name)};
    }
    if (response.status >= 500 && response.status <= 599) {
        return {.kind = Kind::service};
    }
    return {.kind = Kind::configuration,
            .message = fmt::format("Check the {} key and website selection (HTTP {}).", name,
                                   response.status)};
}

} // namespace KestCore
