// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "cli/CounterSteps.h"

#include <fmt/format.h>

namespace Cli
{

using Base::Result;

Result<StepOutcome> step(KestCore::StateStore &store, const KestCore::CountAction &action)
{
    StepOutcome outcome;
    auto devotional = store.state().devotional;
    KEST_TRY(outcome.targetReached, KestCore::apply(action, Base::wallClock(), devotional));
    outcome.hasChanged = !(devotional == store.state().devotional);
    if (outcome.hasChanged) {
        KEST_CHECK(store.change([&](KestCore::NativeState &state) -> Result<void> {
            state.devotional = std::move(devotional);
            return {};
        }));
    }
    return outcome;
}

const KestCore::Phrase &selectedPhrase(const KestCore::NativeState &state)
{
    const auto &dhikr = KestCore::contentCatalogue().dhikr;
    return KestCore::phraseById(state.devotional.selectedDhikrId, dhikr, dhikr.front());
}

std::string progressText(const KestCore::Session &session)
{
    const std::string text = session.target
                                 ? fmt::format("{} of {}", session.count, *session.target)
                                 : fmt::format("{}", session.count);
    return session.isPaused ? text + " · paused" : text;
}

} // namespace Cli
