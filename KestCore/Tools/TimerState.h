// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Instant.h"
#include "KestCore/Vocabulary.h"

#include <optional>
#include <string>

namespace KestCore
{

// One timer as it is stored: the body of a record of kind "timer". Lengths in seconds.
struct TimerState {
    std::string mode{};                      // pomodoro, countdown, stopwatch, hydration
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

} // namespace KestCore
