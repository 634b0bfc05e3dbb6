// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "MonitorLinux/ProcessEnding.h"

#include "Base/File.h"
#include "MonitorCore/ProcessActionPolicy.h"
#include "MonitorLinux/Folder.h"
#include "MonitorLinux/ProcParsers.h"

#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <system_error>

namespace MonitorLinux
{

using Base::KestError;
using MonitorCore::ProcessKey;
using MonitorCore::Result;

namespace
{

// Debian 12's own wrappers of these two cannot be linked from C++.
int openProcess(pid_t pid) { return static_cast<int>(::syscall(SYS_pidfd_open, pid, 0)); }

bool sendSignal(int process, int signal)
{
    return ::syscall(SYS_pidfd_send_signal, process, signal, nullptr, 0) == 0;
}

std::unexpected<KestError> systemError()
{
    return std::unexpected(KestError::unavailable(std::generic_category().message(errno)));
}

// A descriptor stays with the process that had the number when it was opened; only then is
// the start looked at, so that it is that process's.
Result<void> endOne(const Folder &proc, const ProcessKey &key, int signal)
{
    const Base::FileDescriptor process{openProcess(key.pid)};
    if (!process.isOpen()) {
        return errno == ESRCH ? Result<void>{} : systemError();
    }
    const std::string text = proc.text(std::to_string(key.pid) + "/stat");
    const auto stat = parseProcessStat(text);
    if (!stat || stat->start != key.start) {
        return {};
    }
    return sendSignal(process.get(), signal) || errno == ESRCH ? Result<void>{} : systemError();
}

} // namespace

MonitorCore::Result<void> endProcesses(MonitorCore::Collector &collector,
                                       const std::vector<ProcessKey> &processes, Ending ending)
{
    const auto sample =
        collector.sample(MonitorCore::SampleScope::processes, Base::wallClock());
    const MonitorCore::ProcessActionPolicy policy{sample, ::getpid(), ::getuid()};
    if (const auto refusal = policy.refusal(processes)) {
        return std::unexpected(KestError::unavailable(std::string{Base::textOf(*refusal)}));
    }
    const int signal = ending == Ending::quit ? SIGTERM : SIGKILL;
    const Folder proc{"/proc"};
    for (const ProcessKey &key : processes) {
        if (!policy.refusal(key)) { // else it has gone, or is another user's
            KEST_CHECK(endOne(proc, key, signal));
        }
    }
    return {};
}

} // namespace MonitorLinux
