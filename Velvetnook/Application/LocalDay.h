// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Instant.h"

#include <QString>

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

// Another text whenever the same day, time or number would be put into other words.
QString wordingOf(const Formatting &formatting);

// Today's Islamic date, moved by as many days as "prayer.islamicDayOffset" says.
QString islamicDateText(const ApplicationModel &model, const Formatting &formatting);

} // namespace Velvetnook
