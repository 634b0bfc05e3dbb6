// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "MonitorCore/MonitorPreferences.h"
#include "fuzz/RoundTrip.h"

#include <algorithm>
#include <limits>

namespace
{

bool isHeld(double value, double lowest, double highest)
{
    return value >= lowest && value <= highest;
}

} // namespace

// Whatever decodes is mended to something that makes sense, once and for all.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const auto preferences = roundTrip<MonitorCore::MonitorPreferences>(data, size);
    if (!preferences) {
        return 0;
    }
    const auto mended = MonitorCore::normalised(*preferences);
    const auto knows = [](const auto &words, const std::string &word) {
        return std::ranges::find(words, word) != words.end();
    };
    const bool makesSense =
        (mended.retentionDays == 1 || mended.retentionDays == 7 ||
         mended.retentionDays == 30) &&
        isHeld(mended.cpuThreshold, 10, 10'000) && isHeld(mended.cpuDuration, 60, 3'600) &&
        isHeld(mended.memoryGrowthBytes, 268'435'456, std::numeric_limits<double>::max()) &&
        mended.diskThreshold >= 0 && mended.networkThreshold >= 0 &&
        knows(MonitorCore::kPinMetrics, mended.pinMetric) &&
        knows(MonitorCore::kMenuStyles, mended.menuStyle);
    if (!makesSense || MonitorCore::normalised(mended) != mended ||
        !Base::json::encode(mended)) {
        std::abort();
    }
    return 0;
}
