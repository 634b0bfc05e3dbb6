// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "MonitorLinux/Finding.h"
#include "MonitorLinux/Folder.h"

namespace MonitorLinux
{

// The uevent text of one /sys/class/power_supply entry.
struct PowerSupply {
    bool isBattery{};
    bool isAccessory{}; // a mouse's or headset's, not the machine's
    bool isDischarging{};
    std::string status{}; // the kernel's word, such as "Charging"
    std::string model{};
    std::optional<double> percent{};
    // Watt-hours; where the driver counts charge and tells no voltage, ampere-hours.
    std::optional<double> now{};
    std::optional<double> full{};
    std::optional<double> design{}; // full when it was new
    std::optional<double> watts{};  // flowing in or out

    bool operator==(const PowerSupply &) const = default;
};
PowerSupply parsePowerSupply(std::string_view text);

struct PowerSupplies {
    Findings findings{}; // charge, health and minutes, several batteries taken as one
    std::optional<double> drawWatts{}; // of the whole machine, while it runs on a battery
    std::vector<MonitorCore::AccessoryBattery> accessories{};
};
PowerSupplies readPowerSupplies(const Folder &sys);

} // namespace MonitorLinux
