// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Instant.h"
#include "KestCore/Devotional/Calendar.h"
#include "KestCore/Devotional/Content.h"
#include "KestCore/Models/DevotionalState.h"

#include <cstdint>
#include <optional>
#include <string>

// Gentle reminders at an interval, inside active hours, on chosen weekdays.
namespace KestCore
{

// Whether a reminder may come at the instant. Active hours across midnight belong to the
// weekday on which they begin; equal hours mean the whole day.
bool isWithinReminderWindow(Base::Instant instant, const Preferences &preferences,
                            const Calendar &calendar);

// The first of the minutes from one interval after `after` on that lies in the window; the
// seconds are kept. Nothing when reminders are off, or when none of the minutes of eight days
// does: then ask again after calendar.nextDateChange().
std::optional<Base::Instant> nextReminder(Base::Instant after, const Preferences &preferences,
                                          const Calendar &calendar);

enum class ReminderAction : std::uint8_t {
    nothing,
    emphasis,     // the notch draws the eye to the pinned phrase, which is presented already
    notification, // see `reminderNotification`
};

struct ReminderTick {
    std::optional<Base::Instant> nextReminder{}; // to be stored before the action is taken
    ReminderAction action{};

    bool operator==(const ReminderTick &) const = default;
};

// What the clock's tick does at `now` when the next reminder was due at `due`. A pause lets the
// reminder go by unseen and the following one is set as ever, so that ending the pause early
// needs nothing more.
ReminderTick tickReminder(Base::Instant now, std::optional<Base::Instant> due,
                          const DevotionalState &state, const Calendar &calendar);

struct Notification {
    std::string identifier{};
    std::string title{};
    std::string body{};

    bool operator==(const Notification &) const = default;
};

// The notification of a reminder: the phrase in the parts that the user has chosen to see.
Notification reminderNotification(const Phrase &pinned, const Preferences &preferences);

// The one that shows in the settings what a reminder looks like.
Notification previewNotification();

} // namespace KestCore
