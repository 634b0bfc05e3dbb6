// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ApplicationModel.h"

#include "Velvetnook/Application/EngineText.h"

#include <tuple>
#include <utility>

namespace Velvetnook
{

namespace
{

// Whether the two differ at most in the session that is counted and those that are finished.
bool haveSameChoices(const KestCore::NativeState &one, const KestCore::NativeState &other)
{
    const auto choices = [](const KestCore::NativeState &state) {
        const KestCore::DevotionalState &devotional = state.devotional;
        return std::tie(state.enabled, state.order, state.navigationFavorites, state.pin,
                        state.displayID, state.settings, devotional.selectedDhikrId,
                        devotional.selectedNameId, devotional.favorites, devotional.preferences,
                        devotional.onboardingComplete, devotional.pausedUntil,
                        devotional.presentation, devotional.notificationStatus);
    };
    return choices(one) == choices(other);
}

} // namespace

ApplicationModel::ApplicationModel(std::unique_ptr<StateKeeper> keeper, Committed first,
                                   TimeSource now, QObject *parent)
    : QObject{parent}, m_keeper{std::move(keeper)}, m_calendar{KestCore::Calendar::ofHost()},
      m_clock{std::move(now)}
{
    adopt(std::move(first));
    connect(&m_clock, &DueClock::wallClockChanged, this, &ApplicationModel::followCalendar);
    m_clock.add(
        this, [this](Base::Instant at) { return m_calendar.nextDateChange(at); },
        [this](Base::Instant) { followCalendar(); });
}

std::vector<KestCore::LocalRecord> ApplicationModel::recordsOfKind(std::string_view kind) const
{
    std::vector<KestCore::LocalRecord> found;
    for (const KestCore::RecordRef &record : m_records) {
        if (record->kind == kind) {
            found.push_back(*record);
        }
    }
    return found;
}

std::string_view ApplicationModel::setting(std::string_view key) const
{
    const auto found = m_state.settings.find(std::string{key});
    return found == m_state.settings.end() ? std::string_view{} : found->second;
}

void ApplicationModel::changeState(KestCore::StateStore::StateMutation mutation, Done done)
{
    perform(
        [mutation = std::move(mutation)](KestCore::StateStore &store) -> Result<Committed> {
            KEST_CHECK(store.change(mutation));
            return Committed{.state = store.state(), .companion = {}, .records = {}};
        },
        std::move(done));
}

void ApplicationModel::changeSetting(std::string key, std::string value)
{
    changeState([key = std::move(key),
                 value = std::move(value)](KestCore::NativeState &state) -> Result<void> {
        state.settings[key] = value;
        return {};
    });
}

void ApplicationModel::removeSetting(std::string key)
{
    changeState([key = std::move(key)](KestCore::NativeState &state) -> Result<void> {
        state.settings.erase(key);
        return {};
    });
}

void ApplicationModel::changeRecords(KestCore::RecordChanges changes, Done done)
{
    perform(
        [changes = std::move(changes)](KestCore::StateStore &store) -> Result<Committed> {
            KEST_CHECK(store.changeRecords(changes));
            KEST_TRY(KestCore::Snapshot snapshot, store.snapshot());
            return committedAll(std::move(snapshot));
        },
        std::move(done));
}

void ApplicationModel::changeCompanion(std::function<void(KestCore::CompanionState &)> edit,
                                       Done done)
{
    perform(
        [edit = std::move(edit)](KestCore::StateStore &store) -> Result<Committed> {
            KestCore::CompanionState companion = store.companion();
            edit(companion);
            KEST_TRY(KestCore::Snapshot snapshot, store.saveCompanion(std::move(companion)));
            return committedAll(std::move(snapshot));
        },
        std::move(done));
}

void ApplicationModel::perform(StateKeeper::Operation operation, Done done)
{
    m_keeper->perform(std::move(operation),
                      [this, done = std::move(done)](Result<Committed> committed) mutable {
                          finish(std::move(committed), std::move(done));
                      });
}

void ApplicationModel::finish(Result<Committed> committed, Done done)
{
    if (committed) {
        adopt(std::move(*committed));
    }
    if (done) {
        done(committed ? Result<void>{} : std::unexpected(committed.error()));
    } else if (!committed) {
        emit failed(engineText(committed.error().message));
    }
}

void ApplicationModel::adopt(Committed committed)
{
    if (committed.records) {
        m_records = std::move(*committed.records);
    }
    if (committed.companion) {
        m_companion = std::move(*committed.companion);
    }
    if (committed.state) {
        const bool isChosen = !haveSameChoices(m_state, *committed.state);
        m_state = std::move(*committed.state);
        emit stateChanged();
        if (isChosen) {
            emit choicesChanged();
        }
    }
    if (committed.companion) {
        emit companionChanged();
    }
    if (committed.records) {
        emit recordsChanged();
    }
    m_clock.reschedule();
}

void ApplicationModel::followCalendar()
{
    m_calendar = KestCore::Calendar::ofHost();
    emit calendarChanged();
    m_clock.reschedule();
}

} // namespace Velvetnook
