// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Prayer/PrayerCalculator.h"

#include <gmock/gmock.h>

#include <chrono>
#include <cmath>

using Base::Instant;
using KestCore::LocalDate;
using KestCore::PrayerCalculator;
using KestCore::PrayerDay;
using KestCore::PrayerInputs;
using KestCore::Settings;
using PrayerCore::CalculationMethod;
using PrayerCore::HighLatitudeRule;
using PrayerCore::Prayer;
using namespace std::chrono_literals;

namespace
{

Settings place(std::string latitude, std::string longitude, std::string timeZone)
{
    return {{"prayer.latitude", std::move(latitude)},
            {"prayer.longitude", std::move(longitude)},
            {"prayer.timezone", std::move(timeZone)}};
}

Settings with(Settings settings, const Settings &more)
{
    for (const auto &[key, value] : more) {
        settings.insert_or_assign(key, value);
    }
    return settings;
}

const Settings kCairo = place("30.06", "31.25", "Africa/Cairo");

Instant instant(const char *text) { return *Base::fromIso8601(text); }

std::int64_t numberOf(LocalDate date)
{
    return std::chrono::sys_days{date}.time_since_epoch().count();
}

double secondsBetween(Instant from, Instant to) { return (to - from).count(); }

// What a person expects of a date: its six times in order, each but isha on that date, and
// the Sun highest around the middle of the day.
void expectSensible(const PrayerInputs &inputs, const PrayerDay &day)
{
    ASSERT_TRUE(day.times.has_value());
    const auto &t = *day.times;
    ASSERT_TRUE(t.asr.has_value());
    EXPECT_LT(t.fajr, t.sunrise);
    EXPECT_LT(t.sunrise, t.dhuhr);
    EXPECT_LT(t.dhuhr, *t.asr);
    EXPECT_LT(*t.asr, t.maghrib);
    EXPECT_LT(t.maghrib, t.isha);
    for (const Instant time : {t.fajr, t.sunrise, t.dhuhr, *t.asr, t.maghrib}) {
        EXPECT_EQ(inputs.calendar.dayNumber(time), numberOf(day.date));
    }
    const auto noon = inputs.calendar.at(t.dhuhr);
    EXPECT_TRUE(noon.hour >= 11 && noon.hour <= 14) << noon.hour;
    EXPECT_LT(secondsBetween(t.maghrib, t.isha), 6 * 3600);
    EXPECT_LT(secondsBetween(t.fajr, t.sunrise), 6 * 3600);
}

} // namespace

