// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Clients/WeatherForecast.h"
#include "KestCore/Clients/WeatherPresentation.h"
#include "KestCore/Clients/WeatherSymbols.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <optional>

namespace
{

using KestCore::WeatherForecast;

void require(bool holds)
{
    if (!holds) {
        std::abort();
    }
}

bool isWithin(const std::optional<double> &value, double least, double most)
{
    return !value || (*value >= least && *value <= most);
}

// What holds of any forecast, whatever the document said.
void check(const WeatherForecast &forecast)
{
    require(!forecast.samples.empty());
    require(std::ranges::is_sorted(forecast.samples, {}, &WeatherForecast::Sample::date));
    for (const auto &sample : forecast.samples) {
        require(isWithin(sample.temperature, -150, 100) && isWithin(sample.humidity, 0, 100) &&
                isWithin(sample.wind, 0, 720) && isWithin(sample.rain, 0, 1000));
        require(!KestCore::weatherSymbol(sample.code).words.empty());
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const auto kCalendar = KestCore::Calendar::inZone("Africa/Cairo");
    const auto forecast = KestCore::parseForecast(
        Base::json::PaddedText{std::string_view{reinterpret_cast<const char *>(data), size}});
    if (!forecast) {
        return 0;
    }
    check(*forecast);
    const auto &middle = forecast->samples[forecast->samples.size() / 2];
    const auto view = KestCore::weatherView(*forecast, *kCalendar, middle.date);
    require(view.has_value() && !view->days.empty() && view->days.size() <= 7);
    require(view->now.date <= middle.date && view->days.front().low <= view->now.temperature);
    (void)KestCore::updatedText(*forecast, *kCalendar, middle.date);
    return 0;
}
