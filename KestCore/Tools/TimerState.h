// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Instant.h"
#include "KestCore/Models/NativeState.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace KestCore
{

// One timer as it is stored: the body of a record of kind "timer". Lengths in seconds.
struct TimerState {
    std::string mode{};                      // a TimerMode's text
    double duration{};                       // of the current run
    std::optional<Base::Instant> deadline{}; // of a running countdown
    double elapsed{};                        // consumed while not running
    std::optional<Base::Instant> started{};  // of the current run
    bool running{};
    bool notified{}; // the end of the current run was announced

    bool operator==(const TimerState &) const = default;
};

consteval auto jsonFields(Of<TimerState>)
{
    using R = TimerState;
    return std::tuple{
        json::Field{"mode", &R::mode},         json::Field{"duration", &R::duration},
        json::Field{"deadline", &R::deadline}, json::Field{"elapsed", &R::elapsed},
        json::Field{"started", &R::started},   json::Field{"running", &R::running},
        json::Field{"notified", &R::notified},
    };
}
static_assert(json::coversAllMembers<TimerState>());

// A timer that decodes is kept whatever its numbers: its arithmetic copes with all of them.
inline bool keepsRules(const TimerState &) { return true; }

// The kinds that are offered. A stored mode that is none of them counts down.
enum class TimerMode : std::uint8_t { pomodoro, countdown, stopwatch, hydration };
constexpr auto enumTexts(Of<TimerMode>)
{
    using enum TimerMode;
    return Base::EnumTexts<TimerMode, 4>{{{pomodoro, "pomodoro"},
                                          {countdown, "countdown"},
                                          {stopwatch, "stopwatch"},
                                          {hydration, "hydration"}}};
}

inline constexpr double kShortestTimer = 60;
inline constexpr double kLongestTimer = 31'536'000; // 365 days
inline constexpr double kMostTimerMinutes = 525'600;

// The message of every length outside the limits.
inline constexpr std::string_view kTimerLimits = "Choose between 1 minute and 365 days.";

// "Focus", "Timer", "Stopwatch" or "Water".
std::string_view displayTitle(std::string_view mode);

// The length of a new timer: the setting "timer.duration." + mode where it is a number from 1
// to 525,600, else the mode's own.
double configuredMinutes(std::string_view mode, const Settings &settings);

// A timer that has not started.
TimerState newTimer(std::string_view mode, double duration);

bool countsDown(const TimerState &timer);

// Seconds, never negative: what is left of a countdown, what a stopwatch has counted.
double remaining(const TimerState &timer, Base::Instant now);

// Starts or resumes. One whose end was announced begins from zero.
void start(TimerState &timer, Base::Instant now);
void pause(TimerState &timer, Base::Instant now);

// Sets the time left of a countdown, running or not. Fails with invalidData for a stopwatch,
// for less than a minute or more than 365 days, and when this and what has run make more than
// 365 days; the timer is then as before.
[[nodiscard]] Result<void> adjust(TimerState &timer, Base::Instant now, double seconds);

// Re-arms a running water reminder for another full length; leaves any other timer alone.
void repeatHydration(TimerState &timer, Base::Instant now);

// A countdown whose time is up, paused or not.
bool hasEnded(const TimerState &timer, Base::Instant now);

} // namespace KestCore