TEST(PrayerCalculator, GivesEveryLocalDateItsOwnTimesAroundTheDateLine)
{
    struct Case {
        const char *name;
        Settings settings;
    };
    for (const auto &[name, settings] : {
             Case{"Taveuni", place("-16.85", "179.98", "Pacific/Fiji")},
             Case{"Taveuni, west of the line", place("-16.9", "-179.95", "Pacific/Fiji")},
             Case{"Suva", place("-18.1416", "178.4419", "Pacific/Fiji")},
             Case{"Nuku'alofa", place("-21.1394", "-175.2049", "Pacific/Tongatapu")},
             Case{"Chatham", place("-43.9535", "-176.5597", "Pacific/Chatham")},
             Case{"Anadyr", place("64.7337", "177.4968", "Asia/Anadyr")},
             Case{"on the line", place("10", "180", "Pacific/Fiji")},
             Case{"Kiritimati, UTC+14", place("1.98", "-157.47", "Pacific/Kiritimati")},
             Case{"Pago Pago, UTC-11", place("-14.28", "-170.7", "Pacific/Pago_Pago")},
         }) {
        SCOPED_TRACE(name);
        const auto inputs = *KestCore::prayerInputs(settings);
        const auto days =
            PrayerCalculator::days(inputs, LocalDate{2020y, std::chrono::January, 1d}, 3653);
        ASSERT_EQ(days.size(), 3653U);
        for (std::size_t at = 0; at < days.size(); ++at) {
            SCOPED_TRACE(numberOf(days[at].date));
            expectSensible(inputs, days[at]);
            if (at == 0 || HasFailure()) {
                continue;
            }
            const double step =
                secondsBetween(days[at - 1].times->dhuhr, days[at].times->dhuhr);
            EXPECT_NEAR(step, 86'400, 60); // a whole minute of rounding
            EXPECT_NEAR(secondsBetween(days[at - 1].times->maghrib, days[at].times->maghrib),
                        86'400, 600);
        }
        ASSERT_FALSE(HasFailure());
    }
}

TEST(PrayerCalculator, ShowsNoAsrOutsideItsAfternoon)
{
    int withoutAsr = 0;
    for (const Settings &settings :
         {place("69.65", "18.96", "Europe/Oslo"), place("67.86", "20.23", "Europe/Stockholm"),
          place("68.97", "33.09", "Europe/Moscow"), place("66.5", "25.73", "Europe/Helsinki"),
          place("-77.85", "166.67", "Antarctica/McMurdo")}) {
        const auto inputs = *KestCore::prayerInputs(settings);
        for (const PrayerDay &day :
             PrayerCalculator::days(inputs, LocalDate{2026y, std::chrono::January, 1d}, 365)) {
            if (!day.times) {
                continue;
            }
            withoutAsr += day.times->asr ? 0 : 1;
            const Instant asr = day.times->asr.value_or(day.times->dhuhr + 1min);
            EXPECT_LE(day.times->dhuhr, asr) << numberOf(day.date);
            EXPECT_LE(asr, day.times->maghrib + 1min) << numberOf(day.date);
        }
    }
    EXPECT_GT(withoutAsr, 20);
}

TEST(PrayerCalculator, KeepsToTheLocalDayAcrossClockChangesAndOddZones)
{
    struct Case {
        const char *name;
        Settings settings;
        LocalDate first;
    };
    using namespace std::chrono;
    for (const auto &[name, settings, first] : {
             Case{"Berlin into summer", place("52.52", "13.4", "Europe/Berlin"),
                  LocalDate{2026y, March, 27d}},
             Case{"Berlin out of summer", place("52.52", "13.4", "Europe/Berlin"),
                  LocalDate{2026y, October, 23d}},
             Case{"Lord Howe, half an hour", place("-31.55", "159.08", "Australia/Lord_Howe"),
                  LocalDate{2026y, April, 3d}},
             Case{"Kathmandu", place("27.7", "85.3", "Asia/Kathmandu"),
                  LocalDate{2026y, June, 1d}},
             Case{"New Year in Sydney", place("-33.87", "151.2", "Australia/Sydney"),
                  LocalDate{2026y, December, 29d}},
         }) {
        SCOPED_TRACE(name);
        const auto inputs = *KestCore::prayerInputs(settings);
        for (const PrayerDay &day : PrayerCalculator::days(inputs, first, 7)) {
            expectSensible(inputs, day);
        }
    }
    // A date that the place skipped has no Sun of its own.
    const auto apia = *KestCore::prayerInputs(place("-13.83", "-171.77", "Pacific/Apia"));
    const auto days = PrayerCalculator::days(apia, LocalDate{2011y, December, 29d}, 3);
    EXPECT_TRUE(days[0].times && !days[1].times && days[2].times);
}

TEST(PrayerCalculator, TellsWhatIsNextAcrossMidnight)
{
    const auto inputs = *KestCore::prayerInputs(kCairo);
    const auto today = PrayerCalculator::comingDays(inputs, instant("2026-11-21T10:00:00Z"), 2);
    const auto next = [&](Instant now) { return PrayerCalculator::next(inputs, now); };
    const auto &t = *today[0].times;
    EXPECT_EQ(next(t.dhuhr - 1s)->prayer, Prayer::dhuhr);
    EXPECT_EQ(next(t.dhuhr)->prayer, Prayer::asr);
    EXPECT_EQ(*next(t.isha), (KestCore::NextPrayer{Prayer::fajr, today[1].times->fajr}));
    EXPECT_EQ(*next(t.fajr - 3h), (KestCore::NextPrayer{Prayer::fajr, t.fajr}));

    // In high summer isha comes after midnight and belongs to the date before.
    auto north = place("59.33", "18.07", "Europe/Stockholm");
    north["prayer.highLatitude"] = "middleOfTheNight";
    const auto stockholm = *KestCore::prayerInputs(north);
    const auto isha =
        PrayerCalculator::days(stockholm, LocalDate{2026y, std::chrono::June, 20d}, 1)
            .front()
            .times->isha;
    ASSERT_EQ(stockholm.calendar.at(isha).hour, 0);
    EXPECT_EQ(PrayerCalculator::next(stockholm, isha - 1min)->prayer, Prayer::isha);

    const auto pole = *KestCore::prayerInputs(place("89", "0", "UTC"));
    EXPECT_FALSE(PrayerCalculator::next(pole, instant("2026-06-21T12:00:00Z")));
    EXPECT_FALSE(
        PrayerCalculator::comingDays(pole, instant("2026-06-21T12:00:00Z"), 1)[0].times);
}

TEST(PrayerCalculator, ClampsTheDaysAndRefusesFarDates)
{
    using namespace std::chrono;
    const auto inputs = *KestCore::prayerInputs(kCairo);
    const auto now = instant("2026-11-21T22:30:00Z"); // the 22nd already in Cairo
    EXPECT_EQ(PrayerCalculator::comingDays(inputs, now, 0).size(), 1U);
    const auto week = PrayerCalculator::comingDays(inputs, now, 12);
    EXPECT_EQ(week.size(), 7U);
    EXPECT_EQ(week[0].date, (LocalDate{2026y, November, 22d}));
    EXPECT_EQ(week[6].date, (LocalDate{2026y, November, 28d}));
    EXPECT_TRUE(PrayerCalculator::checkDate(LocalDate{1900y, January, 1d}));
    EXPECT_TRUE(PrayerCalculator::checkDate(LocalDate{2200y, December, 31d}));
    for (const LocalDate date : {LocalDate{1899y, December, 31d}, LocalDate{2201y, January, 1d},
                                 LocalDate{2026y, February, 29d}}) {
        EXPECT_EQ(PrayerCalculator::checkDate(date).error().message,
                  "Prayer times are known for dates from 1900 to 2200");
    }
}

TEST(PrayerCalculator, LabelsDatesByTheUmmAlQuraCalendar)
{
    using namespace std::chrono;
    // The first of Muharram and of Ramadan as Umm al-Qura published them.
    EXPECT_EQ(PrayerCalculator::islamicDate(LocalDate{2023y, July, 19d}),
              (KestCore::IslamicDate{1, 1, 1445}));
    EXPECT_EQ(PrayerCalculator::islamicDate(LocalDate{2024y, March, 11d}),
              (KestCore::IslamicDate{1, 9, 1445}));
    EXPECT_EQ(PrayerCalculator::islamicDate(LocalDate{2025y, March, 30d}),
              (KestCore::IslamicDate{1, 10, 1446}));
}

TEST(PrayerInputs, AreReadFromTheSettings)
{
    struct Case {
        const char *name;
        Settings more;
        CalculationMethod method;
    };
    for (const auto &[name, more, method] : {
             Case{"nothing said", {}, CalculationMethod::muslimWorldLeague},
             Case{"by country", {{"prayer.country", "EG"}}, CalculationMethod::egyptian},
             Case{"in lower case",
                  {{"prayer.country", "gb"}, {"prayer.method", "automatic"}},
                  CalculationMethod::moonsightingCommittee},
             Case{"an empty method",
                  {{"prayer.country", "my"}, {"prayer.method", ""}},
                  CalculationMethod::singapore},
             Case{"a country without one of its own",
                  {{"prayer.country", "FR"}},
                  CalculationMethod::muslimWorldLeague},
             Case{"the method wins",
                  {{"prayer.country", "EG"}, {"prayer.method", "tehran"}},
                  CalculationMethod::tehran},
         }) {
        SCOPED_TRACE(name);
        EXPECT_EQ(KestCore::prayerInputs(with(kCairo, more))->parameters.method, method);
    }
    const auto rule = [](const char *latitude, const char *chosen) {
        return KestCore::prayerInputs(with(kCairo, {{"prayer.latitude", latitude},
                                                    {"prayer.highLatitude", chosen}}))
            ->parameters.highLatitudeRule;
    };
    EXPECT_EQ(rule("50", "automatic"), HighLatitudeRule::seventhOfTheNight);
    EXPECT_EQ(rule("48", "automatic"), HighLatitudeRule::middleOfTheNight);
    EXPECT_EQ(rule("-60", "nonsense"), HighLatitudeRule::middleOfTheNight);
    EXPECT_EQ(rule("50", "twilightAngle"), HighLatitudeRule::twilightAngle);

    const auto adjusted =
        *KestCore::prayerInputs(with(kCairo, {{"prayer.asr", "hanafi"},
                                              {"prayer.adjust.fajr", "+7"},
                                              {"prayer.adjust.dhuhr", "-3"},
                                              {"prayer.adjust.asr", "2.5"},
                                              {"prayer.adjust.maghrib", " 4"},
                                              {"prayer.adjust.isha", "99999999999999999"},
                                              {"prayer.adjust.sunrise", "9"}}));
    EXPECT_EQ(adjusted.parameters.madhab, PrayerCore::Madhab::hanafi);
    EXPECT_EQ(adjusted.parameters.adjustments,
              (PrayerCore::PrayerAdjustments{.fajr = 7, .dhuhr = -3}));
}

TEST(PrayerInputs, FailWithOneMessage)
{
    for (const auto &[key, value] : std::vector<std::pair<std::string, std::string>>{
             {"prayer.latitude", ""},
             {"prayer.latitude", "90.5"},
             {"prayer.latitude", "-90.1"},
             {"prayer.latitude", "nan"},
             {"prayer.latitude", "inf"},
             {"prayer.latitude", " 30"},
             {"prayer.latitude", "30 "},
             {"prayer.latitude", "0x1E"},
             {"prayer.latitude", "30,5"},
             {"prayer.latitude", "+-30"},
             {"prayer.latitude", "1e999"},
             {"prayer.longitude", "180.01"},
             {"prayer.longitude", "east"},
             {"prayer.timezone", "Mars/Olympus"},
             {"prayer.timezone", ""},
             {"prayer.timezone", "../../etc/passwd"},
             {"prayer.method", "other"},
             {"prayer.method", "Karachi"},
         }) {
        SCOPED_TRACE(testing::Message() << key << " = " << value);
        const auto inputs = KestCore::prayerInputs(with(kCairo, {{key, value}}));
        ASSERT_FALSE(inputs.has_value());
        EXPECT_EQ(inputs.error(), Base::KestError::unavailable(
                                      "Allow location access to calculate prayer times "
                                      "for where you are."));
    }
    EXPECT_FALSE(KestCore::prayerInputs({}).has_value());
    for (const auto &[latitude, longitude] :
         {std::pair{"90", "-180"}, std::pair{"-90", "180"}, std::pair{"+3.006e1", "31.25"}}) {
        EXPECT_TRUE(KestCore::prayerInputs(place(latitude, longitude, "UTC")).has_value());
    }
}
