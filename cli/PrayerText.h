// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Prayer/PrayerCalculator.h"

#include <string>
#include <string_view>
#include <vector>

// Prayer times as people and other programs read them.
namespace Cli
{

// "Fajr", "Sunrise", …
std::string_view nameOf(PrayerCore::Prayer prayer);

// "05:12" on the clock of the place; "--:--" for a time that the day does not have.
std::string clockText(const KestCore::Calendar &calendar, std::optional<Base::Instant> instant);

// "2026-11-21"
std::string isoDateText(KestCore::LocalDate date);

// From "2026-11-21". Fails with invalidData for anything else.
[[nodiscard]] KestCore::Result<KestCore::LocalDate> dateFrom(const std::string &text);

// "Saturday 21 November 2026", "11 Jumada al-Akhira 1448" and "in 1 h 12 min".
std::string dateText(KestCore::LocalDate date);
std::string monthText(std::chrono::year_month month); // "November 2026"
std::string islamicDateText(KestCore::LocalDate date);
std::string countdownText(Base::Seconds left);

// The locale whose country says how weeks run, as the environment names it; may be empty.
std::string dateLocale();

// One line a day, with a heading: the six times, comma-separated.
std::string csvText(const KestCore::Calendar &calendar,
                    const std::vector<KestCore::PrayerDay> &days);

// An iCalendar file with one event a time. Lines end as RFC 5545 wants them, and are
// all shorter than the length from which it wants them folded.
std::string icsText(const std::vector<KestCore::PrayerDay> &days, Base::Instant now);

} // namespace Cli
