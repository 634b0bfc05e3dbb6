// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Models/NativeState.h"

#include <cstddef>

namespace Bench
{

// A state as a person has it who has finished so many sessions.
KestCore::NativeState stateWithSessions(std::size_t sessions);

} // namespace Bench
