// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "cli/PrayerAnswers.h"

#include "Base/JsonWriter.h"
#include "cli/PrayerText.h"

template Base::Result<std::string> Base::json::encode(const Cli::PrayerAnswer &);
template Base::Result<std::string> Base::json::encode(const std::vector<Cli::DayAnswer> &);
template Base::Result<std::string> Base::json::encode(const Cli::QiblaAnswer &);
template Base::Result<std::string> Base::json::encode(const Cli::ReminderAnswer &);
template Base::Result<std::string> Base::json::encode(const std::vector<Cli::PlaceAnswer> &);

namespace Cli
{

namespace
{

Result<TimesAnswer> timesAnswer(const PrayerCore::PrayerTimes &times)
{
    TimesAnswer answer;
    KEST_TRY(answer.fajr, Base::toIso8601(times.fajr));
    KEST_TRY(answer.sunrise, Base::toIso8601(times.sunrise));
    KEST_TRY(answer.dhuhr, Base::toIso8601(times.dhuhr));
    if (times.asr) {
        KEST_TRY(answer.asr, Base::toIso8601(*times.asr));
    }
    KEST_TRY(answer.maghrib, Base::toIso8601(times.maghrib));
    KEST_TRY(answer.isha, Base::toIso8601(times.isha));
    return answer;
}

Result<SunnahAnswer> sunnahAnswer(const PrayerCore::SunnahTimes &times)
{
    SunnahAnswer answer;
    KEST_TRY(answer.middleOfTheNight, Base::toIso8601(times.middleOfTheNight));
    KEST_TRY(answer.lastThirdOfTheNight, Base::toIso8601(times.lastThirdOfTheNight));
    return answer;
}

} // namespace

Result<DayAnswer> dayAnswer(const KestCore::PrayerDay &day)
{
    const auto islamic = KestCore::PrayerCalculator::islamicDate(day.date);
    DayAnswer answer{
        .date = isoDateText(day.date),
        .islamicDate = {.day = islamic.day, .month = islamic.month, .year = islamic.year}};
    if (day.times) {
        KEST_TRY(answer.times.value, timesAnswer(*day.times));
    }
    if (day.sunnah) {
        KEST_TRY(answer.sunnah.value, sunnahAnswer(*day.sunnah));
    }
    return answer;
}

} // namespace Cli
