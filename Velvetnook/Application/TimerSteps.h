// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Prayer/PrayerFocusPlan.h"
#include "KestCore/Tools/TimerList.h"
#include "Velvetnook/Application/ApplicationModel.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

// What can be done with timers, each as one durable step. What is found in the store at that
// moment counts, not what was last seen.
namespace Velvetnook
{

// Whether the end of a timer is announced: unless it says "false".
inline constexpr const char *kTimerNotifications = "timers.notifications";

using TimerChange = std::function<Result<void>(KestCore::TimerState &, Base::Instant now)>;

// The timers of the model's records; none where one does not decode.
std::vector<KestCore::Timer> timersIn(const ApplicationModel &model);

void beginTimer(ApplicationModel &model, KestCore::NewTimer wanted,
                ApplicationModel::Done done = {});
// Changes one; its end so far is settled first, or left to be announced.
enum class PastEnd : std::uint8_t { settled, left };
void changeTimer(ApplicationModel &model, std::string id, PastEnd pastEnd, TimerChange change,
                 ApplicationModel::Done done = {});
// Whether it runs and has not come to its end.
bool isGoing(const KestCore::TimerState &timer, Base::Instant now);
// Pauses one that is going, and lets any other go on or begin again.
void toggleTimer(ApplicationModel &model, const KestCore::Timer &timer,
                 ApplicationModel::Done done = {});
// Not begun: at its full length again.
void resetTimer(ApplicationModel &model, std::string id, ApplicationModel::Done done = {});
void renameTimer(ApplicationModel &model, std::string id, std::string title,
                 ApplicationModel::Done done = {});
// Removes it and puts what was removed into `removed`, for restoreTimer.
void removeTimer(ApplicationModel &model, std::string id,
                 std::shared_ptr<KestCore::LocalRecord> removed, ApplicationModel::Done done);
void restoreTimer(ApplicationModel &model, KestCore::LocalRecord removed,
                  ApplicationModel::Done done = {});

// Handles every end until now and hands over what is to be posted, once it is saved.
void settleEnds(
    ApplicationModel &model,
    std::function<void(std::vector<KestCore::TimerNotification>, Result<void>)> done);

// A period of focus until some minutes before a prayer: a timer and the plan that it follows.
struct RunningFocus {
    KestCore::LocalRecord record{}; // of the plan
    KestCore::PrayerFocusPlan plan{};
    std::string timerId{};
};
// The plan whose timer still runs towards its deadline.
std::optional<RunningFocus> runningFocus(const ApplicationModel &model);
void startFocus(ApplicationModel &model, KestCore::PrayerFocusPlan plan, std::string title,
                ApplicationModel::Done done);
// Moves the running period to the deadline of another plan.
void reviseFocus(ApplicationModel &model, RunningFocus running,
                 KestCore::PrayerFocusPlan revised, ApplicationModel::Done done);

} // namespace Velvetnook
