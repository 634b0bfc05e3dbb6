// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Tools/TimerList.h"
#include "fuzz/RoundTrip.h"

#include <cmath>

namespace
{

using KestCore::TimerState;

void require(bool holds)
{
    if (!holds) {
        std::abort();
    }
}

// What any timer must be able to do, whatever its numbers were.
void check(const TimerState &timer, Base::Instant now)
{
    const double left = KestCore::remaining(timer, now);
    require(left >= 0 && std::isfinite(left));
    const auto text = Base::json::encode(timer);
    require(text && Base::json::decode<TimerState>(std::string_view{*text}));
}

} // namespace

// The operations on a stored timer, now, after its end and with the clock set back.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const auto stored = roundTrip<TimerState>(data, size);
    if (!stored) {
        return 0;
    }
    using Step = void (*)(TimerState &, Base::Instant);
    for (const Step step : std::initializer_list<Step>{
             KestCore::start, KestCore::pause, KestCore::repeatHydration, KestCore::followClock,
             KestCore::resumeTimer, KestCore::pauseTimer,
             [](TimerState &timer, Base::Instant now) {
                 (void)KestCore::adjustTimer(timer, now, 90);
             },
             [](TimerState &timer, Base::Instant now) {
                 if (KestCore::adjust(timer, now, 60)) {
                     require(std::abs(KestCore::remaining(timer, now) - 60) < 1e-3);
                 }
             }}) {
        TimerState timer = *stored;
        for (const double time : {1.79e9, 1.8e9, 1e9}) {
            step(timer, Base::fromSeconds1970(time));
            check(timer, Base::fromSeconds1970(time));
        }
    }
    const std::vector<KestCore::Timer> timers{{.record = {.kind = "timer"}, .state = *stored}};
    require(KestCore::settleTimers(timers, KestCore::defaultNativeState(),
                                   Base::fromSeconds1970(1.79e9))
                .has_value());
    return 0;
}
