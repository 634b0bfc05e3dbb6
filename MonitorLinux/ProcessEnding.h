// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "MonitorCore/Collector.h"

namespace MonitorLinux
{

enum class Ending : std::uint8_t {
    quit, // asks the process to end; it may save its work, or refuse
    kill, // ends it at once
};

// Ends the processes of one application, or a single one, where ProcessActionPolicy allows it;
// else fails with unavailable and the policy's text, and nothing is ended. Fails with the
// system's words where it refuses a signal; what came before that has had its own. Looks at
// the machine afresh. No other process is ever hit, even if one takes over a number meanwhile.
// Those that have gone by themselves are passed over.
[[nodiscard]] MonitorCore::Result<void>
endProcesses(MonitorCore::Collector &collector,
             const std::vector<MonitorCore::ProcessKey> &processes, Ending ending);

} // namespace MonitorLinux
