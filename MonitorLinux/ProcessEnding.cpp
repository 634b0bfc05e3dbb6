// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "MonitorLinux/ProcessEnding.h"

#include "Base/File.h"
#include "MonitorCore/ProcessActionPolicy.h"

#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <system_error>

namespace MonitorLinux
{

using Base::KestError;
using MonitorCore::ProcessKey;

namespace
{

// Debian 12's own wrappers of these two cannot be linked from C++.
int openProcess(pid_t pid) { return static_cast<int>(::syscall(SYS_pidfd_open, pid, 0)); }

bool sendSignal(int process, int signal)
{
    return ::syscall(SYS_pidfd_send_signal, process, signal, nullptr, 0) == 0;
}

// A descriptor stays with the process that had the number when it was opened.
struct Held {
    ProcessKey key{};
    Base::FileDescriptor process{};
};

std::vector<Held> hold(const std::vector<ProcessKey> &processes)
{
    std::vector<Held> held;
    for (const ProcessKey &key : processes) {
        Base::FileDescriptor process{openProcess(key.pid)};
        if (process.isOpen()) {
            held.push_back({.key = key, .process = std::move(process)});
        }
    }
    return held;
}

} // namespace

MonitorCore::Result<void> endProcesses(MonitorCore::Collector &collector,
                                       const std::vector<ProcessKey> &processes, Ending ending)
{
    // Held first and looked at then: what the sample says is true of what is held.
    const auto held = hold(processes);
    const auto sample =
        collector.sample(MonitorCore::SampleScope::processes, Base::wallClock());
    const MonitorCore::ProcessActionPolicy policy{sample, ::getpid(), ::getuid()};
    if (const auto refusal = policy.refusal(processes)) {
        return std::unexpected(KestError::unavailable(std::string{Base::textOf(*refusal)}));
    }
    const int signal = ending == Ending::quit ? SIGTERM : SIGKILL;
    for (const Held &one : held) {
        if (policy.refusal(one.key)) {
            continue; // it has gone: anything else would have refused the whole
        }
        if (!sendSignal(one.process.get(), signal) && errno != ESRCH) {
            return std::unexpected(
                KestError::unavailable(std::generic_category().message(errno)));
        }
    }
    return {};
}

} // namespace MonitorLinux
