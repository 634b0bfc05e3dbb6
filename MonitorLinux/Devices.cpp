// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "MonitorLinux/Devices.h"

#include "MonitorLinux/PowerSupplies.h"
#include "MonitorLinux/ProcParsers.h"
#include "MonitorLinux/Sensors.h"

#include <array>

namespace MonitorLinux
{

namespace
{

constexpr const char *kPowercap = "class/powercap";

std::optional<double> readZram(const Folder &sys)
{
    std::optional<double> sum;
    for (const std::string &name : sys.names("block")) {
        const auto bytes = name.starts_with("zram")
                               ? parseZramUse(sys.text("block/" + name + "/mm_stat"))
                               : std::nullopt;
        if (bytes) {
            sum = sum.value_or(0) + static_cast<double>(*bytes);
        }
    }
    return sum;
}

// The zones of the processor's energy counters to add up: the whole board's where there is
// one, else each package. Zones inside a package carry the same energy again.
std::vector<std::string> energyZones(const Folder &sys, bool &isWholeBoard)
{
    std::vector<std::string> packages;
    for (const std::string &zone : sys.names(kPowercap)) {
        const std::string path = std::string{kPowercap} + "/" + zone;
        if (!zone.starts_with("intel-rapl:")) { // AMD's processors stand under this name too
            continue;
        }
        const std::string name = sys.text(path + "/name");
        if (name.starts_with("psys")) {
            isWholeBoard = true;
            return {path};
        }
        if (name.starts_with("package")) {
            packages.push_back(path);
        }
    }
    return packages;
}

} // namespace

Finding DeviceReader::readPackagePower(double time)
{
    const std::string source = std::string{"/sys/"} + kPowercap;
    bool isWholeBoard = false;
    const auto zones = energyZones(m_sys, isWholeBoard);
    double watts = 0;
    bool isWarm = true; // no zone is at its first reading, or wrapped
    for (const std::string &zone : zones) {
        std::array<char, 64> buffer{};
        const ReadText read = m_sys.read((zone + "/energy_uj").c_str(), buffer);
        if (read.isDenied()) {
            return missing(MetricState::permissionRequired, source);
        }
        const auto energy = parseNumber(read.text);
        if (!energy || *energy < 0) {
            return missing(MetricState::unsupported, source);
        }
        const auto rate = m_energy[zone].update(static_cast<std::uint64_t>(*energy), time);
        isWarm = isWarm && rate;
        watts += rate.value_or(0) * 1e-6;
    }
    if (zones.empty()) {
        return missing(MetricState::unsupported, source);
    }
    Finding power = foundRate(isWarm ? std::optional{watts} : std::nullopt, source);
    if (!isWholeBoard) {
        power.detail = "Processor only";
    }
    return power;
}

DeviceReadings DeviceReader::read(double time)
{
    PowerSupplies supplies = readPowerSupplies(m_sys);
    DeviceReadings readings{.findings = std::move(supplies.findings),
                            .accessories = std::move(supplies.accessories),
                            .zramBytes = readZram(m_sys)};
    readSensors(m_sys, readings.findings);
    readGraphics(m_sys, readings.findings);
    // Read in any case, so that the counters stay warm for when the mains come back.
    Finding power = readPackagePower(time);
    readings.findings[MetricID::powerWatts] =
        supplies.drawWatts ? found(*supplies.drawWatts, "/sys/class/power_supply")
                           : std::move(power);
    return readings;
}

} // namespace MonitorLinux
