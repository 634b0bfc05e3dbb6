// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Http.h"
#include "KestCore/Clients/WeatherForecast.h"
#include "KestCore/Registry/Availability.h"

#include <functional>
#include <limits>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace KestCore
{

// The service of MET Norway, and who asks it: it turns away those who do not say who they are.
inline constexpr std::string_view kWeatherService = "https://api.met.no";
inline constexpr std::string_view kProductAddress = "https://kest.app/";

// Fetches forecasts, politely: never again what is still good, never more precisely than to a
// hundredth of a degree, and not at all while the service asks for a break. One owner uses it;
// what it knows lives as long as it does, in memory only.
class WeatherClient
{
public:
    struct Options {
        std::string service{kWeatherService}; // scheme and host, perhaps with a folder
        std::function<Base::Instant()> clock = Base::wallClock;
        std::function<void(std::string_view)> log = [](std::string_view) {};
    };

    WeatherClient(Base::HttpTransport &transport, Options options);

    // Fails with invalidData for a place that is none and for a document that `parseForecast`
    // refuses, else with unavailable and a message for the user. A failure leaves what is
    // known as it was, but for a break that the service asks for.
    [[nodiscard]] Result<WeatherForecast> fetch(double latitude, double longitude,
                                                const std::stop_token &stop = {});

    // Until when the service wants to be left alone, where that is later than `now`.
    std::optional<Base::Instant> waitsUntil(Base::Instant now) const;

private:
    struct Cached {
        json::PaddedText data{};
        Base::Instant expires{};
        std::optional<std::string> modified{}; // "Last-Modified", as it was received
    };

    Base::HttpRequest requestFor(const std::string &url) const;
    Result<WeatherForecast> take(const std::string &url, Base::HttpResponse response);
    Result<WeatherForecast> takeUnchanged(const std::string &url, Base::Instant expires);
    void takeBreak(const Base::HttpResponse &response);

    Base::HttpTransport &m_transport;
    Options m_options;
    std::map<std::string, Cached> m_cache; // by the request's URL
    Base::Instant m_retryAfter =
        Base::fromSeconds1970(-std::numeric_limits<double>::infinity());
};

// What the failure of a fetch means for who shows it.
Availability weatherAvailability(const KestError &failure);

} // namespace KestCore
