// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "MonitorLinux/Sensors.h"

#include "MonitorLinux/ProcParsers.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <tuple>

namespace MonitorLinux
{

namespace
{

constexpr std::string_view kProcessorChips[] = {"coretemp",    "k10temp",  "zenpower",
                                                "cpu_thermal", "soc_dts0", "via_cputemp"};
constexpr std::string_view kGraphicsChips[] = {"amdgpu", "nouveau", "radeon", "i915", "xe"};
constexpr std::string_view kProcessorZones[] = {"x86_pkg_temp", "cpu-thermal", "cpu_thermal",
                                                "cpu0-thermal", "soc-thermal", "soc_thermal"};

std::string below(std::string folder, std::string_view name)
{
    return folder.append("/").append(name);
}

std::string firstLine(std::string text)
{
    text.resize(std::min(text.find('\n'), text.size()));
    return text;
}

// To ask a card that is powered down would wake it, and empty a battery.
bool isPoweredDown(const Folder &sys, const std::string &device)
{
    return firstLine(sys.text(device + "/power/runtime_status")) == "suspended";
}

// The better of two is the one that speaks for the whole chip, then the hotter.
struct Temperature {
    int rank{};
    double celsius{};
    std::string label{};

    bool operator<(const Temperature &other) const
    {
        return std::tie(rank, celsius) < std::tie(other.rank, other.celsius);
    }
};

int rankOf(std::string_view label)
{
    if (label == "Tdie") { // without the offset that some processors add for their fan
        return 2;
    }
    return label.starts_with("Package") || label == "Tctl" || label == "edge" ? 1 : 0;
}

struct Sensors {
    std::optional<Temperature> processor{};
    std::optional<Temperature> graphics{};
    std::optional<double> fan{};
};

void keepBetter(std::optional<Temperature> &best, Temperature candidate)
{
    if (!best || *best < candidate) {
        best = std::move(candidate);
    }
}

void readChip(const Folder &sys, const std::string &chip, Sensors &sensors)
{
    const std::string kind = firstLine(sys.text(chip + "/name"));
    const bool isProcessor = std::ranges::count(kProcessorChips, kind) > 0;
    const bool isGraphics = std::ranges::count(kGraphicsChips, kind) > 0;
    if (isGraphics && isPoweredDown(sys, chip + "/device")) {
        return; // its fan would wake it too
    }
    for (const std::string &file : sys.names(chip)) {
        constexpr std::string_view kEnding = "_input";
        const bool isTemperature = file.starts_with("temp") && (isProcessor || isGraphics);
        if (!file.ends_with(kEnding) || (!isTemperature && !file.starts_with("fan"))) {
            continue; // others are never read: some drivers wake a device for it
        }
        const auto value = parseNumber(sys.text(below(chip, file)));
        if (!value) {
            continue; // the chip has no figure just now
        }
        if (!isTemperature) {
            sensors.fan = std::max(sensors.fan.value_or(0), static_cast<double>(*value));
            continue;
        }
        const std::string stem = file.substr(0, file.size() - kEnding.size());
        const std::string label = firstLine(sys.text(below(chip, stem + "_label")));
        const std::string name = label.empty() ? kind : fmt::format("{} {}", kind, label);
        keepBetter(isProcessor ? sensors.processor : sensors.graphics,
                   {.rank = rankOf(label),
                    .celsius = static_cast<double>(*value) / 1000,
                    .label = asUtf8(name)});
    }
}

// Boards without a sensor chip tell their processor's temperature only here.
std::optional<Temperature> readZones(const Folder &sys)
{
    std::optional<Temperature> best;
    const std::string folder = "class/thermal";
    for (const std::string &zone : sys.names(folder)) {
        const std::string path = below(folder, zone);
        const std::string type = firstLine(sys.text(path + "/type"));
        if (zone.starts_with("thermal_zone") && std::ranges::count(kProcessorZones, type) > 0) {
            if (const auto value = parseNumber(sys.text(path + "/temp"))) {
                keepBetter(best, {.celsius = static_cast<double>(*value) / 1000,
                                  .label = asUtf8(type)});
            }
        }
    }
    return best;
}

Finding temperature(const std::optional<Temperature> &best, std::string source)
{
    return best ? found(best->celsius, std::move(source), best->label)
                : missing(MetricState::unsupported, std::move(source));
}

bool isCard(std::string_view name) // "card0", but not its outputs such as "card0-DP-1"
{
    return name.starts_with("card") && name.find('-') == std::string_view::npos;
}

void addTo(std::optional<double> &sum, std::optional<std::int64_t> value)
{
    if (value) {
        sum = sum.value_or(0) + static_cast<double>(*value);
    }
}

} // namespace

void readSensors(const Folder &sys, Findings &findings)
{
    const std::string folder = "class/hwmon";
    Sensors sensors;
    for (const std::string &chip : sys.names(folder)) {
        readChip(sys, below(folder, chip), sensors);
    }
    const std::string source = "/sys/" + folder;
    findings[MetricID::cpuTemperature] =
        sensors.processor ? temperature(sensors.processor, source)
                          : temperature(readZones(sys), "/sys/class/thermal");
    findings[MetricID::gpuTemperature] = temperature(sensors.graphics, source);
    findings[MetricID::fanRPM] = foundOrUnsupported(sensors.fan, source);
}

void readGraphics(const Folder &sys, Findings &findings)
{
    const std::string folder = "class/drm";
    std::optional<double> load;
    std::optional<double> used;
    bool isAsleep = false;
    for (const std::string &card : sys.names(folder)) {
        const std::string device = below(folder, card) + "/device";
        if (!isCard(card) || !sys.has((device + "/gpu_busy_percent").c_str())) {
            continue;
        }
        if (isPoweredDown(sys, device)) {
            isAsleep = true;
            continue;
        }
        if (const auto busy = parseNumber(sys.text(device + "/gpu_busy_percent"))) {
            load = std::max(load.value_or(0), static_cast<double>(*busy));
        }
        addTo(used, parseNumber(sys.text(device + "/mem_info_vram_used")));
    }
    const std::string source = "/sys/" + folder;
    const std::optional<std::string> asleep{"Powered down"};
    findings[MetricID::gpu] =
        !load && isAsleep ? found(0, source, asleep) : foundOrUnsupported(load, source);
    findings[MetricID::gpuMemory] =
        !used && isAsleep ? found(0, source, asleep) : foundOrUnsupported(used, source);
}

} // namespace MonitorLinux
