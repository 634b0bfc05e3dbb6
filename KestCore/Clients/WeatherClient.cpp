// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Clients/WeatherClient.h"

#include "Base/Text.h"
#include "KestCore/Clients/HttpDate.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace KestCore
{

namespace
{

constexpr std::size_t kLargestBody = 1'999'999;
constexpr Base::Seconds kTimeout{60};
constexpr Base::Seconds kUsualLife{900}; // of an answer that does not say how long it is good
constexpr Base::Seconds kShortestBreak{600};
constexpr Base::Seconds kLongestBreak{86'400};

// More places than anybody goes to and fro between; a document is of some hundred kilobytes.
constexpr std::size_t kMostPlaces = 4;

constexpr const char *kNoPlace = "Choose a valid location";
constexpr const char *kOnBreak =
    "Weather is taking a break. Please try again in a few minutes.";
constexpr const char *kBusy = "Weather is busy. Please try again in a few minutes.";
constexpr const char *kSilent = "Weather did not respond. Try again shortly.";

constexpr int kFound = 200;
constexpr int kFoundButDeprecated = 203;
constexpr int kUnchanged = 304;
constexpr int kTooMany = 429;

std::unexpected<KestError> unavailable(const char *message)
{
    return std::unexpected(KestError::unavailable(message));
}

std::unexpected<KestError> isUnavailable()
{
    return unavailable("Weather is temporarily unavailable. Please try again shortly.");
}

Base::Instant expiryOf(const Base::HttpResponse &response, Base::Instant now)
{
    const auto header = response.header("Expires");
    const auto date = header ? fromHttpDate(*header) : std::nullopt;
    return date.value_or(now + kUsualLife);
}

} // namespace

WeatherClient::WeatherClient(Base::HttpTransport &transport, Options options)
    : m_transport(transport), m_options(std::move(options))
{
    while (m_options.service.ends_with('/')) {
        m_options.service.pop_back();
    }
}

Result<WeatherForecast> WeatherClient::fetch(double latitude, double longitude,
                                             const std::stop_token &stop)
{
    // Neither holds for a value that is no number.
    if (!(std::abs(latitude) <= 90 && std::abs(longitude) <= 180)) {
        return std::unexpected(KestError::invalidData(kNoPlace));
    }
    const std::string url =
        fmt::format("{}/weatherapi/locationforecast/2.0/compact?lat={:.2f}&lon={:.2f}",
                    m_options.service, latitude, longitude);
    const Base::Instant now = m_options.clock();
    if (const auto known = m_cache.find(url);
        known != m_cache.end() && known->second.expires > now) {
        return parseForecast(known->second.data);
    }
    if (now < m_retryAfter) {
        return unavailable(kOnBreak);
    }
    auto response = m_transport.get(requestFor(url), stop);
    if (response) {
        return take(url, *std::move(response));
    }
    m_options.log("Weather: " + response.error().message);
    return response.error().kind == Base::HttpFailure::Kind::tooLarge ? isUnavailable()
                                                                      : unavailable(kSilent);
}

Base::HttpRequest WeatherClient::requestFor(const std::string &url) const
{
    Base::HttpRequest request{
        .url = url,
        .headers = {{.name = "User-Agent",
                     .value = fmt::format("Velvetnook/1.0 (+{})", kProductAddress)}},
        .timeout = kTimeout,
        .mostBytes = kLargestBody};
    if (const auto known = m_cache.find(url); known != m_cache.end()) {
        if (const auto &modified = known->second.modified) {
            request.headers.push_back({.name = "If-Modified-Since", .value = *modified});
        }
    }
    return request;
}

Result<WeatherForecast> WeatherClient::take(const std::string &url, Base::HttpResponse response)
{
    if (response.status == kTooMany) {
        takeBreak(response);
        return unavailable(kBusy);
    }
    const Base::Instant expires = expiryOf(response, m_options.clock());
    if (response.status == kUnchanged) {
        return takeUnchanged(url, expires);
    }
    const bool isUsable = response.status == kFound || response.status == kFoundButDeprecated;
    if (!isUsable || response.body.size() > kLargestBody) {
        return isUnavailable();
    }
    if (response.status == kFoundButDeprecated) {
        m_options.log("Weather: the service answers 203, so this form of it will end");
    }
    const auto header = response.header("Last-Modified");
    Cached fresh{.data = json::PaddedText{std::move(response.body)},
                 .expires = expires,
                 .modified = header ? std::optional<std::string>{*header} : std::nullopt};
    KEST_TRY(auto forecast, parseForecast(fresh.data));
    if (!m_cache.contains(url) && m_cache.size() >= kMostPlaces) {
        m_cache.clear();
    }
    m_cache.insert_or_assign(url, std::move(fresh));
    return forecast;
}

Result<WeatherForecast> WeatherClient::takeUnchanged(const std::string &url,
                                                     Base::Instant expires)
{
    const auto known = m_cache.find(url);
    if (known == m_cache.end()) {
        return isUnavailable();
    }
    known->second.expires = expires;
    return parseForecast(known->second.data);
}

void WeatherClient::takeBreak(const Base::HttpResponse &response)
{
    const auto seconds =
        Base::numberFrom<double>(Base::trimmed(response.header("Retry-After").value_or("")));
    const bool isNumber = seconds && std::isfinite(*seconds);
    const Base::Seconds wanted{isNumber ? *seconds : kShortestBreak.count()};
    m_retryAfter = m_options.clock() + std::clamp(wanted, kShortestBreak, kLongestBreak);
}

std::optional<Base::Instant> WeatherClient::waitsUntil(Base::Instant now) const
{
    return now < m_retryAfter ? std::optional{m_retryAfter} : std::nullopt;
}

Availability weatherAvailability(const KestError &failure)
{
    if (failure.message == kNoPlace) {
        return Availability::unconfigured;
    }
    if (failure.message == kOnBreak || failure.message == kBusy) {
        return Availability::rateLimited;
    }
    return failure.message == kSilent ? Availability::offline : Availability::error;
}

} // namespace KestCore
