// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Instant.h"
#include "KestCore/Models/DevotionalState.h"

#include <cstdint>
#include <optional>
#include <variant>

// The counter: one step at a time, as a pure operation on the devotional state.
namespace KestCore
{

// Starts a fresh session; a count above 0 is given up only when the user confirmed it.
struct ResetSession {
    bool confirmed{};
};
// Sets the session's goal, or none for an open count.
struct SetTarget {
    std::optional<std::int64_t> value{};
};
// Counts one, unless the session is paused.
struct Increment {
};
// Takes the last increment back, if there is one to take back.
struct Undo {
};
struct TogglePause {
};
// Records the session, if there is something to record, and starts a fresh one.
struct Finish {
};

using CountAction = std::variant<ResetSession, SetTarget, Increment, Undo, TogglePause, Finish>;

// Applies one action at the time `now`. True only for an increment that reached a target for
// the first time in its session. On any failure `state` is as it was; the failures are
// invalidData "Confirm before resetting a nonempty session",
// "Target must be between 1 and 1,000,000" and the message of `validate`.
[[nodiscard]] Result<bool> apply(const CountAction &action, Base::Instant now,
                                 DevotionalState &state);

} // namespace KestCore
