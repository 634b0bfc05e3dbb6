// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <pulse/thread-mainloop.h>

namespace Velvetnook
{

// The lock of libpulse's loop, which its callbacks hold too.
class PulseLock
{
public:
    explicit PulseLock(pa_threaded_mainloop *loop) : m_loop{loop}
    {
        pa_threaded_mainloop_lock(loop);
    }
    ~PulseLock() { pa_threaded_mainloop_unlock(m_loop); }
    PulseLock(const PulseLock &) = delete;
    PulseLock &operator=(const PulseLock &) = delete;

private:
    pa_threaded_mainloop *m_loop;
};

} // namespace Velvetnook
