// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ViewModels/Weather/WeatherText.h"

#include "KestCore/Clients/WeatherSymbols.h"
#include "Velvetnook/Application/Formatting.h"

#include <QCoreApplication>
#include <QVariantMap>

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace Velvetnook
{

namespace
{

using Sample = KestCore::WeatherForecast::Sample;

constexpr std::size_t kMostColumns = 12;
constexpr double kLeastRange = 6; // degrees: a calm day shows as a calm line
constexpr double kLeastRain = 1;  // millimetres that fill a bar

// Named once more for the translators, who do not read the engine.
[[maybe_unused]] constexpr const char *kSkies[]{
    QT_TRANSLATE_NOOP("Sky", "Clear sky"),
    QT_TRANSLATE_NOOP("Sky", "Fair"),
    QT_TRANSLATE_NOOP("Sky", "Partly cloudy"),
    QT_TRANSLATE_NOOP("Sky", "Cloudy"),
    QT_TRANSLATE_NOOP("Sky", "Fog"),
    QT_TRANSLATE_NOOP("Sky", "Light rain"),
    QT_TRANSLATE_NOOP("Sky", "Rain"),
    QT_TRANSLATE_NOOP("Sky", "Heavy rain"),
    QT_TRANSLATE_NOOP("Sky", "Light rain showers"),
    QT_TRANSLATE_NOOP("Sky", "Rain showers"),
    QT_TRANSLATE_NOOP("Sky", "Heavy rain showers"),
    QT_TRANSLATE_NOOP("Sky", "Light rain and thunder"),
    QT_TRANSLATE_NOOP("Sky", "Rain and thunder"),
    QT_TRANSLATE_NOOP("Sky", "Heavy rain and thunder"),
    QT_TRANSLATE_NOOP("Sky", "Light rain showers and thunder"),
    QT_TRANSLATE_NOOP("Sky", "Rain showers and thunder"),
    QT_TRANSLATE_NOOP("Sky", "Heavy rain showers and thunder"),
    QT_TRANSLATE_NOOP("Sky", "Light sleet"),
    QT_TRANSLATE_NOOP("Sky", "Sleet"),
    QT_TRANSLATE_NOOP("Sky", "Heavy sleet"),
    QT_TRANSLATE_NOOP("Sky", "Light sleet showers"),
    QT_TRANSLATE_NOOP("Sky", "Sleet showers"),
    QT_TRANSLATE_NOOP("Sky", "Heavy sleet showers"),
    QT_TRANSLATE_NOOP("Sky", "Light sleet and thunder"),
    QT_TRANSLATE_NOOP("Sky", "Sleet and thunder"),
    QT_TRANSLATE_NOOP("Sky", "Heavy sleet and thunder"),
    QT_TRANSLATE_NOOP("Sky", "Light sleet showers and thunder"),
    QT_TRANSLATE_NOOP("Sky", "Sleet showers and thunder"),
    QT_TRANSLATE_NOOP("Sky", "Heavy sleet showers and thunder"),
    QT_TRANSLATE_NOOP("Sky", "Light snow"),
    QT_TRANSLATE_NOOP("Sky", "Snow"),
    QT_TRANSLATE_NOOP("Sky", "Heavy snow"),
    QT_TRANSLATE_NOOP("Sky", "Light snow showers"),
    QT_TRANSLATE_NOOP("Sky", "Snow showers"),
    QT_TRANSLATE_NOOP("Sky", "Heavy snow showers"),
    QT_TRANSLATE_NOOP("Sky", "Light snow and thunder"),
    QT_TRANSLATE_NOOP("Sky", "Snow and thunder"),
    QT_TRANSLATE_NOOP("Sky", "Heavy snow and thunder"),
    QT_TRANSLATE_NOOP("Sky", "Light snow showers and thunder"),
    QT_TRANSLATE_NOOP("Sky", "Snow showers and thunder"),
    QT_TRANSLATE_NOOP("Sky", "Heavy snow showers and thunder"),
    QT_TRANSLATE_NOOP("Sky", "Unknown sky"),
};

[[maybe_unused]] constexpr const char *kTexts[]{
    QT_TRANSLATE_NOOP("Engine", "Updating forecast…"),
    QT_TRANSLATE_NOOP("Engine", "Weather did not respond. Try again shortly."),
    QT_TRANSLATE_NOOP("Engine", "Weather is busy. Please try again in a few minutes."),
    QT_TRANSLATE_NOOP("Engine",
                      "Weather is taking a break. Please try again in a few minutes."),
    QT_TRANSLATE_NOOP("Engine",
                      "Weather is temporarily unavailable. Please try again shortly."),
    QT_TRANSLATE_NOOP("Engine", "Forecast is out of date. Please try again shortly."),
    QT_TRANSLATE_NOOP("Engine", "Forecast contains no usable temperatures"),
    QT_TRANSLATE_NOOP("Engine", "Unsupported forecast units or date"),
    QT_TRANSLATE_NOOP("Engine", "Choose a valid location"),
    QT_TRANSLATE_NOOP("Engine", "The refresh was cancelled."),
};

class WeatherWords
{
    Q_DECLARE_TR_FUNCTIONS(WeatherWords)
};

// "15", or "3" where the clock has twelve hours.
QString hourText(const Sample &sample, const KestCore::Calendar &calendar,
                 const Formatting &formatting)
{
    const int hour = calendar.at(sample.date).hour;
    if (formatting.isTwelveHours()) {
        return formatting.number(hour % 12 == 0 ? 12 : hour % 12);
    }
    return formatting.digits(QStringLiteral("%1").arg(hour, 2, 10, QLatin1Char{'0'}));
}

double smoothed(const std::vector<Sample> &samples, std::size_t at)
{
    const double before = samples.at(at == 0 ? 0 : at - 1).temperature;
    const double after = samples.at(std::min(at + 1, samples.size() - 1)).temperature;
    return (before + 2 * samples.at(at).temperature + after) / 4;
}

} // namespace

QString skyWords(std::string_view code)
{
    const std::string words{KestCore::weatherSymbol(code).words};
    return QCoreApplication::translate("Sky", words.c_str());
}

QString skyIcon(std::string_view code)
{
    using Pair = std::pair<std::string_view, const char *>;
    constexpr std::array kIcons{
        Pair{"weather-clear", "sun"},          Pair{"weather-clear-night", "moon"},
        Pair{"weather-few-clouds", "weather"}, Pair{"weather-few-clouds-night", "cloud-moon"},
        Pair{"weather-overcast", "cloud"},     Pair{"weather-fog", "fog"},
        Pair{"weather-showers", "rain"},       Pair{"weather-showers-scattered", "rain"},
        Pair{"weather-snow", "snow"},          Pair{"weather-storm", "storm"},
    };
    const auto icon = KestCore::weatherSymbol(code).icon;
    const auto *const found = std::ranges::find(kIcons, icon, &Pair::first);
    return QLatin1String{found == kIcons.end() ? "cloud" : found->second};
}

QString degreesText(double celsius, const Formatting &formatting)
{
    return QStringLiteral("%1°").arg(formatting.number(std::llround(celsius)));
}

QString windWords(std::optional<double> kilometresPerHour, const Formatting &formatting)
{
    return kilometresPerHour ? WeatherWords::tr("%1 km/h").arg(
                                   formatting.number(std::llround(*kilometresPerHour)))
                             : WeatherWords::tr("Wind unavailable");
}

QString rainWords(std::optional<double> millimetres, const Formatting &formatting)
{
    return millimetres
               ? WeatherWords::tr("%1 mm next hour").arg(formatting.decimal(*millimetres, 1))
               : WeatherWords::tr("Rain unavailable");
}

QString humidityWords(std::optional<double> percent, const Formatting &formatting)
{
    return percent ? WeatherWords::tr("%1%").arg(formatting.number(std::llround(*percent)))
                   : WeatherWords::tr("Humidity unavailable");
}

QVariantList hourColumns(const KestCore::WeatherView &view, const KestCore::Calendar &calendar,
                         const Formatting &formatting)
{
    std::vector<Sample> samples{view.now};
    const std::size_t count = std::min(view.hours.size(), kMostColumns - 1);
    samples.insert(samples.end(), view.hours.begin(),
                   view.hours.begin() + static_cast<std::ptrdiff_t>(count));
    const auto [coldest, warmest] = std::ranges::minmax(samples, {}, &Sample::temperature);
    const double range = std::max(warmest.temperature - coldest.temperature, kLeastRange);
    double mostRain = kLeastRain;
    for (const Sample &sample : samples) {
        mostRain = std::max(mostRain, sample.rain.value_or(0));
    }
    QVariantList columns;
    for (std::size_t at = 0; at < samples.size(); ++at) {
        const Sample &sample = samples.at(at);
        const bool isTold = at % 2 == 0;
        const QString hour =
            at == 0 ? WeatherWords::tr("Now") : hourText(sample, calendar, formatting);
        columns.push_back(QVariantMap{
            {QStringLiteral("label"), isTold ? hour : QString{}},
            {QStringLiteral("value"),
             isTold ? degreesText(sample.temperature, formatting) : QString{}},
            {QStringLiteral("y"), (warmest.temperature - smoothed(samples, at)) / range},
            {QStringLiteral("rain"), sample.rain.value_or(0) / mostRain}});
    }
    return columns;
}

QVariantList dayColumns(const KestCore::WeatherView &view, Base::Instant now,
                        const KestCore::Calendar &calendar, const Formatting &formatting)
{
    const std::int64_t today = calendar.dayNumber(now);
    QVariantList columns;
    for (const KestCore::WeatherDay &day : view.days) {
        const QDate date = QDate{1970, 1, 1}.addDays(day.number);
        columns.push_back(QVariantMap{
            {QStringLiteral("label"),
             day.number == today
                 ? WeatherWords::tr("Today")
                 : formatting.locale().dayName(date.dayOfWeek(), QLocale::ShortFormat)},
            {QStringLiteral("icon"), skyIcon(day.code)},
            {QStringLiteral("words"), skyWords(day.code)},
            {QStringLiteral("high"), degreesText(day.high, formatting)},
            {QStringLiteral("low"), degreesText(day.low, formatting)}});
    }
    return columns;
}

} // namespace Velvetnook
