// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "MonitorCore/MonitorSnapshot.h"

#include <set>
#include <string_view>
#include <vector>

namespace MonitorCore
{

// The application key of what belongs to the whole machine. No application has an empty key.
inline constexpr std::string_view kSystemKey{};

// Metrics that applications have too, and so can be asked which of them caused a height. For
// these an application's figure is kept while it is at least `floor`: most applications idle
// most of the time, and their zeros would fill the file. A series of an application is thus
// the mean over the time that its `coverage` tells.
struct AppMetric {
    MetricID metric{};
    double AppUsage::*usage{};
    double floor{};      // an application's figure below it is not kept
    double spikeLevel{}; // of the machine; crossing it upwards is a spike. 0: has none
    double lowestPeak{}; // of the machine; a new peak below it is none
};

inline constexpr double kMegabyte = 1'000'000;
inline constexpr AppMetric kAppMetrics[] = {
    {MetricID::cpu, &AppUsage::cpu, 1, 80, 20},
    {MetricID::memoryUsed, &AppUsage::memory, 100 * kMegabyte, 0, 500 * kMegabyte},
    {MetricID::diskRead, &AppUsage::diskRead, 0.01 * kMegabyte, 0, 5 * kMegabyte},
    {MetricID::diskWrite, &AppUsage::diskWrite, 0.01 * kMegabyte, 0, 5 * kMegabyte},
    {MetricID::download, &AppUsage::download, 0.01 * kMegabyte, 0, 1 * kMegabyte},
    {MetricID::upload, &AppUsage::upload, 0.01 * kMegabyte, 0, 1 * kMegabyte},
    {MetricID::energyImpact, &AppUsage::energy, 10, 0, 20},
};

// Tells when a metric of the machine jumps: it crosses its level upwards, or exceeds by a
// tenth the highest jump of the last hour (or what was before, where there was none), so that
// a slow climb is told a tenth at a time. Belongs to one recorder.
class SpikeDetector
{
public:
    std::set<MetricID> update(const MonitorSnapshot &snapshot);

private:
    struct Memory {
        double last{};
        double peak{};
        Base::Instant peakAt{};
    };

    static bool isSpike(const AppMetric &rule, double value, Base::Instant now, Memory &memory);

    std::map<MetricID, Memory> m_memories;
};

// One value that held for a while, on its way into the history.
struct HistoryItem {
    std::string_view app{}; // lives in the snapshot
    MetricID metric{};
    double value{};
    double end{};      // seconds since 1970
    double duration{}; // seconds
};

// How many applications are kept whatever their figures when a metric jumps.
inline constexpr std::size_t kCausesKept = 5;

// What the history keeps of a snapshot: every reading that is available and every
// application's figures from their floors on; of a metric in `spikes` the five highest
// applications besides. Readings of the privileged sampler count for the time that it says,
// and are left out when they are the ones of `lastAdvanced`, which are stored already.
std::vector<HistoryItem> historyItems(const MonitorSnapshot &snapshot,
                                      const std::set<MetricID> &spikes,
                                      std::optional<Base::Instant> lastAdvanced);

} // namespace MonitorCore
