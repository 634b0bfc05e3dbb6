// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/TimerSteps.h"

#include "Base/Uuid.h"
#include "KestCore/Tools/RecordBin.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace Velvetnook
{

namespace
{

using KestCore::LocalRecord;
using KestCore::PrayerFocusPlan;
using KestCore::StateStore;
using KestCore::Timer;
using KestCore::TimerState;

constexpr const char *kTimer = "timer";
constexpr const char *kPlan = "prayer";
constexpr const char *kTimerOfPlan = "timer";

Result<std::vector<Timer>> timersIn(StateStore &store)
{
    KEST_TRY(const auto records, store.recordsOfKind(kTimer));
    return KestCore::timersOf(records);
}

Result<Committed> saved(StateStore &store, const KestCore::RecordChanges &changes)
{
    if (!changes.written.empty() || !changes.removed.empty()) {
        KEST_CHECK(store.changeRecords(changes));
    }
    KEST_TRY(KestCore::Snapshot snapshot, store.snapshot());
    return committedAll(std::move(snapshot));
}

Result<Timer> timerById(StateStore &store, const std::string &id)
{
    KEST_TRY(auto timers, timersIn(store));
    const auto found =
        std::ranges::find(timers, id, [](const Timer &timer) { return timer.record.id; });
    if (found == timers.end()) {
        return std::unexpected(KestCore::removedItem());
    }
    return std::move(*found);
}

// The records of plans: a new one takes the place of them all.
Result<std::vector<std::string>> planIds(StateStore &store)
{
    return store.recordIdsOfKind(kPlan);
}

Result<LocalRecord> recordOf(const PrayerFocusPlan &plan, const std::string &timerId,
                             const std::string &title, Base::Instant now)
{
    KEST_TRY(std::string body, KestCore::json::encode(plan));
    return LocalRecord{.id = Base::makeUuid(),
                       .kind = kPlan,
                       .title = title,
                       .body = std::move(body),
                       .updated = Base::milliseconds1970(now),
                       .extra = {{kTimerOfPlan, timerId}}};
}

// The rule of the engine asks for a setting that says so. Whoever begins a timer wants to hear
// of its end, so here it stays silent only where the user has turned that off. Kept out of the
// store: what nobody chose is not written as a choice, and kest goes on by its own rule.
KestCore::NativeState withNotifications(KestCore::NativeState state)
{
    state.settings.try_emplace(kTimerNotifications, "true");
    return state;
}

void setDeadline(TimerState &timer, Base::Instant deadline, Base::Instant now)
{
    timer.duration = timer.elapsed + (deadline - timer.started.value_or(now)).count();
    timer.deadline = deadline;
    timer.notified = false;
}

} // namespace

std::vector<Timer> timersIn(const ApplicationModel &model)
{
    return KestCore::timersOf(model.recordsOfKind(kTimer)).value_or(std::vector<Timer>{});
}

void beginTimer(ApplicationModel &model, KestCore::NewTimer wanted, ApplicationModel::Done done)
{
    model.perform(
        [wanted = std::move(wanted),
         now = model.now()](StateStore &store) -> Result<Committed> {
            KEST_TRY(const auto timers, timersIn(store));
            KEST_TRY(const Timer timer,
                     KestCore::makeTimer(wanted, timers, store.state().settings, now));
            return saved(store, {.written = {timer.record}, .removed = {}});
        },
        std::move(done));
}

void changeTimer(ApplicationModel &model, std::string id, PastEnd pastEnd, TimerChange change,
                 ApplicationModel::Done done)
{
    model.perform(
        [id = std::move(id), pastEnd, change = std::move(change),
         now = model.now()](StateStore &store) -> Result<Committed> {
            KEST_TRY(Timer timer, timerById(store, id));
            const TimerState before = timer.state;
            std::vector<LocalRecord> written;
            if (pastEnd == PastEnd::settled) {
                KEST_TRY(written, KestCore::settleTimer(timer, store.state(), now));
            }
            KEST_CHECK(change(timer.state, now));
            if (timer.state != before) {
                KEST_TRY(written.emplace_back(), KestCore::savedTimer(timer, now));
            }
            return saved(store, {.written = std::move(written), .removed = {}});
        },
        std::move(done));
}

bool isGoing(const TimerState &timer, Base::Instant now)
{
    return timer.running && !KestCore::hasEnded(timer, now);
}

void toggleTimer(ApplicationModel &model, const Timer &timer, ApplicationModel::Done done)
{
    if (isGoing(timer.state, model.now())) {
        // An end that comes in this moment is still announced.
        changeTimer(
            model, timer.record.id, PastEnd::left,
            [](TimerState &state, Base::Instant now) -> Result<void> {
                KestCore::pauseTimer(state, now);
                return {};
            },
            std::move(done));
        return;
    }
    changeTimer(
        model, timer.record.id, PastEnd::settled,
        [](TimerState &state, Base::Instant now) -> Result<void> {
            KestCore::resumeTimer(state, now);
            return {};
        },
        std::move(done));
}

void resetTimer(ApplicationModel &model, std::string id, ApplicationModel::Done done)
{
    changeTimer(
        model, std::move(id), PastEnd::settled,
        [](TimerState &timer, Base::Instant) -> Result<void> {
            timer = KestCore::newTimer(timer.mode, timer.duration);
            return {};
        },
        std::move(done));
}

void renameTimer(ApplicationModel &model, std::string id, std::string title,
                 ApplicationModel::Done done)
{
    model.perform(
        [id = std::move(id), title = std::move(title),
         now = model.now()](StateStore &store) -> Result<Committed> {
            KEST_TRY(Timer timer, timerById(store, id));
            timer.record.title = title;
            KEST_TRY(timer.record, KestCore::savedTimer(timer, now));
            return saved(store, {.written = {std::move(timer.record)}, .removed = {}});
        },
        std::move(done));
}

void removeTimer(ApplicationModel &model, std::string id, std::shared_ptr<LocalRecord> removed,
                 ApplicationModel::Done done)
{
    model.perform(
        [id = std::move(id), removed = std::move(removed),
         now = model.now()](StateStore &store) -> Result<Committed> {
            KEST_TRY(Timer timer, timerById(store, id));
            KEST_TRY(auto written, KestCore::settleTimer(timer, store.state(), now));
            KEST_TRY(*removed, KestCore::savedTimer(timer, now));
            // It stays in its row for a while, so that it can come back to its place.
            KEST_TRY(written.emplace_back(), KestCore::binned(*removed, now));
            return saved(store, {.written = std::move(written), .removed = {}});
        },
        std::move(done));
}

void restoreTimer(ApplicationModel &model, LocalRecord removed, ApplicationModel::Done done)
{
    model.changeRecords({.written = {std::move(removed)}, .removed = {}}, std::move(done));
}

void settleEnds(
    ApplicationModel &model,
    std::function<void(std::vector<KestCore::TimerNotification>, Result<void>)> done)
{
    const auto posted = std::make_shared<std::vector<KestCore::TimerNotification>>();
    model.perform(
        [posted, now = model.now()](StateStore &store) -> Result<Committed> {
            KEST_TRY(const auto timers, timersIn(store));
            KEST_TRY(auto settlement,
                     KestCore::settleTimers(timers, withNotifications(store.state()), now));
            if (!settlement.written.empty()) {
                KEST_CHECK(store.changeRecords(
                    {.written = std::move(settlement.written), .removed = {}}));
            }
            // Saved: these are announced now, whatever becomes of the reading that follows.
            *posted = std::move(settlement.notifications);
            return saved(store, {});
        },
        [posted, done = std::move(done)](Result<void> result) {
            done(std::move(*posted), std::move(result));
        });
}

std::optional<RunningFocus> runningFocus(const ApplicationModel &model)
{
    const auto timers = timersIn(model);
    for (const LocalRecord &record : model.recordsOfKind(kPlan)) {
        const auto plan =
            KestCore::json::decode<PrayerFocusPlan>(std::string_view{record.body});
        const auto timerId = record.extra.find(kTimerOfPlan);
        if (!plan || timerId == record.extra.end()) {
            continue;
        }
        // A timer that was paused or adjusted has let go of the plan.
        const bool isFollowed = std::ranges::any_of(timers, [&](const Timer &timer) {
            return timer.record.id == timerId->second && timer.state.running &&
                   timer.state.deadline &&
                   std::abs((*timer.state.deadline - plan->deadline).count()) < 1;
        });
        if (isFollowed && plan->deadline > model.now()) {
            return RunningFocus{.record = record, .plan = *plan, .timerId = timerId->second};
        }
    }
    return std::nullopt;
}

void startFocus(ApplicationModel &model, PrayerFocusPlan plan, std::string title,
                ApplicationModel::Done done)
{
    model.perform(
        [plan = std::move(plan), title = std::move(title),
         now = model.now()](StateStore &store) -> Result<Committed> {
            KEST_TRY(const auto timers, timersIn(store));
            const KestCore::NewTimer wanted{.mode = KestCore::TimerMode::pomodoro,
                                            .minutes = (plan.deadline - now).count() / 60,
                                            .title = title};
            KEST_TRY(Timer timer,
                     KestCore::makeTimer(wanted, timers, store.state().settings, now));
            setDeadline(timer.state, plan.deadline, now);
            KEST_TRY(timer.record, KestCore::savedTimer(timer, now));
            KEST_TRY(auto record, recordOf(plan, timer.record.id, title, now));
            KEST_TRY(auto earlier, planIds(store));
            return saved(store, {.written = {std::move(timer.record), std::move(record)},
                                 .removed = std::move(earlier)});
        },
        std::move(done));
}

void reviseFocus(ApplicationModel &model, RunningFocus running, PrayerFocusPlan revised,
                 ApplicationModel::Done done)
{
    model.perform(
        [running = std::move(running), revised = std::move(revised),
         now = model.now()](StateStore &store) -> Result<Committed> {
            KEST_TRY(Timer timer, timerById(store, running.timerId));
            KEST_TRY(auto written, KestCore::settleTimer(timer, store.state(), now));
            if (!timer.state.running || timer.state.notified) {
                return std::unexpected(KestCore::removedItem()); // ended meanwhile
            }
            setDeadline(timer.state, revised.deadline, now);
            KEST_TRY(written.emplace_back(), KestCore::savedTimer(timer, now));
            LocalRecord record = running.record;
            KEST_TRY(record.body, KestCore::json::encode(revised));
            record.updated = Base::milliseconds1970(now);
            written.push_back(std::move(record));
            return saved(store, {.written = std::move(written), .removed = {}});
        },
        std::move(done));
}

} // namespace Velvetnook
