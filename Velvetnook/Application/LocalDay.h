// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Instant.h"

#include <QString>

#include <cstdint>
#include <optional>

namespace KestCore
{
class Calendar;
}

namespace Velvetnook
{

class ApplicationModel;
class Formatting;

// The day of an instant in words: "Friday"; the first letter of it; "Today", "Yesterday", else
// its date, with the year where that is another one.
QString weekdayText(Base::Instant instant, const KestCore::Calendar &calendar,
                    const Formatting &formatting);
QString weekdayLetter(Base::Instant instant, const KestCore::Calendar &calendar,
                      const Formatting &formatting);
QString dayText(Base::Instant instant, const ApplicationModel &model,
                const Formatting &formatting);

// "13:48" of today, else the date before it.
QString momentText(Base::Instant instant, const ApplicationModel &model,
                   const Formatting &formatting);

// The instant at which the local clock shows that minute of that day (days since 1970); in the
// hour that a clock jumps over, the one that it would have been.
Base::Instant instantOf(std::int64_t day, int minute, const KestCore::Calendar &calendar,
                        Base::Instant near);

// When the user wants to be reminded again; nothing while reminders are not paused.
std::optional<Base::Instant> endOfPause(const ApplicationModel &model);

// Another text whenever the same day, time or number would be put into other words.
QString wordingOf(const Formatting &formatting);

// Today's Islamic date, moved by as many days as "prayer.islamicDayOffset" says.
QString islamicDateText(const ApplicationModel &model, const Formatting &formatting);

} // namespace Velvetnook
