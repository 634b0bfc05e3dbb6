// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Instant.h"

#include <optional>

// What was chosen for the notch, and what holds where nothing was.
namespace Velvetnook
{

class ApplicationModel;

double openDelayOf(const ApplicationModel &model);

// When the pause ends or has ended; nothing where none was begun.
std::optional<Base::Instant> endOfNotchPause(const ApplicationModel &model);
// The same, and nothing once it is over.
std::optional<Base::Instant> notchPausedUntil(const ApplicationModel &model);

} // namespace Velvetnook
