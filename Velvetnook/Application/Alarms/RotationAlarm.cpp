// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/Alarms/RotationAlarm.h"

#include "KestCore/Devotional/Rotation.h"
#include "Velvetnook/Application/ApplicationModel.h"

#include <algorithm>

namespace Velvetnook
{

namespace
{

constexpr Base::Seconds kRetry{60};

std::pair<std::string, std::int64_t> wantedBy(const KestCore::NativeState &state)
{
    const KestCore::Preferences &preferences = state.devotional.preferences;
    return {preferences.pinMode, preferences.rotationMinutes};
}

} // namespace

RotationAlarm::RotationAlarm(ApplicationModel &model, QObject *parent)
    : QObject{parent}, m_model{model}
{
    followState();
    connect(&model, &ApplicationModel::stateChanged, this, &RotationAlarm::followState);
    connect(&model.clock(), &DueClock::wallClockChanged, this, [this] {
        const Base::Instant now = m_model.now();
        const Base::Seconds interval{static_cast<double>(m_wanted.second) * 60};
        m_next = std::min(m_next, now + interval); // the clock was set back
        m_retryAt.reset();
    });
    model.clock().add(
        this, [this](Base::Instant now) { return due(now); },
        [this](Base::Instant now) { rotate(now); });
}

void RotationAlarm::followState()
{
    auto wanted = wantedBy(m_model.state());
    if (wanted != m_wanted) {
        m_wanted = std::move(wanted);
        m_next = m_model.now() + Base::Seconds{static_cast<double>(m_wanted.second) * 60};
        m_retryAt.reset();
    }
}

// Asks the rotation itself what it would do, so that nothing is due that it would not change.
std::optional<Base::Instant> RotationAlarm::due(Base::Instant now) const
{
    if (m_isRotating) {
        return std::nullopt;
    }
    const KestCore::NativeState &state = m_model.state();
    const Base::Instant earliest = m_retryAt.value_or(now);
    if (m_wanted.first == "favourites") {
        const auto tick = KestCore::tickRotation(m_next, m_next, state, m_model.calendar());
        const bool wouldRotate = tick.nextRotation != m_next;
        return wouldRotate ? std::optional{std::max(m_next, earliest)} : std::nullopt;
    }
    const auto tick = KestCore::tickRotation(now, m_next, state, m_model.calendar());
    return tick.pin ? std::optional{earliest} : std::nullopt;
}

void RotationAlarm::rotate(Base::Instant now)
{
    const auto tick = KestCore::tickRotation(now, m_next, m_model.state(), m_model.calendar());
    if (!tick.pin) {
        m_next = tick.nextRotation;
        return;
    }
    m_isRotating = true;
    // The pin is found again in the state that is changed: the user may just have moved it.
    m_model.changeState(
        [now, due = m_next,
         calendar = m_model.calendar()](KestCore::NativeState &state) -> Result<void> {
            if (auto pin = KestCore::tickRotation(now, due, state, calendar).pin) {
                state.pin = *std::move(pin);
            }
            return {};
        },
        [this, now, next = tick.nextRotation](const Result<void> &done) {
            m_isRotating = false;
            m_retryAt = done ? std::nullopt : std::optional{now + kRetry};
            if (done) {
                m_next = next;
            }
            m_model.clock().reschedule();
        });
}

} // namespace Velvetnook
