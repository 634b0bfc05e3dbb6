// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Devotional/Rotation.h"

#include "KestCore/Devotional/Content.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace KestCore
{

namespace
{

Base::Instant moment(std::string_view iso) { return *Base::fromIso8601(iso); }

Calendar calendarIn(std::string_view zone) { return *Calendar::inZone(zone); }

std::string nameAt(std::string_view iso, std::string_view zone)
{
    return nameOfTheDay(moment(iso), calendarIn(zone));
}

NativeState pinned(std::string mode, Pin pin)
{
    NativeState state{.pin = std::move(pin)};
    state.devotional.favorites = {"b", "a", "c"};
    state.devotional.preferences.pinMode = std::move(mode);
    state.devotional.preferences.rotationMinutes = 90;
    return state;
}

} // namespace

TEST(NameOfTheDay, CountsTheLocalDates)
{
    const auto &names = contentCatalogue().names;
    ASSERT_EQ(names.size(), 99U);
    struct Case {
        const char *instant;
        const char *zone;
        std::size_t index; // of the date's days since 1970-01-01, modulo 99
    };
    for (const auto &[instant, zone, index] : {
             Case{"1970-01-01T00:00:00Z", "UTC", 0},
             Case{"1969-12-31T23:59:59Z", "UTC", 98},
             Case{"1969-09-24T12:00:00Z", "UTC", 0},
             Case{"1900-03-01T12:00:00Z", "UTC", 34},
             Case{"2026-11-20T23:59:59+14:00", "Pacific/Kiritimati", 86},
             Case{"2026-11-20T00:00:00-11:00", "Pacific/Niue", 86},
             Case{"2026-11-21T00:00:00-11:00", "Pacific/Niue", 87},
             Case{"2026-04-24T01:00:00+03:00", "Africa/Cairo", 74}, // midnight skipped
             Case{"2026-04-23T23:59:59+02:00", "Africa/Cairo", 73},
         }) {
        SCOPED_TRACE(std::string{instant} + " " + zone);
        EXPECT_EQ(nameAt(instant, zone), names[index].id);
    }
}

TEST(RotationTick, MovesThePinOnlyWhenItIsTime)
{
    const auto now = moment("2026-11-20T12:00:00Z");
    const auto later = now + Base::Seconds{90 * 60.0};
    const auto soon = now + Base::Seconds{1.0};
    const std::string today = nameAt("2026-11-20T12:00:00Z", "UTC");
    auto noFavourites = pinned("favourites", {"dhikr", "b"});
    noFavourites.devotional.favorites = {};
    auto onlyOne = pinned("favourites", {"dhikr", "b"});
    onlyOne.devotional.favorites = {"b"};
    struct Case {
        const char *name;
        NativeState state;
        Base::Instant due;
        RotationTick expected;
    };
    for (const auto &[name, state, due, expected] : {
             Case{"due", pinned("favourites", {"dhikr", "b"}), now, {later, Pin{"dhikr", "a"}}},
             Case{"round again",
                  pinned("favourites", {"dhikr", "c"}),
                  now,
                  {later, Pin{"dhikr", "b"}}},
             Case{"from no favourite",
                  pinned("favourites", {"dhikr", "x"}),
                  now,
                  {later, Pin{"dhikr", "b"}}},
             Case{"from a Name, even of a favourite's id",
                  pinned("favourites", {"names", "b"}),
                  now,
                  {later, Pin{"dhikr", "b"}}},
             Case{"not yet", pinned("favourites", {"dhikr", "b"}), soon, {soon, {}}},
             Case{"another tool", pinned("favourites", {"prayer", "next"}), now, {now, {}}},
             Case{"no favourites", noFavourites, now, {now, {}}},
             Case{"the only favourite", onlyOne, now, {later, {}}},
             Case{"single", pinned("single", {"dhikr", "b"}), now, {now, {}}},
             Case{"a new day",
                  pinned("daily", {"names", "yesterday"}),
                  soon,
                  {soon, Pin{"names", today}}},
             Case{"the same day", pinned("daily", {"names", today}), soon, {soon, {}}},
             Case{"daily, with a phrase", pinned("daily", {"dhikr", "b"}), now, {now, {}}},
         }) {
        SCOPED_TRACE(name);
        EXPECT_EQ(tickRotation(now, due, state, calendarIn("UTC")), expected);
    }
}

} // namespace KestCore
