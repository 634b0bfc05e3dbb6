// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Prayer/PrayerFocusPlan.h"

#include <gmock/gmock.h>

using namespace std::chrono_literals;
using KestCore::NextPrayer;
using KestCore::planFocus;
using PrayerCore::Prayer;

namespace
{

const Base::Instant kNow = *Base::fromIso8601("2026-11-21T10:00:00Z");

KestCore::PrayerInputs inputs(const char *fajrAdjustment = "0")
{
    return *KestCore::prayerInputs({{"prayer.latitude", "30.06"},
                                    {"prayer.longitude", "31.25"},
                                    {"prayer.timezone", "Africa/Cairo"},
                                    {"prayer.adjust.asr", fajrAdjustment}});
}

} // namespace

TEST(PrayerFocusPlan, EndsSoManyMinutesBeforeThePrayer)
{
    const NextPrayer asr{Prayer::asr, kNow + 45min};
    const auto plan = *planFocus(asr, 15, kNow);
    EXPECT_EQ(plan, (KestCore::PrayerFocusPlan{"asr", 15, kNow + 30min}));
    EXPECT_TRUE(keepsRules(plan));

    const auto tooClose = Base::KestError::invalidData(
        "The next prayer is too close for this buffer. Try an ordinary timer or reduce the "
        "buffer.");
    EXPECT_TRUE(planFocus(asr, 44, kNow)); // a minute is left
    EXPECT_EQ(planFocus(asr, 45, kNow).error(), tooClose);
    EXPECT_EQ(planFocus(asr, 44, kNow + 1s).error(), tooClose);
    EXPECT_EQ(planFocus(asr, 120, kNow).error(), tooClose);
    for (const std::int64_t buffer : {-1, 121}) {
        EXPECT_EQ(planFocus(asr, buffer, kNow).error().message,
                  "The buffer must be between 0 and 120 minutes");
    }
    EXPECT_EQ(KestCore::focusConfirmation("Asr", 15, "14:36"),
              "Focus until Asr, 15 minutes before 14:36. Later location or prayer changes will "
              "ask you to review the deadline.");
}

TEST(PrayerFocusPlan, IsReviewedOnlyWhenItsDeadlineWouldMove)
{
    const auto next = *KestCore::PrayerCalculator::next(inputs(), kNow);
    ASSERT_EQ(next.prayer, Prayer::asr);
    const auto plan = *planFocus(next, 5, kNow);
    EXPECT_FALSE(revisedPlan(plan, inputs(), kNow));
    const auto revised = revisedPlan(plan, inputs("10"), kNow);
    ASSERT_TRUE(revised.has_value());
    EXPECT_EQ(revised->deadline, plan.deadline + 10min);
    EXPECT_EQ(revised->bufferMinutes, plan.bufferMinutes);
    // Isha of yesterday comes after midnight here, and stays the one that the plan is for.
    const auto reykjavik =
        *KestCore::prayerInputs({{"prayer.latitude", "64.15"},
                                 {"prayer.longitude", "-21.94"},
                                 {"prayer.timezone", "Atlantic/Reykjavik"},
                                 {"prayer.highLatitude", "middleOfTheNight"}});
    const Base::Instant midnight = *Base::fromIso8601("2026-06-20T00:05:00Z");
    const auto isha = *KestCore::PrayerCalculator::next(reykjavik, midnight);
    ASSERT_EQ(isha.prayer, Prayer::isha);
    const Base::Instant evening = midnight - 1h;
    EXPECT_FALSE(revisedPlan(*planFocus(isha, 5, evening), reykjavik, midnight));
    EXPECT_FALSE(revisedPlan(*planFocus(isha, 0, evening), reykjavik, evening));
    // A plan that has ended is not asked about any more.
    EXPECT_FALSE(revisedPlan(plan, inputs("10"), plan.deadline));
}
