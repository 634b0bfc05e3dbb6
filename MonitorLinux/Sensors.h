// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "MonitorLinux/Finding.h"
#include "MonitorLinux/Folder.h"

namespace MonitorLinux
{

// The temperatures of processor and graphics and the fastest fan, from /sys/class/hwmon;
// where no chip tells the processor's, from /sys/class/thermal.
void readSensors(const Folder &sys, Findings &findings);

// The load of the busiest graphics card and the memory in use on all, from /sys/class/drm.
void readGraphics(const Folder &sys, Findings &findings);

} // namespace MonitorLinux
