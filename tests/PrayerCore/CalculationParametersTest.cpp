// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "PrayerCore/CalculationParameters.h"

#include "PrayerCore/NightLimits.h"

#include <gmock/gmock.h>

namespace PrayerCoreTests
{

using namespace PrayerCore;
using namespace std::chrono_literals;

TEST(Methods, HaveTheirOwnAnglesAndMinutes)
{
    struct Case {
        const char *name;
        double fajr, isha;
        int interval;
        std::optional<double> maghrib;
        Rounding rounding;
        int sunriseMinutes, dhuhrMinutes, asrMinutes, maghribMinutes;
    };
    const auto nearest = Rounding::nearest;
    const std::optional<double> none;
    for (const auto &row : {
             Case{"muslimWorldLeague", 18, 17, 0, none, nearest, 0, 1, 0, 0},
             Case{"egyptian", 19.5, 17.5, 0, none, nearest, 0, 1, 0, 0},
             Case{"karachi", 18, 18, 0, none, nearest, 0, 1, 0, 0},
             Case{"ummAlQura", 18.5, 0, 90, none, nearest, 0, 0, 0, 0},
             Case{"dubai", 18.2, 18.2, 0, none, nearest, -3, 3, 3, 3},
             Case{"moonsightingCommittee", 18, 18, 0, none, nearest, 0, 5, 0, 3},
             Case{"northAmerica", 15, 15, 0, none, nearest, 0, 1, 0, 0},
             Case{"kuwait", 18, 17.5, 0, none, nearest, 0, 0, 0, 0},
             Case{"qatar", 18, 0, 90, none, nearest, 0, 0, 0, 0},
             Case{"singapore", 20, 18, 0, none, Rounding::up, 0, 1, 0, 0},
             Case{"tehran", 17.7, 14, 0, 4.5, nearest, 0, 0, 0, 0},
             Case{"turkey", 18, 17, 0, none, nearest, -7, 5, 4, 7},
             Case{"other", 0, 0, 0, none, nearest, 0, 0, 0, 0},
         }) {
        const auto method = Base::fromText<CalculationMethod>(row.name);
        ASSERT_TRUE(method) << row.name;
        const CalculationParameters expected{
            .method = *method,
            .fajrAngle = row.fajr,
            .maghribAngle = row.maghrib,
            .ishaAngle = row.isha,
            .ishaInterval = row.interval,
            .rounding = row.rounding,
            .methodAdjustments = {.sunrise = row.sunriseMinutes,
                                  .dhuhr = row.dhuhrMinutes,
                                  .asr = row.asrMinutes,
                                  .maghrib = row.maghribMinutes}};
        EXPECT_EQ(parametersOf(*method), expected) << row.name;
    }
    EXPECT_FALSE(Base::fromText<CalculationMethod>("MuslimWorldLeague"));
}

TEST(Parameters, ArePersistedUnderTheirKeys)
{
    auto parameters = parametersOf(CalculationMethod::tehran);
    parameters.madhab = Madhab::hanafi;
    parameters.adjustments.asr = -4;
    const std::string zeros =
        R"({"fajr":0,"sunrise":0,"dhuhr":0,"asr":0,"maghrib":0,"isha":0})";
    const std::string text =
        R"({"method":"tehran","fajrAngle":17.7,"maghribAngle":4.5,"ishaAngle":14,)"
        R"("ishaInterval":0,"madhab":2,"adjustments":{"fajr":0,"sunrise":0,"dhuhr":0,"asr":-4,)"
        R"("maghrib":0,"isha":0},"rounding":"nearest","shafaq":"general",)"
        R"("methodAdjustments":)" +
        zeros + "}";
    EXPECT_EQ(toJson(parameters), text);
    EXPECT_EQ(parametersFromJson(text), parameters);

    parameters.highLatitudeRule = HighLatitudeRule::twilightAngle;
    parameters.maghribAngle.reset();
    parameters.shafaq = Shafaq::abyad;
    EXPECT_EQ(parametersFromJson(toJson(parameters).value()), parameters);

    struct Case {
        std::string_view from, to;
    };
    for (const auto &[from, to] :
         {Case{R"("madhab":2)", R"("madhab":3)"}, Case{R"("madhab":2)", R"("madhab":0)"},
          Case{R"("method":"tehran")", R"("method":"nowhere")"},
          Case{R"("rounding":"nearest",)", ""}}) {
        std::string wrong = text;
        wrong.replace(wrong.find(from), from.size(), to);
        EXPECT_FALSE(parametersFromJson(wrong)) << to;
    }
}

TEST(NightPortions, FollowTheRuleOrTheLatitude)
{
    struct Case {
        std::optional<HighLatitudeRule> rule;
        double latitude, fajr, isha;
    };
    using enum HighLatitudeRule;
    for (const auto &[rule, latitude, fajr, isha] :
         {Case{{}, 48, 0.5, 0.5}, Case{{}, 48.001, 1 / 7.0, 1 / 7.0}, Case{{}, -60, 0.5, 0.5},
          Case{middleOfTheNight, 60, 0.5, 0.5}, Case{seventhOfTheNight, 10, 1 / 7.0, 1 / 7.0},
          Case{twilightAngle, 60, 0.325, 17.5 / 60}}) {
        auto parameters = parametersOf(CalculationMethod::egyptian);
        parameters.highLatitudeRule = rule;
        EXPECT_DOUBLE_EQ(nightPortions(parameters, latitude).fajr, fajr) << latitude;
        EXPECT_DOUBLE_EQ(nightPortions(parameters, latitude).isha, isha) << latitude;
    }
}

// Worked out by hand. At 55 degrees the morning's four anchors are 103.65, 94.44, 107.74 and
// 123.10 minutes; 2023 has its 355th day on 21 December and its 172nd on 21 June.
TEST(SeasonalLimits, RunThroughTheirAnchors)
{
    struct Case {
        std::chrono::year_month_day date;
        double latitude, morning, general, ahmer, abyad;
    };
    for (const auto &[date, latitude, morning, general, ahmer, abyad] : {
             Case{2023y / 12 / 21, 55, 6219, 6036, 4764, 6036}, // a
             Case{2023y / 2 / 4, 55, 5946, 5337, 4035, 5489},   // 45 days on the way to b
             Case{2023y / 3 / 22, 55, 5666, 4623, 3290, 4930},  // b
             Case{2023y / 5 / 7, 55, 6464, 3947, 4027, 6710},   // c
             Case{2023y / 6 / 22, 55, 7386, 4868, 4886, 9410},  // d
             Case{2023y / 8 / 6, 55, 6484, 3967, 4046, 6769},   // the day before c
             Case{2023y / 8 / 7, 55, 6464, 3947, 4027, 6710},   // c
             Case{2023y / 9 / 22, 55, 5666, 4623, 3290, 4930},  // b
             Case{2023y / 6 / 21, -55, 6219, 6036, 4764, 6036}, // a of the south
             Case{2023y / 6 / 22, 0, 4500, 4500, 3720, 4500},
         }) {
        SCOPED_TRACE(dayOfYear(date));
        EXPECT_EQ(seasonalMorning(date, latitude).count(), morning);
        EXPECT_EQ(seasonalEvening(date, latitude, Shafaq::general).count(), general);
        EXPECT_EQ(seasonalEvening(date, latitude, Shafaq::ahmer).count(), ahmer);
        EXPECT_EQ(seasonalEvening(date, latitude, Shafaq::abyad).count(), abyad);
    }
}

} // namespace PrayerCoreTests
