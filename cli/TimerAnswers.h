// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Tools/TimerList.h"
#include "cli/Session.h"

#include <span>
#include <string>
#include <vector>

// What the timer commands share.
namespace Cli
{

[[nodiscard]] Result<std::vector<KestCore::Timer>> timersIn(KestCore::StateStore &store);

// Follows the clock with the timers and saves those that this changed.
[[nodiscard]] Result<void> followClock(KestCore::StateStore &store,
                                       std::span<KestCore::Timer> timers, Base::Instant now);

// Which timer is meant by an id or the beginning of one.
[[nodiscard]] Result<std::size_t> findTimer(std::span<const KestCore::Timer> timers,
                                            std::string_view typed);

// Answers with some of the timers; the others are there to keep shortened ids apart.
[[nodiscard]] Result<void> answerTimers(const Console &console,
                                        std::span<const KestCore::Timer> shown,
                                        std::span<const KestCore::Timer> all,
                                        Base::Instant now);

// Blocks until the timer has ended. Pauses and adjustments made meanwhile count.
[[nodiscard]] Result<void> waitForTimer(const Session &session, const std::string &typed);

} // namespace Cli
