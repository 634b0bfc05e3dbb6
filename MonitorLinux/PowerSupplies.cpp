// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "MonitorLinux/PowerSupplies.h"

#include "MonitorLinux/ProcParsers.h"

#include <algorithm>
#include <cmath>

namespace MonitorLinux
{

namespace
{

constexpr const char *kSource = "/sys/class/power_supply";
constexpr double kMicro = 1e-6;
constexpr double kLeastWatts = 0.1; // below it a driver has not measured yet

std::optional<double> numberOf(std::string_view text, std::string_view key)
{
    const auto value = valueOf(text, key);
    const auto number = value ? parseNumber(*value) : std::nullopt;
    return number ? std::optional{static_cast<double>(*number)} : std::nullopt;
}

std::optional<double> times(std::optional<double> a, std::optional<double> b)
{
    return a && b ? std::optional{*a * *b} : std::nullopt;
}

std::optional<double> positive(std::optional<double> value)
{
    return value && *value > 0 ? value : std::nullopt;
}

std::string textOf(std::string_view text, std::string_view key)
{
    return asUtf8(valueOf(text, key).value_or(""));
}

// The sum of what every battery tells; nothing when one does not tell it.
std::optional<double> sumOf(const std::vector<PowerSupply> &batteries,
                            std::optional<double> PowerSupply::*figure)
{
    double sum = 0;
    for (const PowerSupply &battery : batteries) {
        const std::optional<double> &value = battery.*figure;
        if (!value) {
            return std::nullopt;
        }
        sum += *value;
    }
    return batteries.empty() ? std::nullopt : std::optional{sum};
}

std::optional<double> chargeOf(const std::vector<PowerSupply> &batteries)
{
    const auto now = sumOf(batteries, &PowerSupply::now);
    const auto full = sumOf(batteries, &PowerSupply::full);
    if (now && full) {
        return std::clamp(100 * *now / *full, 0.0, 100.0);
    }
    const auto percents = sumOf(batteries, &PowerSupply::percent);
    return percents ? std::optional{*percents / static_cast<double>(batteries.size())}
                    : std::nullopt;
}

Finding minutesOf(const std::vector<PowerSupply> &batteries, const std::string &status)
{
    if (std::ranges::none_of(batteries, &PowerSupply::isDischarging)) {
        return missing(MetricState::unsupported, kSource, status);
    }
    const auto now = sumOf(batteries, &PowerSupply::now);
    double watts = 0;
    for (const PowerSupply &battery : batteries) {
        watts += battery.isDischarging ? battery.watts.value_or(0) : 0;
    }
    if (!now || watts < kLeastWatts) {
        return missing(now ? MetricState::warmingUp : MetricState::unsupported, kSource);
    }
    return found(60 * *now / watts, kSource, status);
}

} // namespace

PowerSupply parsePowerSupply(std::string_view text)
{
    PowerSupply supply;
    supply.isBattery = textOf(text, "POWER_SUPPLY_TYPE") == "Battery" &&
                       numberOf(text, "POWER_SUPPLY_PRESENT") != 0.0;
    supply.isAccessory = textOf(text, "POWER_SUPPLY_SCOPE") == "Device";
    supply.status = textOf(text, "POWER_SUPPLY_STATUS");
    supply.isDischarging = supply.status == "Discharging";
    supply.model = textOf(text, "POWER_SUPPLY_MODEL_NAME");
    supply.percent = numberOf(text, "POWER_SUPPLY_CAPACITY");
    const auto volts = times(positive(numberOf(text, "POWER_SUPPLY_VOLTAGE_NOW")), kMicro);
    const auto amounts = [&](const std::string &kind, double scale) {
        supply.now = times(numberOf(text, kind + "_NOW"), scale);
        supply.full = positive(times(numberOf(text, kind + "_FULL"), scale));
        supply.design = positive(times(numberOf(text, kind + "_FULL_DESIGN"), scale));
    };
    amounts("POWER_SUPPLY_ENERGY", kMicro);
    if (!supply.full) {
        amounts("POWER_SUPPLY_CHARGE", kMicro * volts.value_or(1));
    }
    supply.watts = times(numberOf(text, "POWER_SUPPLY_POWER_NOW"), kMicro);
    if (!supply.watts) {
        supply.watts = times(times(numberOf(text, "POWER_SUPPLY_CURRENT_NOW"), kMicro), volts);
    }
    if (supply.watts) {
        supply.watts = std::abs(*supply.watts); // some drivers count what leaves as negative
    }
    return supply;
}

PowerSupplies readPowerSupplies(const Folder &sys)
{
    PowerSupplies all;
    std::vector<PowerSupply> batteries;
    const std::string folder = "class/power_supply";
    for (const std::string &name : sys.names(folder)) {
        std::string file = folder;
        file.append("/").append(name).append("/uevent");
        const auto supply = parsePowerSupply(sys.text(file));
        if (supply.isAccessory && supply.isBattery && supply.percent) {
            all.accessories.push_back({.id = name,
                                       .name = supply.model.empty() ? name : supply.model,
                                       .percent = std::clamp(*supply.percent, 0.0, 100.0)});
        } else if (!supply.isAccessory && supply.isBattery) {
            batteries.push_back(supply);
        }
    }
    const std::string status = batteries.empty() ? "" : batteries.front().status;
    const auto full = sumOf(batteries, &PowerSupply::full);
    const auto design = sumOf(batteries, &PowerSupply::design);
    all.findings[MetricID::battery] = foundOrUnsupported(chargeOf(batteries), kSource, status);
    all.findings[MetricID::batteryHealth] = foundOrUnsupported(
        full && design ? std::optional{100 * *full / *design} : std::nullopt, kSource);
    all.findings[MetricID::batteryMinutes] = batteries.empty()
                                                 ? missing(MetricState::unsupported, kSource)
                                                 : minutesOf(batteries, status);
    if (std::ranges::any_of(batteries, &PowerSupply::isDischarging)) {
        double watts = 0;
        for (const PowerSupply &battery : batteries) {
            watts += battery.isDischarging ? battery.watts.value_or(0) : 0;
        }
        all.drawWatts = watts >= kLeastWatts ? std::optional{watts} : std::nullopt;
    }
    return all;
}

} // namespace MonitorLinux
