// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "MonitorCore/HistoryItems.h"

#include <algorithm>
#include <cmath>

namespace MonitorCore
{

namespace
{

constexpr double kPeakMemorySeconds = 3'600;
constexpr double kPeakStep = 1.1; // how far above the old peak a new one must be

// None where there is nothing to show either.
std::optional<double> numberOf(const MetricReading &reading)
{
    const bool hasNumber = reading.state == MetricState::available && reading.value &&
                           std::isfinite(*reading.value);
    return hasNumber ? reading.value : std::nullopt;
}

void addReadings(const MonitorSnapshot &snapshot, std::optional<Base::Instant> lastAdvanced,
                 std::vector<HistoryItem> &items)
{
    for (const auto &[metric, reading] : snapshot.readings) {
        const auto number = numberOf(reading);
        if (!number) {
            continue;
        }
        HistoryItem item{.app = kSystemKey,
                         .metric = metric,
                         .value = *number,
                         .end = Base::seconds1970(snapshot.timestamp),
                         .duration = snapshot.interval};
        const auto &advanced = snapshot.advancedTimestamp;
        // The privileged sampler works at a pace of its own and its figures stand in every
        // snapshot until the next ones come; they bear its time.
        if (advanced && reading.timestamp == *advanced && *advanced != snapshot.timestamp) {
            if (advanced == lastAdvanced) {
                continue;
            }
            item.end = Base::seconds1970(*advanced);
            item.duration = snapshot.advancedInterval.value_or(0);
        }
        items.push_back(item);
    }
}

// Nothing at all caused nothing, and what has no name or no number tells nothing.
bool canCause(const AppUsage &app, double value)
{
    return value > 0 && std::isfinite(value) && app.id != kSystemKey;
}

// What an application must have to be among the five highest.
double fifthHighest(const MonitorSnapshot &snapshot, const AppMetric &rule)
{
    std::vector<double> values;
    for (const AppUsage &app : snapshot.apps) {
        if (canCause(app, app.*rule.usage)) {
            values.push_back(app.*rule.usage);
        }
    }
    if (values.size() <= kCausesKept) {
        return 0;
    }
    const auto fifth = values.begin() + kCausesKept - 1;
    std::ranges::nth_element(values, fifth, std::greater{});
    return *fifth;
}

void addApps(const MonitorSnapshot &snapshot, const AppMetric &rule, bool isSpike,
             std::vector<HistoryItem> &items)
{
    const double floor =
        isSpike ? std::min(rule.floor, fifthHighest(snapshot, rule)) : rule.floor;
    for (const AppUsage &app : snapshot.apps) {
        const double value = app.*rule.usage;
        if (value >= floor && canCause(app, value)) {
            items.push_back({.app = app.id,
                             .metric = rule.metric,
                             .value = value,
                             .end = Base::seconds1970(snapshot.timestamp),
                             .duration = snapshot.interval});
        }
    }
}

} // namespace

std::set<MetricID> SpikeDetector::update(const MonitorSnapshot &snapshot)
{
    std::set<MetricID> spikes;
    for (const AppMetric &rule : kAppMetrics) {
        const auto reading = snapshot.readings.find(rule.metric);
        const auto number =
            reading == snapshot.readings.end() ? std::nullopt : numberOf(reading->second);
        if (!number) {
            continue;
        }
        const double value = *number;
        const auto [memory, isNew] = m_memories.try_emplace(
            rule.metric, Memory{.last = value, .peak = value, .peakAt = snapshot.timestamp});
        if (!isNew && isSpike(rule, value, snapshot.timestamp, memory->second)) {
            spikes.insert(rule.metric);
        }
        memory->second.last = value;
    }
    return spikes;
}

bool SpikeDetector::isSpike(const AppMetric &rule, double value, Base::Instant now,
                            Memory &memory)
{
    const bool crosses =
        rule.spikeLevel > 0 && memory.last < rule.spikeLevel && value >= rule.spikeLevel;
    const double age = (now - memory.peakAt).count();
    const bool isForgotten = !(age >= 0 && age <= kPeakMemorySeconds);
    const bool isPeak = value > (isForgotten ? memory.last : memory.peak) * kPeakStep;
    if (isForgotten || isPeak) {
        memory.peak = value;
        memory.peakAt = now;
    }
    return crosses || (isPeak && value >= rule.lowestPeak);
}

std::vector<HistoryItem> historyItems(const MonitorSnapshot &snapshot,
                                      const std::set<MetricID> &spikes,
                                      std::optional<Base::Instant> lastAdvanced)
{
    std::vector<HistoryItem> items;
    items.reserve(snapshot.readings.size() + snapshot.apps.size() * std::size(kAppMetrics));
    addReadings(snapshot, lastAdvanced, items);
    for (const AppMetric &rule : kAppMetrics) {
        addApps(snapshot, rule, spikes.contains(rule.metric), items);
    }
    return items;
}

} // namespace MonitorCore
