// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "MonitorCore/MonitorPreferences.h"

#include "Base/JsonReader.h"
#include "Base/JsonWriter.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace Base::json
{

using namespace MonitorCore;
template Result<MonitorPreferences> decode(const PaddedText &);
template Result<std::string> encode(const MonitorPreferences &);

} // namespace Base::json

namespace MonitorCore
{

namespace
{

constexpr double kLowestGrowth = 268'435'456; // 256 MiB
constexpr double kNoLimit = std::numeric_limits<double>::max();

void hold(double &value, double lowest, double highest, double otherwise)
{
    value = std::isfinite(value) ? std::clamp(value, lowest, highest) : otherwise;
}

void holdToWords(std::string &word, auto words)
{
    if (std::ranges::find(words, word) == words.end()) {
        word = words.front();
    }
}

} // namespace

MonitorPreferences normalised(MonitorPreferences preferences)
{
    const MonitorPreferences defaults;
    auto &p = preferences;
    if (p.retentionDays != 1 && p.retentionDays != 7) {
        p.retentionDays = defaults.retentionDays;
    }
    hold(p.cpuThreshold, 10, 10'000, defaults.cpuThreshold);
    hold(p.cpuDuration, 60, 3'600, defaults.cpuDuration);
    hold(p.memoryGrowthBytes, kLowestGrowth, kNoLimit, defaults.memoryGrowthBytes);
    hold(p.diskThreshold, 0, kNoLimit, defaults.diskThreshold);
    hold(p.networkThreshold, 0, kNoLimit, defaults.networkThreshold);
    holdToWords(p.pinMetric, kPinMetrics);
    holdToWords(p.menuStyle, kMenuStyles);
    return preferences;
}

} // namespace MonitorCore
