// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Devotional/Counting.h"

#include "Base/Fault.h"
#include "Base/Uuid.h"

#include <algorithm>
#include <limits>

namespace KestCore
{

namespace
{

void startFresh(Session &session)
{
    session = Session{.id = Base::makeUuid(), .target = session.target};
}

bool contains(const std::vector<std::int64_t> &values, std::int64_t value)
{
    return std::ranges::find(values, value) != values.end();
}

// One overload an action; each changes `state` and says whether a target was newly reached.
struct Step {
    DevotionalState &state;
    double nowMs;

    Result<bool> operator()(const ResetSession &reset) const
    {
        if (state.session.count != 0 && !reset.confirmed) {
            return std::unexpected(
                KestError::invalidData("Confirm before resetting a nonempty session"));
        }
        startFresh(state.session);
        return false;
    }

    Result<bool> operator()(const SetTarget &target) const
    {
        if (target.value && !isTarget(*target.value)) {
            return std::unexpected(
                KestError::invalidData("Target must be between 1 and 1,000,000"));
        }
        state.session.target = target.value;
        auto &saved = state.preferences.savedTargets;
        if (target.value && !contains(saved, *target.value)) {
            saved.push_back(*target.value);
        }
        return false;
    }

    Result<bool> operator()(const Increment &) const
    {
        Session &session = state.session;
        if (session.count == std::numeric_limits<std::int64_t>::max()) {
            Base::fatalFault("KestCore/Counting", "the count has no number after it");
        }
        if (session.history.size() >= kLongestUndo) {
            session.history.erase(session.history.begin());
        }
        session.history.push_back(session.count);
        ++session.count;
        session.startedAt = session.startedAt.value_or(nowMs);
        const bool isReached = session.target && session.count >= *session.target &&
                               !contains(session.completedTargets, *session.target);
        if (isReached) {
            session.completedTargets.push_back(*session.target);
        }
        return isReached;
    }

    Result<bool> operator()(const Undo &) const
    {
        Session &session = state.session;
        if (!session.history.empty()) {
            session.count = session.history.back();
            session.history.pop_back();
        }
        return false;
    }

    Result<bool> operator()(const TogglePause &) const
    {
        state.session.isPaused = !state.session.isPaused;
        return false;
    }

    Result<bool> operator()(const Finish &) const
    {
        const Session &session = state.session;
        if (state.preferences.historyEnabled && session.count >= 1) {
            state.records.append({.id = session.id,
                                  .dhikrId = state.selectedDhikrId,
                                  .count = session.count,
                                  .target = session.target,
                                  .endedAt = nowMs});
        }
        startFresh(state.session);
        return false;
    }
};

} // namespace

Result<bool> apply(const CountAction &action, Base::Instant now, DevotionalState &state)
{
    if (state.session.isPaused && std::holds_alternative<Increment>(action)) {
        return false;
    }
    DevotionalState next = state;
    KEST_TRY(const bool targetReached,
             std::visit(Step{.state = next, .nowMs = Base::milliseconds1970(now)}, action));
    KEST_CHECK(validate(next));
    state = std::move(next);
    return targetReached;
}

} // namespace KestCore
