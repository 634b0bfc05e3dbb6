// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "RunningModel.h"

#include <QSignalSpy>

#include <dlfcn.h>
#include <sys/timerfd.h>

#include <cerrno>
#include <utility>

namespace
{

bool s_clockWasSet = false; // since an alarm was armed last

} // namespace

// Stands before the system's own, which says so only after a clock was really set.
extern "C" int timerfd_settime(int fd, int flags, const itimerspec *wanted, itimerspec *before)
{
    using Call = int(int, int, const itimerspec *, itimerspec *);
    static auto *const real = reinterpret_cast<Call *>(dlsym(RTLD_NEXT, "timerfd_settime"));
    const int status = real(fd, flags, wanted, before);
    if (std::exchange(s_clockWasSet, false)) {
        errno = ECANCELED;
        return -1;
    }
    return status;
}

namespace
{

// The answer to setting the alarm can be the only word of a clock that was set.
TEST(DueClock, HearsOfASetClockFromTheAlarmThatItSets)
{
    RunningModel app;
    app.settle();
    QSignalSpy set{&app.model().clock(), &Velvetnook::DueClock::wallClockChanged};
    app.model().clock().tick();
    app.settle();
    EXPECT_EQ(set.count(), 0);
    s_clockWasSet = true;
    app.model().clock().tick();
    EXPECT_FALSE(s_clockWasSet);
    app.settle();
    EXPECT_EQ(set.count(), 1);
}

} // namespace
