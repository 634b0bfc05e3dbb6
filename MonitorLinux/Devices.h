// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "MonitorCore/CounterRate.h"
#include "MonitorLinux/Finding.h"
#include "MonitorLinux/Folder.h"

#include <map>

namespace MonitorLinux
{

// What the machine's devices told at one moment.
struct DeviceReadings {
    Findings findings{};
    std::vector<MonitorCore::AccessoryBattery> accessories{};
    std::optional<double> zramBytes{}; // memory that compressed swap takes; none without it
};

// Reads what drivers may be slow to tell (sensors, fans, batteries, graphics, power): a chip
// on a slow bus needs milliseconds, so this lives on a thread of its own. Reads the kernel's
// sensor files themselves: they give scaled figures with labels under any root folder.
class DeviceReader
{
public:
    // `sys` is "/sys" or a folder that stands in for it, which need not exist.
    explicit DeviceReader(const std::string &sys) : m_sys(sys) {}

    DeviceReadings read(double time);

private:
    Finding readPackagePower(double time);

    Folder m_sys;
    std::map<std::string, MonitorCore::CounterRate> m_energy; // by zone, in microjoules
};

} // namespace MonitorLinux
