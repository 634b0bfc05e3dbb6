// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Models/NativeState.h"
#include "KestCore/Prayer/PrayerCalculator.h"
#include "KestCore/Surfaces/MessageAnimation.h"
#include "KestCore/Tools/TimerList.h"
#include "Velvetnook/Application/EventWatch.h"
#include "Velvetnook/Application/NowPlaying.h"

#include <QString>

#include <optional>
#include <vector>

namespace Velvetnook
{

class Formatting;

inline constexpr Base::Seconds kCountingTime{120};
inline constexpr Base::Seconds kReachedTime{4};
inline constexpr Base::Seconds kShortMessageTime{3};
inline constexpr Base::Seconds kEmphasisTime{2.8}; // two breaths
inline constexpr Base::Seconds kWaitingTime{15 * 60};

// The one thing that the closed strip shows. Tones are names of colours of the theme; a ring or
// a hem of less than 0 is not there.
struct StripContent {
    QString kind{}; // rest, pin, count, timer, prayer, event, music, message, assistant
    QString icon{};
    QString iconTone{};
    QString arabic{};
    QString text{}; // beside the Arabic, or in its place where that does not fit
    QString textTone{};
    QString note{}; // after the text, one step back
    QString trailing{};
    QString trailingNote{};
    QString trailingTone{};
    QString trailingIcon{};
    double ring = -1;
    bool ringLeads{};
    double hem = -1;
    QString hemTone{};
    bool isCentred{};
    bool isNarrow{};  // as short as the shortest strip, whatever was chosen
    bool showsBoth{}; // Arabic at the end and its text at the beginning

    bool operator==(const StripContent &) const = default;
};

struct ShortMessage {
    QString text{};
    KestCore::MessageAnimation animation{};
    std::optional<Base::Instant> until{}; // absent while nobody can see it
};

// A coding assistant that asked for its user.
struct WaitingAssistant {
    QString title{};
    Base::Instant since{};

    bool operator==(const WaitingAssistant &) const = default;
};

// What there is to show. The prayers are absent without a place.
struct StripSources {
    const KestCore::NativeState &state;
    std::vector<KestCore::Timer> timers{}; // as sortForList leaves them
    std::optional<KestCore::Calendar> placeCalendar{};
    std::optional<KestCore::NextPrayer> lastPrayer{};
    std::optional<KestCore::NextPrayer> nextPrayer{};
    std::optional<Base::Instant> countedAt{};
    std::optional<Base::Instant> reachedAt{};
    std::optional<Base::Instant> emphasisUntil{};
    std::optional<ShortMessage> message{};
    std::optional<WaitingAssistant> waiting{};
    std::optional<UpcomingEvent> nextEvent{};
    std::optional<NowPlaying> nowPlaying{};
    bool isLent{};    // something larger stands in its place for a moment
    bool canBeSeen{}; // what cannot be seen counts no seconds
};

struct StripStep {
    StripContent content{};
    std::optional<Base::Instant> changesAt{}; // when it has to be found again
};

// The first of these that there is: a reminder's emphasis on what is pinned, a short message,
// a prayer whose time has come, a timer in its last minute, the counting of the last two
// minutes, an assistant that waits, an event of the next ten minutes, a running timer, what
// plays, a prayer within the hour if that is chosen, what is pinned.
StripStep stripStep(const StripSources &sources, const Formatting &formatting,
                    Base::Instant now);

} // namespace Velvetnook
