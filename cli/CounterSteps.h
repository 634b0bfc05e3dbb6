// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Devotional/Content.h"
#include "KestCore/Devotional/Counting.h"
#include "KestCore/Store/StateStore.h"

namespace Cli
{

struct StepOutcome {
    bool targetReached = false;
    bool hasChanged = false;
};

// One durable step of the counter. An action that changes nothing, such as counting while
// paused, leaves the store alone.
[[nodiscard]] Base::Result<StepOutcome> step(KestCore::StateStore &store,
                                             const KestCore::CountAction &action);

// The phrase that is being counted.
const KestCore::Phrase &selectedPhrase(const KestCore::NativeState &state);

// "12 of 33 · paused"
std::string progressText(const KestCore::Session &session);

} // namespace Cli
