// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "cli/MonitorText.h"

#include "Base/Text.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace Cli
{

namespace
{

using MonitorCore::MetricID;
using MonitorCore::MetricState;
using MonitorCore::MetricUnit;

// In the order of the enumeration.
constexpr std::array kTitles = std::to_array<std::string_view>({"Processor",
                                                                "Processor, programs",
                                                                "Processor, system",
                                                                "Processor, idle",
                                                                "Memory in use",
                                                                "Memory installed",
                                                                "Memory pressure",
                                                                "Memory wired",
                                                                "Memory compressed",
                                                                "Disk free",
                                                                "Disk size",
                                                                "Disk read",
                                                                "Disk write",
                                                                "Download",
                                                                "Upload",
                                                                "Battery",
                                                                "Battery health",
                                                                "Battery left",
                                                                "Graphics",
                                                                "Graphics memory",
                                                                "Processor temperature",
                                                                "Graphics temperature",
                                                                "Fan",
                                                                "Power",
                                                                "Energy impact"});
static_assert(kTitles.size() == enumTexts(Base::Of<MetricID>{}).size());

// "9.4 GB" and "214 GB": as many digits as tell something.
std::string bytesText(double bytes)
{
    constexpr std::array kUnits{"B", "kB", "MB", "GB", "TB", "PB"};
    std::size_t unit = 0;
    while (std::abs(bytes) >= 999.5 && unit + 1 < kUnits.size()) {
        bytes /= 1000;
        ++unit;
    }
    const int digits = unit > 0 && std::abs(bytes) < 99.95 ? 1 : 0;
    return fmt::format("{:.{}f} {}", bytes, digits, kUnits.at(unit));
}

std::string percentText(double percent)
{
    return fmt::format("{:.{}f} %", percent, std::abs(percent) < 9.95 ? 1 : 0);
}

} // namespace

std::string_view metricTitle(MetricID metric)
{
    return kTitles.at(static_cast<std::size_t>(metric));
}

std::string amountText(double value, MetricUnit unit)
{
    switch (unit) {
    case MetricUnit::percent:
        return percentText(value);
    case MetricUnit::bytes:
        return bytesText(value);
    case MetricUnit::bytesPerSecond:
        return bytesText(value) + "/s";
    case MetricUnit::minutes:
        return spanText(60 * value);
    case MetricUnit::celsius:
        return fmt::format("{:.0f} °C", value);
    case MetricUnit::rpm:
        return fmt::format("{:.0f} rpm", value);
    case MetricUnit::watts:
        return fmt::format("{:.1f} W", value);
    case MetricUnit::level:
    case MetricUnit::score:
        break;
    }
    return fmt::format("{:.1f}", value);
}

std::string_view stateText(MetricState state)
{
    switch (state) {
    case MetricState::warmingUp:
        return "warming up";
    case MetricState::stale:
        return "no answer";
    case MetricState::unsupported:
        return "not available";
    case MetricState::permissionRequired:
        return "not permitted";
    case MetricState::available:
        break;
    }
    return "available";
}

std::string readingText(const MonitorCore::MetricReading &reading)
{
    if (reading.state != MetricState::available || !reading.value) {
        return std::string{stateText(reading.state)};
    }
    return amountText(*reading.value, reading.unit);
}

std::string spanText(double seconds)
{
    constexpr double kMost = 1e12; // a number from elsewhere may fit no integer
    constexpr std::int64_t kDay = 1'440;
    const auto minutes = static_cast<std::int64_t>(std::clamp(seconds, 0.0, kMost) / 60);
    if (minutes >= kDay) {
        return fmt::format("{} d {} h", minutes / kDay, minutes / 60 % 24);
    }
    return minutes >= 60 ? fmt::format("{} h {:02} min", minutes / 60, minutes % 60)
                         : fmt::format("{} min", minutes);
}

std::string barText(double share, int cells)
{
    const double part = std::isfinite(share) ? std::clamp(share, 0.0, 1.0) : 0;
    const auto full = static_cast<int>(std::lround(part * cells));
    std::string text;
    for (int cell = 0; cell < cells; ++cell) {
        text += cell < full ? "━" : "─";
    }
    return text;
}

std::string sparkline(std::span<const double> values, double most, int cells)
{
    constexpr std::array<std::string_view, 9> kEighths{" ", "▁", "▂", "▃", "▄",
                                                       "▅", "▆", "▇", "█"};
    const auto room = static_cast<std::size_t>(std::max(cells, 0));
    const auto shown = values.last(std::min(values.size(), room));
    std::string text(room - shown.size(), ' ');
    for (const double value : shown) {
        const double share = most > 0 ? std::clamp(value / most, 0.0, 1.0) : 0;
        // Whatever is more than nothing shows.
        const auto eighths = static_cast<std::size_t>(std::ceil(share * 8));
        text += kEighths.at(eighths);
    }
    return text;
}

std::string fitted(std::string_view text, int cells)
{
    const auto room = static_cast<std::size_t>(std::max(cells, 0));
    std::string shown{text};
    if (Base::countCells(text) > room) {
        shown = Base::firstCells(text, room == 0 ? 0 : room - 1);
        shown += room == 0 ? "" : "…";
    }
    return shown.append(room - Base::countCells(shown), ' ');
}

} // namespace Cli
